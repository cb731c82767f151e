#pragma once
// Auto-Bet files (".bet"): 256-byte records, record 1 the header with the
// magic and the count of lines, then one record per line.

#include <optional>
#include <string>
#include <vector>

#include "engine/file_status.h"
#include "engine/script.h"

struct Game;

inline constexpr const char* kBetFileMagic = "Dicemill AutoBets, Data Format 5.0";
constexpr size_t kBetRecordBytes = 256;

// The bytes of a file holding the script's lines, or only the selected ones.
std::string EncodeBetFile(const Script& script, bool selectedOnly);

enum class BetFileStatus { Ok, NotDicemill, Sibling, Newer, Older };

struct DecodedBetFile {
  BetFileStatus Status = BetFileStatus::NotDicemill;
  std::string Version;            // as the magic ends, blanks trimmed
  std::vector<ScriptLine> Lines;  // when Ok
};

DecodedBetFile DecodeBetFile(const std::string& bytes);

// Reads a file's lines into `lines`, or says why one can't be read. The
// script is not touched; Open and Paste decide where the lines go.
FileStatus ReadAutoBetFile(const std::string& path, std::vector<ScriptLine>& lines);

// Open: the file's lines replace the script, whose name becomes the path.
FileStatus OpenAutoBetFile(Game& g, const std::string& path);

// Save, Save As and "Copy To Auto-Bet File" (selectedOnly). The file is
// written beside the target and renamed over it.
// True for a path whose extension is ".bet", in any case.
bool IsBetFilePath(const std::string& path);

FileStatus SaveAutoBetFile(Game& g, const std::string& path, bool selectedOnly = false);

// Writes the whole script as a ".bet" file, beside the target and renamed
// over it, telling nobody. A line whose numbers a record cannot hold is
// refused before anything is written.
FileStatus SaveBetFile(const std::string& path, const Script& script);
