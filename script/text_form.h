#pragma once
// The text form of a script: one script line per text line, in the
// catalogue's own words, so a strategy can be read and written by hand.
//
//   When
//     A point is established on any point
//   then
//     Bet $10 on Pass Line Odds
//
// Start Conditions, Start Actions, labels and comments stand at column 0,
// Condition and Action lines two blanks in. A field that the words do not
// carry (a Spare, a Text that is not the rendered one, a code with no words)
// follows the words in braces: `Bet $10 on Field {Spare1=3 Text="odd"}`.
// Writing and reading give back every field exactly.

#include <string>
#include <vector>

#include "engine/script.h"

// One line in the text form, without a line end.
std::string LineToText(const ScriptLine& line);
// The whole script, every line ended by "\n".
std::string ScriptToText(const Script& script);

// Reads the lines of a text; blank lines and lines starting with "#" are
// notes, not script lines. On success the lines replace `lines`; on the
// first fault `lines` is untouched and `error` says where and what fits:
//   line 4: unknown word "Plase"; expected one of "Pass Line", ...
bool ReadScriptText(const std::string& text, std::vector<ScriptLine>& lines, std::string& error);

// The same for a whole script: its Flags are rebuilt from the new lines.
bool ReadScriptText(const std::string& text, Script& script, std::string& error);

// The reading of one text line (no notes). Throws TextFormError.
ScriptLine ParseTextLine(const std::string& textLine);

// Every field a run or a file keeps: all but the editor's marks.
bool SameScriptFields(const ScriptLine& a, const ScriptLine& b);
