#include "engine/settle.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/test_support.h"

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

// A table with default payoffs, $1,000 in the bankroll and a recording screen.
struct Table {
  Game g;
  RecordingFrontEnd ui;

  Table() {
    FillDefaults(g);
    g.Ui = &ui;
    g.Bankroll() = 1000;
  }
  // A bet that stood when the dice went out.
  void Bet(int id, Currency amount) {
    g.BetAmount[id] = amount;
    g.TotalOnTable += amount;
    g.BetAtRollStart[id] = amount;
    if (id < static_cast<int>(g.BetCommitted.size())) g.BetCommitted[id] = amount;
    g.BetStatus[id] = 1;
  }
  void Dice(int die1, int die2, int pointBefore) {
    g.Die1 = die1;
    g.Die2 = die2;
    g.DiceTotal = die1 + die2;
    g.PointBeforeRoll = pointBefore;
    g.Point = pointBefore;
  }
  Currency Settle(int outcome, int id) {
    Currency before = g.Bankroll();
    SettleBet(g, outcome, id);
    return g.Bankroll() - before;
  }
};

struct Case {
  int id, outcome, die1, die2, point, amount, net;
};

std::vector<Case> DefaultCases() {
  std::vector<Case> cases = {
      // Lay, with no vig stored on the bet.
      {1, 1, 3, 4, 6, 40, 20}, {2, 1, 3, 4, 6, 30, 20}, {3, 1, 3, 4, 6, 30, 25}, {4, 1, 3, 4, 6, 30, 25},
      {5, 1, 3, 4, 6, 30, 20}, {6, 1, 3, 4, 6, 40, 20}, {1, -1, 2, 2, 6, 40, -40}, {5, -1, 4, 5, 6, 30, -30},
      // Don't Come numbers and their odds.
      {7, 1, 3, 4, 6, 10, 10}, {8, 1, 3, 4, 6, 10, 10}, {9, 1, 3, 4, 6, 10, 10}, {10, 1, 3, 4, 6, 10, 10},
      {11, 1, 3, 4, 6, 10, 10}, {12, 1, 3, 4, 6, 10, 10}, {7, -1, 1, 3, 6, 10, -10},
      {13, 2, 3, 4, 6, 40, 20}, {14, 2, 3, 4, 6, 30, 20}, {15, 2, 3, 4, 6, 30, 25}, {16, 2, 3, 4, 6, 30, 25},
      {17, 2, 3, 4, 6, 30, 20}, {18, 2, 3, 4, 6, 40, 20}, {15, -2, 3, 3, 8, 30, -30},
      // Come numbers and their odds.
      {19, 1, 1, 3, 6, 10, 10}, {20, 1, 1, 4, 6, 10, 10}, {21, 1, 2, 4, 5, 10, 10}, {22, 1, 2, 6, 5, 10, 10},
      {23, 1, 3, 6, 5, 10, 10}, {24, 1, 4, 6, 5, 10, 10}, {21, -1, 3, 4, 6, 10, -10},
      {25, 2, 1, 3, 6, 10, 20}, {26, 2, 1, 4, 6, 10, 15}, {27, 2, 2, 4, 5, 10, 12}, {28, 2, 2, 6, 5, 10, 12},
      {29, 2, 3, 6, 5, 10, 15}, {30, 2, 4, 6, 5, 10, 20}, {27, -2, 3, 4, 6, 10, -10},
      // Place and Buy (no vig stored).
      {31, 1, 1, 3, 6, 5, 9}, {32, 1, 1, 4, 6, 5, 7}, {33, 1, 2, 4, 5, 6, 7}, {34, 1, 2, 6, 5, 6, 7},
      {35, 1, 3, 6, 5, 5, 7}, {36, 1, 4, 6, 5, 5, 9}, {33, -1, 3, 4, 5, 6, -6},
      {37, 1, 1, 3, 6, 20, 40}, {38, 1, 1, 4, 6, 20, 30}, {39, 1, 2, 4, 5, 20, 24}, {40, 1, 2, 6, 5, 20, 24},
      {41, 1, 3, 6, 5, 20, 30}, {42, 1, 4, 6, 5, 20, 40}, {40, -1, 3, 4, 6, 20, -20},
      // Line bets win by the Come and Don't Come rows, odds by the point's.
      {43, 1, 3, 4, 0, 10, 10}, {43, 1, 5, 6, 0, 10, 10}, {43, 1, 2, 4, 6, 10, 10}, {43, -1, 1, 1, 0, 10, -10},
      {43, -1, 3, 4, 6, 10, -10}, {44, 2, 2, 4, 6, 10, 12}, {44, 2, 1, 3, 4, 10, 20}, {44, 2, 4, 5, 9, 10, 15},
      {44, -2, 3, 4, 9, 10, -10}, {45, 1, 3, 4, 6, 10, 10}, {45, 1, 5, 6, 6, 10, 10}, {45, -1, 1, 2, 6, 10, -10},
      {46, 1, 1, 2, 0, 10, 10}, {46, 1, 3, 4, 4, 10, 10}, {46, -1, 3, 4, 0, 10, -10}, {46, -1, 2, 2, 4, 10, -10},
      {47, 2, 3, 4, 4, 40, 20}, {47, 2, 3, 4, 6, 30, 25}, {47, 2, 3, 4, 9, 30, 20}, {47, -2, 2, 2, 4, 40, -40},
      {48, 1, 1, 2, 6, 10, 10}, {48, -1, 3, 4, 6, 10, -10},
      // Field: one call, the pair decides.
      {49, 1, 1, 1, 0, 5, 10}, {49, 1, 6, 6, 0, 5, 10}, {49, 1, 1, 2, 0, 5, 5}, {49, 1, 2, 2, 0, 5, 5},
      {49, 1, 3, 6, 0, 5, 5}, {49, 1, 4, 6, 0, 5, 5}, {49, 1, 5, 6, 0, 5, 5}, {49, 1, 1, 4, 0, 5, -5},
      {49, 1, 3, 4, 0, 5, -5}, {49, 1, 4, 4, 0, 5, -5}, {49, 1, 3, 3, 0, 5, -5},
      // Big, hard ways, propositions.
      {50, 1, 3, 3, 6, 10, 10}, {50, -1, 3, 4, 6, 10, -10}, {51, 1, 2, 6, 6, 10, 10}, {51, -1, 3, 4, 6, 10, -10},
      {52, 1, 2, 2, 6, 5, 35}, {52, -1, 1, 3, 6, 5, -5}, {53, 1, 3, 3, 5, 5, 45}, {54, 1, 4, 4, 5, 5, 45},
      {55, 1, 5, 5, 5, 5, 35}, {55, -1, 3, 4, 5, 5, -5},
      {56, 1, 1, 1, 0, 5, 150}, {57, 1, 1, 2, 0, 5, 75}, {58, 1, 3, 4, 0, 5, 20}, {59, 1, 5, 6, 0, 5, 75},
      {60, 1, 6, 6, 0, 5, 150}, {61, 1, 1, 2, 0, 5, 35}, {61, 1, 6, 6, 0, 5, 35}, {58, -1, 1, 1, 0, 5, -5},
      {61, -1, 3, 4, 0, 5, -5},
      // Split bets: the winning part by its own row, the others lost.
      {62, 1, 5, 6, 0, 4, 28}, {62, 1, 1, 1, 0, 4, 12}, {62, 1, 1, 2, 0, 4, 12}, {62, -1, 3, 4, 0, 4, -4},
      {63, 1, 1, 1, 0, 4, 27}, {63, 1, 1, 2, 0, 4, 12}, {63, 1, 5, 6, 0, 4, 12}, {63, 1, 6, 6, 0, 4, 27},
      {63, -1, 3, 4, 0, 4, -4}, {64, 1, 1, 1, 0, 5, 26}, {64, 1, 1, 2, 0, 5, 11}, {64, 1, 3, 4, 0, 5, 0},
      {64, 1, 5, 6, 0, 5, 11}, {64, 1, 6, 6, 0, 5, 26}, {64, -1, 2, 2, 0, 5, -5},
      {65, 1, 4, 4, 0, 10, 10}, {65, -1, 3, 4, 0, 10, -10}, {66, 1, 3, 3, 0, 10, 10}, {66, -1, 3, 4, 0, 10, -10},
  };
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id) {
    bet::HopPair faces = bet::HopFaces(id);
    cases.push_back({id, 1, faces.high, faces.low, 0, 1, faces.low == faces.high ? 30 : 15});
    cases.push_back({id, -1, 3, 4, 0, 1, -1});
  }
  return cases;
}

}  // namespace

TEST(SettleBet, EveryBetUnderDefaultPayoffs) {
  std::set<int> covered;
  for (const Case& c : DefaultCases()) {
    Table t;
    t.Bet(c.id, c.amount);
    t.Dice(c.die1, c.die2, c.point);
    SCOPED_TRACE("bet " + std::to_string(c.id) + " outcome " + std::to_string(c.outcome) + " dice " +
                 std::to_string(c.die1) + "-" + std::to_string(c.die2));
    EXPECT_EQ(t.Settle(c.outcome, c.id), Currency(c.net));
    EXPECT_EQ(t.g.SettlingBetId, c.id);
    covered.insert(c.id);
  }
  EXPECT_EQ(covered.size(), 83u);
}

TEST(SettleBet, ChangedPayoffsPayByTheirRecord) {
  Table t;
  t.g.Payoff[bet::Place(6)].Form = 0;  // 13 for 6 is 7 to 6 shown otherwise
  t.Bet(bet::Place(6), 12);
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(14));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].rows[1], (std::pair<std::string, std::string>{"Payoff at 13 for 6:", "$14"}));

  // The Pass Line wins by the Come row of the point, whatever its own says.
  Table u;
  u.g.Payoff[bet::Come(6)] = {3, -1, 2};
  u.g.Payoff[bet::kPassLine] = {5, -1, 1};
  u.Bet(bet::kPassLine, 10);
  u.Dice(3, 3, 6);
  EXPECT_EQ(u.Settle(1, bet::kPassLine), Currency(15));
}

TEST(SettleBet, RoundsDownToTheSmallestCheck) {
  Table t;
  t.Bet(bet::Place(6), 3);
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(3));
  EXPECT_EQ(t.g.RawPayoff, Currency::FromRaw(35000));
  EXPECT_EQ(t.g.NetPayoff, Currency(3));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  const SettleNotice& n = t.ui.notices[0];
  EXPECT_EQ(n.title, "* * * Winner * * *");
  EXPECT_EQ(n.rows, (Rows{{"Place 6 bet:", "$3"}, {"Payoff at 7 to 6:", "$3.50"}, {"Net payoff (rounded): ", "$3"}}));
  EXPECT_EQ(n.buttons, (std::vector<std::string>{"&Take Bet and Winnings", "&Same Bet - Take Winnings",
                                                 "Press 1 &Unit - Add $6 to Bet",
                                                 "Press - Add Winnings to &Double Bet",
                                                 "Parlay - Add &All Winnings to Bet", "Sa&me Bet:", "&Bet:"}));
  EXPECT_EQ(t.g.BetStreak[1][bet::Place(6)], 1);

  // A loser's odd cents would grow: a half-unit loss costs a whole check.
  Table u;
  u.g.FieldPayoff[5] = {-1, -1, 2};
  u.Bet(bet::kField, 3);
  u.Dice(1, 4, 0);
  EXPECT_EQ(u.Settle(1, bet::kField), Currency(-2));
  EXPECT_EQ(u.g.RawPayoff, Currency::FromRaw(-15000));
}

TEST(SettleBet, WinThatRoundsToNothingIsAPush) {
  Table t;
  t.g.BetStreak[1][bet::Place(6)] = -3;
  t.Bet(bet::Place(6), Currency::FromRaw(5000));
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(0));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].title, "Push");
  EXPECT_EQ(t.g.BetStreak[1][bet::Place(6)], -3);

  // A payoff of zero is no decision at all: no notice, no handling.
  Table u;
  u.g.FieldPayoff[9] = {0, -1, 1};
  u.Bet(bet::kField, 5);
  u.Dice(3, 3, 0);
  EXPECT_EQ(u.Settle(1, bet::kField), Currency(0));
  EXPECT_TRUE(u.ui.notices.empty());
  EXPECT_EQ(u.g.BetAmount[bet::kField], Currency(5));
  EXPECT_EQ(u.g.BetStreak[1][bet::kField], 0);
}

TEST(SettleBet, KeepsStreaks) {
  Table t;
  t.g.WonBetAction = 2;
  int id = bet::Place(8);
  t.g.BetStreak[1][id] = -2;
  t.Bet(id, 6);
  t.Dice(4, 4, 5);
  t.Settle(1, id);
  EXPECT_EQ(t.g.BetStreak[1][id], 1);
  t.Settle(1, id);
  EXPECT_EQ(t.g.BetStreak[1][id], 2);
  t.g.HandleLosingBets = 3;
  t.Dice(3, 4, 5);
  t.Settle(-1, id);
  EXPECT_EQ(t.g.BetStreak[1][id], -1);
  t.Settle(-1, id);
  EXPECT_EQ(t.g.BetStreak[1][id], -2);
  EXPECT_EQ(t.g.BetAmount[id], Currency(6));
}

TEST(SettleBet, OffBetsStandAndOffOddsComeBack) {
  Table t;
  t.Bet(bet::Place(6), 6);
  t.g.BetStatus[bet::Place(6)] = 0;
  t.Dice(3, 4, 0);
  EXPECT_EQ(t.Settle(-1, bet::Place(6)), Currency(0));
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(0));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(6));
  EXPECT_EQ(t.g.BetStatus[bet::Place(6)], 0);
  EXPECT_TRUE(t.ui.notices.empty());

  // Come 4 odds that are off, on a 7: returned, no money moves, spot works.
  Table u;
  u.Bet(bet::ComeOdds(4), 10);
  u.g.BetStatus[bet::ComeOdds(4)] = 0;
  u.Dice(3, 4, 0);
  EXPECT_EQ(u.Settle(-2, bet::ComeOdds(4)), Currency(0));
  EXPECT_EQ(u.g.NetPayoff, Currency(0));
  ASSERT_EQ(u.ui.notices.size(), 1u);
  EXPECT_EQ(u.ui.notices[0].title, "Odds Bet Returned");
  EXPECT_EQ(u.ui.notices[0].rows, (Rows{{"Come 4 Odds bet:", "$10"}, {"wasn't working!", ""}}));
  EXPECT_EQ(u.ui.notices[0].buttons, std::vector<std::string>{"&Take Bet and Winnings"});
  EXPECT_EQ(u.g.BetAmount[bet::ComeOdds(4)], Currency(0));
  EXPECT_EQ(u.g.TotalOnTable, Currency(0));
  EXPECT_EQ(u.g.BetStatus[bet::ComeOdds(4)], 1);

  // With Put bets and the parent still up, the odds may stay: the press
  // unit is figured on the odds' own Per.
  Table w;
  w.g.AllowPutBets = true;
  w.Bet(bet::Come(6), 10);
  w.Bet(bet::ComeOdds(6), 10);
  w.g.BetStatus[bet::ComeOdds(6)] = -1;
  w.Dice(3, 4, 0);
  w.Settle(-2, bet::ComeOdds(6));
  EXPECT_FALSE(w.g.BetComesDown);
  EXPECT_EQ(w.g.UnitAmount, Currency(5));
  ASSERT_EQ(w.ui.notices.size(), 1u);
  EXPECT_EQ(w.ui.notices[0].buttons.size(), 7u);
  EXPECT_EQ(w.ui.notices[0].buttons[2], "Press 1 &Unit - Add $5 to Bet");
  EXPECT_EQ(w.g.BetAmount[bet::ComeOdds(6)], Currency(10));
  EXPECT_EQ(w.g.BetStatus[bet::ComeOdds(6)], 1);
}

TEST(SettleBet, EmptySpotMovesNoMoney) {
  Table t;
  t.g.BetStatus[bet::Place(6)] = 1;
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(0));
  EXPECT_EQ(t.g.BetStreak[1][bet::Place(6)], 0);
  EXPECT_TRUE(t.ui.notices.empty());
}

TEST(SettleBet, BuyAndLayVig) {
  // Buy 4 of $20 at 5%, charged up front: a loss costs the bet and the vig.
  {
    Table t;
    t.Bet(bet::Buy(4), 20);
    t.g.BuyVigOnBet[0] = 1;
    t.g.TotalOnTable += 1;
    t.Dice(3, 4, 6);
    EXPECT_EQ(t.Settle(-1, bet::Buy(4)), Currency(-21));
    EXPECT_EQ(t.g.BetAmount[bet::Buy(4)], Currency(0));
    EXPECT_EQ(t.g.BuyVigOnBet[0], Currency(0));
    EXPECT_EQ(t.g.TotalOnTable, Currency(0));
  }
  // Charged on a win only: the loss is the bet.
  {
    Table t;
    t.g.ChargeAllBuy = false;
    t.Bet(bet::Buy(4), 20);
    t.g.BuyVigOnBet[0] = 1;
    t.Dice(3, 4, 6);
    EXPECT_EQ(t.Settle(-1, bet::Buy(4)), Currency(-20));
    EXPECT_EQ(t.g.TotalOnTable, Currency(0));
  }
  // A win pays 2 to 1 less the vig, either way.
  for (bool upFront : {true, false}) {
    Table t;
    t.g.ChargeAllBuy = upFront;
    t.g.WonBetAction = 1;
    t.Bet(bet::Buy(4), 20);
    t.g.BuyVigOnBet[0] = 1;
    if (upFront) t.g.TotalOnTable += 1;
    t.Dice(1, 3, 6);
    EXPECT_EQ(t.Settle(1, bet::Buy(4)), Currency(39));
    EXPECT_EQ(t.g.TotalOnTable, Currency(0));
  }
  // The won notice shows the payoff before the vig and the vig apart.
  {
    Table t;
    t.Bet(bet::Lay(4), 40);
    t.g.LayVigOnBet[0] = 1;
    t.g.TotalOnTable += 1;
    t.Dice(3, 4, 6);
    EXPECT_EQ(t.Settle(1, bet::Lay(4)), Currency(19));
    ASSERT_EQ(t.ui.notices.size(), 1u);
    EXPECT_EQ(t.ui.notices[0].rows, (Rows{{"Lay 4 bet:", "$40"},
                                          {"Payoff at 1 to 2:", "$20"},
                                          {"-5% vig:", "$-1"},
                                          {"Net payoff: ", "$19"}}));
  }
  // The phantom unit pays the rate: on the unit for a Buy, on what the Lay
  // would win for a Lay.
  {
    Table t;
    FigurePayoff(t.g, 0, bet::Buy(4), 1, 1);
    EXPECT_EQ(t.g.RawPayoff, Currency::FromRaw(19500));
    FigurePayoff(t.g, 0, bet::Lay(4), 1, 1);
    EXPECT_EQ(t.g.RawPayoff, Currency::FromRaw(4750));
    EXPECT_EQ(t.g.NetPayoff, Currency(0));
    FigurePayoff(t.g, 0, bet::Lay(4), -1, 1);
    EXPECT_EQ(t.g.RawPayoff, Currency::FromRaw(-10250));
    t.g.ChargeAllLay = false;
    FigurePayoff(t.g, 0, bet::Lay(4), -1, 1);
    EXPECT_EQ(t.g.RawPayoff, Currency(-1));
  }
}

TEST(SettleBet, SplitBetNotices) {
  Table t;
  t.Bet(bet::kHorn, 4);
  t.Dice(1, 1, 0);
  EXPECT_EQ(t.Settle(1, bet::kHorn), Currency(27));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].rows, (Rows{{"1/4 of bet:", "$1"},
                                        {"Payoff at 30 to 1:", "$30"},
                                        {"Less 3/4 of bet:", "$-3"},
                                        {"Net payoff: ", "$27"}}));

  Table u;
  u.Bet(bet::kCandE, 4);
  u.Dice(5, 6, 0);
  u.Settle(1, bet::kCandE);
  ASSERT_EQ(u.ui.notices.size(), 1u);
  EXPECT_EQ(u.ui.notices[0].rows, (Rows{{"1/2 of bet:", "$2"},
                                        {"Payoff at 15 to 1:", "$30"},
                                        {"Less 1/2 of bet:", "$-2"},
                                        {"Net payoff: ", "$28"}}));

  // World on a 7 wins its part and loses the rest: a push.
  Table w;
  w.Bet(bet::kWorld, 5);
  w.Dice(3, 4, 0);
  EXPECT_EQ(w.Settle(1, bet::kWorld), Currency(0));
  ASSERT_EQ(w.ui.notices.size(), 1u);
  EXPECT_EQ(w.ui.notices[0].title, "Push");
  EXPECT_EQ(w.ui.notices[0].rows[2], (std::pair<std::string, std::string>{"Less 4/5 of bet:", "$-4"}));
}

TEST(SettleBet, ContractAndComingDown) {
  Table t;
  t.Bet(bet::DontCome(4), 10);
  t.Dice(3, 4, 6);
  t.Settle(1, bet::DontCome(4));
  EXPECT_EQ(t.g.BetCommitted[bet::DontCome(4)], Currency(0));
  EXPECT_TRUE(t.g.BetComesDown);
  EXPECT_EQ(t.g.BetAmount[bet::DontCome(4)], Currency(0));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].buttons.size(), 1u);

  // A flat line bet and a Place bet stay up; a Come number stays only with Put bets.
  Table u;
  u.Bet(bet::kPassLine, 10);
  u.Bet(bet::Come(5), 10);
  u.Dice(2, 3, 5);
  u.Settle(1, bet::kPassLine);
  EXPECT_FALSE(u.g.BetComesDown);
  EXPECT_EQ(u.g.BetAmount[bet::kPassLine], Currency(10));
  EXPECT_EQ(u.g.BetCommitted[bet::kPassLine], Currency(0));
  u.Settle(1, bet::Come(5));
  EXPECT_TRUE(u.g.BetComesDown);
  u.g.AllowPutBets = true;
  u.Bet(bet::Come(5), 10);
  u.Settle(1, bet::Come(5));
  EXPECT_FALSE(u.g.BetComesDown);

  // Come box on a 7 comes down; on an 11 it stays.
  Table w;
  w.Bet(bet::kCome, 10);
  w.Dice(5, 6, 6);
  w.Settle(1, bet::kCome);
  EXPECT_FALSE(w.g.BetComesDown);
  w.Dice(3, 4, 6);
  w.Settle(1, bet::kCome);
  EXPECT_TRUE(w.g.BetComesDown);
}

TEST(SettleBet, NoNoticeUnderHyperDriveOrAutoPlay) {
  Table t;
  t.g.HyperDriveOn = true;
  t.Bet(bet::Place(6), 6);
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(7));
  t.g.HyperDriveOn = false;
  t.g.WonBetAction = 2;
  EXPECT_EQ(t.Settle(1, bet::Place(6)), Currency(7));
  EXPECT_TRUE(t.ui.notices.empty());
}

TEST(FigureUnit, LargestCheckThatDividesTheBet) {
  Table t;
  auto unit = [&](Currency amount, int per) {
    t.g.BetAmount[bet::Place(6)] = amount;
    t.g.Payoff[0].Per = per;
    FigureUnit(t.g, bet::Place(6));
    return t.g.UnitAmount;
  };
  EXPECT_EQ(unit(30, 6), Currency(30));
  EXPECT_EQ(unit(12, 6), Currency(6));
  EXPECT_EQ(unit(25, 1), Currency(25));
  EXPECT_EQ(unit(1000, 1), Currency(500));
  EXPECT_EQ(unit(7, 1), Currency(1));
  EXPECT_EQ(unit(7, 6), Currency(6));  // nothing divides: the smallest check stands
  EXPECT_EQ(unit(3, 6), Currency(6));
}
