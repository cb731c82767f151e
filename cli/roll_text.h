#pragma once
// `dice to-rol`: the rolls of a text, strictly. A roll is two digits 1..6,
// Die 1 then Die 2, written together ("34") or apart; between and around
// digits only spaces, tabs, line ends, commas, hyphens and parentheses may
// stand, so "(3-4)", "3 4" and "34, 12" all read, as does what `dice to-text`
// writes by default. Anything else, a 0, 7, 8 or 9, or a last roll with one
// die only, is refused with its line and column, and nothing is written.

#include <cstdint>
#include <string>

// The count of rolls written to `rolPath` (through a temporary file beside
// it), or -1 with `error` naming the file, the place and the cause.
int64_t ConvertRollText(const std::string& textPath, const std::string& rolPath, std::string& error);
