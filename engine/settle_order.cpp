#include "engine/settle_order.h"

#include <array>

#include "engine/game.h"
#include "engine/hand_counters.h"
#include "engine/roll.h"
#include "engine/settle.h"

namespace {

// One throw's settling: every SettleBet call in its order, with the Hop
// winners remembered so that the rest of the Hops lose at the end, and the
// won and lost events noted for the Auto-Roll stops.
class Settler {
 public:
  explicit Settler(Game& g) : g_(g) {}

  void operator()(int outcome, int betId) {
    bool real = g_.BetAmount[betId] > 0 && g_.BetStatus[betId] >= 1;
    if (outcome > 0 && bet::IsHop(betId)) hopWon_[betId - bet::kFirstHop] = true;
    SettleBet(g_, outcome, betId);
    if (real && g_.NetPayoff > 0) anyWon_ = true;
    if (real && g_.NetPayoff < 0) anyLost_ = true;
  }
  void Range(int outcome, int first, int last) {
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
      settle(-1, bet::kCome);
      if (comeOut) {
        settle(-1, bet::kPassLine);
        if (dontWins) {
          LineLoss(g);
          settle(1, bet::kDontPass);
        } else {
          LineBarred(g);
        }
      }
      settle(1, total == 2 ? bet::kTwo : bet::kTwelve);
      for (int id : {bet::kCraps, bet::kCandE, bet::kHorn, bet::kWorld}) settle(1, id);
      if (dontWins) settle(1, bet::kDontCome);
      break;
    }
    case 3:
      settle(-1, bet::kCome);
      if (comeOut) {
        LineLoss(g);
        settle(-1, bet::kPassLine);
        settle(1, bet::kDontPass);
      }
      for (int id : {bet::kThree, bet::kCraps, bet::kCandE, bet::kDontCome, bet::kHorn, bet::kWorld})
        settle(1, id);
      break;
    case 7:
      if (comeOut) LineWin(g); else LineLoss(g);
      settle(-1, bet::kDontCome);
      settle(-1, bet::kBig6);
      settle(-1, bet::kBig8);
      settle.Range(-1, bet::kHard4, bet::kHard10);
      settle.Range(-1, bet::kPlaceBase, bet::kBuyBase + 5);
      for (int id = bet::kComeNumberBase; id < bet::kComeNumberBase + 6; ++id) {
        settle(-1, id);
        settle(-2, id + 6);
      }
      if (comeOut) {
        settle(-1, bet::kDontPass);
        settle(1, bet::kPassLine);
      } else {
        settle(-1, bet::kPassLine);
        settle(-2, bet::kPassOdds);
        settle(1, bet::kDontPass);
        settle(2, bet::kDontPassOdds);
      }
      settle.Range(1, bet::kLayBase, bet::kLayBase + 5);
      for (int id = bet::kDontComeBase; id < bet::kDontComeBase + 6; ++id) {
        settle(1, id);
        settle(2, id + 6);
      }
      settle(1, bet::kCome);
      settle(1, bet::kSeven);
      settle(1, bet::kWorld);
      if (Has(g, 1)) settle(1, bet::HopFor(1, 6));
      if (Has(g, 2)) settle(1, bet::HopFor(2, 5));
      if (Has(g, 3)) settle(1, bet::HopFor(3, 4));
      break;
    case 11:
      settle(-1, bet::kDontCome);
      if (comeOut) {
        LineWin(g);
        settle(1, bet::kPassLine);
        settle(-1, bet::kDontPass);
      }
      for (int id : {bet::kEleven, bet::kCandE, bet::kCome, bet::kHorn, bet::kWorld}) settle(1, id);
      break;
    default: {  // 4, 5, 6, 8, 9, 10
      settle(-1, bet::Lay(total));
      settle(-1, bet::DontCome(total));
      settle(-2, bet::DontComeOdds(total));
      settle(1, bet::Come(total));
      settle(2, bet::ComeOdds(total));
      settle(1, bet::Place(total));
      settle(1, bet::Buy(total));
      if (total == 6) settle(1, bet::kBig6);
      if (total == 8) settle(1, bet::kBig8);
      if (total % 2 == 0) {
        const int hard = bet::kHard4 + (total - 4) / 2;
        if (Doubles(g)) {
          settle(1, hard);
          settle(1, bet::HopFor(g.Die1, g.Die2));
        } else {
          settle(-1, hard);
        }
      }
      // The easy Hops of the total, in the order of their lower face.
      if (!Doubles(g)) {
        for (int low = 1; low <= 6; ++low) {
          const int high = total - low;
          if (high <= low || high > 6 || !Has(g, low)) continue;
          settle(1, bet::HopFor(low, high));
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
  settle(1, bet::kField);
  if (total != 2) settle(-1, bet::kTwo);
  if (total != 3) settle(-1, bet::kThree);
  if (total != 7) settle(-1, bet::kSeven);
  if (total != 11) settle(-1, bet::kEleven);
  if (total != 12) settle(-1, bet::kTwelve);
  if (total >= 4 && total <= 11) settle(-1, bet::kCraps);
  if (total >= 4 && total <= 10) {
    settle(-1, bet::kCandE);
    settle(-1, bet::kHorn);
    if (total != 7) settle(-1, bet::kWorld);
  }
  settle(total < 8 ? -1 : 1, bet::kOver7);
  settle(total > 6 ? -1 : 1, bet::kUnder7);
  for (int hop = bet::kFirstHop; hop <= bet::kLastHop; ++hop)
    if (!settle.HopWon(hop)) settle(-1, hop);
}

}  // namespace

ThrowDecisions SettleTheThrow(Game& g) {
  Settler settle(g);
  if (g.DiceTotal == g.PointBeforeRoll) {  // the point is made
    LineWin(g);
    settle(1, bet::kPassLine);
    settle(2, bet::kPassOdds);
    settle(-1, bet::kDontPass);
    settle(-2, bet::kDontPassOdds);
  }
  SettleTotal(g, settle);
  SettleEveryRoll(g, settle);
  return {settle.AnyWon(), settle.AnyLost()};
}
