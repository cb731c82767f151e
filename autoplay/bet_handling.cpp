#include "autoplay/bet_handling.h"

#include <string>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/place_bet.h"
#include "engine/settle.h"
#include "engine/settle_notice.h"

namespace {

// The choices of both sides, in the order of the Auto-Play options 1..7.
enum class WonChoice { TakeBetAndWinnings, SameBetTakeWinnings, PressOneUnit, PressDouble, Parlay,
                       SameBetModified, BetModified };
enum class LostChoice { NoBetTakeRemainder, BetRemainder, SameBet, SameBetPlusUnit, DoubleBet,
                        SameBetModified, BetModified };

AmountRule RuleOf(const Game& g, ModifyEntry entry) {
  return {g.ModifyOperator[entry], g.ModifyAmount[entry], g.ModifyUnits[entry]};
}

// An entry the player edited in the notice stays as edited for the next one,
// as long as it is one the entry can hold.
void KeepRule(Game& g, ModifyEntry entry, const AmountRule& rule) {
  constexpr Currency kMostAmount = 100'000;
  if (rule.op < 0 || rule.op > 3 || rule.units < -1 || rule.units > 6 || rule.amount < 0 || rule.amount > kMostAmount)
    return;
  g.ModifyOperator[entry] = rule.op;
  g.ModifyAmount[entry] = rule.amount;
  g.ModifyUnits[entry] = rule.units;
}

WonChoice ChooseWon(Game& g, const SettleNotice* notice) {
  if (notice) {
    SettleNotice asked = *notice;
    asked.sameBet = RuleOf(g, kModifyDialogSame);
    asked.bet = RuleOf(g, kModifyDialogBet);
    std::optional<SettleReply> reply = g.Ui->ShowSettleNotice(asked);
    if (!reply) return WonChoice::SameBetTakeWinnings;
    KeepRule(g, kModifyDialogSame, reply->sameBet);
    KeepRule(g, kModifyDialogBet, reply->bet);
    if (reply->button >= kTakeBetAndWinnings && reply->button <= kBetModified) return WonChoice(reply->button);
    return WonChoice::SameBetTakeWinnings;
  }
  if (g.WonBetAction >= 1 && g.WonBetAction <= 7) return WonChoice(g.WonBetAction - 1);
  return WonChoice::SameBetTakeWinnings;  // manual, with no notice to ask in
}

LostChoice ChooseLost(Game& g, const SettleNotice* notice) {
  if (notice) {
    std::optional<SettleReply> reply = g.Ui->ShowSettleNotice(*notice);
    if (!reply) return LostChoice::NoBetTakeRemainder;
    switch (reply->button) {
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
// contract bet clear of the rules of taking down. Re-charging the vig is
// bookkeeping: a call ON or OFF stays with a bet that stays.
void PlaceAgain(Game& g, int betId, Currency amount) {
  if (amount < 0) amount = 0;
  const int32_t status = g.BetStatus[betId];
  if (bet::IsBuy(betId) || bet::IsLay(betId)) TakeDown(g, betId);
  ChangeBetTo(g, betId, amount);
  if (g.BetAmount[betId] > 0) g.BetStatus.Set(betId, status);
}

// The amount of a "Same Bet:" or "Bet:" form from `base`, the bet it starts
// from: "$", "%" of the base, or checks of a colour times the bet's Per.
Currency ModifyUnit(const Game& g, int entry, int betId, Currency base) {
  const int32_t units = g.ModifyUnits[entry];
  if (units == 0) return MulRatio(base, 0.01);
  if (units < 0) return 1;
  const int slot = bet::ChipSlot(units - 1);  // units 2..6 are the colours 1..5
  if (slot < bet::kFirstChip || slot > bet::kLastChip) return 1;
  return MulRatio(g.BetAmount[slot], g.Payoff[betId].Per.ToDouble());
}

Currency SameBetModified(const Game& g, int entry, int betId, Currency base) {
  const Currency amount = g.ModifyAmount[entry];
  const Currency unit = ModifyUnit(g, entry, betId, base);
  switch (g.ModifyOperator[entry]) {
    case 1: return base - MulRatio(unit, amount.ToDouble());
    case 2: return MulRatio(base, amount.ToDouble());
    case 3: return amount > 0 ? MulRatio(base, 1.0 / amount.ToDouble()) : base;
    default: return base + MulRatio(unit, amount.ToDouble());
  }
}

// "Bet:" names the new amount outright, in the form's units.
Currency BetModified(const Game& g, int entry, int betId, Currency base) {
  return MulRatio(ModifyUnit(g, entry, betId, base), g.ModifyAmount[entry].ToDouble());
}

// A parlay never adds more than was won: the adjustment of every bet family
// may only go down meanwhile, the biased ones and the others alike.
void Parlay(Game& g, int betId) {
  g.AdjustDownOnly = true;
  PlaceAgain(g, betId, g.BetAmount[betId] + g.NetPayoff);
  g.AdjustDownOnly = false;
}

// The press and parlay results, told against the bet before the roll.
void TellChange(Game& g, int betId, const char* action) {
  if (!NoticeAllowed(g, kNoticeCharges)) return;
  const Currency change = g.BetAmount[betId] - g.BetAtRollStart()[betId];
  std::string text = change > 0   ? "Bet increased by: " + Dollars(change)
                     : change < 0 ? "Bet decreased by: " + Dollars(-change)
                                  : "No change in bet amount.";
  ShowNotice(g, kNoticeCharges, action + g.BetName[betId], text);
}

// Returns the title of the result notice, or nullptr when none is due.
const char* ApplyWon(Game& g, int betId, WonChoice choice, bool fromDialog) {
  const Currency present = g.BetAmount[betId];
  const Currency prev = g.BetAtRollStart()[betId];
  switch (choice) {
    case WonChoice::TakeBetAndWinnings: TakeDown(g, betId); return nullptr;
    case WonChoice::SameBetTakeWinnings: PlaceAgain(g, betId, prev); return nullptr;
    case WonChoice::PressOneUnit: PlaceAgain(g, betId, present + PressUnit(g, betId)); return "Press 1 Unit ";
    case WonChoice::PressDouble: PlaceAgain(g, betId, present + present); return "Press Double ";
    case WonChoice::Parlay: Parlay(g, betId); return "Parlay ";
    case WonChoice::SameBetModified:
      PlaceAgain(g, betId, SameBetModified(g, fromDialog ? kModifyDialogSame : kModifyWonSame, betId, prev));
      return nullptr;
    case WonChoice::BetModified:
      PlaceAgain(g, betId, BetModified(g, fromDialog ? kModifyDialogBet : kModifyWonBet, betId, prev));
      return nullptr;
  }
  return nullptr;
}

}  // namespace

void WonBetHandling(Game& g, int betId, const SettleNotice* notice) {
  SettleVig(g, betId);
  const WonChoice choice = ChooseWon(g, notice);
  const char* told = nullptr;
  {
    QuietNotices quiet(g);
    if (g.BetComesDown)
      TakeDown(g, betId);
    else
      told = ApplyWon(g, betId, choice, notice != nullptr);
  }
  if (told) TellChange(g, betId, told);
}

void LostBetHandling(Game& g, int betId, const SettleNotice* notice) {
  SettleVig(g, betId);
  const LostChoice choice = ChooseLost(g, notice);
  QuietNotices quiet(g);
  const Currency amount = g.BetAmount[betId];
  const Currency remainder = amount + g.NetPayoff;
  switch (g.BetComesDown ? LostChoice::NoBetTakeRemainder : choice) {
    case LostChoice::NoBetTakeRemainder: TakeDown(g, betId); break;
    case LostChoice::BetRemainder: PlaceAgain(g, betId, remainder); break;
    case LostChoice::SameBet: PlaceAgain(g, betId, amount); break;
    case LostChoice::SameBetPlusUnit:
      PlaceAgain(g, betId, amount + UnitFor(g, amount, g.Payoff[betId].Per));
      break;
    case LostChoice::DoubleBet: PlaceAgain(g, betId, amount + amount); break;
    case LostChoice::SameBetModified: PlaceAgain(g, betId, SameBetModified(g, kModifyLostSame, betId, amount)); break;
    case LostChoice::BetModified: PlaceAgain(g, betId, BetModified(g, kModifyLostBet, betId, amount)); break;
  }
}
