#pragma once
// The bankroll graph's data: the bankroll after every roll, 525 points to a
// window with the window before kept for the moving average, and the scale
// and top line the window is drawn at. Collected whether or not it is shown.

#include <cstdint>
#include <string>

#include "dice/money.h"

struct Game;

namespace graph {
constexpr int kWindowPoints = 525;
constexpr int kPreviousWindow = 525;  // element i of the last window is at i + 525
constexpr int kWindowRows = 300;      // a window is this many scale units high
constexpr int kGridRows = 50;         // grid lines, and the steps the window moves by
constexpr int kSpreadRows = 250;      // an automatic scale keeps high - low within this
}  // namespace graph

// One point per roll, called by the roll cycle after the bankroll has settled.
void RecordBankrollPoint(Game& g);

// A new game: no points, high and low at the bankroll, the window placed anew.
void ClearBankrollGraph(Game& g);

// Places the window (GraphTop) and, on an automatic scale, widens the scale
// until the window's high and low fit. newWindow: a window is starting, when
// a snap-back scale returns to ManualScale first.
void ResetBankrollGraph(Game& g, bool newWindow);

// The average of `rolls` points back from window point `position` (1..525),
// reaching into the previous window when the game has one; 0 rolls: every
// roll of the game up to that point. Fewer points than asked for are
// averaged over the points there are.
Currency MovingAverage(const Game& g, int position, int rolls);

// mnuSetAverage: above 525 is taken as 525, a negative as 0; the averages
// of the whole window are worked out again.
void SetMovingAverageRolls(Game& g, int32_t rolls);
// "All rolls moving average" or "100 roll moving average".
std::string MovingAverageCaption(int32_t rolls);

// The scale ladder 0.01, 0.02, 0.04, 0.1 ... 40,000, 100,000. A scale off the
// ladder, or at its end, is returned unchanged.
Currency LargerScale(Currency scale);
Currency SmallerScale(Currency scale);

// The manual controls: the window one grid step up or down, the scale one
// step of the ladder (which becomes the scale snap-back returns to).
void MoveGraphWindow(Game& g, bool up);
void StepGraphScale(Game& g, bool larger);

// The money at the bottom line of the window.
Currency GraphBottom(const Game& g);

// The two reference lines' points, when both fall on points drawn.
struct RefLineDifferences {
  bool Valid = false;
  int32_t Rolls = 0;  // from the first line to the second
  Currency Bankroll;  // the second line's bankroll less the first's
};
RefLineDifferences ReferenceLineDifferences(const Game& g);

// Roll numbers at the left and right edges of the window (lblRollsLeft,
// lblRollsRight).
int64_t WindowFirstRoll(const Game& g);
int64_t WindowLastRoll(const Game& g);
