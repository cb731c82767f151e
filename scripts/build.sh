#!/usr/bin/env bash
# Configures and builds one tree: build.sh DIR [cmake options...]
set -euo pipefail
cd "$(dirname "$0")/.."
dir=$1
shift
cmake -S . -B "$dir" "$@" >/dev/null
cmake --build "$dir" -j"$(nproc)"
