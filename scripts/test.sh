#!/usr/bin/env bash
# The test job: installs what is missing, builds and runs every test, then
# builds them again with clang under AddressSanitizer and UBSan, runs them,
# and from the same build fuzzes every reader of outside files for 20
# seconds each (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
# Warnings are errors here, not in a user's own build.
scripts/build.sh build -DCMAKE_BUILD_TYPE=Release -DDICEMILL_WERROR=ON
ctest --test-dir build --output-on-failure -j"$(nproc)"
if [ "${1:-}" != "--no-sanitize" ]; then
  # One instrumented build serves the tests and the fuzzers.
  # The desktop program is left out here: Qt's own libraries are not
  # instrumented, and its screens are tested in the build above.
  CXX=clang++ scripts/build.sh build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDICEMILL_FUZZ=ON -DDICEMILL_BENCH=OFF \
    -DDICEMILL_DESKTOP=OFF -DDICEMILL_WERROR=ON
  UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 ctest --test-dir build-fuzz --output-on-failure -j"$(nproc)"
  scripts/fuzz.sh 20
fi
