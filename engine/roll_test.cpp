#include "engine/roll.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/place_bet.h"

namespace {

struct ThrowRecorder : SilentFrontEnd {
  std::vector<std::string> titles, texts;
  std::vector<int> sounds;
  int throws = 0;
  std::string lastStopReason;
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
    titles.push_back(title);
    texts.push_back(text);
    return SilentFrontEnd::ShowMessage(title, text, b);
  }
  void ShowThrow(int, int, int) override { ++throws; }
  void PlaySound(int slot) override { sounds.push_back(slot); }
  void RollFinished(const std::string& reason) override { lastStopReason = reason; }
};

class RollTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g.Ui = &ui;
    g.ReSeedNewGames = false;
    g.AutoAdjustMode = 0;
    FillDefaults(g);
    NewGame(g, false);
  }
  void Roll(int d1, int d2) {
    g.Die1 = d1;
    g.Die2 = d2;
    g.DiceAlreadySet = true;
    RollDice(g);
  }
  void Bet(int id, int amount) {
    g.BetChange = amount;
    PlaceBetOnTable(g, id);
  }
  Game g;
  ThrowRecorder ui;
};

TEST_F(RollTest, PointComesAndGoesWithItsHandCounters) {
  Roll(2, 2);  // point 4
  EXPECT_EQ(g.Point, 4);
  EXPECT_EQ(g.PointBeforeRoll, 0);  // still the come-out for this roll's decisions
  EXPECT_EQ(g.HandStats[7], 1);
  EXPECT_EQ(g.HandStats[14], 1);
  Roll(3, 1);  // point made
  EXPECT_EQ(g.Point, 0);
  EXPECT_EQ(g.PointBeforeRoll, 4);
  EXPECT_EQ(g.HandStats[1], 1);
  EXPECT_EQ(g.HandStats[8], 1);
  Roll(5, 6);  // come-out 11: a line win on the come-out
  EXPECT_EQ(g.HandStats[9], 1);
  EXPECT_EQ(g.HandStats[10], 2);
  Roll(1, 1);  // come-out 2, bar 12: a come-out line loss, not a hand's end
  EXPECT_EQ(g.HandStats[12], 1);
  EXPECT_EQ(g.HandStats[2], 0);
  Roll(4, 1);  // point 5
  Roll(6, 6);
  Roll(3, 4);  // seven-out
  EXPECT_EQ(g.HandStats[2], 1);
  EXPECT_EQ(g.HandStats[11], 1);
  EXPECT_EQ(g.HandStats[17], 7);  // rolls of the finished hand
  EXPECT_EQ(g.HandStats[18], 2);  // line wins of the finished hand
  EXPECT_EQ(g.HandStats[0], 0);
  EXPECT_EQ(g.HandStats[1], 0);
  EXPECT_EQ(g.HandStats[3], 7);
  EXPECT_EQ(g.HandStats[5], 7);
  EXPECT_EQ(g.RollCounts[0], 7);
}

TEST_F(RollTest, BarredCrapsCountAsLineLossesOnTheComeOut) {
  Roll(6, 6);  // bar 12: barred
  EXPECT_EQ(g.HandStats[12], 1);
  EXPECT_EQ(g.HandStats[13], 1);
  EXPECT_EQ(g.HandStats[15], 1);
  g.BarNumber = 2;
  Roll(1, 1);  // now 2 is barred
  EXPECT_EQ(g.HandStats[12], 2);
  Roll(3, 4);  // come-out 7 wins the line; the hand goes on
  EXPECT_EQ(g.HandStats[2], 0);
  EXPECT_EQ(g.HandStats[9], 1);
}

TEST_F(RollTest, DefaultOffBetsGoBackOffOnTheNewComeOut) {
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);
  Roll(3, 3);
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 1);
  EXPECT_EQ(g.BetStatus[bet::kPassOdds], 1);
  g.BetStatus[bet::Place(8)] = -1;  // called OFF: outlives the point
  Roll(4, 2);
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);
  EXPECT_EQ(g.BetStatus[bet::Place(8)], -1);
  EXPECT_EQ(g.BetStatus[bet::kField], 1);
}

TEST_F(RollTest, SnapshotsFrameEachRoll) {
  Roll(2, 3);
  Bet(bet::Place(6), 12);
  EXPECT_EQ(g.BetCommitted[bet::Place(6)], 0);  // placed after the dice came to rest
  Roll(5, 5);
  EXPECT_EQ(g.BetCommitted[bet::Place(6)], 12);
  EXPECT_EQ(g.BetAtRollStart[bet::Place(6)], 12);
  EXPECT_EQ(g.BetAfterRoll[bet::Place(6)], g.BetAmount[bet::Place(6)]);
  EXPECT_EQ(g.PointTwoRollsAgo, 0);
  EXPECT_EQ(g.PointBeforeRoll, 5);
}

TEST_F(RollTest, ComeBoxBetTravelsToItsNumberAsAContract) {
  Roll(4, 1);  // point 5
  Bet(bet::kCome, 10);
  Roll(4, 2);
  EXPECT_EQ(g.BetAmount[bet::kCome], 0);
  EXPECT_EQ(g.BetAmount[bet::Come(6)], 10);
  EXPECT_EQ(g.BetCommitted[bet::Come(6)], 10);
  Bet(bet::kDontCome, 5);
  Roll(2, 2);
  EXPECT_EQ(g.BetAmount[bet::DontCome(4)], 5);
  EXPECT_EQ(g.TotalOnTable, 15);
}

TEST_F(RollTest, AutoRemovePlaceBetsClearsTheNumberAComeBetTakes) {
  g.AutoRemovePlaceBets = true;
  Roll(4, 1);
  Bet(bet::Place(6), 6);
  Bet(bet::kCome, 10);
  Roll(4, 2);
  EXPECT_EQ(g.BetAmount[bet::Come(6)], 10);
  EXPECT_EQ(g.BetAmount[bet::Place(6)], 0);
}

TEST_F(RollTest, RollCountStopsARunAndReloads) {
  g.RollCountStop = 3;
  g.RollCountLeft = 3;
  g.HyperDriveOn = true;
  g.KeepRolling = true;
  RollDice(g);
  EXPECT_EQ(g.RollCounts[0], 3);
  EXPECT_FALSE(g.HyperDriveOn);
  EXPECT_EQ(g.RollCountLeft, 3);
  EXPECT_EQ(ui.lastStopReason, "Stopped by roll count on Auto-Play screen.");
  ASSERT_EQ(ui.titles.size(), 1u);
  EXPECT_EQ(ui.titles[0], "Hyper-Drive Stopped");
  EXPECT_EQ(ui.throws, 0);  // nothing is drawn under Hyper-Drive
  EXPECT_TRUE(g.StopReason.empty());
}

TEST_F(RollTest, AutoRollStopsOnTheMarkedTotalAndSaysNothing) {
  g.AutoRollOn = true;
  g.StopOnRoll[9] = true;  // any 7
  g.RollCountLeft = 1000;
  g.KeepRolling = true;
  RollDice(g);
  EXPECT_EQ(g.DiceTotal, 7);
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(ui.throws, g.RollCounts[0]);
  EXPECT_TRUE(ui.lastStopReason.empty());
}

TEST_F(RollTest, NoRollAtTheCeiling) {
  g.RollCounts[0] = MaxRolls;
  Roll(3, 4);
  EXPECT_EQ(g.RollCounts[0], MaxRolls);
  ASSERT_EQ(ui.titles.size(), 1u);
  EXPECT_EQ(ui.titles[0], "Reached Maximum Roll Limit");
  EXPECT_EQ(ui.texts[0],
            "Sorry ... you've reached the maximum limit of 100,000,000 rolls.\r\r"
            "Select \"New\" from the \"Game\" menu to reset the table.");
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
  EXPECT_EQ(ui.lastStopReason,
            "Stopped due to reaching the maximum limit of 100,000,000 rolls.\r\r"
            "Select \"New\" from the \"Game\" menu to reset the table.");
}

TEST_F(RollTest, BankLimitRefusesTheRollAndEndsARun) {
  g.Bankroll() = 10'000'000;
  Roll(3, 4);
  EXPECT_EQ(g.RollCounts[0], 0);
  ASSERT_EQ(ui.titles.size(), 1u);
  EXPECT_EQ(ui.titles[0], "Congratulations!");
  EXPECT_EQ(ui.texts[0],
            "You broke the bank limit of $9,999,999\r\rSelect \"New\" from the \"Game\" menu to reset the table.");
  g.Bankroll() = -10'000'000;
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
  EXPECT_FALSE(g.HyperDriveOn);
  EXPECT_EQ(ui.lastStopReason,
            "Stopped by exceeding the max loss limit of $9,999,999\r\r"
            "Select \"New\" from the \"Game\" menu to reset the table.");
}

TEST_F(RollTest, SoundsFollowTheThrow) {
  Roll(2, 2);
  EXPECT_EQ(ui.sounds, (std::vector<int>{4, 16}));  // total, then the double's cut-in
  ui.sounds.clear();
  Roll(3, 4);  // seven-out: loss sound, then a new shooter's come-out
  EXPECT_EQ(ui.sounds, (std::vector<int>{7, 14, 18, 17}));
}

}  // namespace
