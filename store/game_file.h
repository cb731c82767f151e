#pragma once
// Game files (".crp"): one whole game in 256-byte records.

#include <string>

#include "engine/file_status.h"

struct Game;

inline constexpr const char* kGameFileSignature = "Dicemill Game File, Data Format 5.0k";
inline constexpr const char* kDefaultGameName = "default.crp";

// Writes the whole game to `path` (through a temporary file renamed over
// it). The file-name error when it cannot be written.
FileStatus SaveGame(Game& g, const std::string& path);

// Reads a game file into the game. A refused file leaves the game as it
// was; an opened one may bring notices of its linked files.
FileStatus OpenGame(Game& g, const std::string& path);
// OpenGame on bytes already read; `path` is the name the messages give.
FileStatus OpenGameBytes(Game& g, const std::string& bytes, const std::string& path);

// "default.crp" in the data folder: saved at the stop, opened at the start.
std::string DefaultGamePath(const Game& g);
FileStatus SaveDefaultGame(Game& g);
