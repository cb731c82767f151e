#include "engine/settle_order.h"

#include <array>

#include "engine/game.h"
#include "engine/hand_counters.h"
#include "engine/roll.h"
#include "engine/settle.h"

namespace {

constexpr Outcome kWin = Outcome::Win, kLoss = Outcome::Loss;
constexpr Outcome kOddsWin = Outcome::OddsWin, kOddsLoss = Outcome::OddsLoss;

// One throw's settling: every SettleBet call in its order, with the Hop
// winners remembered so that the rest of the Hops lose at the end, and the
// won and lost events noted for the Auto-Roll stops.
class Settler {
 public:
  explicit Settler(Game& g) : g_(g) {}

  void operator()(Outcome outcome, int betId) {
    bool real = g_.BetAmount[betId] > 0 && g_.BetStatus[betId] >= 1;
    if (IsWin(outcome) && bet::IsHop(betId)) hopWon_[betId - bet::kFirstHop] = true;
    SettleBet(g_, outcome, betId);
    if (real && g_.NetPayoff > 0) anyWon_ = true;
    if (real && g_.NetPayoff < 0) anyLost_ = true;
  }
  void Range(Outcome outcome, int first, int last) {
    for (int id = first; id <= last; ++id) (*this)(outcome, id);
  }
  bool HopWon(int hopId) const { return hopWon_[hopId - bet::kFirstHop]; }
  bool AnyWon() const { return anyWon_; }
  bool AnyLost() const { return anyLost_; }

 private:
  Game& g_;
  std::array<bool, 17> hopWon_{};
  bool anyWon_ = false, anyLost_ = false;
};

bool Has(const Game& g, int face) { return g.Die1 == face || g.Die2 == face; }
bool Doubles(const Game& g) { return g.Die1 == g.Die2; }

// The bets of the total, in the order of settling.
void SettleTotal(Game& g, Settler& settle) {
  const int total = g.DiceTotal;
  const bool comeOut = g.PointBeforeRoll == 0;
  switch (total) {
    case 2:
    case 12: {
      // Don't Pass and Don't Come win on the crap that is not barred.
      const bool dontWins = g.BarNumber == (total == 2 ? 12 : 2);
      settle(kLoss, bet::kCome);
      if (comeOut) {
        settle(kLoss, bet::kPassLine);
        if (dontWins) {
          LineLoss(g);
          settle(kWin, bet::kDontPass);
        } else {
          LineBarred(g);
        }
      }
      settle(kWin, total == 2 ? bet::kTwo : bet::kTwelve);
      for (int id : {bet::kCraps, bet::kCandE, bet::kHorn, bet::kWorld}) settle(kWin, id);
      if (dontWins) settle(kWin, bet::kDontCome);
      break;
    }
    case 3:
      settle(kLoss, bet::kCome);
      if (comeOut) {
        LineLoss(g);
        settle(kLoss, bet::kPassLine);
        settle(kWin, bet::kDontPass);
      }
      for (int id : {bet::kThree, bet::kCraps, bet::kCandE, bet::kDontCome, bet::kHorn, bet::kWorld})
        settle(kWin, id);
      break;
    case 7:
      if (comeOut) LineWin(g); else LineLoss(g);
      settle(kLoss, bet::kDontCome);
      settle(kLoss, bet::kBig6);
      settle(kLoss, bet::kBig8);
      settle.Range(kLoss, bet::kHard4, bet::kHard10);
      settle.Range(kLoss, bet::kPlaceBase, bet::kBuyBase + 5);
      for (int id = bet::kComeNumberBase; id < bet::kComeNumberBase + 6; ++id) {
        settle(kLoss, id);
        settle(kOddsLoss, bet::OddsOf(id));
      }
      if (comeOut) {
        settle(kLoss, bet::kDontPass);
        settle(kWin, bet::kPassLine);
      } else {
        settle(kLoss, bet::kPassLine);
        settle(kOddsLoss, bet::kPassOdds);
        settle(kWin, bet::kDontPass);
        settle(kOddsWin, bet::kDontPassOdds);
      }
      settle.Range(kWin, bet::kLayBase, bet::kLayBase + 5);
      for (int id = bet::kDontComeBase; id < bet::kDontComeBase + 6; ++id) {
        settle(kWin, id);
        settle(kOddsWin, bet::OddsOf(id));
      }
      settle(kWin, bet::kCome);
      settle(kWin, bet::kSeven);
      settle(kWin, bet::kWorld);
      if (Has(g, 1)) settle(kWin, bet::HopFor(1, 6));
      if (Has(g, 2)) settle(kWin, bet::HopFor(2, 5));
      if (Has(g, 3)) settle(kWin, bet::HopFor(3, 4));
      break;
    case 11:
      settle(kLoss, bet::kDontCome);
      if (comeOut) {
        LineWin(g);
        settle(kWin, bet::kPassLine);
        settle(kLoss, bet::kDontPass);
      }
      for (int id : {bet::kEleven, bet::kCandE, bet::kCome, bet::kHorn, bet::kWorld}) settle(kWin, id);
      break;
    default: {  // 4, 5, 6, 8, 9, 10
      settle(kLoss, bet::Lay(total));
      settle(kLoss, bet::DontCome(total));
      settle(kOddsLoss, bet::DontComeOdds(total));
      settle(kWin, bet::Come(total));
      settle(kOddsWin, bet::ComeOdds(total));
      settle(kWin, bet::Place(total));
      settle(kWin, bet::Buy(total));
      if (total == 6) settle(kWin, bet::kBig6);
      if (total == 8) settle(kWin, bet::kBig8);
      if (total % 2 == 0) {
        const int hard = bet::kHard4 + (total - 4) / 2;
        if (Doubles(g)) {
          settle(kWin, hard);
          settle(kWin, bet::HopFor(g.Die1, g.Die2));
        } else {
          settle(kLoss, hard);
        }
      }
      // The easy Hops of the total, in the order of their lower face.
      if (!Doubles(g)) {
        for (int low = 1; low <= 6; ++low) {
          const int high = total - low;
          if (high <= low || high > 6 || !Has(g, low)) continue;
          settle(kWin, bet::HopFor(low, high));
        }
      }
      MoveBet(g, bet::kDontCome, bet::DontCome(total));
      MoveBet(g, bet::kCome, bet::Come(total));
      break;
    }
  }
}

// What every roll settles, whatever the total.
void SettleEveryRoll(Game& g, Settler& settle) {
  const int total = g.DiceTotal;
  settle(kWin, bet::kField);
  if (total != 2) settle(kLoss, bet::kTwo);
  if (total != 3) settle(kLoss, bet::kThree);
  if (total != 7) settle(kLoss, bet::kSeven);
  if (total != 11) settle(kLoss, bet::kEleven);
  if (total != 12) settle(kLoss, bet::kTwelve);
  if (total >= 4 && total <= 11) settle(kLoss, bet::kCraps);
  if (total >= 4 && total <= 10) {
    settle(kLoss, bet::kCandE);
    settle(kLoss, bet::kHorn);
    if (total != 7) settle(kLoss, bet::kWorld);
  }
  settle(total < 8 ? kLoss : kWin, bet::kOver7);
  settle(total > 6 ? kLoss : kWin, bet::kUnder7);
  for (int hop = bet::kFirstHop; hop <= bet::kLastHop; ++hop)
    if (!settle.HopWon(hop)) settle(kLoss, hop);
}

}  // namespace

ThrowDecisions SettleTheThrow(Game& g) {
  Settler settle(g);
  if (g.DiceTotal == g.PointBeforeRoll) {  // the point is made
    LineWin(g);
    settle(kWin, bet::kPassLine);
    settle(kOddsWin, bet::kPassOdds);
    settle(kLoss, bet::kDontPass);
    settle(kOddsLoss, bet::kDontPassOdds);
  }
  SettleTotal(g, settle);
  SettleEveryRoll(g, settle);
  return {settle.AnyWon(), settle.AnyLost()};
}
