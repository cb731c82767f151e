#pragma once
// One pass over the Auto-Bet script. The snapshots the next pass compares
// with are the roll's own (TakeScriptSnapshots, engine/roll.h).

#include <cstdint>
#include <string>
#include <vector>

#include "engine/game.h"

// The most lines one pass may run. A pass that runs more loops without end
// (Go to or GoSub cycles) and is ended with "Auto-Bet Abort", naming the
// lines it kept running; no script that ends needs a thousandth of it.
constexpr int64_t kMostLinesPerPass = 1'000'000;

void RunAutoBet(Game& g);

// Line numbers in rising order as a phrase: "lines 3 to 5, 9 and 12".
std::string LineListText(const std::vector<int>& lines);

// When the script has changed (InitPending) and Auto-Bet is on with at least
// one line, offers one cycle before the next roll. Clears InitPending.
void OfferInitialCycle(Game& g);
