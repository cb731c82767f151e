#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a while:
# fuzz.sh [SECONDS] (default 20). Seeds come from the samples and from a game
# saved by the program itself; new inputs found stay in build-fuzz/corpus.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-20}
# Undefined behaviour fails the run, as it fails the sanitizer build.
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
targets=(game_file_fuzz bet_file_fuzz prob_file_fuzz script_text_fuzz roll_file_fuzz)
CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDICEMILL_FUZZ=ON -DDICEMILL_BENCH=OFF >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target "${targets[@]}" dicemill-cli

corpus=build-fuzz/corpus
mkdir -p "$corpus"/{game_file,bet_file,prob_file,script_text,roll_file}
cp samples/*.bet "$corpus/bet_file/"
cp samples/*.txt "$corpus/script_text/"
cp tests/reliability/*.bet "$corpus/bet_file/"
cp tests/reliability/*.txt "$corpus/script_text/"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf 'bet 43 10\nroll 3 3\nsave "%s"\nquit\n' "$corpus/game_file/seed.crp" |
  build-fuzz/dicemill-cli play --folder "$work" >/dev/null
head -c 600 /dev/urandom | tr '\000-\377' '\044\050\054\060\064\070\104\110\114\120\124\130' >"$corpus/roll_file/seed.rol"

for t in "${targets[@]}"; do
  name=${t%_fuzz}
  echo "fuzzing $name for ${seconds}s" >&2
  build-fuzz/"$t" -max_total_time="$seconds" -print_final_stats=0 -artifact_prefix=build-fuzz/ "$corpus/$name" 2>"$work/$t.log" ||
    { tail -40 "$work/$t.log" >&2; exit 1; }
done
