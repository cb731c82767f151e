// Every bet 1..83 against all 36 dice pairs and every point, through the
// whole roll, checked against an oracle written straight from the rules of
// craps and the payoff tables rather than from the engine's own tables.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>
#include <string>

#include "engine/rules.h"
#include "engine/table_for_test.h"

namespace {

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

struct Variation {
  const char* name;
  int barNumber = 12;
  bool changedPayoffs = false;
  int stake = 20;         // 20 pays the split bets whole at the default ratios
  double chip = 1;        // the smallest check
  int vigPercent = 0;     // Buy and Lay alike
  bool chargeAll = true;  // vig up front
  int roundVig = 0;       // 0 normally, 1 down, 2 up
  bool putBets = false;
};

// Whole checks, toward minus infinity.
double FloorToChip(double amount, double chip) { return std::floor(amount / chip + 1e-9) * chip; }

// The vig of a Buy or Lay of the stake: a percentage of the bet for a Buy and
// of its win for a Lay, rounded in checks, never below one check once charged.
double OracleVig(const Game& g, const Variation& v, int id) {
  if (v.vigPercent == 0 || !(bet::IsBuy(id) || bet::IsLay(id))) return 0;
  const double base = bet::IsLay(id) ? v.stake * Ratio(g.Payoff[id]) : v.stake;
  const double q = base * v.vigPercent / 100 / v.chip;
  const double whole = std::floor(q + 1e-9);
  double checks = whole;
  if (v.roundVig == 0 && q - whole > 0.5 + 1e-9) checks = whole + 1;
  if (v.roundVig == 2 && q - whole > 1e-9) checks = whole + 1;
  return std::max(checks, 1.0) * v.chip;
}

double ExpectedNet(const Game& g, const Variation& v, int id, const Decision& d) {
  const double vig = OracleVig(g, v, id);
  if (d.kind == Decision::None) return 0;
  if (d.kind == Decision::Lose) return FloorToChip(-v.stake - (v.chargeAll ? vig : 0), v.chip);
  if (d.row < 0) return FloorToChip(v.stake * Ratio(g.FieldPayoff[-d.row]), v.chip);
  // A split bet wins one part by that number's row and loses the others.
  const int parts = id == bet::kCandE ? 2 : id == bet::kHorn ? 4 : id == bet::kWorld ? 5 : 1;
  const double net = Ratio(g.Payoff[d.row]) * v.stake / parts - v.stake * (parts - 1.0) / parts;
  return FloorToChip(net - vig, v.chip);  // the odd cents go to the house
}

void PrintTo(const Variation& v, std::ostream* os) { *os << v.name; }

class SettleMatrix : public ::testing::TestWithParam<Variation> {};

// Scrambles the payoff table: other ratios, some in the "for" form, so that a
// bet read through the wrong row shows up.
void ChangePayoffs(Game& g) {
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    g.Payoff.Edit()[id].Win = 2 + id % 7;
    g.Payoff.Edit()[id].Per = 1 + id % 3;
    g.Payoff.Edit()[id].Form = id % 2 == 0 ? 0 : -1;
  }
  for (int row = 1; row <= 21; ++row) g.FieldPayoff.Set(row, {(row * 5) % 4 - 1, -1, 1 + row % 2});
}

TEST_P(SettleMatrix, EveryBetOnEveryPairAndPoint) {
  const Variation v = GetParam();
  int checked = 0;
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    for (int point : kPoints) {
      if ((id == bet::kPassOdds || id == bet::kDontPassOdds) && point == 0) continue;
      for (int a = 1; a <= 6; ++a) {
        for (int b = 1; b <= 6; ++b) {
          TestTable t;
          Game& g = t.g;
          g.BuyVigRate = g.LayVigRate = Currency::FromRaw(v.vigPercent * 100);
          g.ChargeAllBuy = g.ChargeAllLay = v.chargeAll;
          g.RoundBuyVig = g.RoundLayVig = v.roundVig;
          g.BetAmount.Set(bet::kFirstChip, Currency::FromDouble(v.chip));
          g.AllowPutBets = v.putBets;
          g.BarNumber = v.barNumber;
          if (v.changedPayoffs) ChangePayoffs(g);
          t.SetPoint(point);
          // The bet stands as it would, working, with its vig, past the
          // placement rules: settlement is under test here.
          t.Stand(id, v.stake);
          RefigureVigs(g);
          const Currency before = g.Bankroll();
          const Currency expected = Currency::FromDouble(ExpectedNet(g, v, id, Oracle(id, a, b, point, v.barNumber)));
          t.Roll(a, b);
          ASSERT_EQ(g.Bankroll() - before, expected)
              << v.name << ": " << g.BetName[id] << " dice " << a << "-" << b << " point " << point;
          ++checked;
        }
      }
    }
  }
  EXPECT_EQ(checked, 83 * 7 * 36 - 2 * 36);
}

Variation Named(const char* name) {
  Variation v;
  v.name = name;
  return v;
}

std::vector<Variation> Variations() {
  std::vector<Variation> list(7);
  list[0] = Named("default_payoffs_bar_12");
  list[1] = Named("default_payoffs_bar_2");
  list[1].barNumber = 2;
  list[2] = Named("changed_payoffs");
  list[2].changedPayoffs = true;
  list[3] = Named("vig_up_front_rounded_normally");
  list[3].stake = 30, list[3].vigPercent = 5;
  list[4] = Named("vig_on_wins_rounded_up");
  list[4].stake = 30, list[4].vigPercent = 5, list[4].chargeAll = false, list[4].roundVig = 2;
  list[5] = Named("vig_rounded_down_check_5_put_bets");
  list[5].stake = 30, list[5].vigPercent = 5, list[5].roundVig = 1, list[5].chip = 5, list[5].putBets = true;
  list[6] = Named("changed_payoffs_quarter_check_bar_2");
  list[6].changedPayoffs = true, list[6].chip = 0.25, list[6].barNumber = 2, list[6].stake = 7;
  return list;
}

INSTANTIATE_TEST_SUITE_P(Tables, SettleMatrix, ::testing::ValuesIn(Variations()),
                         [](const auto& variation) { return std::string(variation.param.name); });

}  // namespace
