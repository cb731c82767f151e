#pragma once
// The rules of adding to and taking from a bet that depend on what kind of
// bet it is: contract bets, the Come boxes and the odds.

#include "dice/money.h"
#include "engine/catalogue.h"

struct Game;

struct ContractOutcome {
  Currency change;     // the change the rules allow
  bool ended = false;  // a refusal ended the placement: nothing is to be made
};

// Refusals are left in g.MsgText and g.MsgTitle and shown at once when the
// notice mask allows. While g.MovingBet is set the rules of adding are
// lifted; the rules of taking down always hold.
ContractOutcome ApplyContractRules(Game& g, int betId, Currency change);

// Whether any of those rules reads the bet: the Come and Don't Come numbers,
// all odds, and the line bets and boxes. Place, Buy, Lay, the Field and the
// propositions take any change.
constexpr bool HasContractRules(int betId) {
  return bet::InRange(betId, bet::kDontComeBase, bet::kComeOddsBase + 5) ||
         bet::InRange(betId, bet::kPassLine, bet::kDontCome);
}

// Whether adding to the bet now meets none of the rules above, so that the
// change stands as asked and nothing is said. False where a rule may have a
// say (it need not refuse).
bool AddingIsFree(const Game& g, int betId);

// Whether the bet is held at its committed amount now: a Pass Line with a
// point on, or a Come bet on its number.
bool HeldByContract(const Game& g, int betId);
