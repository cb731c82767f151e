#include "stats/roll_nets.h"

#include <algorithm>

#include "engine/catalogue.h"
#include "engine/game.h"

namespace {

// A unit of bet plus vig holds s = 1 / (1 + v) of bet: the win is figured on
// that, and the vig, 1 - s, is gone whatever happens.
double UpFront(double win, double v) {
  const double s = 1 / (1 + v);
  return win * s - (1 - s);
}

// The number a bet of a group of six stands on.
int NumberOf(int betId) { return bet::NumberAt((betId - 1) % 6); }

// The number wins, 7 loses; or the other way round.
double Race(int total, int number, bool numberWins, double win) {
  if (total == number) return numberWins ? win : -1;
  if (total == 7) return numberWins ? -1 : win;
  return 0;
}

// The single-number record that pays the winning part of a split bet, 0 when
// no part wins.
int SplitWinner(int betId, int total) {
  const bool crap = total == 2 || total == 3 || total == 12;
  if (betId == bet::kCandE) return total == 11 ? bet::kEleven : crap ? bet::kCraps : 0;
  if (total == 7) return betId == bet::kWorld ? bet::kSeven : 0;
  switch (total) {
    case 2: return bet::kTwo;
    case 3: return bet::kThree;
    case 11: return bet::kEleven;
    case 12: return bet::kTwelve;
    default: return 0;
  }
}

int SplitParts(int betId) { return betId == bet::kCandE ? 2 : betId == bet::kHorn ? 4 : 5; }

// The one total a single-number proposition wins on; Craps wins on three.
bool PropositionWins(int betId, int total) {
  switch (betId) {
    case bet::kTwo: return total == 2;
    case bet::kThree: return total == 3;
    case bet::kSeven: return total == 7;
    case bet::kEleven: return total == 11;
    case bet::kTwelve: return total == 12;
    default: return total == 2 || total == 3 || total == 12;  // Craps
  }
}

double OneRollNet(const Game& g, int betId, int die1, int die2) {
  const int total = die1 + die2;
  const double win = RatioOf(g.Payoff[betId]);
  if (betId == bet::kField) return RatioOf(g.FieldPayoff[bet::FieldRow(die1, die2)]);
  if (betId == bet::kCandE || betId == bet::kHorn || betId == bet::kWorld) {
    const int winner = SplitWinner(betId, total);
    if (winner == 0) return -1;
    const double parts = SplitParts(betId);
    return RatioOf(g.Payoff[winner]) / parts - (parts - 1) / parts;
  }
  if (betId == bet::kOver7) return total > 7 ? win : -1;
  if (betId == bet::kUnder7) return total < 7 ? win : -1;
  if (bet::IsHop(betId)) {
    const bet::HopPair hop = bet::HopFaces(betId);
    const bool hit = (die1 == hop.low && die2 == hop.high) || (die1 == hop.high && die2 == hop.low);
    return hit ? win : -1;
  }
  return PropositionWins(betId, total) ? win : -1;
}

}  // namespace

double RatioOf(const PayoffRecord& p) { return p.Per.raw == 0 ? 0 : p.Win.ToDouble() / p.Per.ToDouble(); }

double LayWinNet(const Game& g, int layId) {
  const double win = RatioOf(g.Payoff[layId]);
  if (win <= 0) return win;
  const double v = std::max(0.0, g.LayVigRate.ToDouble() * win);
  return g.ChargeAllLay ? UpFront(win, v) : win - v;
}

double BuyWinNet(const Game& g, int buyId) {
  const double win = RatioOf(g.Payoff[buyId]);
  const double v = std::max(0.0, g.BuyVigRate.ToDouble());
  if (g.ChargeAllBuy) return UpFront(win, v);
  return win > 0 ? win - v : win;
}

bool SettlesRollByRoll(const Game& g, int betId) {
  switch (betId) {
    case bet::kPassLine:
    case bet::kCome:
    case bet::kDontPass:
    case bet::kDontCome: return false;
    case bet::kPassOdds:
    case bet::kDontPassOdds: return bet::IsPointNumber(g.Point);
    default: return bet::IsTableBet(betId);
  }
}

double RollNet(const Game& g, int betId, int die1, int die2) {
  const int total = die1 + die2;
  if (bet::IsLay(betId)) return Race(total, NumberOf(betId), false, LayWinNet(g, betId));
  if (bet::IsDontComeNumber(betId) || bet::IsDontComeOdds(betId))
    return Race(total, NumberOf(betId), false, RatioOf(g.Payoff[betId]));
  if (bet::IsComeNumber(betId) || bet::IsComeOdds(betId) || bet::IsPlace(betId))
    return Race(total, NumberOf(betId), true, RatioOf(g.Payoff[betId]));
  if (bet::IsBuy(betId)) return Race(total, NumberOf(betId), true, BuyWinNet(g, betId));
  if ((betId == bet::kPassOdds || betId == bet::kDontPassOdds) && !bet::IsPointNumber(g.Point)) return 0;
  if (betId == bet::kPassOdds) return Race(total, g.Point, true, RatioOf(g.Payoff[bet::ComeOdds(g.Point)]));
  if (betId == bet::kDontPassOdds)
    return Race(total, g.Point, false, RatioOf(g.Payoff[bet::DontComeOdds(g.Point)]));
  if (betId == bet::kBig6 || betId == bet::kBig8)
    return Race(total, betId == bet::kBig6 ? 6 : 8, true, RatioOf(g.Payoff[betId]));
  if (bet::IsHardWay(betId)) {
    const int number = 4 + 2 * (betId - bet::kHard4);
    if (total == number) return die1 == die2 ? RatioOf(g.Payoff[betId]) : -1;
    return total == 7 ? -1 : 0;
  }
  return OneRollNet(g, betId, die1, die2);
}

OutcomeTable RollOutcomes(const Game& g, const PairProbabilities& p, int betId) {
  OutcomeTable t = EmptyOutcomeTable(p);
  for (int total = 2; total <= 12; ++total)
    for (int column = 1; column <= Combinations(total); ++column)
      t.at(total, column).Net = RollNet(g, betId, Die1Of(total, column), Die2Of(total, column));
  return t;
}
