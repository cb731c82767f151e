#include "engine/table_commands.h"

#include <string>

#include "engine/bet_status.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/place_bet.h"

namespace {

// The shown name of a slot; Chip-Stacks not yet named by a game fall back to
// their numbered default.
std::string SlotName(const Game& g, int slot) {
  if (!g.BetName[slot].empty()) return g.BetName[slot];
  if (bet::IsStack(slot)) return bet::StackName(slot);
  return std::string(bet::CatalogueName(slot));
}

void Refuse(Game& g, const std::string& title, const std::string& text) {
  if (NoticeAllowed(g, kNoticeRefusals)) ShowNotice(g, kNoticeRefusals, title, text);
}

bool IsCalled(int status) { return status == 2 || status == -1; }

}  // namespace

void RemoveBet(Game& g, int betId) {
  if (g.BetAmount[betId] == 0) return;
  g.BetChange = -g.BetAmount[betId];
  PlaceBetOnTable(g, betId);
}

void RemoveAllBets(Game& g) {
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) RemoveBet(g, id);
}

bool CanBeCalled(int betId) {
  if (betId == bet::kPassLine || betId == bet::kCome || betId == bet::kDontPass || betId == bet::kDontCome)
    return false;
  return !bet::IsComeNumber(betId) && !bet::IsDontComeNumber(betId);
}

void CallBet(Game& g, int betId, int callTool) {
  if (g.BetAmount[betId] == 0) return;
  if (!CanBeCalled(betId)) {
    Refuse(g, SlotName(g, betId) + " Bet", "You may not call this bet ON or OFF.");
    return;
  }
  if (betId > bet::kLastTableBet) {
    Refuse(g, SlotName(g, betId), "You may not call Chip-Stacks ON or OFF.");
    return;
  }
  g.GameChanged = true;
  const int against = callTool == kToolCallOn ? status::kCalledOff : status::kCalledOn;
  if (g.BetStatus[betId] == against) {
    SetBetStatusDefault(g, betId);
    g.TableDirty = true;
  } else {
    g.BetStatus.Set(betId, callTool == kToolCallOn ? status::kCalledOn : status::kCalledOff);
  }
  g.Ui->RedrawBet(betId);
  if (!g.HyperDriveOn) g.Ui->RefreshTable();
}

void CallAllBets(Game& g, bool on) {
  const int savedMask = g.NoticeMask;
  g.NoticeMask = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    if (CanBeCalled(id)) CallBet(g, id, on ? kToolCallOn : kToolCallOff);
  g.NoticeMask = savedMask;
}

void BuyPlaceBet(Game& g, int& betId) {
  if (g.BetAmount[betId] == 0) return;
  if (betId > bet::kLastTableBet) {
    Refuse(g, SlotName(g, betId), "You may not buy Chip-Stacks.");
    return;
  }
  if (bet::IsBuy(betId)) return;
  if (!bet::IsPlace(betId)) {
    Refuse(g, SlotName(g, betId) + " Bet", "You may not buy this bet.");
    return;
  }
  const int placeId = betId;
  const int buyId = placeId + (bet::kBuyBase - bet::kPlaceBase);
  if (IsCalled(g.BetStatus[placeId]) || IsCalled(g.BetStatus[buyId])) g.BetStatus.Set(buyId, g.BetStatus[placeId]);

  const Currency amount = g.BetAmount[placeId];
  g.BetChange = -amount;
  PlaceBet(g, placeId);
  g.Ui->RedrawBet(placeId);

  // The money moves from one spot to the other as it is: no adjustment
  // reshapes it, and what a limit cuts stays in the rack with its notice.
  betId = buyId;
  g.BetChange = amount - g.BetAmount[buyId];
  const int32_t adjustMode = g.AutoAdjustMode;
  g.AutoAdjustMode = 0;
  PlaceBetOnTable(g, buyId);
  g.AutoAdjustMode = adjustMode;
}

void ClickBet(Game& g, int betId, bool shiftHeld) {
  if (shiftHeld) {
    if (betId == bet::kDontPassOdds && g.BetAmount[betId] == 0) betId = bet::kDontPass;
    RemoveBet(g, betId);
    return;
  }
  const int tool = g.ClickTool;
  if (tool == kToolBuy) return BuyPlaceBet(g, betId);
  if (tool == kToolCallOff || tool == kToolCallOn) return CallBet(g, betId, tool);
  Currency chips;
  if (tool >= kToolFirstChip && tool <= kToolLastChip)
    chips = g.BetAmount[bet::ChipSlot(tool - kToolFirstChip + 1)];
  else if (tool >= kToolFirstStack && tool <= kToolLastStack)
    chips = g.BetAmount[g.TrayStack[tool - kToolFirstStack + 1]];
  else return;
  g.BetChange = chips;
  PlaceBetOnTable(g, betId);
}

std::optional<Currency> ConvertCurrencyText(const std::string& text) {
  std::string digits;
  for (char c : text)
    if (c != '$' && c != ' ') digits += c;
  Currency amount;
  if (digits.empty() || !ParseCurrency(digits, amount)) return std::nullopt;
  return amount;
}

bool CommitEnteredBet(Game& g, int betId, const std::string& text) {
  const std::optional<Currency> amount = ConvertCurrencyText(text);
  if (!amount) return false;
  if (*amount != g.BetAmount[betId]) {
    g.BetChange = *amount - g.BetAmount[betId];
    PlaceBetOnTable(g, betId);
  }
  return true;
}
