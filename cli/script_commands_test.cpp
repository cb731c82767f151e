#include "test_paths.h"
#include <gtest/gtest.h>

#include "cli/session_for_test.h"

namespace {

std::string Sample(const char* name) { return std::string(DICEMILL_SOURCE_DIR) + "/samples/" + name; }

}  // namespace

TEST(ScriptCommands, OpenOfferRunAndWatch) {
  Session s;
  Json opened = s.Only("script \"" + Sample("dont-pass-stop-loss.txt") + "\"", "script");
  EXPECT_EQ(opened["lines"], 20);
  EXPECT_EQ(opened["flags"].dump(), R"([{"name":"recorded","value":false,"previous":false}])");

  // The first roll after opening offers the initial cycle; Yes runs it.
  auto out = s.Run("answer yes\nroll 3 3");
  ASSERT_GE(out.size(), 2u);
  EXPECT_EQ(out[0]["message"]["title"], "Auto-Bet");
  EXPECT_EQ(out[0]["message"]["reply"], "yes");
  Json state = s.State();
  EXPECT_EQ(state["stacks"]["101"], 300);  // $500 less the $200 stop-loss
  EXPECT_EQ(state["bets"]["46"], 10);
  EXPECT_EQ(s.Only("flags", "flags")[0]["value"], true);

  // The offer comes once; with steps on, each step of a pass is printed.
  out = s.Run("autobet steps on\nroll 1 2");
  ASSERT_FALSE(out.empty());
  EXPECT_EQ(out[0].at("rolled").at("total"), 3);
  EXPECT_EQ(out[1]["steps"], "Auto-Betting");
  EXPECT_EQ(out[2]["step"]["line"], 3);
  s.Run("autobet steps off");

  // Off: the script no longer bets after a roll.
  s.Run("autobet off\nremove 46");
  s.Run("roll 2 5");
  EXPECT_FALSE(s.State()["bets"].contains("46"));
  EXPECT_TRUE(s.Run("autobet run").empty());
  EXPECT_EQ(s.State()["bets"]["46"], 10);
}

TEST(ScriptCommands, BadInputIsAnErrorAndChangesNothing) {
  Session s;
  s.Run("script \"" + Sample("iron-cross.bet") + "\"");
  EXPECT_EQ(s.Error("script \"" + s.Path("none.txt") + "\"").substr(0, 7), "script:");
  EXPECT_EQ(s.Error("autobet maybe"), "autobet: expected: autobet on|off|steps on|off|run");
  EXPECT_EQ(s.Error("autobet steps"), "autobet: expected: autobet on|off|steps on|off|run");
  EXPECT_EQ(s.Only("flags", "flags").size(), 0u);
  Session empty;
  EXPECT_EQ(empty.Error("autobet run"), "autobet: the script has no lines");
}

TEST(TableClickCommands, ClickEnterAndRate) {
  Session s;
  s.Run("set ClickTool 1\nclick 49\nclick 49\nenter 34 $12\nrate 2 rolls/min");
  Json state = s.State();
  EXPECT_EQ(state["bets"]["49"], 2);  // two clicks of the $1 check
  EXPECT_EQ(state["bets"]["34"], 12);
  EXPECT_EQ(s.Only("get SimRollRate", "setting")["value"], 120);
  s.Run("click 49 shift");
  EXPECT_FALSE(s.State()["bets"].contains("49"));
  EXPECT_EQ(s.Error("enter 34 twelve"), "enter: 'twelve' is not an amount");
  EXPECT_EQ(s.Error("click 34 ctrl"), "click: expected: click ID [shift]");
  const auto refused = s.Run("rate 0 hrs/roll");
  ASSERT_EQ(refused.size(), 1u);
  EXPECT_EQ(refused[0]["message"]["text"], "Hrs / roll must be greater than zero.");
}
