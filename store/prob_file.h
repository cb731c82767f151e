#pragma once
// The probability file ".prb": a 256-byte header record and four records of
// 64 little-endian 32-bit integers, 1,280 bytes in all.

#include <optional>
#include <string>

#include "dice/prob_table.h"
#include "engine/file_status.h"

struct Game;

constexpr const char* kProbFileHeader = "Dicemill Probability File, Data Format 4.6";
constexpr size_t kProbFileSize = 1280;

// The bytes of a file holding the table.
std::string EncodeProbFile(const ProbTable& t);
// The table of a file's bytes; nullopt for a wrong header or a short file.
std::optional<ProbTable> DecodeProbFile(const std::string& bytes);

// Opens a file into the game's table, sets ProbFileName and clears
// ProbModified. A refused file leaves the table as it was.
FileStatus OpenProbabilityFile(Game& g, const std::string& path);
// Writes a temporary file beside the target and renames it over the target,
// so a failed save leaves any old file whole.
FileStatus SaveProbabilityFile(Game& g, const std::string& path);

// "New" and "Open" of the probability page ask first when the table has
// unsaved changes; false when the operation is to be abandoned.
bool QuerySaveProbabilityPage(Game& g);
// "New": the true table, after the question.
bool NewProbabilities(Game& g);
