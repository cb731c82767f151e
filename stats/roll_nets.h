#pragma once
// What one roll does to a bet that the roll can settle by itself: the bets on
// a number (worked as if on every roll), the hard ways, Big 6 and 8, and the
// one-roll bets. Results are per unit of bet, or of bet plus vig where the
// vig is paid up front.

#include "stats/outcome_table.h"

struct Game;
struct PayoffRecord;

// Win / Per of a record; 0 for a record that pays per nothing.
double RatioOf(const PayoffRecord& p);

// The net of a winning Lay: the vig is the rate on what it wins, taken from
// the win, or, paid up front, out of the unit of bet plus vig.
double LayWinNet(const Game& g, int layId);
// The net of a winning Buy: the vig is the rate on the bet, taken from the
// win, or, paid up front, out of the unit of bet plus vig.
double BuyWinNet(const Game& g, int buyId);

// Whether a bet is settled roll by roll: every bet but the line bets, the
// Come and Don't Come boxes and, with no point on, the line odds.
bool SettlesRollByRoll(const Game& g, int betId);

// The net of the bet on the dice: its own record or its vig model on a win,
// -1 on a loss, 0 where the roll decides nothing. Pass Line Odds and Don't
// Pass Odds read the point that stands; with none they decide nothing.
double RollNet(const Game& g, int betId, int die1, int die2);

// The one-roll table of such a bet on the dice of the game.
OutcomeTable RollOutcomes(const Game& g, const PairProbabilities& p, int betId);
