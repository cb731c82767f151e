#pragma once
// Opening a script for a front end: a ".bet" file or its text form.

#include <string>

struct Game;

// Replaces the game's script with the file's lines. False with `error` set
// when the file can't be used; a refusal the program explains in its own
// message has already been shown. The script is then untouched.
bool OpenScriptFile(Game& g, const std::string& path, std::string& error);
