// Show message and Yes/No question lines. A run of such lines builds one
// message, shown when the run ends.

#include "engine/notices.h"
#include "script/values.h"
#include "script/verb_families.h"
#include "script/verb_math.h"
#include "engine/verb_codes.h"

namespace {

using namespace verb;

bool IsMessageVerb(int code) {
  return code == kShowMessage || code == kQuestion || code == kShowValue || code == kQuestionValue;
}
bool IsQuestion(int code) { return code == kQuestion || code == kQuestionValue; }
bool IsValueForm(int code) { return code == kShowValue || code == kQuestionValue; }

// Line n of the script is a message or question line.
bool IsMessageLine(const Game& g, int n) {
  if (n < 1 || n > g.AutoBet.NumLines()) return false;
  const ScriptLine& l = g.AutoBet.Line(n);
  return l.Kind == line_kind::kAction && IsMessageVerb(l.Code);
}

void AppendValue(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range) {
  pass.RunAmount = Currency();
  bool any = false;
  ForEachSlot(g, range, [&](int) {
    pass.RunAmount = CheckedAdd(pass.RunAmount, GetValue(g, line.Subject, line.SubjectNum));
    any = true;
  });
  if (any) g.MessageBuffer += FormatNumberWithCommas(pass.RunAmount) + " ;";
}

// A text ending in ";" runs on into the next line's text.
void AppendText(std::string& buffer, const std::string& text) {
  buffer += text;
  if (!buffer.empty() && buffer.back() == ';')
    buffer.pop_back();
  else
    buffer += kBreak;
}

void ShowBuffer(Game& g, const ScriptLine& line) {
  std::string text = g.MessageBuffer;
  if (!text.empty() && text.back() == kBreak[0]) text.pop_back();
  g.MessageBuffer.clear();
  if (IsQuestion(line.Code)) {
    const Reply reply = ShowMessage(g, "Auto-Bet", text, Buttons::YesNo);
    g.LastAnswer = reply == Reply::Yes ? Answer::Yes : Answer::No;
  } else {
    const int bit = g.HyperDriveOn ? kNoticeScriptHyper : kNoticeScript;
    if ((g.NoticeMask & bit) == 0) return;
    ShowNotice(g, bit, "Auto-Bet", text);
  }
  // A message under Hyper-Drive waits for the player: the run should not go on alone.
  if (g.HyperDriveOn) g.AutoRollOn = false;
}

}  // namespace

bool CarryOutMessageVerb(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range) {
  if (!IsMessageVerb(line.Code)) return false;
  if (!IsMessageLine(g, pass.CurrentLine - 1)) g.MessageBuffer.clear();
  if (IsValueForm(line.Code)) AppendValue(g, pass, line, range);
  AppendText(g.MessageBuffer, line.Name);
  if (!IsMessageLine(g, pass.CurrentLine + 1)) ShowBuffer(g, line);
  return true;
}
