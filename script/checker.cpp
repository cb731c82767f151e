#include "script/checker.h"

#include <algorithm>
#include <cctype>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/verb_codes.h"

namespace {

using namespace line_kind;

using verb::kGoTo, verb::kGoSub;

const char* const kNotAllowed =
    "This is not allowed and must be resolved before you can run this auto-betting script.";

enum class State { Empty, CondStarted, CondBuilt, ThenStarted, ThenBuilt, ElseStarted, ElseBuilt, DoStarted, DoBuilt };

ScriptFault Fault(int line, const std::string& title, const std::string& text) {
  return {line, title, text + kTwoBreaks + kNotAllowed};
}

ScriptFault StartActionFault(int line) {
  return Fault(line, "Missing Action Lines",
               "The Start Action line shown at the top of the screen is not followed by an Action line.");
}
ScriptFault StartConditionFault(int line) {
  return Fault(line, "Missing Condition Lines",
               "The Start Condition line shown at the top of the screen is not followed by a Condition line.");
}
ScriptFault NoActionFault(int line) {
  return Fault(line, "Missing Action Lines",
               "The Condition block shown at the top of the screen has no Action block to go with it.");
}

std::string LabelKey(const std::string& name) {
  std::string key = Trimmed(name);
  std::transform(key.begin(), key.end(), key.begin(), [](unsigned char c) { return std::tolower(c); });
  return key;
}

std::optional<ScriptFault> CheckLabels(const Script& s) {
  const int n = s.NumLines();
  for (int i = 1; i <= n; ++i) {
    if (s.Line(i).Kind != kLabel) continue;
    for (int j = 1; j <= n; ++j)
      if (j != i && s.Line(j).Kind == kLabel && LabelKey(s.Line(j).Name) == LabelKey(s.Line(i).Name))
        return Fault(i, "Duplicate Label",
                     "The Label shown at the top of the screen appears more than once in your list.");
  }
  for (int i = 1; i <= n; ++i) {
    const ScriptLine& line = s.Line(i);
    if (line.Kind != kAction || (line.Code != kGoTo && line.Code != kGoSub)) continue;
    bool found = false;
    for (int j = 1; j <= n && !found; ++j)
      found = s.Line(j).Kind == kLabel && LabelKey(s.Line(j).Name) == LabelKey(line.Name);
    if (!found)
      return Fault(i, "Missing Label",
                   std::string("The ") + (line.Code == kGoTo ? "Go to" : "Gosub") +
                       " statement shown at the top of the screen references a Label that does not appear in your list.");
  }
  for (int i = 1; i < n; ++i) {
    const int next = s.Line(i + 1).Kind;
    if (s.Line(i).Kind == kLabel && (next == kCondition || (next >= kAndWhen && next <= kXorWhile)))
      return Fault(i, "Label Position",
                   "The Label shown at the top of the screen appears between Condition Lines.");
  }
  return std::nullopt;
}

std::optional<ScriptFault> WalkStructure(const Script& s) {
  State state = State::Empty;
  for (int i = 1; i <= s.NumLines(); ++i) {
    const int kind = s.Line(i).Kind;
    if (kind == kLabel || kind == kComment) continue;
    if (kind == kCondition) {
      if (state == State::CondStarted || state == State::CondBuilt) state = State::CondBuilt;
      else if (state == State::ThenStarted) return StartActionFault(i);
      else
        return Fault(i, "Missing Start Condition",
                     "The Condition line shown at the top of the screen is not associated with a Start Condition.");
      continue;
    }
    if (kind == kAction) {
      if (state == State::ThenStarted || state == State::ThenBuilt) state = State::ThenBuilt;
      else if (state == State::ElseStarted || state == State::ElseBuilt) state = State::ElseBuilt;
      else if (state == State::DoStarted || state == State::DoBuilt) state = State::DoBuilt;
      else if (state == State::CondStarted) return StartConditionFault(i);
      else
        return Fault(i, "Missing Start Action",
                     "The Action line shown at the top of the screen is not associated with a Start Action.");
      continue;
    }
    if (state == State::CondStarted) return StartConditionFault(i);
    if (state == State::ThenStarted || state == State::ElseStarted || state == State::DoStarted)
      return StartActionFault(i);
    if (kind == kWhen || kind == kWhile) {
      if (state == State::CondBuilt) return NoActionFault(i);
      state = State::CondStarted;
    } else if (kind >= kAndWhen && kind <= 9) {
      if (state != State::CondBuilt)
        return Fault(i, "Missing Condition Lines",
                     "The Start Condition line shown at the top of the screen is not preceded by a Condition line.");
      state = State::CondStarted;
    } else if (kind == kThen) {
      if (state != State::CondBuilt)
        return Fault(i, "Missing Condition Lines",
                     "The Action block shown at the top of the screen is not immediately preceded by a Condition block.");
      state = State::ThenStarted;
    } else if (kind == kElse) {
      if (state != State::ThenBuilt)
        return Fault(i, "Missing Action Lines",
                     "The else Start Action line shown at the top of the screen must be immediately preceded by a "
                     "then block of action lines.");
      state = State::ElseStarted;
    } else if (kind == kDoThis) {
      if (i != 1 && state != State::ThenBuilt && state != State::ElseBuilt && state != State::DoBuilt)
        return NoActionFault(i);
      state = State::DoStarted;
    }
  }
  const int last = s.NumLines();
  if (state == State::ThenStarted || state == State::ElseStarted || state == State::DoStarted)
    return StartActionFault(last);
  if (state == State::CondStarted) return StartConditionFault(last);
  if (state == State::CondBuilt) return NoActionFault(last);
  return std::nullopt;
}

}  // namespace

std::optional<ScriptFault> CheckScript(const Script& script) {
  if (script.NumLines() == 0) return std::nullopt;
  if (auto fault = CheckLabels(script)) return fault;
  return WalkStructure(script);
}

std::optional<ScriptFault> CheckBetsCommand(Game& g) {
  if (g.AutoBet.NumLines() == 0) {
    ShowMessage(g, "Auto-Bet",
                "This feature checks to see that your Auto-Bet script is properly structured, "
                "but presently your script is empty.");
    return std::nullopt;
  }
  const std::optional<ScriptFault> fault = CheckScript(g.AutoBet);
  if (fault) ShowMessage(g, fault->Title, fault->Text);
  else ShowMessage(g, "Auto-Bet", "Your script is properly structured.");
  return fault;
}
