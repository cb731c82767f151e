#include "engine/place_bet.h"

#include <optional>
#include <string>
#include <utility>

#include "engine/adjust_bet.h"
#include "engine/rules.h"
#include "engine/bet_status.h"
#include "engine/contract_rules.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/refusals.h"

namespace {

const Currency kStackLimit = Currency::FromRaw(999'999'999'999'999'999);  // 99,999,999,999,999.9999
const Currency kFullRequest = 9'999'999;

std::string BetTitle(const Game& g, int id) { return g.BetName[id] + " Bet"; }

Currency Chip(const Game& g) { return g.SmallestChip().raw > 0 ? g.SmallestChip() : Currency::FromRaw(1); }

// Whole chips both ways: adding rounds up, taking away rounds away from zero.
Currency RoundChangeToChips(Currency change, Currency chip) {
  // A $1 check is the common case, and a constant divisor is cheap.
  if (chip.raw == Currency::kScale ? change.IsWhole() : change.raw % chip.raw == 0) return change;
  int64_t chips = change.raw / chip.raw;
  chips += change.raw > 0 ? 1 : -1;
  return Currency::FromRaw(chips * chip.raw);
}

Currency BetMinimum(const Game& g, int id) {
  if (bet::IsHardWay(id) || id >= bet::kTwo) return g.SmallestChip();
  Currency minimum = g.TableMinimum;
  if (id == bet::kPassLine || bet::IsComeNumber(id)) minimum = Max(minimum, g.Committed(id));
  return minimum;
}

bool VigIsUpFront(const Game& g, int id) {
  return (bet::IsBuy(id) && g.ChargeAllBuy) || (bet::IsLay(id) && g.ChargeAllLay);
}

// The vig of `amount` on this bet if it is taken up front, else 0.
Currency UpFrontVig(const Game& g, int id, Currency amount) {
  if (!VigIsUpFront(g, id)) return 0;
  return bet::IsBuy(id) ? FigureBuyVig(g, id, amount) : FigureLayVig(g, id, amount);
}

Currency StoredVig(const Game& g, int id) {
  if (bet::IsBuy(id)) return g.BuyVigOnBet[id - bet::kBuyBase];
  if (bet::IsLay(id)) return g.LayVigOnBet[id - bet::kLayBase];
  return 0;
}

bool AnyOtherBet(const Game& g, int id) {
  for (int other = bet::kFirstTableBet; other <= bet::kLastTableBet; ++other)
    if (other != id && g.BetAmount[other] > 0) return true;
  return false;
}

// Appends to the pending limit notice, which lives in g.MsgText so that the
// automatic adjustment may add to it or replace it.
void AddNotice(Game& g, int id, const std::string& text) {
  g.MsgText = g.MsgText.empty() ? text : g.MsgText + kTwoBreaks + text;
  if (g.MsgTitle.empty()) g.MsgTitle = BetTitle(g, id);
}

void ShowPendingNotice(Game& g, const std::string& title, bool stack, bool nothingChanged) {
  if (g.MsgText.empty()) return;
  if (g.MsgText.find("Unable") == std::string::npos)
    g.MsgText += kTwoBreaks + limit_notice::Ending(stack, nothingChanged);
  if (g.MsgTitle.empty()) g.MsgTitle = title;
  if (NoticeAllowed(g, kNoticeLimits)) ShowNotice(g, kNoticeLimits, g.MsgTitle, g.MsgText);
}

// Whether a placement writes its limit notices. A placement whose caller
// throws the notices away (setting a bet to its maximum) drops them unwritten:
// building their text would reach the heap on every roll of a run.
enum class Notices { Written, Dropped };

// A message set aside while the placement goes on. Most placements have
// none: an empty optional costs less to make and drop than two strings.
struct HeldMessage {
  std::string text, title;
};
std::optional<HeldMessage> TakePendingMessage(Game& g) {
  if (g.MsgText.empty() && g.MsgTitle.empty()) return std::nullopt;
  HeldMessage held{std::move(g.MsgText), std::move(g.MsgTitle)};
  g.MsgText.clear();
  g.MsgTitle.clear();
  return held;
}

class TablePlacement {
 public:
  TablePlacement(Game& g, int id, Notices notices)
      : g_(g), id_(id), written_(notices == Notices::Written), bet_(g.BetAmount[id]),
        committed_(id <= bet::kDontPass ? g.Committed(id) : Currency(0)) {}

  void Run();

 private:
  bool ApplyMinimum();
  bool ApplyMaximum();
  void Adjust();
  void ApplyBankroll();
  void Apply();
  void TellVig(Currency before, Currency after);

  Game& g_;
  int id_;
  bool written_;
  Currency bet_;
  Currency committed_;
  Currency change_;
  std::optional<HeldMessage> shown_;  // a notice that could not wait for the ending
};

void TablePlacement::Run() {
  // No wish beyond what any slot may hold makes sense; bounding it keeps the
  // arithmetic below from overflowing.
  change_ = RoundChangeToChips(Min(Max(g_.BetChange, -kStackLimit), kStackLimit), Chip(g_));
  if (bet_ + change_ < 0) change_ = -bet_;
  if (change_ == 0) return;
  // Taking a whole bet down that no contract holds meets no rule: no
  // minimum or maximum, no adjustment, no bankroll. A lost bet comes down so.
  if (change_ < 0 && bet_ + change_ == 0 && !HeldByContract(g_, id_)) {
    Apply();
    return;
  }

  if (HasContractRules(id_)) {
    ContractOutcome contract = ApplyContractRules(g_, id_, change_);
    change_ = contract.change;
    if (contract.ended || change_ == 0) {
      change_ = 0;
      return;
    }
  }
  // A refusal that let part of the change through was shown already; it is
  // left as the message only if no limit notice follows.
  std::optional<HeldMessage> refusal = TakePendingMessage(g_);

  if (ApplyMinimum() && ApplyMaximum()) {
    Adjust();
    ApplyBankroll();
    if (!g_.MsgText.empty()) ShowPendingNotice(g_, BetTitle(g_, id_), false, change_ == 0);
    Apply();
  } else if (!g_.MsgText.empty()) {
    ShowPendingNotice(g_, BetTitle(g_, id_), false, true);
  }
  if (!g_.MsgText.empty()) return;
  if (!shown_ && !refusal) {  // went through as asked
    g_.MsgTitle.clear();
    return;
  }
  HeldMessage& kept = shown_ ? *shown_ : *refusal;
  g_.MsgText = std::move(kept.text);
  g_.MsgTitle = std::move(kept.title);
}

bool TablePlacement::ApplyMinimum() {
  const Currency minimum = BetMinimum(g_, id_);
  const Currency after = bet_ + change_;
  if (after > 0 && after < minimum) {
    if (change_ > 0) {
      change_ = minimum - bet_;
      if (written_) AddNotice(g_, id_, limit_notice::MinimumBet(minimum));
    } else if (HeldByContract(g_, id_) && committed_ > 0) {
      change_ = committed_ - bet_;  // the whole bet may not come down
    } else {
      change_ = -bet_;
    }
  }
  return change_ != 0;
}

bool TablePlacement::ApplyMaximum() {
  if (bet_ + change_ <= 0) return true;  // no maximum is below nothing
  const Currency maximum = GetBetMaximum(g_, id_);
  if (bet_ + change_ <= maximum) return true;
  const bool contract = id_ == bet::kPassLine || bet::IsComeNumber(id_);
  if (contract && committed_ > maximum) {
    change_ = committed_ - bet_;
    if (!written_) return change_ != 0;
    std::string text = limit_notice::MaximumBet(maximum) + kTwoBreaks +
                       limit_notice::ContractAboveMaximum(g_.BetName[id_], committed_);
    g_.MsgText = text;
    g_.MsgTitle = BetTitle(g_, id_);
    if ((g_.NoticeMask & (kNoticeRefusals | kNoticeLimits)) != 0 && g_.Visible())
      ShowNotice(g_, kNoticeRefusals | kNoticeLimits, g_.MsgTitle, text);
    // Shown in full already: nothing is left pending for an ending.
    shown_ = HeldMessage{std::move(text), std::move(g_.MsgTitle)};
    g_.MsgText.clear();
    g_.MsgTitle.clear();
    return change_ != 0;
  }
  change_ = maximum - bet_;
  if (written_) AddNotice(g_, id_, limit_notice::MaximumBet(maximum));
  return change_ != 0;
}

void TablePlacement::Adjust() {
  if (g_.AutoAdjustMode <= 0) return;
  change_ = AdjustBet(g_, id_, change_);
  if (bet_ + change_ < 0) change_ = -bet_;
}

void TablePlacement::ApplyBankroll() {
  if (g_.AllowNegativeBankroll || change_ <= 0) return;
  const Currency chargedBefore = VigIsUpFront(g_, id_) ? StoredVig(g_, id_) : Currency(0);
  auto fits = [&](Currency change) {
    Currency vigRise = UpFrontVig(g_, id_, bet_ + change) - chargedBefore;
    return g_.TotalOnTable + change + vigRise <= g_.Bankroll();
  };
  if (fits(change_)) return;

  // Lower by whole chips until bet and vig fit; the cost only grows with the
  // amount, so the search may halve instead of stepping.
  const Currency chip = Chip(g_);
  int64_t lo = 1, hi = (change_.raw + chip.raw - 1) / chip.raw;  // steps down to try
  auto candidate = [&](int64_t steps) { return Max(change_ - chip * steps, 0); };
  if (!fits(candidate(hi))) {
    change_ = 0;
  } else {
    while (lo < hi) {
      int64_t mid = lo + (hi - lo) / 2;
      if (fits(candidate(mid))) hi = mid; else lo = mid + 1;
    }
    change_ = candidate(lo);
  }

  const Currency cut = change_;
  Adjust();
  // An adjustment upward may not fit what was just cut to fit.
  if (change_ > cut && g_.AutoAdjustMode > 0) change_ = AdjustBet(g_, id_, cut, true);
  const Currency minimum = BetMinimum(g_, id_);
  if (change_ > 0 && bet_ + change_ < minimum) change_ = minimum - bet_;
  if (change_ > 0 && !fits(change_)) change_ = 0;  // not even the minimum fits
  if (change_ < 0) change_ = 0;
  if (written_) AddNotice(g_, id_, limit_notice::NotEnoughBankroll(AnyOtherBet(g_, id_)));
}

void TablePlacement::Apply() {
  if (change_ == 0) return;
  g_.BetAmount.Add(id_, change_);
  g_.TotalOnTable += change_;
  if (g_.BetAmount[id_] == 0) SetBetStatusDefault(g_, id_);

  if (!bet::IsBuy(id_) && !bet::IsLay(id_)) return;
  const bool isBuy = bet::IsBuy(id_);
  Currency& stored = isBuy ? g_.BuyVigOnBet[id_ - bet::kBuyBase] : g_.LayVigOnBet[id_ - bet::kLayBase];
  const Currency before = stored;
  stored = isBuy ? FigureBuyVig(g_, id_, g_.BetAmount[id_]) : FigureLayVig(g_, id_, g_.BetAmount[id_]);
  if (VigIsUpFront(g_, id_)) g_.TotalOnTable += stored - before;
  TellVig(before, stored);
}

void TablePlacement::TellVig(Currency before, Currency after) {
  if (before == after || !NoticeAllowed(g_, kNoticeCharges)) return;
  const bool upFront = VigIsUpFront(g_, id_);
  if (after <= 0 && !upFront) return;
  std::string text;
  if (after == 0) {
    text = "\"Vig\" charge returned " + Dollars(before);
  } else {
    if (before > 0)
      text = std::string("\"Vig\"") + (after > before ? " increased by " : " decreased by ") +
             Dollars(Abs(after - before)) + kTwoBreaks;
    text += upFront ? "Total \"Vig\" charge " + Dollars(after)
                    : "If you win, the \"Vig\" charge will be " + Dollars(after);
  }
  ShowNotice(g_, kNoticeCharges, BetTitle(g_, id_), text);
}

void PlaceStack(Game& g, int id) {
  const Currency bet = g.BetAmount[id];
  Currency change = g.BetChange;
  int64_t sum = 0;
  if (__builtin_add_overflow(bet.raw, change.raw, &sum)) sum = change.raw > 0 ? INT64_MAX : INT64_MIN;
  if (sum > kStackLimit.raw) {
    change = kStackLimit - bet;
    g.MsgText = limit_notice::MaximumStack(kStackLimit);
  } else if (sum < -kStackLimit.raw) {
    change = -kStackLimit - bet;
    g.MsgText = limit_notice::MinimumStack(-kStackLimit);
  }
  // The title is built only for a notice: most changes have none.
  if (!g.MsgText.empty()) ShowPendingNotice(g, bet::StackName(id), true, change == 0);
  g.BetAmount.Add(id, change);
  g.BetChangeAllowed = change;
}

void Place(Game& g, int betId, Notices notices) {
  g.MsgText.clear();
  g.MsgTitle.clear();
  g.BetChangeAllowed = 0;
  if (betId < 0 || betId >= bet::kSlots) return;
  if (bet::IsStack(betId) || betId == bet::kSlots - 1) {
    PlaceStack(g, betId);
    if (g.BetChangeAllowed != 0) g.GameChanged = true;
    return;
  }
  if (!bet::IsTableBet(betId)) {  // the bankroll, the rail and the chips take any change
    g.BetAmount.Add(betId, g.BetChange);
    g.BetChangeAllowed = g.BetChange;
    if (g.BetChangeAllowed != 0) g.GameChanged = true;
    return;
  }
  const Currency before = g.BetAmount[betId];
  TablePlacement(g, betId, notices).Run();
  g.BetChangeAllowed = g.BetAmount[betId] - before;
  if (g.BetChangeAllowed != 0) g.GameChanged = true;
}

// Whether the change asked of the bet takes it down whole where nothing has
// a say: no vig rides on it, and no contract holds it or the one that held
// it has just been decided. A lost bet comes down so, several times a roll on
// a busy table.
bool ComesDownFreely(const Game& g, int betId) {
  if (!bet::IsTableBet(betId) || bet::IsBuy(betId) || bet::IsLay(betId)) return false;
  const Currency amount = g.BetAmount[betId];
  return amount > 0 && amount <= kStackLimit && g.BetChange <= -amount &&
         (!HeldByContract(g, betId) || g.Committed(betId) == 0);
}

// Whether the change asked of the bet goes on as asked with nothing said:
// whole chips, within the limits, already paying whole, within the bankroll,
// and no contract or vig rule has a say. Most bets a run puts up go so.
bool GoesOnAsAsked(Game& g, int betId) {
  const Currency change = g.BetChange;
  if (!bet::IsTableBet(betId) || bet::IsBuy(betId) || bet::IsLay(betId) || change <= 0 || change > kStackLimit ||
      !AddingIsFree(g, betId))
    return false;
  const Currency after = g.BetAmount[betId] + change;
  return RoundChangeToChips(change, Chip(g)) == change && after >= BetMinimum(g, betId) &&
         after <= GetBetMaximum(g, betId) && PaysWholeAsAsked(g, betId, change) &&
         (g.AllowNegativeBankroll || g.TotalOnTable + change <= g.Bankroll());
}

void PutOn(Game& g, int betId, Currency change) {
  g.MsgText.clear();
  g.MsgTitle.clear();
  g.BetAmount.Add(betId, change);
  g.TotalOnTable += change;
  g.BetChangeAllowed = change;
  g.GameChanged = true;
}

// The whole bet comes down, as the placement leaves a bet it takes down.
void TakeDownWhole(Game& g, int betId) {
  const Currency amount = g.BetAmount[betId];
  g.MsgText.clear();
  g.MsgTitle.clear();
  g.BetAmount.Set(betId, 0);
  g.TotalOnTable -= amount;
  SetBetStatusDefault(g, betId);
  g.BetChangeAllowed = -amount;
  g.GameChanged = true;
}

}  // namespace

void PlaceBet(Game& g, int betId) {
  // The two commonest placements of a run skip the rules that cannot change them.
  if (ComesDownFreely(g, betId))
    TakeDownWhole(g, betId);
  else if (GoesOnAsAsked(g, betId))
    PutOn(g, betId, g.BetChange);
  else
    Place(g, betId, Notices::Written);
}

void PlaceBetThroughEveryRule(Game& g, int betId) { Place(g, betId, Notices::Written); }

void PlaceBetOnTable(Game& g, int betId) {
  PlaceBet(g, betId);
  g.Ui->RedrawBet(betId);
  if (g.BetChangeAllowed == 0 || !bet::IsTableBet(betId)) return;

  int oddsId = 0;
  bool fullOdds = false;
  if (betId == bet::kPassLine && g.Point > 0) {
    oddsId = bet::kPassOdds;
    fullOdds = g.AutoTakeFullOdds;
  } else if (betId == bet::kDontPass && g.Point > 0) {
    oddsId = bet::kDontPassOdds;
    fullOdds = g.AutoLayFullOdds;
  } else if (bet::IsComeNumber(betId)) {
    oddsId = betId + 6;
    fullOdds = g.AutoTakeFullOdds;
  } else if (bet::IsDontComeNumber(betId)) {
    oddsId = betId + 6;
    fullOdds = g.AutoLayFullOdds;
  }
  if (oddsId == 0) return;
  if (fullOdds || g.BetAmount[oddsId] > GetBetMaximum(g, oddsId)) {
    const Currency made = g.BetChangeAllowed;
    SetBetToMaximum(g, oddsId);
    g.BetChangeAllowed = made;  // the caller asked about its own bet
  }
}

namespace {

// Bets whose take-down and put-back no contract, odds or vig rule reads: the
// Place bets, the Field and the bets after it, and the line bets before a
// point holds them. Taking one down always goes through whole.
bool RestatesPlainly(const Game& g, int id) {
  if (bet::IsPlace(id) || (id >= bet::kField && id <= bet::kLastTableBet)) return true;
  return (id == bet::kPassLine || id == bet::kDontPass) && g.Point == 0;
}

}  // namespace

bool RestateBet(Game& g, int betId) {
  if (betId < bet::kFirstTableBet || betId > bet::kLastTableBet || !RestatesPlainly(g, betId)) return false;
  const Currency amount = g.BetAmount[betId];
  if (amount <= 0) return false;
  g.BetChange = -amount;
  TakeDownWhole(g, betId);
  g.Ui->RedrawBet(betId);
  g.BetChange = amount;
  PlaceBetOnTable(g, betId);
  return true;
}

void SetBetToMaximum(Game& g, int betId) {
  if (betId < 0 || betId >= bet::kSlots) return;
  const int32_t mask = g.NoticeMask;
  // The caller's notice stands after; moved aside, not copied.
  std::string text = std::move(g.MsgText), title = std::move(g.MsgTitle);
  const Currency request = g.BetChange;
  const Currency before = g.BetAmount[betId];
  g.NoticeMask = 0;
  g.BetChange = -g.BetAmount[betId];
  Place(g, betId, Notices::Dropped);
  g.BetChange = kFullRequest;
  Place(g, betId, Notices::Dropped);
  g.Ui->RedrawBet(betId);
  g.NoticeMask = mask;
  g.MsgText = std::move(text);
  g.MsgTitle = std::move(title);
  g.BetChange = request;
  g.BetChangeAllowed = g.BetAmount[betId] - before;
}

void TakeDownBet(Game& g, int betId) {
  if (betId < 0 || betId >= bet::kSlots) return;
  g.BetChange = -g.BetAmount[betId];
  PlaceBet(g, betId);
  g.Ui->RedrawBet(betId);
}
