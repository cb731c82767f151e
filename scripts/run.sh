#!/usr/bin/env bash
# The main job: installs what is missing, builds, and runs a sample betting
# strategy for 1,000,000 rolls in Hyper-Drive, printing its report.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh build -DCMAKE_BUILD_TYPE=Release
build/dicemill-cli run --script samples/place-6-8-press.txt --rolls 1000000 --seed 1 "$@"
