#include "autoplay/bet_handling.h"

#include "engine/game.h"
#include "engine/place_bet.h"
#include "engine/settle.h"
#include "engine/settle_notice.h"

namespace {

// The choices of both sides, in the order of the Auto-Play options 1..7.
enum class WonChoice { TakeBetAndWinnings, SameBetTakeWinnings, PressOneUnit, PressDouble, Parlay,
                       SameBetModified, BetModified };
enum class LostChoice { NoBetTakeRemainder, BetRemainder, SameBet, SameBetPlusUnit, DoubleBet,
                        SameBetModified, BetModified };

// Pressing, doubling, parlays and modified amounts come with the rest of
// Auto-Play; until then a won bet stays as it was and a lost one comes off.
WonChoice Available(WonChoice c) {
  return c == WonChoice::TakeBetAndWinnings ? c : WonChoice::SameBetTakeWinnings;
}
LostChoice Available(LostChoice c) {
  return c == LostChoice::BetRemainder || c == LostChoice::SameBet ? c : LostChoice::NoBetTakeRemainder;
}

WonChoice ChooseWon(Game& g, const SettleNotice* notice) {
  if (notice) {
    std::optional<int> button = g.Ui->ShowSettleNotice(*notice);
    if (button && *button >= kTakeBetAndWinnings && *button <= kBetModified) return WonChoice(*button);
    return WonChoice::SameBetTakeWinnings;
  }
  if (g.WonBetAction >= 1 && g.WonBetAction <= 7) return WonChoice(g.WonBetAction - 1);
  return WonChoice::SameBetTakeWinnings;  // manual, with no notice to ask in
}

LostChoice ChooseLost(Game& g, const SettleNotice* notice) {
  if (notice) {
    std::optional<int> button = g.Ui->ShowSettleNotice(*notice);
    if (!button) return LostChoice::NoBetTakeRemainder;
    switch (*button) {
      case kBetRemainder: return LostChoice::BetRemainder;
      case kSameBetAgain: return LostChoice::SameBet;
      case kPressUnitAfterLoss: return LostChoice::SameBetPlusUnit;
      case kDoubleBet: return LostChoice::DoubleBet;
      default: return LostChoice::NoBetTakeRemainder;
    }
  }
  if (g.HandleLosingBets >= 1 && g.HandleLosingBets <= 7) return LostChoice(g.HandleLosingBets - 1);
  return LostChoice::NoBetTakeRemainder;
}

// Moving a bet on the player's behalf tells nothing: the notices of
// placement stay quiet until the handling is done.
class QuietNotices {
 public:
  explicit QuietNotices(Game& g) : g_(g), saved_(g.NoticeMask) { g.NoticeMask = 0; }
  ~QuietNotices() { g_.NoticeMask = saved_; }
  QuietNotices(const QuietNotices&) = delete;
  QuietNotices& operator=(const QuietNotices&) = delete;

 private:
  Game& g_;
  int32_t saved_;
};

// The up-front part of a Lay's or Buy's vig leaves the table total, the vig
// taken off the payoff is counted back into it, and the bet's vig is spent.
void SettleVig(Game& g, int betId) {
  Currency* stored = bet::IsBuy(betId)   ? &g.BuyVigOnBet[betId - bet::kBuyBase]
                     : bet::IsLay(betId) ? &g.LayVigOnBet[betId - bet::kLayBase]
                                         : nullptr;
  if (!stored) return;
  bool upFront = bet::IsBuy(betId) ? g.ChargeAllBuy : g.ChargeAllLay;
  if (upFront) g.TotalOnTable -= *stored;
  g.NetPayoff += VigTaken(g, betId);
  *stored = 0;
}

void ChangeBetTo(Game& g, int betId, Currency amount) {
  g.BetChange = amount - g.BetAmount[betId];
  if (g.BetChange == 0) return;
  PlaceBet(g, betId);
  g.Ui->RedrawBet(betId);
}

void TakeDown(Game& g, int betId) { ChangeBetTo(g, betId, 0); }

// A bet kept at an amount: a Buy or Lay goes off and on again so that its vig
// is figured anew; any other bet moves only by the difference, which keeps a
// contract bet clear of the rules of taking down.
void PlaceAgain(Game& g, int betId, Currency amount) {
  if (bet::IsBuy(betId) || bet::IsLay(betId)) TakeDown(g, betId);
  ChangeBetTo(g, betId, amount);
}

}  // namespace

void WonBetHandling(Game& g, int betId, const SettleNotice* notice) {
  SettleVig(g, betId);
  WonChoice choice = Available(ChooseWon(g, notice));
  QuietNotices quiet(g);
  if (g.BetComesDown || choice == WonChoice::TakeBetAndWinnings)
    TakeDown(g, betId);
  else
    PlaceAgain(g, betId, g.BetAtRollStart[betId]);
}

void LostBetHandling(Game& g, int betId, const SettleNotice* notice) {
  SettleVig(g, betId);
  LostChoice choice = Available(ChooseLost(g, notice));
  QuietNotices quiet(g);
  Currency amount = g.BetAmount[betId];
  if (g.BetComesDown || choice == LostChoice::NoBetTakeRemainder) {
    TakeDown(g, betId);
  } else if (choice == LostChoice::BetRemainder) {
    Currency remainder = amount + g.NetPayoff;
    PlaceAgain(g, betId, remainder > 0 ? remainder : Currency{});
  } else {
    PlaceAgain(g, betId, amount);
  }
}
