#include "stats/advantage_row.h"

#include <cmath>

#include "engine/game.h"
#include "stats/advantage.h"

namespace {

// A figure as a percentage; the dust of rounding on a fair bet shows as 0,
// so that a fair bet is never drawn as a losing one.
double Percent(double fraction) { return std::fabs(fraction) < 1e-12 ? 0 : 100 * fraction; }

}  // namespace

AdvantageRow AdvantageRowOf(const Game& g, int betId) {
  const Advantage a = FigureAdvantage(g, betId);
  const double rate = g.SimRollRate.ToDouble();  // rolls per hour
  return {Percent(a.EvPerRoll),
          Percent(std::sqrt(a.VarPerRoll)),
          Percent(a.EvPerDecision),
          Percent(std::sqrt(a.VarPerDecision)),
          Percent(a.EvPerRoll * rate),
          a.RollsPerDecision,
          rate > 0 ? a.RollsPerDecision / rate * 60 : 0};
}
