#pragma once
// What the words of the text form are, shared by its reader and writer:
// which subjects take which comparison, what each verb is followed by.

#include <string>

#include "script/catalogue.h"
#include "engine/script_line.h"

namespace text_form {

constexpr int kChipStack = 1600, kChipStackRef = 1601;
constexpr bool TakesNumber(int code) { return code == kChipStack || code == kChipStackRef; }

enum class SubjectKind { Bare, Point, Decided, Flag, AnyFlag, AllFlags, Compared };
SubjectKind SubjectKindOf(int subject);

enum class VerbKind {
  Operator,     // Bet, Add, Subtract, Multiply by, Divide by: codes 10..58
  Name,         // followed by a quoted name
  SetFlag,      // a quoted name, then "to True" or "to False"
  SetAllFlags,  // "to True" or "to False"
  NameStack,    // a Chip-Stack number, then a quoted name
  Source,       // an "of" source
  Target,       // a "to" target
  ResetRolls,   // a dice event
  Round,        // a target, the rounding, an amount
  HandleWins,
  HandleLosses,
  Amount,       // an amount right after the words
  PercentOf,    // "ATM - withdraw 10% of" and a source
  Switch,       // "on" or "off"
  Bare,
  Unknown,
};
VerbKind VerbKindOf(int code);

// Bet "on", Add "to", Subtract "from", Multiply by and Divide by "for".
const char* Preposition(int operatorCode);

// Start Conditions and Start Actions without their " . . .".
const ChoiceList& StartWords();
// Comparison words, singular and plural, codes 1..27 and 60..63.
const ChoiceList& ComparisonPhrases();
// Every word a line may begin with, for the message when none fits.
const ChoiceList& LineOpenings();

// The Text a line gets when none is given: its rendering, without the blanks
// a .bet record would drop from its end.
std::string RenderedText(const ScriptLine& line);

inline constexpr const char* kLabelWord = "Label";
inline constexpr const char* kCommentWord = "Comment";

}  // namespace text_form
