#pragma once
// Rules and limits: vig, configuration checks and the guarded settings.

#include "engine/money.h"

struct Game;

// Vig of a Buy (37..42) or Lay (1..6) of `amount`, rounded to the smallest
// check by the table's mode and never below one check once charged.
Currency FigureBuyVig(const Game& g, int betId, Currency amount);
Currency FigureLayVig(const Game& g, int betId, Currency amount);

// Checks every setting; false, after one message, at the first fault.
bool ValidateConfiguration(Game& g);
// BuyVigOnBet and LayVigOnBet anew from the bets on the table, then the total.
void RefigureVigs(Game& g);

enum class VigRule { RoundLayVig, RoundBuyVig, ChargeAllLay, ChargeAllBuy };
// Changes one vig rule; refused (old value back, message shown, false) when
// up-front vig would then exceed a bankroll that may not go negative.
bool ChangeVigRule(Game& g, VigRule rule, int32_t value);
// Sets AllowNegativeBankroll; un-checking is refused with a message while
// the bankroll is negative or below the bets.
bool SetAllowNegativeBankroll(Game& g, bool allow);
