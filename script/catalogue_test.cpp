#include "script/catalogue.h"

#include <gtest/gtest.h>

#include <set>

#include "script/line_text.h"
#include "script/script_for_test.h"

namespace {

using namespace script_list;

TEST(ScriptCatalogue, WordsKeptExactly) {
  const std::vector<std::tuple<const ChoiceList*, int, std::string>> rows = {
      {&ConditionSubjects(), 1006, "Any Come Odds bet "},
      {&ConditionSubjects(), 1106, "All Come Odds bets"},
      {&ConditionSubjects(), 1203, "Total Don't Come bets"},
      {&ConditionSubjects(), 2034, "Number 6 ((5-1)"},
      {&ConditionSubjects(), 1322, "A point is decided \"for\" or \"against\""},
      {&ConditionSubjects(), 43, "Pass Line"},
      {&ConditionSubjects(), 1804, "Come Odds (shooter's point)"},
      {&CompareTargets(), 1208, "total Buy bets"},
      {&CompareTargets(), 1001, "any bet"},
      {&DiceEventTargets(), 2001, "all the numbers"},
      {&DiceEventTargets(), 2003, "number 3 (1-2) and (2-1)"},
      {&DiceEventTargets(), 2021, "number group 2,3,4,9,10,11,12"},
      {&DiceEventTargets(), 2034, "number 6 ((5-1)"},
      {&DiceEventTargets(), 2013, "hard 4 (2-2)"},
      {&DiceEventTargets(), 2078, "Die 1, face 1"},
      {&PointChoices(), 41, "the point 5, 6, 8, or 9"},
      {&DecidedChoices(), 31, "any number"},
      {&ActionVerbs(), 10, "Bet $"},
      {&ActionVerbs(), 40, "Multiply by"},
      {&ActionVerbs(), 32, "Subtract % of the last"},
      {&ActionVerbs(), 41, "Multiply by % of"},
      {&ActionVerbs(), 58, "Divide by the average of the last:"},
      {&ActionVerbs(), 23, "Add the highest of:"},
      {&ActionVerbs(), 75, "Stop Auto-Rolling / Hyper-Drive"},
      {&ActionSources(), 1007, "total inside Place bets"},
      {&ActionTargets(), 1602, "all Chip-Stacks"},
      {&RoundChoices(), 1102, "down to the nearest $"},
      {&AutoHandleWinning(), 0, "Manual"},
      {&AutoHandleLosing(), 1, "No Bet/Take Remainder (if any)"},
  };
  for (const auto& [list, code, words] : rows) EXPECT_EQ(WordsOf(*list, code), words) << code;
  EXPECT_EQ(ComparisonWords(60, true), "have not won");
  EXPECT_EQ(ComparisonWords(12, false), "is not equal to $");
  EXPECT_EQ(ComparisonWords(26, true), "are named");
  EXPECT_EQ(CountComparisonWords(13), "are greater than ");
}

TEST(ScriptCatalogue, CodesAreUniqueWithinEachList) {
  const ChoiceList* lists[] = {&ConditionSubjects(), &CompareTargets(), &DiceEventTargets(), &PointChoices(),
                               &DecidedChoices(),    &ActionVerbs(),    &ActionSources(),    &ActionTargets()};
  for (const ChoiceList* list : lists) {
    std::set<int> seen;
    for (const ListEntry& e : *list)
      if (e.Code != 0) {
        EXPECT_TRUE(seen.insert(e.Code).second) << e.Code << " " << e.Words;
      }
  }
  EXPECT_EQ(ActionVerbs().size(), 45u + 48u);
  EXPECT_EQ(DiceEventTargets().size(), 89u);
}

ScriptLine Make(int kind, int code, int subject, int target, Currency amount, const std::string& name = "") {
  return MakeLine(kind, code, amount, subject, target, name);
}

TEST(ScriptLineText, RenderedFromCodes) {
  ScriptLine stack = Make(20, 19, 1600, 1601, 0);
  stack.SubjectNum = 3;
  stack.TargetNum = 7;
  ScriptLine pct = Make(30, 21, 1400, 1600, 50);
  pct.TargetNum = 2;
  const std::vector<std::pair<ScriptLine, std::string>> rows = {
      {Make(1, 0, 0, 0, 0), "When . . ."},
      {Make(13, 0, 0, 0, 0), "Do this . . ."},
      {Make(99, 0, 0, 0, 0, "' a note"), "' a note"},
      {Make(20, 0, 1300, 0, 0), "On each roll"},
      {Make(20, 31, 1303, 0, 0), "A point is established on any point"},
      {Make(20, 13, 1400, 0, 1500), "Bankroll is greater than $1,500"},
      {Make(20, 11, 1311, 0, 20), "The # of rolls in the game is equal to 20"},
      {Make(20, 0, 1500, 0, -1, "hot"), "Flag hot is True"},
      {Make(20, 26, 1020, 0, 0, "press"), "Any Chip-Stack is named \"press\""},
      {Make(20, 2, 1105, 0, 2), "All Come bets have won more than 2"},
      {stack, "Chip-Stack #3 is greater than Chip-Stack ref #7"},
      {Make(30, 10, 0, 43, 5), "Bet $5 on Pass Line"},
      {Make(30, 40, 0, 1006, 2), "Multiply by 2 for all Place bets"},
      {pct, "Add 50% of bankroll to Chip-Stack #2"},
      {Make(30, 117, 0, 0, 0, "top"), "Go to top"},
      {Make(30, 74, 0, 2034, 0), "Reset rolls number 6 ((5-1)"},
      {Make(30, 90, 0, 5, 0), "Set Auto-Handle Winning Bets Parlay"},
  };
  for (const auto& [line, text] : rows) EXPECT_EQ(LineText(line), text);
}

}  // namespace
