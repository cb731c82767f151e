#pragma once
// The hand counters (HandStats) kept by the line decisions of a roll.

struct Game;

namespace hand {
// What each HandStats counter counts. A "win" or "loss" is a line decision,
// come-out rolls included; a hand ends only on a seven-out.
enum Stat : int {
  kRolls,               // rolls of the present hand (shooter)
  kWins,                // line wins of the present hand
  kHands,               // hands ended by a seven-out
  kMostRolls,           // most rolls in a hand
  kMostWins,            // most line wins in a hand
  kRollsOfHands,        // sum of rolls over finished hands
  kWinsOfHands,         // sum of line wins over finished hands
  kPointsEstablished,
  kPointsMade,
  kComeOutWins,         // 7 or 11 on the come-out
  kAllWins,
  kSevenOuts,
  kComeOutLosses,       // 2, 3 or 12 on the come-out
  kAllLosses,
  kComeOutRolls,
  kLossesInRow,         // line losses since the last seven-out
  kMostLossesInRow,
  kLastHandRolls,       // the last finished hand's kRolls
  kLastHandWins,        // ... its kWins
  kLastHandLossesInRow, // ... its kLossesInRow
  kCount
};
}  // namespace hand

// A line win: the Pass Line wins, by a come-out natural or a point made.
void LineWin(Game& g);
// A line loss: a come-out crap, or a seven-out, which ends the hand.
void LineLoss(Game& g);
// A come-out crap on the barred number.
void LineBarred(Game& g);
