#!/usr/bin/env bash
# The test job: installs what is missing, builds and runs every test, then
# builds and runs them again under AddressSanitizer and UBSan, and fuzzes
# every reader of outside files for 20 seconds each (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh build -DCMAKE_BUILD_TYPE=Release
ctest --test-dir build --output-on-failure -j"$(nproc)"
if [ "${1:-}" != "--no-sanitize" ]; then
  scripts/build.sh build-asan -DCMAKE_BUILD_TYPE=Debug -DDICEMILL_SANITIZE=ON -DDICEMILL_BENCH=OFF
  ctest --test-dir build-asan --output-on-failure -j"$(nproc)"
  scripts/fuzz.sh 20
fi
