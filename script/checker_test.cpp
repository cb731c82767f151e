#include "script/checker.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

namespace {

using namespace line_kind;

// A line per entry: kind, and for labels and jumps the verb and name.
struct L {
  L(int k, int c = 0, std::string n = "") : kind(k), code(c), name(std::move(n)) {}
  int kind, code;
  std::string name;
};

Script Make(const std::vector<L>& lines) {
  Script s;
  for (const L& l : lines) {
    ScriptLine line;
    line.Kind = l.kind;
    line.Code = l.code;
    line.Name = l.name;
    s.Lines.push_back(line);
  }
  return s;
}

const L When{kWhen}, Cond{kCondition}, Then{kThen}, Else{kElse}, Do{kDoThis}, Act{kAction}, Note{kComment};
L Label(const std::string& n) { return L(kLabel, 0, n); }

TEST(ScriptChecker, EveryFaultWithItsLineAndTitle) {
  const std::string tail = "\r\rThis is not allowed and must be resolved before you can run this auto-betting script.";
  struct Case {
    std::vector<L> lines;
    int line;
    std::string title, text;
  };
  const std::vector<Case> cases = {
      {{Label("Top "), Do, Act, Label(" top")}, 1, "Duplicate Label",
       "The Label shown at the top of the screen appears more than once in your list."},
      {{Do, {kAction, 117, "nowhere"}}, 2, "Missing Label",
       "The Go to statement shown at the top of the screen references a Label that does not appear in your list."},
      {{Do, {kAction, 76, "sub"}, Label("other")}, 2, "Missing Label",
       "The Gosub statement shown at the top of the screen references a Label that does not appear in your list."},
      {{When, Cond, Label("x"), Cond, Then, Act}, 3, "Label Position",
       "The Label shown at the top of the screen appears between Condition Lines."},
      {{When, Cond, Label("x"), {kOrWhen}, Cond, Then, Act}, 3, "Label Position",
       "The Label shown at the top of the screen appears between Condition Lines."},
      {{Cond}, 1, "Missing Start Condition",
       "The Condition line shown at the top of the screen is not associated with a Start Condition."},
      {{When, Cond, Then, Cond}, 4, "Missing Action Lines",
       "The Start Action line shown at the top of the screen is not followed by an Action line."},
      {{Act}, 1, "Missing Start Action",
       "The Action line shown at the top of the screen is not associated with a Start Action."},
      {{When, Act}, 2, "Missing Condition Lines",
       "The Start Condition line shown at the top of the screen is not followed by a Condition line."},
      {{When, Then}, 2, "Missing Condition Lines",
       "The Start Condition line shown at the top of the screen is not followed by a Condition line."},
      {{Do, Else}, 2, "Missing Action Lines",
       "The Start Action line shown at the top of the screen is not followed by an Action line."},
      {{When, Cond, When}, 3, "Missing Action Lines",
       "The Condition block shown at the top of the screen has no Action block to go with it."},
      {{Do, Act, {kAndWhen}}, 3, "Missing Condition Lines",
       "The Start Condition line shown at the top of the screen is not preceded by a Condition line."},
      {{Do, Act, Then}, 3, "Missing Condition Lines",
       "The Action block shown at the top of the screen is not immediately preceded by a Condition block."},
      {{When, Cond, Then, Act, Else, Act, Else}, 7, "Missing Action Lines",
       "The else Start Action line shown at the top of the screen must be immediately preceded by a then block of "
       "action lines."},
      {{Note, Do, Act}, 2, "Missing Action Lines",
       "The Condition block shown at the top of the screen has no Action block to go with it."},
      {{When, Cond, Do}, 3, "Missing Action Lines",
       "The Condition block shown at the top of the screen has no Action block to go with it."},
      // Unfinished at the end: the last line is reported.
      {{Do, Act, When}, 3, "Missing Condition Lines",
       "The Start Condition line shown at the top of the screen is not followed by a Condition line."},
      {{When, Cond}, 2, "Missing Action Lines",
       "The Condition block shown at the top of the screen has no Action block to go with it."},
      {{When, Cond, Then, Note}, 4, "Missing Action Lines",
       "The Start Action line shown at the top of the screen is not followed by an Action line."},
  };
  for (const Case& c : cases) {
    const std::optional<ScriptFault> fault = CheckScript(Make(c.lines));
    ASSERT_TRUE(fault.has_value()) << c.text;
    EXPECT_EQ(*fault, (ScriptFault{c.line, c.title, c.text + tail}));
  }
}

TEST(ScriptChecker, WellBuiltScriptsPass) {
  const std::vector<std::vector<L>> good = {
      {},
      {Do, Act},
      {Label("start"), When, Cond, Cond, {kAndWhile}, Cond, {kXorWhen}, Cond, Then, Act, Else, Act, Note, Do, Act,
       {kAction, 117, " START "}},
      {Note, Label("a"), When, Cond, Label("b"), Then, Act, Label("c"), Note, {kWhile}, Cond, Then, Act,
       {kAction, 76, "b"}},
  };
  for (const auto& lines : good) EXPECT_EQ(CheckScript(Make(lines)), std::nullopt);
}

TEST(ScriptChecker, CheckCommandTellsEmptyGoodAndFaulty) {
  TestTable t;
  EXPECT_FALSE(CheckBetsCommand(t.g));
  EXPECT_EQ(t.Last(), (RecordedMessage{"Auto-Bet",
                                       "This feature checks to see that your Auto-Bet script is properly structured, "
                                       "but presently your script is empty."}));
  t.g.AutoBet = Make({Do, Act});
  EXPECT_FALSE(CheckBetsCommand(t.g));
  EXPECT_EQ(t.Last(), (RecordedMessage{"Auto-Bet", "Your script is properly structured."}));
  t.g.AutoBet = Make({Act});
  EXPECT_EQ(CheckBetsCommand(t.g)->Line, 1);
  EXPECT_EQ(t.Last().title, "Missing Start Action");
}

}  // namespace
