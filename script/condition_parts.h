#pragma once
// The families of Condition subjects, each evaluated on its own. Every part
// sets pass.BlockTrue and pass.LineJustNow as EvaluateCondition does.

#include <string>
#include <string_view>

#include "engine/game.h"
#include "script/pass_state.h"
#include "engine/script_line.h"

// Bets, bet groups, the bankroll and its average, Chip-Stacks and the
// shooter's-point bets: the subjects that go through the bet rule.
bool IsBetSubject(int subject);
void EvaluateBetCondition(const Game& g, PassState& pass, const ScriptLine& line, Currency amount);

// The dice events, 2001..2090.
bool IsDiceEvent(int subject);
void EvaluateDiceEvent(const Game& g, PassState& pass, const ScriptLine& line);

// A name with its surrounding blanks off, without copying.
std::string_view TrimmedView(const std::string& s);
