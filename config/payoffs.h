#pragma once
// The payoff tables: defaults, Field presets, the line odds that follow the
// point, cell editing and validation.

#include <string>

#include "engine/money.h"

struct Game;

void RestoreDefaultPayoffs(Game& g);
// Field presets in menu order, 0..11 ("&Field w/ 2x on Two and Twelve" first).
constexpr int kFieldPresetCount = 12;
void SetFieldPreset(Game& g, int preset);
const char* FieldPresetCaption(int preset);
// Records 44 and 47 take the Come Odds and Don't Come Odds rows of the point.
void SyncOddsPayoffs(Game& g);
// The grid label of a payoff row ("Pass/Come 4", "DP/DC 6 Odds", a bet's name).
std::string PayoffRowLabel(const Game& g, int betId);
// The last step of ValidateConfiguration: false, after one message, at the
// first fault.
bool ValidatePayoffs(Game& g);
