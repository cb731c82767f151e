#pragma once
// Reading the words of a command line: splitting, numbers, amounts, BetIds.
// Every reader throws CommandError with a text naming what was wrong.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dice/money.h"

// Splits at blanks; double quotes keep blanks inside a word ("my game.crp").
// An unclosed quote is an error.
std::vector<std::string> SplitCommandLine(std::string_view line);

// True for a line with nothing to run: blank, or a comment starting with '#'.
bool IsBlankOrComment(std::string_view line);

// A whole number in lo..hi; `what` names it in the error text.
int64_t ReadInteger(const std::string& word, int64_t lo, int64_t hi, const std::string& what);
// A decimal amount such as "-7.5" or "1,000", at most four decimals.
Currency ReadAmount(const std::string& word, const std::string& what);
// true/false/-1/0/1, any case.
bool ReadBool(const std::string& word, const std::string& what);
// A table bet 1..83 or a Chip-Stack 101..199, by number or by name
// ("Place 6", "pass line", "Chip-Stack #1").
int ReadBetId(const std::string& word);

std::string ToLower(std::string_view text);
