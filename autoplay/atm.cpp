#include "autoplay/atm.h"

#include <algorithm>
#include <string>

#include "engine/game.h"
#include "engine/notices.h"

namespace {

void TellCut(Game& g, Currency requested, Currency allowed, const std::string& why) {
  if (!g.ConfigScreenActive && !NoticeAllowed(g, kNoticeRefusals)) return;
  std::string text = "Requested amount:  " + Dollars(requested) + kBreak + "Allowed amount:  " + Dollars(allowed) +
                     kTwoBreaks + why;
  ShowNotice(g, kNoticeRefusals, "Dicemill", text);
}

const std::string kNotAllowed = "The full amount of this transaction was not allowed since it would have ";

std::string AgainstTheBets(const Game& g) {
  const bool noBets = g.TotalOnTable == 0;
  std::string text = kNotAllowed;
  text += noBets ? "resulted in a negative current bankroll."
                 : "caused your current bankroll to drop below the amount of your current bets.";
  text += kTwoBreaks;
  text += "You can deposit more by checking the box marked, \"Allow negative bankroll amounts\"";
  if (!g.ConfigScreenActive) text += " on the Configuration screen";
  text += noBets ? "." : ", and/or by reducing the amount of your current bets.";
  return text;
}

Currency Withdraw(Game& g, Currency amount) {
  const Currency limit = BankLimit;
  if (g.Bankroll() + amount <= limit) return amount;
  const Currency allowed = std::max(limit - g.Bankroll(), Currency{});
  TellCut(g, amount, allowed,
          kNotAllowed + "caused the current bankroll to exceed the bank limit of " + Dollars(limit));
  return allowed;
}

Currency Deposit(Game& g, Currency amount) {
  const Currency limit = BankLimit;
  if (!g.AllowNegativeBankroll && g.Bankroll() - g.TotalOnTable - amount < 0) {
    const Currency allowed = std::max(g.Bankroll() - g.TotalOnTable, Currency{});
    TellCut(g, amount, allowed, AgainstTheBets(g));
    return allowed;
  }
  if (g.Bankroll() - amount < -limit) {
    const Currency allowed = std::max(limit + g.Bankroll(), Currency{});
    TellCut(g, amount, allowed,
            kNotAllowed + "caused your current bankroll to exceed the bank limit of " + Dollars(-limit));
    return allowed;
  }
  return amount;
}

}  // namespace

Currency Atm(Game& g, int action, Currency amount) {
  if (amount < 0 || (action != kAtmWithdraw && action != kAtmDeposit)) return Currency{};
  const Currency allowed = action == kAtmWithdraw ? Withdraw(g, amount) : -Deposit(g, amount);
  g.AmountInvested += allowed;
  g.Bankroll() += allowed;
  if (allowed != 0) g.GameChanged = true;
  return action == kAtmWithdraw ? allowed : -allowed;
}

Currency NetResult(const Game& g) { return g.Bankroll() - g.AmountInvested; }
