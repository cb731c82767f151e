#pragma once
// The open Dice Roll File: one byte per roll, record n at offset n - 1. The
// handle tracks where the stream stands, so reading or writing the roll after
// the last one costs no seek: playback is one getc per roll.

#include <cstdint>
#include <cstdio>
#include <string>

class DiceRollFile {
 public:
  DiceRollFile() = default;
  ~DiceRollFile() { Close(); }
  DiceRollFile(const DiceRollFile&) = delete;
  DiceRollFile& operator=(const DiceRollFile&) = delete;

  // Opens for reading and writing; a missing file is created empty when
  // `create`. False when it cannot be opened.
  bool Open(const std::string& path, bool create);
  void Close();
  bool IsOpen() const { return file_ != nullptr; }
  const std::string& Path() const { return path_; }

  // Number of rolls, which is the length of the file.
  int64_t Size();
  // The byte of roll `rollNum` (from 1), or -1 past the end or on an error.
  int Read(int64_t rollNum);
  // Writes the byte of roll `rollNum`; the file grows when it is past the end.
  bool Write(int64_t rollNum, uint8_t value);
  // Block access from roll `rollNum`; the count actually read or written.
  size_t ReadBlock(int64_t rollNum, uint8_t* into, size_t count);
  bool WriteBlock(int64_t rollNum, const uint8_t* from, size_t count);
  // Cuts the file to `rolls` rolls. The file is reopened to do it.
  bool Truncate(int64_t rolls);
  bool Flush();
  // Flushes when the last flush is a second old or more, so that a killed
  // run loses at most the last second of what it recorded. The clock is
  // read once in many calls: cheap enough for every roll of Hyper-Drive.
  bool FlushIfDue();
  // The errno of the last failed write or flush; 0 when none failed.
  int LastError() const { return error_; }
  // Repositionings of the stream so far: playback and recording in order
  // need none per roll.
  int64_t Seeks() const { return seeks_; }

 private:
  bool SeekTo(int64_t offset, bool forWrite);

  std::FILE* file_ = nullptr;
  std::string path_;
  int64_t offset_ = -1;  // where the stream stands; -1 when unknown
  bool writing_ = false;  // the last operation wrote (a read then needs a seek)
  int64_t seeks_ = 0;
  int error_ = 0;
  int64_t lastFlushNs_ = 0;  // steady clock
  uint32_t writesSinceClock_ = 0;
};

// The state of the game's Dice Roll File; the recorder status itself is
// Game::DiceFileMode.
struct DiceFileState {
  std::string RollFileName;  // the open file; empty when none
  int32_t NextRollNum = 0;
  int32_t LastRollNum = 0;
  int32_t SelectAnchor = 0;
  int32_t TopRollNum = 0;
  bool InsertRolls = false;  // hand entry: " Insert" rather than " Type over"
  DiceRollFile File;
};
