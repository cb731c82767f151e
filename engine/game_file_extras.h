#pragma once
// What a game file holds that this program has no use for: window geometry,
// screen indexes, colours, comps, the games log. Kept as read so that a file
// opened and saved again gives those values back unchanged.

#include <array>
#include <cstdint>
#include <vector>

constexpr size_t kGameRecordBytes = 256;
using FileRecord = std::array<uint8_t, kGameRecordBytes>;

// Records 4 to 15 as last read; a record starts from its kept copy when it
// is written, and the fields this program owns are put over it.
constexpr int kFirstKeptRecord = 4, kLastKeptRecord = 15;

struct GameFileExtras {
  std::array<FileRecord, kLastKeptRecord - kFirstKeptRecord + 1> Records{};
  // Flag values (value, previous) read from the file, put back once the
  // linked script has rebuilt its Flags.
  std::vector<std::array<int16_t, 2>> FlagValues;

  FileRecord& Kept(int recordNumber) { return Records[static_cast<size_t>(recordNumber - kFirstKeptRecord)]; }
  const FileRecord& Kept(int recordNumber) const {
    return Records[static_cast<size_t>(recordNumber - kFirstKeptRecord)];
  }
};
