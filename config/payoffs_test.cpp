#include "config/payoffs.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/test_support.h"

namespace {

bool Is(const PayoffRecord& p, int win, int per, int form = -1) {
  return p.Win == Currency(win) && p.Per == Currency(per) && p.Form == Currency(form);
}

struct Table {
  Game g;
  RecordingFrontEnd ui;
  Table() {
    FillDefaults(g);
    g.Ui = &ui;
  }
};

// Expected value per roll of one unit on the Field, true dice.
double FieldValuePerRoll(const Game& g) {
  double ev = 0;
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) {
      const PayoffRecord& p = g.FieldPayoff[bet::FieldRow(d1, d2)];
      ev += p.Win.ToDouble() / p.Per.ToDouble() / 36;
    }
  return ev;
}

}  // namespace

// The bet rows are proved by settling every bet; here the Field's own table
// and what restoring does.
TEST(Payoffs, RestoreDefaults) {
  Table t;
  Game& g = t.g;
  for (int row = 1; row <= 21; ++row) {
    int win = row >= 5 && row <= 15 ? -1 : row == 1 || row == 21 ? 2 : 1;
    EXPECT_TRUE(Is(g.FieldPayoff[row], win, 1)) << row;
  }
  for (int id = 1; id <= 83; ++id) EXPECT_EQ(g.Payoff[id].Form, Currency(-1)) << id;

  // Restoring puts back what was changed, and on the come-out leaves the line
  // odds at 1 to 1 until a point is set.
  g.Payoff[33] = {3, 0, 4};
  g.FieldPayoff[21] = {5, 0, 1};
  RestoreDefaultPayoffs(g);
  EXPECT_TRUE(Is(g.Payoff[33], 7, 6));
  EXPECT_TRUE(Is(g.FieldPayoff[21], 2, 1));
  EXPECT_TRUE(Is(g.Payoff[44], 1, 1));
  EXPECT_TRUE(Is(g.Payoff[47], 1, 1));
}

TEST(Payoffs, LineOddsFollowThePoint) {
  Table t;
  t.g.Point = 9;
  SyncOddsPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 3, 2));
  EXPECT_TRUE(Is(t.g.Payoff[47], 2, 3));
  t.g.Point = 4;
  RestoreDefaultPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 2, 1));
  EXPECT_TRUE(Is(t.g.Payoff[47], 1, 2));
  // Changed Come odds travel with all three fields.
  t.g.Payoff[27] = {4, 0, 3};
  t.g.Point = 6;
  SyncOddsPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 4, 3, 0));
  t.g.Point = 0;
  SyncOddsPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 4, 3, 0));
}

TEST(Payoffs, FieldPresets) {
  const char* captions[kFieldPresetCount] = {
      "&Field w/ 2x on Two and Twelve", "&Pass Line", "&Don't Pass (bar 12)", "Place &6",
      "Place to &Lose 8", "Buy &10 (5 % vig)", "Lay &4 (5% vig on win only)", "H&ard 8",
      "&Horn", "&World", "H&op 13", "&Crapless Craps Pass Line"};
  for (int i = 0; i < kFieldPresetCount; ++i) EXPECT_STREQ(FieldPresetCaption(i), captions[i]);
  EXPECT_STREQ(FieldPresetCaption(12), "");

  Table t;
  Game& g = t.g;
  // The line presets are the line bets' value per roll: Pass -7/495 per
  // decision on the come-out, Don't Pass -3/220; Place 6 loses 1/216 a roll.
  ASSERT_TRUE(SetFieldPreset(g, 1));
  EXPECT_NEAR(FieldValuePerRoll(g), -7.0 / 495, 1e-12);
  ASSERT_TRUE(SetFieldPreset(g, 2));
  EXPECT_NEAR(FieldValuePerRoll(g), -3.0 / 220, 1e-12);
  EXPECT_TRUE(Is(g.FieldPayoff[21], 0, 1));
  EXPECT_TRUE(Is(g.FieldPayoff[7], 1, 11));
  ASSERT_TRUE(SetFieldPreset(g, 3));
  EXPECT_NEAR(FieldValuePerRoll(g), -1.0 / 216, 1e-12);

  // Hard 8 loses 1/11 a decision, 11 decisions in 36 rolls.
  ASSERT_TRUE(SetFieldPreset(g, 7));
  EXPECT_NEAR(FieldValuePerRoll(g), -1.0 / 36, 1e-12);
  // Horn and World rows are in the "for" form; the rest keep "to".
  ASSERT_TRUE(SetFieldPreset(g, 8));
  EXPECT_TRUE(Is(g.FieldPayoff[21], 27, 4, 0));
  EXPECT_TRUE(Is(g.FieldPayoff[20], 12, 4, 0));
  EXPECT_TRUE(Is(g.FieldPayoff[10], -1, 1));
  ASSERT_TRUE(SetFieldPreset(g, 9));
  EXPECT_TRUE(Is(g.FieldPayoff[12], 0, 5, 0));
  EXPECT_TRUE(Is(g.FieldPayoff[13], -1, 1));
  ASSERT_TRUE(SetFieldPreset(g, 0));
  EXPECT_TRUE(Is(g.FieldPayoff[1], 2, 1));

  EXPECT_FALSE(SetFieldPreset(g, -1));
  EXPECT_FALSE(SetFieldPreset(g, 12));
  EXPECT_TRUE(Is(g.FieldPayoff[1], 2, 1));
}

TEST(Payoffs, GridRowsAndLabels) {
  Table t;
  std::set<int> bets;
  for (int row = 1; row <= kPayoffGridRows; ++row) bets.insert(PayoffGridBet(row));
  EXPECT_EQ(bets.size(), 75u);
  for (int missing : {0, 43, 44, 46, 47, 49, 62, 63, 64}) EXPECT_EQ(bets.count(missing), 0u) << missing;
  EXPECT_EQ(PayoffGridBet(1), bet::kCome);
  EXPECT_EQ(PayoffGridBet(76), 0);

  EXPECT_EQ(PayoffRowLabel(t.g, 45), "Passline/Come (c.o.)");
  EXPECT_EQ(PayoffRowLabel(t.g, 48), "Don't Pass/Come (c.o.)");
  EXPECT_EQ(PayoffRowLabel(t.g, 19), "Pass/Come 4");
  EXPECT_EQ(PayoffRowLabel(t.g, 22), "Pass/Come 8");
  EXPECT_EQ(PayoffRowLabel(t.g, 30), "Pass/Come 10 Odds");
  EXPECT_EQ(PayoffRowLabel(t.g, 9), "DP/DC 6");
  EXPECT_EQ(PayoffRowLabel(t.g, 17), "DP/DC 9 Odds");
  EXPECT_EQ(PayoffRowLabel(t.g, 33), "Place 6");
  EXPECT_EQ(PayoffRowLabel(t.g, 83), "Hop 5-5");
  EXPECT_STREQ(FieldRowLabel(1), "2    (1-1)");
  EXPECT_STREQ(FieldRowLabel(18), "10   (4-6) (6-4)");
  EXPECT_STREQ(FieldRowLabel(22), "");
}

TEST(Payoffs, EditingCells) {
  Table t;
  Game& g = t.g;
  PayoffRecord& p = g.Payoff[33];
  // Switching 7 to 6 to the "for" form shows 13 for 6 and pays the same.
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'f'));
  EXPECT_TRUE(Is(p, 7, 6, 0));
  EXPECT_EQ(PayoffShownAmount(p), Currency(13));
  EXPECT_STREQ(PayoffFormWord(p), "for");
  EXPECT_EQ(PayoffWording("Payoff at ", p), "Payoff at 13 for 6:");
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'F'));  // already "for"

  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 0, Currency(14)));  // 14 for 6
  EXPECT_TRUE(Is(p, 8, 6, 0));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 2, Currency(5)));  // the total stays: 14 for 5
  EXPECT_TRUE(Is(p, 9, 5, 0));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'T'));
  EXPECT_TRUE(Is(p, 9, 5));
  EXPECT_EQ(PayoffWording("Payoff at ", p), "Payoff at 9 to 5:");
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 0, Currency(7)));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 2, Currency(6)));
  EXPECT_TRUE(Is(p, 7, 6));

  // Refused: a Per of zero, typing into the word, keys on a number, rows
  // outside the grid. Nothing changes.
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 2, Currency(0)));
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 1, Currency(3)));
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 0, 'f'));
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'x'));
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 44, 0, Currency(3)));
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Field, 22, 0, Currency(3)));
  EXPECT_TRUE(Is(p, 7, 6));
  EXPECT_TRUE(Is(g.Payoff[44], 1, 1));

  EXPECT_TRUE(EditPayoff(g, PayoffTable::Field, 21, 0, Currency(3)));
  EXPECT_TRUE(Is(g.FieldPayoff[21], 3, 1));
}

TEST(Payoffs, Validation) {
  {
    Table t;
    EXPECT_TRUE(ValidatePayoffs(t.g));
    EXPECT_TRUE(t.ui.messages.empty());
  }
  struct Fault {
    int betId;
    const char* title;
  };
  const Fault faults[] = {
      {45, "Payoff ratio error on Passline/Come (c.o.)"}, {20, "Payoff ratio error on Pass/Come 5"},
      {48, "Payoff ratio error on Don't Pass/Come (c.o.)"}, {12, "Payoff ratio error on DP/DC 10"},
      {26, "Payoff ratio error on Come 5 Odds"},           {15, "Payoff ratio error on Don't Come 6 Odds"},
      {33, "Payoff ratio error on Place 6"},                {83, "Payoff ratio error on Hop 5-5"},
  };
  for (const Fault& f : faults) {
    Table t;
    t.g.Payoff[f.betId].Win = 0;
    PayoffFault where;
    EXPECT_FALSE(ValidatePayoffs(t.g, &where));
    ASSERT_EQ(t.ui.messages.size(), 1u);
    EXPECT_EQ(t.ui.messages[0].title, f.title);
    EXPECT_EQ(t.ui.messages[0].text, "The payoff must be a positive amount.");
    EXPECT_EQ(where.table, PayoffTable::Bets);
    EXPECT_EQ(PayoffGridBet(where.row), f.betId);
  }
  {
    // A negative payoff in the grid is let through; records outside it are not looked at.
    Table t;
    t.g.Payoff[33].Win = -1;
    t.g.Payoff[44].Win = 0;
    EXPECT_TRUE(ValidatePayoffs(t.g));
  }
  {
    Table t;
    t.g.FieldPayoff[7] = {-2, -1, 1};
    PayoffFault where;
    EXPECT_FALSE(ValidatePayoffs(t.g, &where));
    ASSERT_EQ(t.ui.messages.size(), 1u);
    EXPECT_EQ(t.ui.messages[0].title, "Payoff ratio error on Field");
    EXPECT_EQ(t.ui.messages[0].text, "The loss on any Field payoff cannot exceed the amount wagered.");
    EXPECT_EQ(where.table, PayoffTable::Field);
    EXPECT_EQ(where.row, 7);
  }
  {
    // -5/5 and 0/1 are accepted, but 0/1 is not a winning row.
    Table t;
    t.g.FieldPayoff[7] = {-5, -1, 5};
    for (int row : {1, 2, 3, 4, 16, 17, 18, 19, 20, 21}) t.g.FieldPayoff[row] = {0, -1, 1};
    t.g.FieldPayoff[2] = {1, -1, 1};
    EXPECT_TRUE(ValidatePayoffs(t.g));
    t.g.FieldPayoff[2] = {0, -1, 1};
    EXPECT_FALSE(ValidatePayoffs(t.g));
    ASSERT_EQ(t.ui.messages.size(), 1u);
    EXPECT_EQ(t.ui.messages[0].title, "Payoff error on Field");
    EXPECT_EQ(t.ui.messages[0].text, "At least one of the Field payoffs must be postiive.");
  }
}
