#pragma once
// The games log file (".glg"): 256-byte little-endian records. Record 1 is
// the header (the title blank-padded to 92 bytes, then the count of games);
// each further record is one game, 32 Currency values.

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "dice/money.h"
#include "stats/games_log.h"

struct Game;

constexpr int kGamesRecordBytes = 256;
constexpr const char* kGamesFileTitle = "Dicemill Games File, Data Format 5.0";

// What a failed read or write tells the player.
struct GamesFileError {
  std::string Title, Text;
};

// The whole file in bytes, and back. Decoding refuses a wrong title, a
// negative count or fewer records than the count says.
std::string EncodeGamesFile(const std::vector<GameLogRecord>& games);
bool DecodeGamesFile(const std::string& bytes, std::vector<GameLogRecord>& games);

// Reads every game of the log at `path`.
bool ReadGamesFile(const std::filesystem::path& path, std::vector<GameLogRecord>& games, GamesFileError& error);
// Adds games after the last one; a log not there yet is made. The file is
// replaced whole, so a failure leaves the old log as it was.
bool AppendGamesToLog(const std::filesystem::path& path, const std::vector<GameLogRecord>& added,
                      GamesFileError& error);

// The log becomes the game's log (made empty if it is not there yet). A file
// that is not a games log is refused with a message and the log in use stays.
bool OpenGamesFile(Game& g, const std::string& path);
// Adds one game to the log at `path`; a failure is shown.
bool SaveGameToLog(Game& g, const std::string& path, const GameLogRecord& record);

// Adds the game on the table to its log, if a log is active and the game
// has had a roll.
void LogFinishedGame(Game& g);
