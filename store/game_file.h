#pragma once
// Game files (".crp"): one whole game in 256-byte records.

#include <string>

struct Game;

inline constexpr const char* kGameFileSignature = "Dicemill Game File, Data Format 5.0k";
inline constexpr const char* kDefaultGameName = "default.crp";

// Writes the whole game to `path` (through a temporary file renamed over
// it). False, with the file-name error shown, when it cannot be written.
bool SaveGame(Game& g, const std::string& path);

// Reads a game file into the game. A refused file shows its message and
// leaves the game as it was.
bool OpenGame(Game& g, const std::string& path);
// OpenGame on bytes already read; `path` is the name the messages give.
bool OpenGameBytes(Game& g, const std::string& bytes, const std::string& path);

// "default.crp" in the data folder: saved at the stop, opened at the start.
std::string DefaultGamePath(const Game& g);
bool SaveDefaultGame(Game& g);
