#pragma once
// The families of Action verbs. Each returns true when the line's verb is
// one of its own and has been carried out; CarryOutAction tries them in turn.

#include "engine/game.h"
#include "script/pass_state.h"
#include "engine/script_line.h"
#include "script/target_range.h"

// Bet, Add, Subtract, Multiply, Divide (10..58), Round (109), Get input (83).
bool CarryOutAmountVerb(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range);
// Buy, Call OFF/ON, Reset wins / losses, Reset rolls (70..74) per slot, and Stop (75).
bool CarryOutTableVerb(Game& g, const ScriptLine& line, const TargetRange& range);
// Show message and Yes/No question lines (79, 82, 84, 85).
bool CarryOutMessageVerb(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range);
// Flags, Chip-Stack names, Auto-Play settings, ATM, RNG, sound, Show Steps, Reset table.
bool CarryOutSettingVerb(Game& g, PassState& pass, const ScriptLine& line);
// The output file and the Probability File.
bool CarryOutFileVerb(Game& g, const ScriptLine& line);
