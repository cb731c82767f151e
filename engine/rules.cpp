// The configuration check and the settings that guard the bankroll.

#include "engine/rules.h"

#include <string>

#include "engine/payoffs.h"
#include "engine/game.h"
#include "engine/notices.h"

namespace {

const std::string kBr = kBreak;

// Configuration dialogs are the player's own doing: they need no notice bit,
// only a visible table.
void Tell(Game& g, const std::string& title, const std::string& text) {
  if (g.Visible()) ShowMessage(g, title, text);
}

ConfigCheck Fault(Game& g, const std::string& title, const std::string& text, const std::string& tab,
                  const std::string& control, int controlIndex = -1) {
  Tell(g, title, text);
  return ConfigCheck{false, tab, control, controlIndex};
}

ConfigCheck CheckChips(Game& g) {
  const Currency smallest = g.BetAmount[bet::kFirstChip];
  for (int slot = bet::kFirstChip; slot <= bet::kLastChip; ++slot) {
    const Currency value = g.BetAmount[slot];
    const int index = slot - bet::kFirstChip;
    std::string text;
    if (value <= 0) {
      text = "Check values must be greater than zero.";
    } else if (slot > bet::kFirstChip && value < g.BetAmount[slot - 1]) {
      text = "Checks must be listed in ascending order with the " + kBr +
             "smallest valued check in the leftmost position.";
    } else if (value.raw % smallest.raw != 0) {
      text = "All checks must be wholly divisible by the smallest check.";
    }
    if (!text.empty()) return Fault(g, "Check Values", text, "Checks/Dice", "txtDenomination", index);
  }
  return {};
}

bool VigRuleIsLay(VigRule rule) { return rule == VigRule::RoundLayVig || rule == VigRule::ChargeAllLay; }

int32_t VigRuleValue(const Game& g, VigRule rule) {
  switch (rule) {
    case VigRule::RoundLayVig: return g.RoundLayVig;
    case VigRule::RoundBuyVig: return g.RoundBuyVig;
    case VigRule::ChargeAllLay: return g.ChargeAllLay ? kTrue : 0;
    case VigRule::ChargeAllBuy: return g.ChargeAllBuy ? kTrue : 0;
  }
  return 0;
}

void SetVigRuleValue(Game& g, VigRule rule, int32_t value) {
  const int32_t mode = value >= 0 && value <= 2 ? value : 0;
  switch (rule) {
    case VigRule::RoundLayVig: g.RoundLayVig = mode; break;
    case VigRule::RoundBuyVig: g.RoundBuyVig = mode; break;
    case VigRule::ChargeAllLay: g.ChargeAllLay = value != 0; break;
    case VigRule::ChargeAllBuy: g.ChargeAllBuy = value != 0; break;
  }
}

std::string VigChangeRefusal() {
  return "You're not allowed to change this setting at this time since the added up-front vig will cause the "
         "amount " + kBr +
         "of your current bets to exceed your current bankroll." + kBr +
         "You can remedy this by doing one or more of the following:" + kBr +
         " -- Check \"Allow negative bankroll amounts\", or" + kBr +
         " -- Make a withdrawal from the ATM, or" + kBr +
         " -- Win some more money, or" + kBr +
         " -- Reduce the amount of your current bets.";
}

}  // namespace

ConfigCheck ValidateConfiguration(Game& g) {
  if (ConfigCheck chips = CheckChips(g); !chips) return chips;
  if (g.TableMinimum < g.SmallestChip())
    return Fault(g, "Configuration Limits",
                 "The minimum bet cannot be less than" + kBr + "the smallest check denomination of " +
                     FormatNumberWithCommas(g.SmallestChip()),
                 "Bets", "txtMinPlacardBet");
  if (g.TableMaximum < g.TableMinimum)
    return Fault(g, "Configuration Limits",
                 "The maximum bet must be greater than" + kBr + "or equal to the minimum bet.", "Bets",
                 "txtMaxPlacardBet");
  // The sim roll rate belongs here, before the payoffs, once that setting exists.
  // The grid of bets and the Field's grid beside it: the row is the one to show.
  if (PayoffFault fault; !ValidatePayoffs(g, &fault))
    return ConfigCheck{false, "Payoffs", fault.table == PayoffTable::Bets ? "picPayoffs" : "picFieldPayoffs", fault.row};
  return {};
}

bool ChangeVigRule(Game& g, VigRule rule, int32_t value) {
  const int32_t old = VigRuleValue(g, rule);
  SetVigRuleValue(g, rule, value);
  RefigureVigs(g);
  if (g.AllowNegativeBankroll || g.Bankroll() - g.TotalOnTable >= 0) return true;
  Tell(g, VigRuleIsLay(rule) ? "Lay Bet Vig" : "Buy Bet Vig", VigChangeRefusal());
  SetVigRuleValue(g, rule, old);
  RefigureVigs(g);
  return false;
}

bool SetAllowNegativeBankroll(Game& g, bool allow) {
  if (allow) {
    g.AllowNegativeBankroll = true;
    return true;
  }
  if (g.Bankroll() < 0) {
    Tell(g, "Bankroll",
         "Before you can un-check this box you must first establish a non-negative bankroll by either:" + kBr +
             " -- Winning some more money, or" + kBr + " -- Making a withdrawal from the ATM.");
    return false;
  }
  if (g.Bankroll() < g.TotalOnTable) {
    Tell(g, "Bankroll",
         "The amount of your current bets exceeds your current bankroll.  "
         "Therefore, before you can un-check this box you must either:" + kBr +
             " -- Reduce the amount of your current bets, or " + kBr + " -- Make at least a " +
             Dollars(g.TotalOnTable - g.Bankroll()) + " withdrawal from the ATM.");
    return false;
  }
  g.AllowNegativeBankroll = false;
  return true;
}
