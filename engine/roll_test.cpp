#include "engine/roll.h"

#include <gtest/gtest.h>

#include "engine/new_game.h"
#include "engine/table_for_test.h"

namespace {

struct RollTest : ::testing::Test, TestTable {
  void Bet(int id, int amount) {
    g.BetChange = amount;
    PlaceBetOnTable(g, id);
  }
  void ExpectHandStats(std::initializer_list<std::pair<hand::Stat, int>> counts) {
    for (const auto& [index, count] : counts) EXPECT_EQ(g.HandStats[index], count) << "HandStats " << index;
  }
};

TEST_F(RollTest, PointComesAndGoesWithItsHandCounters) {
  using namespace hand;
  Roll(2, 2);  // point 4
  EXPECT_EQ(g.Point, 4);
  EXPECT_EQ(g.PointBeforeRoll, 0);  // still the come-out for this roll's decisions
  ExpectHandStats({{kPointsEstablished, 1}, {kComeOutRolls, 1}});
  Roll(3, 1);  // point made
  EXPECT_EQ(g.Point, 0);
  EXPECT_EQ(g.PointBeforeRoll, 4);
  ExpectHandStats({{kWins, 1}, {kPointsMade, 1}});
  Roll(5, 6);  // come-out 11: a line win on the come-out
  ExpectHandStats({{kComeOutWins, 1}, {kAllWins, 2}});
  Roll(1, 1);  // come-out 2, bar 12: a come-out line loss, not a hand's end
  ExpectHandStats({{kComeOutLosses, 1}, {kHands, 0}});
  Roll(4, 1);  // point 5
  Roll(6, 6);
  Roll(3, 4);  // seven-out
  ExpectHandStats({{kRolls, 0}, {kWins, 0}, {kHands, 1}, {kMostRolls, 7}, {kRollsOfHands, 7}, {kSevenOuts, 1},
                   {kLastHandRolls, 7}, {kLastHandWins, 2}});
  EXPECT_EQ(g.RollCounts[0], 7);

  // Barred craps count as line losses on the come-out; a come-out 7 wins the
  // line and the hand goes on.
  Roll(6, 6);
  ExpectHandStats({{kComeOutLosses, 2}, {kAllLosses, 3}, {kLossesInRow, 1}});
  g.BarNumber = 2;
  Roll(1, 1);
  ExpectHandStats({{kComeOutLosses, 3}});
  Roll(3, 4);
  ExpectHandStats({{kHands, 1}, {kComeOutWins, 2}});
}

TEST_F(RollTest, StatusesAndSnapshotsFollowThePoint) {
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);
  Roll(3, 3);
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 1);
  EXPECT_EQ(g.BetStatus[bet::kPassOdds], 1);
  g.BetStatus.Set(bet::Place(8), -1);  // called OFF: outlives the point
  Bet(bet::Place(5), 10);
  EXPECT_EQ(g.Committed(bet::Place(5)), 0);  // placed after the dice came to rest
  Roll(4, 2);  // point made: default-off bets are off again
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);
  EXPECT_EQ(g.BetStatus[bet::Place(8)], -1);
  EXPECT_EQ(g.BetStatus[bet::kField], 1);
  EXPECT_EQ(g.Committed(bet::Place(5)), 10);
  EXPECT_EQ(g.BetAtRollStart()[bet::Place(5)], 10);
  EXPECT_EQ(g.BetAfterRoll()[bet::Place(5)], 10);
  Roll(2, 3);
  EXPECT_EQ(g.PointTwoRollsAgo, 6);
  EXPECT_EQ(g.PointBeforeRoll, 0);
}

// A roll keeps its baselines and snapshots by their changes rather than by
// whole copies: over many rolls of a full layout, the contract baseline and
// the start snapshot must read as the layout did when the dice went out, the
// after-roll snapshot as it stands after the roll, and the streaks at the top
// of the roll as they stood before it.
TEST_F(RollTest, BaselinesReadAsTheLayoutWhenTheDiceWentOut) {
  static Game::Amounts layout;  // read by a hook, which captures nothing
  static int mismatches = 0;
  g.Hooks.DiceCounted = [](Game& game) {
    Game::CommittedTable committed;
    std::copy_n(layout.begin(), committed.size(), committed.begin());
    mismatches += game.CommittedAmounts() != committed || game.BetAtRollStart() != layout;
  };
  uint32_t seed = 20261124;
  auto die = [&seed] {
    seed = seed * 1103515245u + 12345u;
    return static_cast<int>((seed >> 16) % 6) + 1;
  };
  for (int roll = 0; roll < 3000; ++roll) {
    for (int id : {bet::kPassLine, bet::kCome, bet::kDontCome, bet::kDontPass, bet::Place(6), bet::kField, bet::kHard8})
      if (g.BetAmount[id] == 0) Bet(id, 10);
    layout = g.BetAmount.All();
    const auto streaksBefore = g.BetStreak[1];
    Roll(die(), die());
    ASSERT_EQ(g.BetStreak[0], streaksBefore) << "roll " << roll;
    ASSERT_EQ(g.BetAfterRoll(), g.BetAmount.All()) << "roll " << roll;
  }
  EXPECT_EQ(mismatches, 0);
}

// A throw whose statistics are counted whole settles just the bets with
// money; a handling that puts money on a bet still to settle, or takes one
// down before its turn, must find the rest of the throw following it, as the
// throw that visits every bet does.
struct MoneyAfterThrow {
  Currency bankroll, field, seven, onTable;
  bool operator==(const MoneyAfterThrow&) const = default;
  friend void PrintTo(const MoneyAfterThrow& m, std::ostream* os) {
    *os << "bankroll " << m.bankroll.ToDouble() << ", field " << m.field.ToDouble() << ", seven "
        << m.seven.ToDouble() << ", on the table " << m.onTable.ToDouble();
  }
};

TEST(RollMoney, AThrowFollowsMoneyMovedByAHandling) {
  auto play = [](bool inFull) {
    TestTable t;
    t.g.StatisticsInFull = inFull;
    static void (*handling)(Game&, int, const SettleNotice*) = t.g.Hooks.LostBet;
    t.g.Hooks.LostBet = [](Game& game, int betId, const SettleNotice* notice) {
      handling(game, betId, notice);
      if (betId != bet::kPassLine) return;
      game.BetChange = 5;
      PlaceBetOnTable(game, bet::kField);  // settled later in the throw: loses on the seven
      TakeDownBet(game, bet::kSeven);      // would have won later in the throw
    };
    t.g.BetChange = 10;
    PlaceBetOnTable(t.g, bet::kPassLine);
    t.Roll(2, 2);  // point 4
    t.g.BetChange = 5;
    PlaceBetOnTable(t.g, bet::kSeven);
    t.Roll(3, 4);  // seven out
    return MoneyAfterThrow{t.g.Bankroll(), t.g.BetAmount[bet::kField], t.g.BetAmount[bet::kSeven], t.g.TotalOnTable};
  };
  const MoneyAfterThrow counted = play(false);
  EXPECT_EQ(counted, play(true));
  EXPECT_EQ(counted.field, 0);  // settled in the throw it was put down in
  EXPECT_EQ(counted.seven, 0);
}

TEST_F(RollTest, ComeBoxBetsTravelToTheirNumberAfterItIsSettled) {
  // With Auto-Remove the line bet takes the Place bet of its point down.
  g.AutoRemovePlaceBets = true;
  Bet(bet::kPassLine, 10);
  Bet(bet::Place(5), 5);
  Roll(4, 1);  // point 5
  EXPECT_EQ(g.BetAmount[bet::Place(5)], 0);
  Bet(bet::Place(6), 6);
  Bet(bet::kCome, 10);
  Roll(4, 2);
  EXPECT_EQ(g.BetAmount[bet::kCome], 0);
  EXPECT_EQ(g.BetAmount[bet::Come(6)], 10);
  EXPECT_EQ(g.Committed(bet::Come(6)), 10);
  EXPECT_EQ(g.BetAmount[bet::Place(6)], 0);  // taken down for the Come bet
  Bet(bet::kDontCome, 5);
  Roll(2, 2);
  EXPECT_EQ(g.BetAmount[bet::DontCome(4)], 5);
  EXPECT_EQ(g.TotalOnTable, 25);
  // Come 6 wins and comes down; then the box bet moves onto it.
  Bet(bet::kCome, 10);
  const Currency before = g.Bankroll();
  Roll(3, 3);
  EXPECT_EQ(g.Bankroll() - before, Currency(10));
  EXPECT_EQ(g.BetAmount[bet::kCome], 0);
  EXPECT_EQ(g.BetAmount[bet::Come(6)], 10);
}

TEST_F(RollTest, RunsStopByRollCountOrMarkedTotal) {
  g.RollCountStop = g.RollCountLeft = 3;
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
  EXPECT_EQ(g.RollCounts[0], 3);
  EXPECT_FALSE(g.HyperDriveOn);
  EXPECT_EQ(g.RollCountLeft, 3);  // reloaded for the next run
  EXPECT_EQ(ui.stopReason, StopReason::RollCount);
  ASSERT_EQ(ui.messages.size(), 1u);
  EXPECT_EQ(ui.messages[0].title, "Hyper-Drive Stopped");
  EXPECT_EQ(ui.throws, 0);  // nothing is drawn under Hyper-Drive
  EXPECT_EQ(g.StopReason, StopReason::None);
  // Auto-Roll stops on a marked total and says nothing.
  g.AutoRollOn = g.KeepRolling = true;
  g.StopOnRoll[9] = true;  // any 7
  g.RollCountLeft = 1000;
  RollDice(g);
  EXPECT_EQ(g.DiceTotal, 7);
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(ui.throws, g.RollCounts[0] - 3);
  EXPECT_EQ(ui.stopReason, StopReason::None);
}

TEST_F(RollTest, NoRollAtTheCeilingOrBeyondTheBankLimit) {
  const std::string newGame = "\r\rSelect \"New\" from the \"Game\" menu to reset the table.";
  g.RollCounts[0] = MaxRolls;
  Roll(3, 4);
  EXPECT_EQ(g.RollCounts[0], MaxRolls);
  EXPECT_EQ(Last(), (RecordedMessage{"Reached Maximum Roll Limit",
                                     "Sorry ... you've reached the maximum limit of 100,000,000 rolls." + newGame}));
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
  EXPECT_EQ(StopReasonText(ui.stopReason), "Stopped due to reaching the maximum limit of 100,000,000 rolls." + newGame);

  g.RollCounts[0] = 0;
  g.Bankroll() = 10'000'000;
  Roll(3, 4);
  EXPECT_EQ(g.RollCounts[0], 0);
  EXPECT_EQ(Last(), (RecordedMessage{"Congratulations!", "You broke the bank limit of $9,999,999" + newGame}));
  g.Bankroll() = -10'000'000;
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
  EXPECT_FALSE(g.HyperDriveOn);
  EXPECT_EQ(Last(), (RecordedMessage{"Sorry ... this wasn't your lucky day.",
                                     "You've exceeded the max loss limit of $9,999,999" + newGame}));
  EXPECT_EQ(ui.stopReason, StopReason::StartRefusedMaxLoss);
  EXPECT_EQ(StopReasonText(ui.stopReason), Last().text);
}

TEST_F(RollTest, SoundsFollowTheThrow) {
  Roll(2, 2);
  EXPECT_EQ(ui.sounds, (std::vector<int>{4, 16}));  // total, then the double's cut-in
  ui.sounds.clear();
  Roll(3, 4);  // seven-out: loss sound, then a new shooter's come-out
  EXPECT_EQ(ui.sounds, (std::vector<int>{7, 14, 18, 17}));
}

}  // namespace

// The table counts its own rolls: its ceiling and the generators that
// alternate by roll read the count even where no statistics hang on the roll.
TEST(Roll, ATableWithNothingHungOnItCountsItsOwnRolls) {
  Game g;
  FillDefaults(g);
  NewGame(g, false);
  for (int i = 0; i < 3; ++i) {
    g.Die1 = 2;
    g.Die2 = 3;
    g.DiceAlreadySet = true;
    RollDice(g);
  }
  EXPECT_EQ(g.RollCounts[event::kAllRolls], 3);
}
