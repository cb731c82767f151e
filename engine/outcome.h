#pragma once

#include <cstdint>

// How a decision goes for one bet. Odds are decided apart from flat bets
// because odds that are off go back to the player on their parent's
// decision, where a flat bet that is off stands untouched.
enum class Outcome : int8_t { OddsLoss = -2, Loss = -1, Win = 1, OddsWin = 2 };
constexpr bool IsWin(Outcome o) { return o == Outcome::Win || o == Outcome::OddsWin; }
constexpr bool IsOddsDecision(Outcome o) { return o == Outcome::OddsWin || o == Outcome::OddsLoss; }
