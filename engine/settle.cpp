#include "engine/settle.h"

#include "engine/game.h"
#include "engine/phantom_payoff.h"
#include "engine/settle_notice.h"

namespace {

// amount x win / per, exact.
Currency Share(Currency amount, Currency win, Currency per) {
  if (per.raw == 0) return Currency{};  // validation keeps Per above zero
  // Every loss, and an even-money win, moves the amount itself: exact, and
  // the commonest decisions by far.
  if (win == -per) return -amount;
  if (win == per) return amount;
  return MulDiv(amount, win, per);
}

bool IsSplit(int betId) { return betId == bet::kCandE || betId == bet::kHorn || betId == bet::kWorld; }
int SplitParts(int betId) { return betId == bet::kCandE ? 2 : betId == bet::kHorn ? 4 : 5; }

// The single-number bet whose record pays the winning part of a split bet.
int WinningPart(int betId, int total) {
  if (betId == bet::kCandE) return total == 11 ? bet::kEleven : bet::kCraps;
  if (total == 2) return bet::kTwo;
  if (total == 3) return bet::kThree;
  if (total == 7 && betId == bet::kWorld) return bet::kSeven;
  if (total == 11) return bet::kEleven;
  return bet::kTwelve;
}

// The winning part pays by its own record; the other parts lose:
// Win x (amount / parts) / Per - (parts - 1) x amount / parts, worked exactly.
Currency SplitPayoff(Currency amount, int parts, const PayoffRecord& paid) {
  if (paid.Per.raw == 0) return Currency{};
  return MulDiv(amount, paid.Win - paid.Per * (parts - 1), paid.Per * parts);
}

// Line bets and their odds win by the Come or Don't Come record of the point.
int WinningRecord(const Game& g, int betId) {
  int point = g.PointBeforeRoll;
  bool onPoint = bet::IsPointNumber(point);
  switch (betId) {
    case bet::kPassLine: return onPoint ? bet::Come(point) : bet::kCome;
    case bet::kPassOdds: return onPoint ? bet::ComeOdds(point) : betId;
    case bet::kDontPass: return onPoint ? bet::DontCome(point) : bet::kDontCome;
    case bet::kDontPassOdds: return onPoint ? bet::DontComeOdds(point) : betId;
    default: return betId;
  }
}

// Vig of a Lay or Buy of `amount`: the stored vig of a real bet, or the rate
// on one phantom unit (a Lay pays it on what it would win).
Currency VigOf(const Game& g, int realBet, int betId, Currency amount) {
  if (bet::IsLay(betId)) {
    if (realBet) return g.LayVigOnBet[betId - bet::kLayBase];
    const PayoffRecord& own = g.Payoff[betId];
    return MulRatio(Share(amount, own.Win, own.Per), g.LayVigRate.ToDouble());
  }
  if (realBet) return g.BuyVigOnBet[betId - bet::kBuyBase];
  return MulRatio(amount, g.BuyVigRate.ToDouble());
}

// Vig is paid on a win, and on a loss too when it is charged up front.
bool ChargesVig(const Game& g, int betId, bool paysBeforeVig) {
  if (bet::IsLay(betId)) return paysBeforeVig || g.ChargeAllLay;
  if (bet::IsBuy(betId)) return paysBeforeVig || g.ChargeAllBuy;
  return false;
}

// A won bet that cannot stay on the layout. Flat line and Place bets stay up.
bool MustComeDown(const Game& g, int betId) {
  if ((betId == bet::kCome || betId == bet::kDontCome) && g.DiceTotal == 7) return true;
  if (betId == bet::kPassOdds || betId == bet::kDontPassOdds) return true;
  if (bet::IsDontComeNumber(betId) || bet::IsDontComeOdds(betId)) return true;
  if (bet::IsComeNumber(betId)) return !g.AllowPutBets;
  if (bet::IsComeOdds(betId)) return g.BetAmount[bet::ParentOf(betId)] == 0;
  return false;
}

void KeepStreak(Game& g, int betId) {
  g.StreaksMoved.Add(betId);
  int32_t& streak = g.BetStreak[1][betId];
  if (g.NetPayoff > 0) streak = streak < 0 ? 1 : streak + 1;
  if (g.NetPayoff < 0) streak = streak > 0 ? -1 : streak - 1;
}

// The record a decision pays by: the bet's own, the loss row, the point's
// record for a line bet and its odds, a split bet's winning part, or the
// Field's row for the pair.
const PayoffRecord& DecidingRecord(const Game& g, int betId, Outcome outcome, const PayoffRecord& loss) {
  if (betId == bet::kField) return g.FieldPayoff[bet::FieldRow(g.Die1, g.Die2)];
  if (!IsWin(outcome)) return loss;
  if (IsSplit(betId)) return g.Payoff[WinningPart(betId, g.DiceTotal)];
  return g.Payoff[WinningRecord(g, betId)];
}

// Below these bounds chip x per is below 2^52, where doubles hold every integer.
constexpr int64_t kChipBound = int64_t{1} << 32, kPerBound = int64_t{1} << 20;

// chip x per, as the ratio worked in double gives it: exact in whole numbers
// when per is whole and the product stays well inside a double's integers.
Currency ChipTimesPer(Currency chip, Currency per) {
  if (per.IsWhole() && chip.raw >= 0 && chip.raw < kChipBound && per.raw >= 0 &&
      per.raw / Currency::kScale < kPerBound)
    return Currency::FromRaw(chip.raw * (per.raw / Currency::kScale));
  return MulRatio(chip, per.ToDouble());
}

// The notices are built only when someone may see them, and out of line: even
// an empty one is a large block to clear on every decision.
[[gnu::noinline]] void TellLost(Game& g, int betId, Currency amount) {
  const SettleNotice notice = LostNotice(g, betId, UnitFor(g, amount, g.Payoff[betId].Per));
  if (g.Hooks.LostBet) g.Hooks.LostBet(g, betId, &notice);
}

[[gnu::noinline]] void TellWon(Game& g, int betId, SettleNotice (*build)(const Game&, int)) {
  const SettleNotice notice = build(g, betId);
  if (g.Hooks.WonBet) g.Hooks.WonBet(g, betId, &notice);
}

[[gnu::noinline]] void SettleWorkingBet(Game& g, Outcome outcome, int betId) {
  const Currency amount = g.BetAmount[betId];
  FigurePayoff(g, 1, betId, outcome, amount);
  if (g.Hooks.BetDecided) g.Hooks.BetDecided(g, betId, amount, g.NetPayoff);
  g.Settlements.Add(betId, outcome, amount, g.NetPayoff);
  if (g.Payoff[0].Win == 0 && g.NetPayoff == 0) return;  // a push: nothing happened

  g.Bankroll() += g.NetPayoff;
  g.SetCommitted(betId, 0);
  g.BetComesDown = MustComeDown(g, betId);
  KeepStreak(g, betId);

  if (g.NetPayoff < 0) {
    if (g.HandleLosingBets == 0 && g.Visible() && g.BetAtRollStart()[betId] > 0)
      TellLost(g, betId, amount);
    else if (g.Hooks.LostBet)
      g.Hooks.LostBet(g, betId, nullptr);
    return;
  }
  if (g.Visible() && g.WonBetAction == 0)
    TellWon(g, betId, WonNotice);
  else if (g.Hooks.WonBet)
    g.Hooks.WonBet(g, betId, nullptr);
}

// A flat bet that is off stands untouched; odds that are off go back to the
// player on their parent's decision, and their spot works again.
// Kept out of line so that the call for an empty spot, the commonest by far,
// stays a few instructions.
[[gnu::noinline]] void ReturnIdleOdds(Game& g, Outcome outcome, int betId) {
  if (g.BetAmount[betId] == 0 || !IsOddsDecision(outcome)) return;
  g.NetPayoff = 0;
  g.Settlements.Add(betId, outcome, g.BetAmount[betId], Currency{});
  g.BetComesDown = g.BetAmount[bet::ParentOf(betId)] == 0 || !g.AllowPutBets;
  // A press of the odds given back is figured on their own payoff.
  if (!g.BetComesDown) g.Payoff.Quiet(0).Per = g.Payoff[betId].Per;
  if (g.Visible() && g.WonBetAction == 0)
    TellWon(g, betId, OddsReturnedNotice);
  else if (g.Hooks.WonBet)
    g.Hooks.WonBet(g, betId, nullptr);
  g.BetStatus.Set(betId, status::kWorking);
}

}  // namespace

void SettleBet(Game& g, Outcome outcome, int betId) {
  // The phantom unit of a working bet, FigurePayoff (0, BetId, Outcome, 1),
  // figured and booked for empty spots too.
  if (bet::IsTableBet(betId) && g.BetStatus[betId] >= status::kWorking) BookPhantomResult(g, betId, outcome);
  SettleMoneyBet(g, outcome, betId);
}

void SettleMoneyBet(Game& g, Outcome outcome, int betId) {
  g.SettlingBetId = betId;
  if (!bet::IsTableBet(betId) || g.BetAmount[betId] == 0) return;
  if (g.BetStatus[betId] >= status::kWorking)
    SettleWorkingBet(g, outcome, betId);
  else
    ReturnIdleOdds(g, outcome, betId);
}

void FigurePayoff(Game& g, int realBet, int betId, Outcome outcome, Currency amount) {
  PayoffRecord& row0 = g.Payoff.Quiet(0);
  const PayoffRecord loss{-1, g.Payoff[betId].Form, 1};
  row0 = DecidingRecord(g, betId, outcome, loss);
  g.RawPayoff = IsWin(outcome) && IsSplit(betId) ? SplitPayoff(amount, SplitParts(betId), row0)
                                                 : Share(amount, row0.Win, row0.Per);
  // Only a Lay or a Buy pays vig, and either is paid by its own record.
  if (ChargesVig(g, betId, g.RawPayoff > 0)) g.RawPayoff -= VigOf(g, realBet, betId, amount);

  // Toward minus infinity: a winner's odd cents stay with the house.
  // Most payoffs come out in whole checks already.
  const Currency chip = g.SmallestChip();
  const bool wholeChips = chip.raw == Currency::kScale ? g.RawPayoff.IsWhole() : chip.raw > 0 && g.RawPayoff.raw % chip.raw == 0;
  g.NetPayoff = chip > 0 && !wholeChips ? chip * IntegerPartOf(g.RawPayoff, chip) : g.RawPayoff;
}

Currency UnitFor(const Game& g, Currency amount, Currency per) {
  // A whole Per, the common case, multiplies each check as ChipTimesPer
  // would, without asking again for every check.
  const bool wholePer = per.IsWhole() && per.raw >= 0 && per.raw / Currency::kScale < kPerBound;
  const int64_t perWhole = per.raw / Currency::kScale;
  Currency unit;
  for (int slot = bet::kLastChip; slot >= bet::kFirstChip; --slot) {
    const Currency chip = g.BetAmount[slot];
    unit = wholePer && chip.raw >= 0 && chip.raw < kChipBound ? Currency::FromRaw(chip.raw * perWhole)
                                                              : ChipTimesPer(chip, per);
    if (unit > 0 && unit <= amount && amount.raw % unit.raw == 0) break;
  }
  return unit;
}

Currency PressUnit(const Game& g, int betId) { return UnitFor(g, g.BetAmount[betId], g.Payoff[0].Per); }

Currency VigTaken(const Game& g, int betId) {
  if (!bet::IsLay(betId) && !bet::IsBuy(betId)) return Currency{};
  if (!ChargesVig(g, betId, g.Payoff[0].Win > 0)) return Currency{};
  return VigOf(g, 1, betId, g.BetAmount[betId]);
}
