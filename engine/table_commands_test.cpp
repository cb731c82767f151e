#include "engine/table_commands.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/bet_status.h"
#include "engine/table_for_test.h"

namespace {

struct Commands : TestTable {
  // Come numbers only arrive by travelling from the box.
  void Put(int id, int amount) {
    g.MovingBet = bet::IsComeNumber(id);
    Place(id, amount);
    g.MovingBet = false;
  }
  // The point moves as the roll moves it, then statuses follow.
  void PointTo(int point) {
    g.DiceTotal = point == 0 ? 7 : point;
    g.Point = point;
    UpdateBetStatusForPoint(g);
  }
};

TEST(CallBet, RefusesWithItsOwnWordsAndOnlyWhereAllowed) {
  for (int id : {43, 45, 46, 48, 7, 12, 19, 24}) EXPECT_FALSE(CanBeCalled(id)) << id;
  for (int id : {25, 31, 37, 54, 49, 56, 83, 1, 13, 44, 47}) EXPECT_TRUE(CanBeCalled(id)) << id;
  Commands t;
  for (int id : {bet::Come(6), bet::ComeOdds(6), bet::kField, 101, 102}) t.Put(id, 10);
  CallBet(t.g, bet::Come(6), kToolCallOff);
  CallBet(t.g, 101, kToolCallOn);
  int id = bet::kField;
  BuyPlaceBet(t.g, id);
  id = 102;
  BuyPlaceBet(t.g, id);
  const std::vector<RecordedMessage> shown = {{"Come 6 Bet", "You may not call this bet ON or OFF."},
                                              {"Chip-Stack # 1", "You may not call Chip-Stacks ON or OFF."},
                                              {"Field Bet", "You may not buy this bet."},
                                              {"Chip-Stack # 2", "You may not buy Chip-Stacks."}};
  EXPECT_EQ(t.ui.messages, shown);
  EXPECT_EQ(t.g.BetStatus[bet::Come(6)], 1);
  EXPECT_EQ(t.g.BetAmount[bet::kField], Currency(10));
  // An empty spot is ignored without a word; a silenced or Hyper-Drive table
  // refuses without one.
  CallBet(t.g, bet::kPassLine, kToolCallOff);
  t.g.NoticeMask = kNoticeDefault & ~kNoticeRefusals;
  CallBet(t.g, bet::Come(6), kToolCallOff);
  t.g.NoticeMask = kNoticeDefault;
  t.g.HyperDriveOn = true;
  CallBet(t.g, bet::Come(6), kToolCallOff);
  EXPECT_EQ(t.ui.messages.size(), shown.size());
}

TEST(CallBet, OffOutlivesComeOutAndPointUntilCalledOnOrRemoved) {
  Commands t;
  const int place6 = bet::Place(6);
  t.Put(place6, 30);
  CallBet(t.g, place6, kToolCallOff);
  for (int point : {6, 0, 9}) {
    t.PointTo(point);
    EXPECT_EQ(t.g.BetStatus[place6], -1) << point;
  }
  // A press the other way withdraws the call: back to working with a point on.
  const int steps[][2] = {{kToolCallOn, 1}, {kToolCallOn, 2}, {kToolCallOff, 1}};
  for (const auto& [tool, status] : steps) {
    CallBet(t.g, place6, tool);
    EXPECT_EQ(t.g.BetStatus[place6], status);
  }
  EXPECT_TRUE(t.g.TableDirty);
  // Removal ends a call too; on the come-out the default is off.
  CallBet(t.g, place6, kToolCallOff);
  t.PointTo(0);
  RemoveBet(t.g, place6);
  EXPECT_EQ(t.g.BetAmount[place6], 0);
  EXPECT_EQ(t.g.BetStatus[place6], 0);

  // Calling all bets skips the uncallable silently and puts the mask back;
  // calling all ON withdraws the OFF calls.
  for (int id : {bet::kPassLine, bet::Place(8), bet::kHard4}) t.Put(id, 10);
  t.g.NoticeMask = kNoticeRefusals | kNoticeLimits | kNoticeCharges;
  CallAllBets(t.g, false);
  EXPECT_EQ(t.g.NoticeMask, kNoticeRefusals | kNoticeLimits | kNoticeCharges);
  EXPECT_TRUE(t.ui.messages.empty());
  const std::pair<int, int> off[] = {{bet::kPassLine, 1}, {bet::Place(8), -1}, {bet::kHard4, -1}, {bet::Place(4), 0}};
  for (const auto& [id, status] : off) EXPECT_EQ(t.g.BetStatus[id], status) << id;
  CallAllBets(t.g, true);
  EXPECT_EQ(t.g.BetStatus[bet::Place(8)], 0);
  EXPECT_EQ(t.g.BetStatus[bet::kHard4], 1);
}

TEST(BuyPlaceBet, MovesThePlaceAmountOntoTheBuySpot) {
  Commands t;
  t.g.BuyVigRate = 0;  // the vig of a Buy has tests of its own
  t.Put(bet::Place(6), 30);
  t.Put(bet::Buy(6), 10);
  int id = bet::Place(6);
  BuyPlaceBet(t.g, id);
  EXPECT_EQ(id, bet::Buy(6));
  EXPECT_EQ(t.g.BetAmount[bet::Buy(6)], Currency(30));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(0));
  EXPECT_EQ(t.g.TotalOnTable, Currency(30));
  // A call on the Place spot goes with it.
  t.Put(bet::Place(5), 10);
  CallBet(t.g, bet::Place(5), kToolCallOff);
  id = bet::Place(5);
  BuyPlaceBet(t.g, id);
  EXPECT_EQ(t.g.BetStatus[bet::Buy(5)], -1);
  // A Buy bet clicked again, or an empty spot, does nothing.
  for (int same : {bet::Buy(6), bet::Place(9)}) {
    id = same;
    BuyPlaceBet(t.g, id);
    EXPECT_EQ(id, same);
  }
  EXPECT_EQ(t.g.BetAmount[bet::Buy(6)], Currency(30));
  EXPECT_TRUE(t.ui.messages.empty());
}

// The Buy bet ends equal to the Place bet it replaces: no adjustment moves
// it, and what a limit cuts stays in the rack with the limit's notice.
TEST(BuyPlaceBet, KeepsTheAmountOrTellsWhy) {
  const struct { Currency bankroll; Currency buy; bool told; } cases[] = {
      {1000, 12, false},  // 12 pays badly, yet stays 12
      {12, 11, true},     // the vig up front leaves room for 11
  };
  for (const auto& c : cases) {
    Commands t;
    t.g.Bankroll() = c.bankroll;
    t.g.AllowNegativeBankroll = false;
    t.Put(bet::Place(6), 12);
    t.g.AutoAdjustMode = 2;
    int id = bet::Place(6);
    BuyPlaceBet(t.g, id);
    EXPECT_EQ(t.g.BetAmount[bet::Buy(6)], c.buy) << c.bankroll.ToDouble();
    EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(0));
    EXPECT_EQ(t.g.TotalOnTable, c.buy + t.g.BuyVigOnBet[2]);
    EXPECT_EQ(t.g.AutoAdjustMode, 2);
    const bool told = std::any_of(t.ui.messages.begin(), t.ui.messages.end(), [](const RecordedMessage& m) {
      return m.text.find("enough bankroll") != std::string::npos;
    });
    EXPECT_EQ(told, c.told) << c.bankroll.ToDouble();
  }
}

TEST(RemoveBet, TakesEveryBetDownThroughPlacement) {
  Commands t;
  for (int id : {bet::kField, bet::Lay(4), bet::kLastHop, 103}) t.Put(id, 40);
  RemoveAllBets(t.g);
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) EXPECT_EQ(t.g.BetAmount[id], 0) << id;
  EXPECT_EQ(t.g.TotalOnTable, 0);
  EXPECT_EQ(t.g.BetAmount[103], Currency(40));  // Chip-Stacks are not bets on the layout
  RemoveBet(t.g, 103);
  EXPECT_EQ(t.g.BetAmount[103], 0);
}

}  // namespace

TEST(ClickBet, ToolsShiftAndKeyedAmounts) {
  Commands t;
  t.g.ClickTool = 3;  // the third check
  ClickBet(t.g, bet::kField, false);
  ClickBet(t.g, bet::kField, false);
  EXPECT_EQ(t.g.BetAmount[bet::kField], t.g.BetAmount[bet::kFirstChip + 2] * 2);
  t.g.BetAmount.Set(102, 7);  // tool 8 adds what Chip-Stack 102 holds
  t.g.ClickTool = 8;
  ClickBet(t.g, bet::Place(8), false);
  EXPECT_EQ(t.g.BetAmount[bet::Place(8)], Currency(7));
  t.g.ClickTool = kToolCallOff;
  ClickBet(t.g, bet::Place(8), false);
  EXPECT_EQ(t.g.BetStatus[bet::Place(8)], -1);
  // Shift removes whatever the tool; on an empty Don't Pass Odds spot it
  // takes the Don't Pass bet down (no point is on, so it may come down).
  ClickBet(t.g, bet::kField, true);
  EXPECT_EQ(t.g.BetAmount[bet::kField], Currency(0));
  t.Put(bet::kDontPass, 10);
  ClickBet(t.g, bet::kDontPassOdds, true);
  EXPECT_EQ(t.g.BetAmount[bet::kDontPass], Currency(0));

  EXPECT_TRUE(CommitEnteredBet(t.g, bet::Place(6), "$1,2.00"));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(12));
  EXPECT_TRUE(CommitEnteredBet(t.g, bet::Place(6), "6"));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(6));
  EXPECT_FALSE(CommitEnteredBet(t.g, bet::Place(6), "six"));
  EXPECT_FALSE(CommitEnteredBet(t.g, bet::Place(6), ""));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(6));
  EXPECT_EQ(ConvertCurrencyText("$ 1,250.5"), Currency::FromRaw(12'505'000));
}
