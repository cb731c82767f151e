#include "sim/between_rolls.h"

#include <algorithm>

#include "engine/game.h"
#include "stats/bankroll_graph.h"

void ApplyBetweenRolls(Game& g, const BetweenRolls& control) {
  switch (control.Kind) {
    case BetweenRollsKind::Throttle:
      g.ThrottleValue = std::clamp(control.Value, 0, kThrottleSlowest);
      break;
    case BetweenRollsKind::GraphWindow:
      MoveGraphWindow(g, control.Value != 0);
      break;
    case BetweenRollsKind::GraphScale:
      StepGraphScale(g, control.Value != 0);
      break;
  }
}
