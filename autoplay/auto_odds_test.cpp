#include "autoplay/auto_odds.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

namespace {

// Every odds bet that has a flat stands at its maximum, never above MaxOddsBet.
void ExpectFull(const Game& g, const std::string& where) {
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    if (!bet::IsOdds(id)) continue;
    EXPECT_LE(g.BetAmount[id], g.MaxOddsBet) << where << " bet " << id;
    if (g.BetAmount[bet::ParentOf(id)] > 0 && (bet::IsComeOdds(id) || bet::IsDontComeOdds(id) || g.Point > 0)) {
      EXPECT_EQ(g.BetAmount[id], GetBetMaximum(g, id)) << where << " bet " << id;
    }
  }
}

TEST(AutoOdds, KeptFullThroughPointsTravelAndChangesUnderEveryMethod) {
  for (int method = 0; method <= 5; ++method) {
    for (Currency maxOdds : {Currency(2000), Currency(25)}) {
     for (int adjust : {0, 2}) {
      TestTable t;
      t.g.AutoAdjustMode = adjust;
      t.g.OddsCalcMethod = method;
      t.g.MaxOddsBet = maxOdds;
      t.g.Bankroll() = 100000;
      t.g.AutoTakeFullOdds = t.g.AutoLayFullOdds = true;
      const std::string where = "method " + std::to_string(method) + " max " + std::to_string(maxOdds.raw) +
                                " adjust " + std::to_string(adjust);
      t.Place(bet::kPassLine, 15);
      t.Place(bet::kDontPass, 15);
      t.Roll(2, 4);  // the point is set
      ExpectFull(t.g, where + " point");
      EXPECT_GT(t.g.BetAmount[bet::kPassOdds], 0) << where;
      EXPECT_GT(t.g.BetAmount[bet::kDontPassOdds], 0) << where;
      t.Place(bet::kCome, 10);
      t.Place(bet::kDontCome, 10);
      t.Roll(4, 5);  // both travel to 9
      ExpectFull(t.g, where + " travel");
      EXPECT_GT(t.g.BetAmount[bet::ComeOdds(9)], 0) << where;
      EXPECT_GT(t.g.BetAmount[bet::DontComeOdds(9)], 0) << where;
      t.g.BetChange = 5;
      PlaceBetOnTable(t.g, bet::kPassLine);
      t.g.BetChange = 7;
      PlaceBetOnTable(t.g, bet::Come(9));
      ExpectFull(t.g, where + " flat grew");
     }
    }
  }
}

TEST(AutoOdds, TakeFullOddsEdges) {
  TestTable t;
  t.g.Bankroll() = 10000;
  t.Place(bet::kPassLine, 10);
  TakeFullOddsOnAll(t.g);  // no point: the line odds stay down
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 0);
  TakeFullOdds(t.g, bet::ComeOdds(8));  // no flat, no odds
  EXPECT_EQ(t.g.BetAmount[bet::ComeOdds(8)], 0);

  // The placement refuses (no bankroll for it): the mask still comes back.
  t.SetPoint(6);
  t.g.AllowNegativeBankroll = false;
  t.g.Bankroll() = 10;
  t.g.NoticeMask = kNoticeDefault & ~kNoticeCharges;
  TakeFullOdds(t.g, bet::kPassOdds);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 0);
  EXPECT_EQ(t.g.NoticeMask, kNoticeDefault & ~kNoticeCharges);
  EXPECT_TRUE(t.ui.messages.empty());
}

TEST(AutoOdds, TurningOnOffersToFillTheTable) {
  for (Reply reply : {Reply::Yes, Reply::No}) {
    struct Answering : RecordingFrontEnd {
      Reply answer = Reply::No;
      Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
        RecordingFrontEnd::ShowMessage(title, text, b);
        return b == Buttons::YesNo ? answer : Reply::Ok;
      }
    } ui;
    ui.answer = reply;
    TestTable t;
    t.g.Ui = &ui;
    t.g.Bankroll() = 10000;
    t.Place(bet::kDontPass, 10);
    t.SetPoint(4);
    SetAutoLayFullOdds(t.g, true);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Auto-Lay Full Odds");
    EXPECT_EQ(ui.messages[0].text,
              "Auto-Lay Full Odds is now active.\rDo you also want to lay full odds on any bets that are already on "
              "the table?");
    EXPECT_EQ(t.g.BetAmount[bet::kDontPassOdds] > 0, reply == Reply::Yes);
    EXPECT_TRUE(t.g.AutoLayFullOdds);
    SetAutoTakeFullOdds(t.g, false);
    EXPECT_EQ(ui.messages.size(), 1u);  // turning off asks nothing
  }
}

}  // namespace
