#pragma once
// The phantom one-unit wagers of a run, counted by throw instead of booked
// one by one. While the terms of the units (payoffs, vig, Put bets, the bar)
// and the bets that work at each point hold, the units of a throw are a
// function of its dice and point, so a throw adds one to its key (and to the
// Come and Don't Come units it decides); the fold books every key's units
// into the result cells at once, each as many times as its throw came, in
// the order the throws last came.

#include "engine/game.h"

// The dice are counted: the throw's units will be counted whole unless the
// game books in full. Anything the units depend on that changed since the
// last throw folds what was counted on the old terms first.
void OpenThrow(Game& g);
// The throw is settled: counts it, when it was counted whole.
void CountThrow(Game& g);
// The top of a roll: the latest throw's units are no longer the last roll's.
void AgeLatestThrow(Game& g);
// Books everything counted into the result cells and empties the counts.
void FoldPhantoms(Game& g);
