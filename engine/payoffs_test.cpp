#include "engine/payoffs.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/table_for_test.h"

namespace {

bool Is(const PayoffRecord& p, int win, int per, int form = -1) {
  return p.Win == Currency(win) && p.Per == Currency(per) && p.Form == Currency(form);
}

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

TEST(Payoffs, DefaultTableAndRestoring) {
  TestTable t;
  Game& g = t.g;
  std::pair<int, int> want[84];
  for (auto& w : want) w = {1, 1};
  const std::pair<int, int> lay[] = {{1, 2}, {2, 3}, {5, 6}, {5, 6}, {2, 3}, {1, 2}};
  const std::pair<int, int> take[] = {{2, 1}, {3, 2}, {6, 5}, {6, 5}, {3, 2}, {2, 1}};
  const std::pair<int, int> place[] = {{9, 5}, {7, 5}, {7, 6}, {7, 6}, {7, 5}, {9, 5}};
  for (int i = 0; i < 6; ++i) {
    want[bet::kLayBase + i] = want[bet::kDontComeOddsBase + i] = lay[i];
    want[bet::kComeOddsBase + i] = want[bet::kBuyBase + i] = take[i];
    want[bet::kPlaceBase + i] = place[i];
  }
  want[52] = want[55] = want[61] = {7, 1};
  want[53] = want[54] = {9, 1};
  want[56] = want[60] = {30, 1};
  want[57] = want[59] = {15, 1};
  want[58] = {4, 1};
  want[62] = {1, 2};
  want[63] = {1, 4};
  want[64] = {1, 5};
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id)
    want[id] = {bet::HopFaces(id).low == bet::HopFaces(id).high ? 30 : 15, 1};
  // On the come-out the line odds (44, 47) keep 1 to 1.
  for (int id = 1; id <= 83; ++id) EXPECT_TRUE(Is(g.Payoff[id], want[id].first, want[id].second)) << id;
  for (int row = 1; row <= 21; ++row)
    EXPECT_TRUE(Is(g.FieldPayoff[row], row >= 5 && row <= 15 ? -1 : row == 1 || row == 21 ? 2 : 1, 1)) << row;

  g.Payoff.Set(33, {3, 0, 4});
  g.FieldPayoff.Set(21, {5, 0, 1});
  RestoreDefaultPayoffs(g);
  EXPECT_TRUE(Is(g.Payoff[33], 7, 6));
  EXPECT_TRUE(Is(g.FieldPayoff[21], 2, 1));
  EXPECT_TRUE(Is(g.Payoff[44], 1, 1));
}

TEST(Payoffs, LineOddsFollowThePoint) {
  TestTable t;
  t.g.Point = 9;
  SyncOddsPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 3, 2));
  EXPECT_TRUE(Is(t.g.Payoff[47], 2, 3));
  t.g.Point = 4;
  RestoreDefaultPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 2, 1));
  EXPECT_TRUE(Is(t.g.Payoff[47], 1, 2));
  // Changed Come odds travel with all three fields; the come-out keeps them.
  t.g.Payoff.Set(27, {4, 0, 3});
  t.g.Point = 6;
  SyncOddsPayoffs(t.g);
  t.g.Point = 0;
  SyncOddsPayoffs(t.g);
  EXPECT_TRUE(Is(t.g.Payoff[44], 4, 3, 0));
}

TEST(Payoffs, FieldPresets) {
  const char* captions[kFieldPresetCount + 1] = {
      "&Field w/ 2x on Two and Twelve", "&Pass Line", "&Don't Pass (bar 12)", "Place &6", "Place to &Lose 8",
      "Buy &10 (5 % vig)", "Lay &4 (5% vig on win only)", "H&ard 8", "&Horn", "&World", "H&op 13",
      "&Crapless Craps Pass Line", ""};
  for (int i = 0; i <= kFieldPresetCount; ++i) EXPECT_STREQ(FieldPresetCaption(i), captions[i]);
  TestTable t;
  Game& g = t.g;
  // Presets reproduce a bet's value per roll: Pass -7/495 a roll, Don't Pass
  // -3/220, Place 6 -1/216, Hard 8 -1/36.
  const struct { int preset; double value; } values[] = {
      {1, -7.0 / 495}, {2, -3.0 / 220}, {3, -1.0 / 216}, {7, -1.0 / 36}};
  for (const auto& v : values) {
    ASSERT_TRUE(SetFieldPreset(g, v.preset));
    EXPECT_NEAR(FieldValuePerRoll(g), v.value, 1e-12) << v.preset;
  }
  // Horn and World rows are in the "for" form; the rest keep "to".
  ASSERT_TRUE(SetFieldPreset(g, 8));
  EXPECT_TRUE(Is(g.FieldPayoff[21], 27, 4, 0) && Is(g.FieldPayoff[20], 12, 4, 0) && Is(g.FieldPayoff[10], -1, 1));
  ASSERT_TRUE(SetFieldPreset(g, 9));
  EXPECT_TRUE(Is(g.FieldPayoff[12], 0, 5, 0));
  EXPECT_FALSE(SetFieldPreset(g, -1) || SetFieldPreset(g, 12));
  EXPECT_TRUE(Is(g.FieldPayoff[12], 0, 5, 0));
}

TEST(Payoffs, GridRowsAndLabels) {
  TestTable t;
  std::set<int> bets;
  for (int row = 1; row <= kPayoffGridRows; ++row) bets.insert(PayoffGridBet(row));
  EXPECT_EQ(bets.size(), 75u);
  for (int missing : {0, 43, 44, 46, 47, 49, 62, 63, 64}) EXPECT_EQ(bets.count(missing), 0u) << missing;
  EXPECT_EQ(PayoffGridBet(76), 0);
  const std::pair<int, const char*> labels[] = {
      {45, "Passline/Come (c.o.)"}, {48, "Don't Pass/Come (c.o.)"}, {19, "Pass/Come 4"}, {22, "Pass/Come 8"},
      {30, "Pass/Come 10 Odds"},    {9, "DP/DC 6"},                 {17, "DP/DC 9 Odds"}, {33, "Place 6"},
      {83, "Hop 5-5"}};
  for (const auto& [id, label] : labels) EXPECT_EQ(PayoffRowLabel(t.g, id), label);
  for (const auto& [row, label] : {std::pair{1, "2    (1-1)"}, {18, "10   (4-6) (6-4)"}, {22, ""}})
    EXPECT_STREQ(FieldRowLabel(row), label);
}

TEST(Payoffs, EditingCells) {
  TestTable t;
  Game& g = t.g;
  PayoffRecord& p = g.Payoff.Edit()[33];
  // Switching 7 to 6 to the "for" form shows 13 for 6 and pays the same.
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'f'));
  EXPECT_TRUE(Is(p, 7, 6, 0));
  EXPECT_EQ(PayoffShownAmount(p), Currency(13));
  EXPECT_EQ(PayoffWording("Payoff at ", p), "Payoff at 13 for 6:");
  EXPECT_FALSE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'F'));  // already "for"
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 0, Currency(14)));  // 14 for 6
  EXPECT_TRUE(Is(p, 8, 6, 0));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 2, Currency(5)));  // the total stays: 14 for 5
  EXPECT_TRUE(Is(p, 9, 5, 0));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 1, 'T'));
  EXPECT_EQ(PayoffWording("Payoff at ", p), "Payoff at 9 to 5:");
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 0, Currency(7)));
  EXPECT_TRUE(EditPayoff(g, PayoffTable::Bets, 33, 2, Currency(6)));
  EXPECT_TRUE(Is(p, 7, 6));
  // Refused, with nothing changed: a Per of zero, typing into the word, keys
  // on a number, rows outside the grid.
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
    TestTable t;
    EXPECT_TRUE(ValidatePayoffs(t.g));
    // A negative payoff in the grid is let through; records outside it are not looked at.
    t.g.Payoff.Edit()[33].Win = -1;
    t.g.Payoff.Edit()[44].Win = 0;
    EXPECT_TRUE(ValidatePayoffs(t.g));
    EXPECT_TRUE(t.ui.messages.empty());
  }
  const std::pair<int, const char*> faults[] = {
      {45, "Passline/Come (c.o.)"}, {20, "Pass/Come 5"},     {48, "Don't Pass/Come (c.o.)"}, {12, "DP/DC 10"},
      {26, "Come 5 Odds"},          {15, "Don't Come 6 Odds"}, {33, "Place 6"},             {83, "Hop 5-5"}};
  for (const auto& [id, label] : faults) {
    TestTable t;
    t.g.Payoff.Edit()[id].Win = 0;
    PayoffFault where;
    EXPECT_FALSE(ValidatePayoffs(t.g, &where));
    ASSERT_EQ(t.ui.messages.size(), 1u);
    EXPECT_EQ(t.Last(), (RecordedMessage{std::string("Payoff ratio error on ") + label,
                                         "The payoff must be a positive amount."}));
    EXPECT_EQ(where.table, PayoffTable::Bets);
    EXPECT_EQ(PayoffGridBet(where.row), id);
  }
  TestTable t;
  t.g.FieldPayoff.Set(7, {-2, -1, 1});
  PayoffFault where;
  EXPECT_FALSE(ValidatePayoffs(t.g, &where));
  EXPECT_EQ(t.Last(), (RecordedMessage{"Payoff ratio error on Field",
                                        "The loss on any Field payoff cannot exceed the amount wagered."}));
  EXPECT_EQ(where.table, PayoffTable::Field);
  EXPECT_EQ(where.row, 7);

  // -5/5 and 0/1 are accepted, but 0/1 is not a winning row.
  t.g.FieldPayoff.Set(7, {-5, -1, 5});
  for (int row : {1, 2, 3, 4, 16, 17, 18, 19, 20, 21}) t.g.FieldPayoff.Set(row, {0, -1, 1});
  t.g.FieldPayoff.Set(2, {1, -1, 1});
  EXPECT_TRUE(ValidatePayoffs(t.g));
  t.g.FieldPayoff.Set(2, {0, -1, 1});
  EXPECT_FALSE(ValidatePayoffs(t.g));
  EXPECT_EQ(t.Last(),
            (RecordedMessage{"Payoff error on Field", "At least one of the Field payoffs must be postiive."}));
}
