#!/usr/bin/env bash
# Makes the sounds that ship with Dicemill into data/sounds/: the stickman's
# calls, spoken by espeak-ng, and the dice, win and chip effects, made with
# sox. The results are committed, so builds and CI never run this; rerun it
# after changing a call or an effect:
#
#   scripts/make-sounds.sh        (needs: apt-get install espeak-ng sox)
#
# The voice, speed and sox's random numbers are fixed, so a rerun on the same
# versions of espeak-ng and sox gives the same files byte for byte. Everything
# is mono 16-bit at a low rate with the silence trimmed, to keep the whole set
# small.
set -euo pipefail
cd "$(dirname "$0")/.."
out=data/sounds
voice=en-us
speed=165        # words a minute
pitch=40
rate=11025       # Hz: plenty for a voice over a table's noise

for tool in espeak-ng sox; do
  command -v "$tool" >/dev/null || { echo "make-sounds: $tool is missing (apt-get install espeak-ng sox)" >&2; exit 1; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"

# sox with repeatable random numbers and no progress chatter.
sx() { sox -R -V1 "$@"; }
# Mono, 16-bit, $rate, no leading or trailing silence, peaks at -1 dB.
finish() { sx "$1" -r "$rate" -c 1 -b 16 -e signed-integer -t wav "$2" \
  silence 1 0.01 0.5% reverse silence 1 0.01 0.5% reverse norm -1; }

# The stickman: one call per slot, file <Set>NN.stk. Slots 2..12 are the
# totals; 13 a line win, 14 a seven-out, 15 the barred twelve, 16 a hard way,
# 17 the come-out, 18 a new shooter, 1 a neutral call.
calls=(
  [1]="Dice are out."
  [2]="Two, craps."
  [3]="Three, craps."
  [4]="Four."
  [5]="Five."
  [6]="Six."
  [7]="Seven."
  [8]="Eight."
  [9]="Nine."
  [10]="Ten."
  [11]="Yo, eleven!"
  [12]="Twelve, craps."
  [13]="Winner! Pay the line."
  [14]="Seven out, line away."
  [15]="Twelve, bar."
  [16]="The hard way."
  [17]="Coming out."
  [18]="New shooter, coming out."
)
for slot in "${!calls[@]}"; do
  espeak-ng -v "$voice" -s "$speed" -p "$pitch" -w "$work/call.wav" "${calls[$slot]}"
  finish "$work/call.wav" "$out/Stickman$(printf %02d "$slot").stk"
done

# One hit of a die or a chip: a burst at one tone over a little noise,
# dying away at once. click NAME SECONDS TONE_HZ
click() {
  sx -r "$rate" -c 2 -n "$work/$1.wav" synth "$2" sine "$3" whitenoise \
    remix - highpass 900 fade l 0.001 "$2" "$2" norm -3
}
# Glues wavs with gaps of silence between them: join OUT GAP WAV GAP WAV ...
join() {
  local target=$1
  shift
  local parts=()
  while [ $# -gt 0 ]; do
    sx -r "$rate" -c 1 -n "$work/gap$#.wav" trim 0 "$1"
    parts+=("$work/gap$#.wav" "$2")
    shift 2
  done
  sx "${parts[@]}" "$target"
}

# Dice: two dice rattled in the hand, then clattering to a stop on the felt.
click die1 0.030 2300
click die2 0.025 3100
click die3 0.040 1700
join "$work/dice.wav" \
  0 "$work/die1.wav" 0.05 "$work/die2.wav" 0.04 "$work/die1.wav" 0.06 "$work/die2.wav" \
  0.14 "$work/die3.wav" 0.07 "$work/die1.wav" 0.05 "$work/die3.wav" 0.09 "$work/die2.wav" 0.12 "$work/die3.wav"
finish "$work/dice.wav" "$out/Dice.dce"

# A win: a rising major chord, plucked, ringing out.
sx -r 44100 -c 4 -n "$work/win.wav" synth 0.9 pluck C5 pluck E5 pluck G5 pluck C6 \
  delay 0 0.07 0.14 0.21 remix - fade 0 1.1 0.6 norm -3
finish "$work/win.wav" "$out/Win.win"

# Chips: clay chips set down on a stack; the bank's limit is a longer
# shower of the same clicks.
click chip1 0.020 3900
click chip2 0.018 4600
join "$work/chips.wav" 0 "$work/chip1.wav" 0.045 "$work/chip2.wav" 0.03 "$work/chip1.wav"
finish "$work/chips.wav" "$out/Chips.chp"
join "$work/limit.wav" 0 "$work/chip1.wav" 0.04 "$work/chip2.wav" 0.03 "$work/chip1.wav" 0.05 "$work/chip2.wav" \
  0.035 "$work/chip1.wav" 0.06 "$work/chip2.wav" 0.04 "$work/chip1.wav" 0.03 "$work/chip2.wav" 0.07 "$work/chip1.wav"
finish "$work/limit.wav" "$out/Chips.wav"

du -ch "$out"/* | tail -1 >&2
