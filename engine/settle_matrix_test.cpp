// Every bet 1..83 against all 36 dice pairs and every point, through the
// whole roll, checked against an oracle written straight from the rules of
// craps and the payoff tables rather than from the engine's own tables.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "engine/test_support.h"

namespace {

constexpr int kStake = 20;  // whole payoffs on the split bets at the default ratios
constexpr int kPoints[] = {0, 4, 5, 6, 8, 9, 10};

struct Decision {
  enum Kind { None, Win, Lose } kind = None;
  int row = 0;  // payoff row that pays a win
};

int GroupIndex(int n) { return n < 7 ? n - 4 : n - 5; }

// The Field row of a pair, as the payoff grid labels it.
int OracleFieldRow(int a, int b) {
  static const int rows[7][7] = {
      {0, 0, 0, 0, 0, 0, 0},       {0, 1, 2, 3, 5, 7, 10},      {0, 2, 4, 6, 8, 11, 13},
      {0, 3, 6, 9, 12, 14, 16},    {0, 5, 8, 12, 15, 17, 18},   {0, 7, 11, 14, 17, 19, 20},
      {0, 10, 13, 16, 18, 20, 21}};
  return rows[a][b];
}

Decision Win(int row) { return {Decision::Win, row}; }
Decision Lose() { return {Decision::Lose, 0}; }
Decision NoDecision() { return {}; }

// What a bet does on dice a, b with `point` on before the roll.
Decision Oracle(int id, int a, int b, int point, int barNumber) {
  const int t = a + b;
  const bool craps = t == 2 || t == 3 || t == 12;
  const bool barred = t == barNumber || (barNumber != 2 && barNumber != 12 && (t == 2 || t == 12));
  if (id <= 18) return t == 7 ? Win(id) : t == bet::NumberAt((id - 1) % 6) ? Lose() : NoDecision();
  // Come numbers, their odds, Place and Buy: the number wins, 7 loses.
  if (id <= 42) return t == bet::NumberAt((id - 19) % 6) ? Win(id) : t == 7 ? Lose() : NoDecision();
  switch (id) {
    case 43:
      if (point == 0) return t == 7 || t == 11 ? Win(45) : craps ? Lose() : NoDecision();
      return t == point ? Win(19 + GroupIndex(point)) : t == 7 ? Lose() : NoDecision();
    case 44:
      if (point == 0) return NoDecision();
      return t == point ? Win(25 + GroupIndex(point)) : t == 7 ? Lose() : NoDecision();
    case 45: return t == 7 || t == 11 ? Win(45) : craps ? Lose() : NoDecision();
    case 46:
      if (point == 0) return t == 7 || t == 11 ? Lose() : craps && !barred ? Win(48) : NoDecision();
      return t == 7 ? Win(7 + GroupIndex(point)) : t == point ? Lose() : NoDecision();
    case 47:
      if (point == 0) return NoDecision();
      return t == 7 ? Win(13 + GroupIndex(point)) : t == point ? Lose() : NoDecision();
    case 48: return t == 7 || t == 11 ? Lose() : craps && !barred ? Win(48) : NoDecision();
    case 49: return Win(-OracleFieldRow(a, b));  // the Field pays by its own table
    case 50: return t == 6 ? Win(50) : t == 7 ? Lose() : NoDecision();
    case 51: return t == 8 ? Win(51) : t == 7 ? Lose() : NoDecision();
    case 56: return t == 2 ? Win(56) : Lose();
    case 57: return t == 3 ? Win(57) : Lose();
    case 58: return t == 7 ? Win(58) : Lose();
    case 59: return t == 11 ? Win(59) : Lose();
    case 60: return t == 12 ? Win(60) : Lose();
    case 61: return craps ? Win(61) : Lose();
    case 62: return craps ? Win(61) : t == 11 ? Win(59) : Lose();
    case 63: return t == 2 ? Win(56) : t == 3 ? Win(57) : t == 11 ? Win(59) : t == 12 ? Win(60) : Lose();
    case 64:
      return t == 2 ? Win(56) : t == 3 ? Win(57) : t == 7 ? Win(58) : t == 11 ? Win(59) : t == 12 ? Win(60) : Lose();
    case 65: return t > 7 ? Win(65) : Lose();
    case 66: return t < 7 ? Win(66) : Lose();
    default: break;
  }
  if (id >= 52 && id <= 55) {
    const int n = 4 + 2 * (id - 52);
    return t == n && a == b ? Win(id) : t == n || t == 7 ? Lose() : NoDecision();
  }
  const bet::HopPair hop = bet::HopFaces(id);
  return (a == hop.low && b == hop.high) || (a == hop.high && b == hop.low) ? Win(id) : Lose();
}

double Ratio(const PayoffRecord& p) { return p.Win.ToDouble() / p.Per.ToDouble(); }

Currency ExpectedNet(const Game& g, int id, const Decision& d) {
  if (d.kind != Decision::Win) return d.kind == Decision::Lose ? -kStake : 0;
  if (d.row < 0) return static_cast<int>(std::floor(kStake * Ratio(g.FieldPayoff[-d.row]) + 1e-9));
  // A split bet wins one part by that number's row and loses the others.
  const int parts = id == bet::kCandE ? 2 : id == bet::kHorn ? 4 : id == bet::kWorld ? 5 : 1;
  const double net = Ratio(g.Payoff[d.row]) * kStake / parts - kStake * (parts - 1.0) / parts;
  return static_cast<int>(std::floor(net + 1e-9));  // whole chips, the odd cents to the house
}

struct Variation {
  const char* name;
  int barNumber;
  bool changedPayoffs;
};

void PrintTo(const Variation& v, std::ostream* os) { *os << v.name; }

class SettleMatrix : public ::testing::TestWithParam<Variation> {};

// Scrambles the payoff table: other ratios, some in the "for" form, so that a
// bet read through the wrong row shows up.
void ChangePayoffs(Game& g) {
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    g.Payoff[id].Win = 2 + id % 7;
    g.Payoff[id].Per = 1 + id % 3;
    g.Payoff[id].Form = id % 2 == 0 ? 0 : -1;
  }
  for (int row = 1; row <= 21; ++row) g.FieldPayoff[row] = {(row * 5) % 4 - 1, -1, 1 + row % 2};
}

TEST_P(SettleMatrix, EveryBetOnEveryPairAndPoint) {
  const Variation v = GetParam();
  int checked = 0;
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    for (int point : kPoints) {
      if ((id == bet::kPassOdds || id == bet::kDontPassOdds) && point == 0) continue;
      for (int a = 1; a <= 6; ++a) {
        for (int b = 1; b <= 6; ++b) {
          Table t;
          Game& g = t.g;
          g.BuyVigRate = g.LayVigRate = 0;
          g.BarNumber = v.barNumber;
          if (v.changedPayoffs) ChangePayoffs(g);
          t.SetPoint(point);
          // The bet stands as it would, working, past the placement rules:
          // settlement is under test here.
          t.Stand(id, kStake);
          const Currency before = g.Bankroll();
          const Decision d = Oracle(id, a, b, point, v.barNumber);
          const Currency expected = ExpectedNet(g, id, d);
          t.Roll(a, b);
          ASSERT_EQ((g.Bankroll() - before).raw, expected.raw)
              << v.name << ": " << g.BetName[id] << " dice " << a << "-" << b << " point " << point;
          ++checked;
        }
      }
    }
  }
  EXPECT_EQ(checked, 83 * 7 * 36 - 2 * 36);
}

INSTANTIATE_TEST_SUITE_P(Tables, SettleMatrix,
                         ::testing::Values(Variation{"default_payoffs_bar_12", 12, false},
                                           Variation{"default_payoffs_bar_2", 2, false},
                                           Variation{"changed_payoffs_bar_12", 12, true}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
