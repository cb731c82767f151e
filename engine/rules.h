#pragma once
// Rules and limits: vig, configuration checks and the guarded settings.

#include <cstdint>
#include <string>

#include "dice/money.h"

struct Game;

// Vig of a Buy (37..42) or Lay (1..6) of `amount`, rounded to the smallest
// check by the table's mode (0 normally, a half going down; 1 down; 2 up) and
// never below one check once charged. 0 for any other bet, a zero rate or a
// zero amount; a Lay vig that figures negative is 0.
Currency FigureBuyVig(const Game& g, int betId, Currency amount);
Currency FigureLayVig(const Game& g, int betId, Currency amount);
// v rounded in units of `chip` by `mode`, then raised to one chip if below.
Currency RoundVig(Currency v, Currency chip, int32_t mode);

// The outcome of ValidateConfiguration. On a fault it names the tab to make
// current and the control to select, for a screen to act on.
struct ConfigCheck {
  bool ok = true;
  std::string tab;        // "Checks/Dice", "Bets" or "Payoffs"
  std::string control;    // "txtDenomination", "txtMinPlacardBet", ...; may be empty
  // The element of a control array (txtDenomination 0..4), or the row of a
  // payoff grid (picPayoffs 1..75, picFieldPayoffs 1..21).
  int controlIndex = -1;
  // Callers that only want pass or fail read it as a bool.
  operator bool() const { return ok; }
};

// Checks every setting; stops, after one message, at the first fault.
ConfigCheck ValidateConfiguration(Game& g);
// BuyVigOnBet and LayVigOnBet anew from the bets on the table, then the total.
void RefigureVigs(Game& g);

enum class VigRule { RoundLayVig, RoundBuyVig, ChargeAllLay, ChargeAllBuy };
// Changes one vig rule; refused (old value back, message shown, false) when
// up-front vig would then exceed a bankroll that may not go negative. A
// rounding mode outside 0..2 is taken as 0; for the Charge rules any
// non-zero value is true.
bool ChangeVigRule(Game& g, VigRule rule, int32_t value);
// Sets AllowNegativeBankroll; un-checking is refused with a message while
// the bankroll is negative or below the bets.
bool SetAllowNegativeBankroll(Game& g, bool allow);
