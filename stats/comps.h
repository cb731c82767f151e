#pragma once
// The comps a player has earned: what the house credits back of the loss it
// expects from the bets played, whatever the dice actually did.

#include <array>

#include "dice/money.h"

struct Game;

namespace comps {

// The families a player may have earn comps, as CompBetsMask numbers them.
enum class Family { None = 0, LineAndCome = 1, PlaceBuyLayField = 2, Proposition = 3 };
constexpr int kFamilies = 3;
// The captions the Configure window lists them under, by family 1..3.
constexpr std::array<const char*, kFamilies> kFamilyCaptions = {
    "Line and Come bets (with their odds)", "Place, Buy, Lay, Field and Big 6/8",
    "Proposition bets (hard ways, one-roll bets, Hop bets)"};

// CompBase.
enum class Base { PerDecision = 0, PerRoll = 1 };

// The family of table bet 1..83; None for any other slot.
Family FamilyOf(int betId);

// The house edge charged on one unit decided on `betId`: the negated EV per
// decision or per roll. A Come or Don't Come bet decided on its number is
// charged at the edge of the box it was made in, since the player chose that
// bet and not the number it travelled to. An edge in the player's favour
// counts as no loss.
double HouseEdge(const Game& g, int betId, Base base);

// Comp value = rate x sum, over the actual results of the earning families,
// of amount wagered x house edge; in cents. `g` is only borrowed: with true
// probabilities asked for, the skewed dice are set aside while figuring.
Currency CompValue(Game& g);

}  // namespace comps
