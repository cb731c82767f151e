#include <gtest/gtest.h>

#include "cli/session_for_test.h"

TEST(AutoPlaySettings, AutoOddsOfferTakesItsReplyFromTheQueue) {
  for (const char* reply : {"yes", "no", ""}) {
    Session s;
    s.Run("set AutoAdjustMode 0\nbet 43 10\nroll 3 3");
    if (*reply) s.Run(std::string("answer ") + reply);
    const auto printed = s.Run("set AutoTakeFullOdds true");
    ASSERT_EQ(printed.size(), 1u) << reply;
    const Json& message = printed[0].at("message");
    EXPECT_EQ(message["title"], "Auto-Take Full Odds");
    EXPECT_EQ(message["reply"], std::string(reply) == "yes" ? "yes" : "no");
    const Game& g = s.play.game();
    EXPECT_TRUE(g.AutoTakeFullOdds);
    EXPECT_EQ(g.BetAmount[bet::kPassOdds] > 0, std::string(reply) == "yes") << reply;
  }
}

TEST(AutoPlaySettings, AdjustModeAndBiases) {
  Session s;
  s.Run("set AutoAdjustMode 0\nbet 34 7\nset PlaceBias 2\nset AutoAdjustMode 1");
  EXPECT_EQ(s.play.game().BetAmount[bet::Place(8)], 6);
  EXPECT_EQ(s.play.game().AutoAdjustMode, 1);
  EXPECT_NE(s.Error("set DontBias 3"), "(none)");
  s.Run("set AutoArrangeChips false");
  EXPECT_FALSE(s.play.game().AutoArrangeChips);
}
