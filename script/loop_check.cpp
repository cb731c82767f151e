#include "script/loop_check.h"

#include "engine/notices.h"
#include "script/interpreter.h"
#include "script/jumps.h"

namespace {

using namespace line_kind;

bool IsJump(const ScriptLine& line) {
  return line.Kind == kAction && (line.Code == verb::kGoTo || line.Code == verb::kGoSub || line.Code == verb::kReturn);
}

// The first label a jump finds: the interpreter scans from the top.
int LabelLine(const Script& s, const std::string& key) {
  for (int n = 1; n <= s.NumLines(); ++n)
    if (s.Line(n).Kind == kLabel && LabelKey(s.Line(n).Name) == key) return n;
  return 0;
}

// The Start Action of the block that holds line `n`.
int BlockStart(const Script& s, int n) {
  while (n > 1 && !IsStartAction(s.Line(n).Kind)) --n;
  return s.Line(n).Kind;
}

bool IsEndless(const Script& s, int label, int jump) {
  bool otherJump = false, otherAction = false;
  for (int n = label + 1; n < jump; ++n) {
    otherJump = otherJump || IsJump(s.Line(n));
    otherAction = otherAction || s.Line(n).Kind == kAction;
  }
  return !otherAction || (BlockStart(s, jump) == kDoThis && !otherJump);
}

}  // namespace

std::optional<ScriptFault> FindEndlessLoop(const Script& s) {
  for (int n = 1; n <= s.NumLines(); ++n) {
    const ScriptLine& line = s.Line(n);
    if (!IsJump(line) || line.Code == verb::kReturn) continue;
    const int label = LabelLine(s, LabelKey(line.Name));
    if (label == 0 || label > n || !IsEndless(s, label, n)) continue;
    return ScriptFault{n, "Endless Loop",
                       std::string("The ") + (line.Code == verb::kGoTo ? "Go to" : "Gosub") +
                           " statement shown at the top of the screen jumps back to the Label on line " +
                           std::to_string(label) + ", and nothing between them can lead anywhere else: once taken, " +
                           "it is taken again for ever." + kTwoBreaks + "A pass that runs more than " +
                           FormatWithCommas(kMostLinesPerPass) + " lines is stopped with an Auto-Bet Abort."};
  }
  return std::nullopt;
}
