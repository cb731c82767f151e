#pragma once
// Opening a script for a front end: a ".bet" file or its text form.

#include <string>

#include "engine/file_status.h"

struct Game;

// Replaces the game's script with the file's lines; the script is untouched
// when the file can't be used. A ".bet" file is refused in the program's own
// dialog words; a text file's fault is one line, titled "Error".
FileStatus OpenScriptFile(Game& g, const std::string& path);
