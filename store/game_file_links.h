#pragma once
// Records 1 to 5 of a game file: the signature and the files the game
// links, each with its date, and the checks made against the disk when the
// game is opened.

#include <string>

#include "engine/file_status.h"
#include "store/game_record.h"

struct Game;

constexpr size_t kSignatureWidth = 92, kLinkPathWidth = 100, kLinkDateWidth = 40;
constexpr size_t kLinkPathOffset = 92, kLinkDateOffset = 192;

struct FileLink {
  std::string Path;
  std::string Date;  // the file's modification time as text; empty with no path
};

// The modification time of a file as text, "" when it is not there.
std::string FileDateText(const std::string& path);
// A link to `path` with its date, or an empty link for an empty path.
FileLink LinkTo(const std::string& path);

void PutLink(FileRecord& r, const FileLink& link);
FileLink GetLink(const FileRecord& r);
std::string GetSignature(const FileRecord& r);

// The links a save writes. A game saved as "default.crp" may first save the
// script to "default.bet" and the percentage table to "default.prb", both in
// the data folder.
FileLink AutoBetLinkForSave(Game& g, const std::string& gamePath);
FileLink DiceRollLinkForSave(const Game& g);
FileLink ProbabilityLinkForSave(Game& g, const std::string& gamePath);

// Open the linked files after the records are read. The notices are what
// the player is to be told of every link that is missing or has changed
// since the save, and of a linked file that could not be opened; the game
// opens all the same.
FileStatus OpenAutoBetLink(Game& g, const FileLink& link);
FileStatus OpenDiceRollLink(Game& g, const FileLink& link);
FileStatus OpenProbabilityLink(Game& g, const FileLink& link);
FileStatus CheckGamesLogLink(Game& g, const FileLink& link);
