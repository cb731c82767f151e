#pragma once
// The shape of a script made only of plain statements: a When or While with
// its conditions, Then with its actions and perhaps Else with its own, or Do
// this with its actions, among comments and labels that no jump looks for.
// Such a script runs statement by statement, without looking at every line
// for what it is. The plan is kept beside the Script and checked against its
// lines at the start of every pass, so an edit of any kind is seen.

#include <cstdint>
#include <vector>

#include "engine/script.h"

struct PlannedStatement {
  int32_t StartKind = 0;  // When, While or Do this
  int32_t Start = 0;  // line numbers of the When, While or Do this,
  int32_t Then = 0;   // of its Then (0 after Do this)
  int32_t Else = 0;   // and of its Else (0 when none)
  // Ranges of ScriptPlan::Lines: the conditions, then the actions after Then
  // (or Do this), then those after Else.
  int32_t FirstCondition = 0, FirstThenAction = 0, FirstElseAction = 0, End = 0;
};

struct ScriptPlan {
  std::vector<uint64_t> Keys;  // each line's kind and code, as planned from
  bool Plain = false;          // false: the script runs line by line
  std::vector<PlannedStatement> Statements;
  std::vector<int32_t> Lines;  // condition and action line numbers, in order
};

// The plan of these lines; Plain only when they are plain statements, no
// longer than `mostLines`.
ScriptPlan PlanScript(const std::vector<ScriptLine>& lines, int mostLines);

// Whether the plan was made from lines of these kinds and codes.
bool PlanFits(const ScriptPlan& plan, const std::vector<ScriptLine>& lines);
