#!/usr/bin/env bash
# The main job: installs what is missing, builds, and plays the sample game
# through the headless table, printing every message and state.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh build -DCMAKE_BUILD_TYPE=Release
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
build/dicemill-cli play --folder "$folder" < samples/first-game.txt
