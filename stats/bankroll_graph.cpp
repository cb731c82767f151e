#include "stats/bankroll_graph.h"

#include <array>
#include <cmath>

#include "engine/game.h"
#include "stats/rounded_quotient.h"

namespace {

using graph::kGridRows;
using graph::kPreviousWindow;
using graph::kSpreadRows;
using graph::kWindowPoints;
using graph::kWindowRows;

// 1, 2 and 4 times the powers of ten from 0.01 up, ending at 100,000; in
// ten-thousandths.
constexpr std::array<int64_t, 22> MakeLadder() {
  std::array<int64_t, 22> ladder{};
  int64_t power = 100;  // 0.01
  int i = 0;
  for (int k = -2; k <= 4; ++k, power *= 10) {
    ladder[i++] = power;
    ladder[i++] = 2 * power;
    ladder[i++] = 4 * power;
  }
  ladder[i] = power;
  return ladder;
}
constexpr std::array<int64_t, 22> kLadder = MakeLadder();

int LadderStep(Currency scale) {
  for (int i = 0; i < static_cast<int>(kLadder.size()); ++i)
    if (kLadder[i] == scale.raw) return i;
  return -1;
}

// A scale that is not above zero would make the window no height at all.
Currency UsableScale(Currency scale) { return scale.raw > 0 ? scale : Currency(1); }

// Rounds `value` to the nearest grid step of `scale`, ties to even.
Currency SnapToGrid(Currency value, Currency scale) {
  const int64_t step = UsableScale(scale).raw * kGridRows;
  const double steps = std::nearbyint(static_cast<double>(value.raw) / static_cast<double>(step));
  return Currency::FromRaw(static_cast<int64_t>(steps) * step);
}

// How many grid steps cover `gap` (a positive amount), rounded up.
int64_t StepsToCover(Currency gap, Currency scale) {
  const int64_t step = UsableScale(scale).raw * kGridRows;
  return (gap.raw + step - 1) / step;
}

bool HasPreviousWindow(const Game& g) { return g.GraphBankroll[0].raw > 0; }

// Where the manual window centres: the bankroll now, or with reference lines
// the point under a line, or between the two lines' points.
Currency ManualCentre(const Game& g) {
  if (!g.DisplayRefLines) return g.Bankroll();
  Currency sum;
  int lines = 0;
  for (int32_t position : g.RefLinePosition) {
    if (position < 1 || position > g.GraphCount) continue;
    sum += g.GraphBankroll[position];
    ++lines;
  }
  return lines == 0 ? g.Bankroll() : RoundedQuotient(sum, lines);
}

void WidenScale(Game& g) {
  const Currency spread = g.GraphHigh - g.GraphLow;
  while (spread > g.GraphScale * kSpreadRows) {
    const Currency wider = LargerScale(g.GraphScale);
    if (wider == g.GraphScale) break;  // off the ladder or at its top
    g.GraphScale = wider;
  }
}

// Places the window so that the high and the low both lie in it.
void PlaceAgainstHighAndLow(Game& g) {
  const Currency step = UsableScale(g.GraphScale) * kGridRows;
  g.GraphTop = SnapToGrid(g.GraphHigh, g.GraphScale);
  if (g.GraphHigh > g.GraphTop) g.GraphTop += step * StepsToCover(g.GraphHigh - g.GraphTop, g.GraphScale);
  const Currency bottom = GraphBottom(g);
  if (g.GraphLow < bottom) g.GraphTop -= step * StepsToCover(bottom - g.GraphLow, g.GraphScale);
}

bool OffWindow(const Game& g, Currency bankroll) { return bankroll > g.GraphTop || bankroll < GraphBottom(g); }

void StartNewWindow(Game& g) {
  g.GraphCount = 0;
  g.GraphBankroll[0] = Currency::FromRaw((g.RollCounts[0] - 1) * Currency::kScale);
  g.GraphHigh = g.GraphLow = g.Bankroll();
  for (int i = 1; i <= kWindowPoints; ++i) g.GraphBankroll[i + kPreviousWindow] = g.GraphBankroll[i];
  ResetBankrollGraph(g, true);
}

}  // namespace

void RecordBankrollPoint(Game& g) {
  if (g.GraphCount >= kWindowPoints) StartNewWindow(g);
  const Currency bankroll = g.Bankroll();
  if (bankroll > g.GraphHigh) g.GraphHigh = bankroll;
  if (bankroll < g.GraphLow) g.GraphLow = bankroll;
  g.GraphBankroll[++g.GraphCount] = bankroll;
  if (g.AutoAdjustType > 0 && OffWindow(g, bankroll)) ResetBankrollGraph(g, false);
  if (g.DisplayAverage) g.GraphAverage[g.GraphCount] = MovingAverage(g, g.GraphCount, g.MovingAverageRolls);
  if (g.GraphCount == kWindowPoints && g.AutoPrint) g.Ui->GraphWindowFilled();
}

void ClearBankrollGraph(Game& g) {
  g.GraphBankroll.fill(0);
  g.GraphAverage.fill(0);
  g.GraphCount = 0;
  g.GraphHigh = g.GraphLow = g.Bankroll();
  ResetBankrollGraph(g, true);
}

void ResetBankrollGraph(Game& g, bool newWindow) {
  if (g.AutoAdjustType == 2 && newWindow) g.GraphScale = g.ManualScale;
  if (g.AutoAdjustType > 0) {
    WidenScale(g);
    PlaceAgainstHighAndLow(g);
    return;
  }
  g.GraphTop = SnapToGrid(ManualCentre(g), g.GraphScale);
}

Currency MovingAverage(const Game& g, int position, int rolls) {
  if (position < 1 || position > g.GraphCount) return 0;
  if (rolls > kWindowPoints) rolls = kWindowPoints;
  if (rolls <= 0) {
    // Every roll up to this point: the game's running sum less the points after it.
    Currency sum = g.BankrollSum;
    for (int p = position + 1; p <= g.GraphCount; ++p) sum -= g.GraphBankroll[p];
    return RoundedQuotient(sum, int64_t{g.RollCounts[0]} - (g.GraphCount - position));
  }
  Currency sum;
  int taken = 0;
  for (int p = position; p >= 1 && taken < rolls; --p, ++taken) sum += g.GraphBankroll[p];
  if (HasPreviousWindow(g))
    for (int p = kPreviousWindow + kWindowPoints; p > kPreviousWindow && taken < rolls; --p, ++taken)
      sum += g.GraphBankroll[p];
  return RoundedQuotient(sum, taken);
}

void SetMovingAverageRolls(Game& g, int32_t rolls) {
  g.MovingAverageRolls = rolls > kWindowPoints ? kWindowPoints : rolls < 0 ? 0 : rolls;
  for (int p = 1; p <= g.GraphCount; ++p) g.GraphAverage[p] = MovingAverage(g, p, g.MovingAverageRolls);
}

std::string MovingAverageCaption(int32_t rolls) {
  return rolls <= 0 ? "All rolls moving average" : std::to_string(rolls) + " roll moving average";
}

Currency LargerScale(Currency scale) {
  const int step = LadderStep(scale);
  if (step < 0 || step + 1 >= static_cast<int>(kLadder.size())) return scale;
  return Currency::FromRaw(kLadder[step + 1]);
}

Currency SmallerScale(Currency scale) {
  const int step = LadderStep(scale);
  if (step <= 0) return scale;
  return Currency::FromRaw(kLadder[step - 1]);
}

void MoveGraphWindow(Game& g, bool up) {
  const Currency step = UsableScale(g.GraphScale) * kGridRows;
  g.GraphTop += up ? step : -step;
}

void StepGraphScale(Game& g, bool larger) {
  g.GraphScale = larger ? LargerScale(g.GraphScale) : SmallerScale(g.GraphScale);
  g.ManualScale = g.GraphScale;
  ResetBankrollGraph(g, false);
}

Currency GraphBottom(const Game& g) { return g.GraphTop - UsableScale(g.GraphScale) * kWindowRows; }

RefLineDifferences ReferenceLineDifferences(const Game& g) {
  RefLineDifferences d;
  const int32_t first = g.RefLinePosition[0], second = g.RefLinePosition[1];
  if (first < 1 || second < 1 || first > g.GraphCount || second > g.GraphCount) return d;
  d.Valid = true;
  d.Rolls = second - first;
  d.Bankroll = g.GraphBankroll[second] - g.GraphBankroll[first];
  return d;
}

int64_t WindowFirstRoll(const Game& g) { return g.GraphBankroll[0].raw / Currency::kScale; }
int64_t WindowLastRoll(const Game& g) { return WindowFirstRoll(g) + kWindowPoints; }
