#pragma once
// `script words [PREFIX]`: the vocabulary of the text form, list by list, so
// that a writer can look up the exact words a line takes.

#include <ostream>
#include <string>

// Every list, headed by what it is for, with the entries that begin with
// `prefix` (any case; empty for all). False when no entry matches.
bool WriteScriptWords(const std::string& prefix, std::ostream& out);
