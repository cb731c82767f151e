#include "script/pass_plan.h"

#include "engine/verb_codes.h"

namespace {

using namespace line_kind;

// Kind in the low half and Code in the high one: the two fields as they lie
// side by side in the record, read in one load.
uint64_t KeyOf(const ScriptLine& line) {
  return static_cast<uint64_t>(static_cast<uint32_t>(line.Code)) << 32 | static_cast<uint32_t>(line.Kind);
}

bool IsJump(int code) { return code == verb::kGoTo || code == verb::kGoSub || code == verb::kReturn; }

// Reads the statements in order; any line out of that order (an "and", "or"
// or "xor" block, an action before any statement, a jump) ends the reading.
class Planner {
 public:
  Planner(const std::vector<ScriptLine>& lines, ScriptPlan& plan) : lines_(lines), plan_(plan) {}

  bool Read() {
    while (SkipPassive()) {
      if (!ReadStatement()) return false;
    }
    return true;
  }

 private:
  int Kind() const { return lines_[next_].Kind; }
  int32_t Number() const { return static_cast<int32_t>(next_) + 1; }
  int32_t Planned() const { return static_cast<int32_t>(plan_.Lines.size()); }

  // Comments and labels a pass meets without a jump do nothing. False at the end.
  bool SkipPassive() {
    while (next_ < lines_.size() && (Kind() == kComment || Kind() == kLabel)) ++next_;
    return next_ < lines_.size();
  }

  void ReadLinesOf(int kind) {
    while (SkipPassive() && Kind() == kind) {
      if (kind == kAction && IsJump(lines_[next_].Code)) return;
      plan_.Lines.push_back(Number());
      ++next_;
    }
  }

  bool ReadStatement() {
    PlannedStatement s;
    s.Start = Number();
    const int start = Kind();
    if (start != kWhen && start != kWhile && start != kDoThis) return false;
    s.StartKind = start;
    ++next_;
    s.FirstCondition = Planned();
    if (start != kDoThis) {
      ReadLinesOf(kCondition);
      if (!SkipPassive() || Kind() != kThen) return false;
      s.Then = Number();
      ++next_;
    }
    s.FirstThenAction = Planned();
    ReadLinesOf(kAction);
    s.FirstElseAction = Planned();
    if (start != kDoThis && SkipPassive() && Kind() == kElse) {
      s.Else = Number();
      ++next_;
      ReadLinesOf(kAction);
    }
    s.End = Planned();
    plan_.Statements.push_back(s);
    // A jump, or a line that follows an action out of order, is no statement's.
    return !SkipPassive() || Kind() == kWhen || Kind() == kWhile || Kind() == kDoThis;
  }

  const std::vector<ScriptLine>& lines_;
  ScriptPlan& plan_;
  size_t next_ = 0;
};

}  // namespace

ScriptPlan PlanScript(const std::vector<ScriptLine>& lines, int mostLines) {
  ScriptPlan plan;
  plan.Keys.reserve(lines.size());
  for (const ScriptLine& line : lines) plan.Keys.push_back(KeyOf(line));
  plan.Plain = static_cast<int64_t>(lines.size()) <= mostLines && Planner(lines, plan).Read();
  if (!plan.Plain) {
    plan.Statements.clear();
    plan.Lines.clear();
  }
  return plan;
}

bool PlanFits(const ScriptPlan& plan, const std::vector<ScriptLine>& lines) {
  if (plan.Keys.size() != lines.size()) return false;
  // Every line is looked at, without a branch on each.
  bool differs = false;
  for (size_t i = 0; i < lines.size(); ++i) differs |= plan.Keys[i] != KeyOf(lines[i]);
  return !differs;
}
