#pragma once
// The table's texts as a terminal shows them.

#include <string>

// Line breaks of the table (carriage returns, with or without a line feed)
// become newlines, trailing breaks go, and a pointer to the desktop's menus
// says what to do on the command line instead.
std::string TerminalText(std::string text);

// A file's path and what went wrong with it, as one sentence:
// "wrong.bet: has either been ...".
std::string FileProblem(const std::string& path, const std::string& problem);
