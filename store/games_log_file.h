#pragma once
// The games log file (".glg"): 256-byte little-endian records. Record 1 is
// the header (the title blank-padded to 92 bytes, then the count of games);
// each further record is one game, 32 Currency values.

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "dice/money.h"
#include "engine/file_status.h"
#include "stats/games_log.h"

struct Game;

constexpr int kGamesRecordBytes = 256;
constexpr const char* kGamesFileTitle = "Dicemill Games File, Data Format 5.0";


// The whole file in bytes, and back. Decoding refuses a wrong title, a
// negative count or fewer records than the count says.
std::string EncodeGamesFile(const std::vector<GameLogRecord>& games);
bool DecodeGamesFile(const std::string& bytes, std::vector<GameLogRecord>& games);

// Reads every game of the log at `path`. A failure is one message.
FileStatus ReadGamesFile(const std::filesystem::path& path, std::vector<GameLogRecord>& games);
// Adds games after the last one; a log not there yet is made. The file is
// replaced whole, so a failure leaves the old log as it was.
FileStatus AppendGamesToLog(const std::filesystem::path& path, const std::vector<GameLogRecord>& added);

// The log becomes the game's log (made empty if it is not there yet). A file
// that is not a games log is refused and the log in use stays.
FileStatus OpenGamesFile(Game& g, const std::string& path);
// Adds one game to the log at `path`.
FileStatus SaveGameToLog(const std::string& path, const GameLogRecord& record);

// Adds the game on the table to its log, if a log is active and the game
// has had a roll; a failure is shown.
void LogFinishedGame(Game& g);
