#pragma once
// Dice Roll Files: the recorder of the roll cycle, the rewind question, hand
// entry and the editing of a file. Every block move goes through one buffer of
// at most kBlockBytes, so a file of any length is edited in bounded memory.

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/file_status.h"

struct Game;

constexpr size_t kBlockBytes = 30000;
constexpr int kRecorderOff = 0, kRecorderRecord = 1, kRecorderPlayback = 2;

inline constexpr const char* kClipboardName = "copyfile.rll";
inline constexpr const char* kTextConvertName = "cnvrtasc.xx~";

// True when both dice fields of a roll byte are 1..6; the low two bits are ignored.
bool CheckRollValue(int value);
uint8_t RollByte(int die1, int die2);
int Die1Of(int value);
int Die2Of(int value);

enum class FileRoll { Rolled, EndOfFile, OutOfLimits };

// Playback: sets Die1 and Die2 from roll NextRollNum and moves on. At the end
// of the file, or on a byte out of limits (which turns the recorder off and
// says so), nothing moves and the caller makes no roll.
FileRoll NextRollFromFile(Game& g);
// Record: writes the pair at NextRollNum, over what is there, and moves on.
void RecordRoll(Game& g, int die1, int die2);

// " Off", " Record" or " Playback". False, with the message, when Record or
// Playback is asked for with no file open; the status is then Off.
bool SetRecorderStatus(Game& g, int status);
// The question when recording or playback stops.
void OfferRewind(Game& g);

// Opens a Dice Roll File, creating an empty one when the name is new; the
// file-name error, and nothing changed, when it cannot.
FileStatus OpenRollFile(Game& g, const std::string& path);
void CloseRollFile(Game& g);
int64_t TotalRolls(Game& g);
// The selection: rolls [first, first + count).
struct RollRange {
  int64_t first = 1, count = 0;
};
RollRange Selection(Game& g);
// Puts the caret before roll `rollNum` (limited to 1 .. rolls + 1) and
// collapses the selection there; `anchor` extends it instead.
void SetPosition(Game& g, int64_t rollNum, int64_t anchor = -1);

// Hand recording at NextRollNum, typed over or inserted as DiceFile.InsertRolls says.
bool HandEntry(Game& g, int die1, int die2);
// "Ra&ndom": the same entry from two clock-seeded uniform draws.
bool HandEntryRandom(Game& g);

// The editing primitives.
bool CopyRange(Game& g, const std::string& destination);
bool InsertGap(Game& g, int64_t count);
bool PasteFile(Game& g, const std::string& source, int64_t at, int64_t count);

// The Edit menu. Copy and cut go through the clipboard file in the data folder.
std::string EditFilePath(const Game& g, const char* name);
bool CopySelection(Game& g);
bool CutSelection(Game& g);
bool DeleteSelection(Game& g);
bool ClipboardHasRolls(const Game& g);
bool PasteClipboard(Game& g);
// Copies and pastes to and from other files. A failure with no message is
// the player's own No, or no file open; a file that cannot be used is told.
FileStatus CopyToRollFile(Game& g, const std::string& path);
FileStatus PasteFromRollFile(Game& g, const std::string& path);
FileStatus PasteFromTextFile(Game& g, const std::string& path);

struct RollTextOptions {
  bool rollNums = true;        // chkRollNums
  bool dieNums = true;         // chkDieNums
  bool numbersCalled = true;   // chkNumbersCalled
};
// Writes the selection as text, one line per roll; refuses when neither the
// dice nor the numbers called are wanted.
FileStatus CopyToTextFile(Game& g, const std::string& path, const RollTextOptions& options);

// File-to-file conversions, with no game: every "1".."6" of the text counts,
// paired as Die1 then Die2; an unpaired last digit is dropped. The target is
// written beside itself and renamed into place. The count of rolls, or -1.
int64_t ConvertTextToRolls(const std::string& textPath, const std::string& rolPath);
// Rolls [first, first + count) of a ".rol" file as text lines numbered from
// `firstNumber`. The count written, or -1 (also for a byte out of limits,
// which `badRoll` then names).
int64_t WriteRollsAsText(const std::string& rolPath, int64_t first, int64_t count, int64_t firstNumber,
                         const RollTextOptions& options, const std::string& textPath, int64_t* badRoll = nullptr);
// One text line of a roll.
std::string RollTextLine(int64_t number, int die1, int die2, const RollTextOptions& options);

