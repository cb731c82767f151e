#!/usr/bin/env bash
# The main job: installs what is missing and builds. Run without arguments
# on a desktop ($DISPLAY or $WAYLAND_DISPLAY set) where the desktop program
# could be built (Qt 6 found), it opens the table. Otherwise it runs a sample
# betting strategy for 1,000,000 rolls in Hyper-Drive and prints its report;
# arguments go to that run and win over the defaults
# (scripts/run.sh --rolls 1000 --json). Only the report goes to standard
# output; installing and building talk on standard error. DICEMILL_BUILD_DIR
# picks another build tree than build/ (one already configured is kept as it is).
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${DICEMILL_BUILD_DIR:-build}
{
  scripts/install-deps.sh
  [ -f "$dir/CMakeCache.txt" ] || cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Release >/dev/null
  # A quick target, so that a tree changed since it was configured is read again.
  cmake --build "$dir" --target dicemill_check_layers >/dev/null
} >&2

# The configure step writes where the desktop program will be, or nothing
# when it cannot be built here.
app=$(cat "$dir/desktop-program-path.txt" 2>/dev/null || true)
if [ $# -eq 0 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -n "$app" ]; then
  cmake --build "$dir" -j"$(nproc)" --target dicemill_app >&2
  exec "$app"
fi

cmake --build "$dir" -j"$(nproc)" --target dicemill-cli >&2
echo "To play at the table: run scripts/run.sh without arguments on a desktop, or ${app:-$dir/dicemill} (needs Qt 6)." >&2
exec "$dir/dicemill-cli" run --script samples/place-6-8-press.txt --rolls 1000000 --seed 1 "$@"
