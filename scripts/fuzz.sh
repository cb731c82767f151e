#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a while:
# fuzz.sh [SECONDS] (default 20). Seeds come from the samples, from files the
# program itself writes, from the files that once broke it (tests/reliability,
# and ../shared/reliability-cases when there); new inputs found stay in
# build-fuzz/corpus.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-20}
# Undefined behaviour fails the run, as it fails the sanitizer build.
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
targets=(game_file_fuzz bet_file_fuzz prob_file_fuzz script_text_fuzz roll_file_fuzz games_log_fuzz)
CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DDICEMILL_FUZZ=ON -DDICEMILL_BENCH=OFF >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target "${targets[@]}" dicemill-cli

corpus=build-fuzz/corpus
mkdir -p "$corpus"/{game_file,bet_file,prob_file,script_text,roll_file,games_log}
cp samples/*.bet "$corpus/bet_file/"
cp samples/*.txt "$corpus/script_text/"
# The files that broke the program, each to the fuzzer of its kind.
for dir in tests/reliability ../shared/reliability-cases; do
  [ -d "$dir" ] || continue
  for f in "$dir"/*; do
    case "$f" in
      *.crp) cp "$f" "$corpus/game_file/" ;;
      *.bet) cp "$f" "$corpus/bet_file/" ;;
      *.txt) cp "$f" "$corpus/script_text/" ;;
      *.glg) cp "$f" "$corpus/games_log/" ;;
    esac
  done
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf 'bet 43 10\nroll 3 3\nprob set 6 6 5000\nprob save "%s"\nsave "%s"\nquit\n' \
  "$corpus/prob_file/seed.prb" "$corpus/game_file/seed.crp" |
  build-fuzz/dicemill-cli play --folder "$work" >/dev/null
# A game file as other versions write it, without the closing check record
# and the record count in record 1: mutations of it reach every record.
head -c "$(($(stat -c %s "$corpus/game_file/seed.crp") - 256))" "$corpus/game_file/seed.crp" >"$work/open.crp"
dd if=/dev/zero of="$work/open.crp" bs=1 seek=232 count=24 conv=notrunc status=none
cp "$work/open.crp" "$corpus/game_file/seed-unchecked.crp"
build-fuzz/dicemill-cli run --quiet --rolls 200 --games 3 --script samples/iron-cross.txt --log "$corpus/games_log/seed.glg" >/dev/null
head -c 600 /dev/urandom | tr '\000-\377' '\044\050\054\060\064\070\104\110\114\120\124\130' >"$corpus/roll_file/seed.rol"

for t in "${targets[@]}"; do
  name=${t%_fuzz}
  echo "fuzzing $name for ${seconds}s" >&2
  build-fuzz/"$t" -max_total_time="$seconds" -print_final_stats=0 -artifact_prefix=build-fuzz/ "$corpus/$name" 2>"$work/$t.log" ||
    { tail -40 "$work/$t.log" >&2; exit 1; }
done
