#pragma once
// The 256-byte records of a game file and the three ways a record is read:
// 32 Currency slots, 128 16-bit slots or 64 32-bit slots, little-endian.
// Reading past the end of a file yields records of zeros.

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "dice/money.h"
#include "engine/game_file_extras.h"

constexpr int kCurrencySlots = 32, kInt16Slots = 128, kInt32Slots = 64;

void PutCurrency(FileRecord& r, int slot, Currency value);
Currency GetCurrency(const FileRecord& r, int slot);
void PutInt16(FileRecord& r, int slot, int32_t value);  // narrowed to 16 bits
int16_t GetInt16(const FileRecord& r, int slot);
void PutInt32(FileRecord& r, int slot, int32_t value);
int32_t GetInt32(const FileRecord& r, int slot);
// A text field padded with blanks; read back with the blanks trimmed.
void PutText(FileRecord& r, size_t offset, size_t width, const std::string& text);
std::string GetText(const FileRecord& r, size_t offset, size_t width);

class RecordWriter {
 public:
  // A new zeroed record, or one that starts as a kept copy.
  FileRecord& Add();
  FileRecord& Add(const FileRecord& start);
  // Lists packed into as many records as they need, the last partly filled.
  void AddCurrencies(const std::vector<Currency>& values);
  void AddInt16s(const std::vector<int32_t>& values);
  void AddInt32s(const std::vector<int32_t>& values);

  int Count() const { return static_cast<int>(records_.size()); }
  std::string Bytes() const;

 private:
  std::deque<FileRecord> records_;  // a deque keeps the reference Add returns
};

class RecordReader {
 public:
  // Reads from bytes the caller keeps alive.
  explicit RecordReader(const std::string& bytes) : bytes_(bytes) {}
  explicit RecordReader(std::string&&) = delete;

  // The next record in order; zeros once the file has ended.
  FileRecord Next();
  std::vector<Currency> NextCurrencies(size_t count);
  std::vector<int32_t> NextInt16s(size_t count);
  std::vector<int32_t> NextInt32s(size_t count);
  bool AtEnd() const { return offset_ >= bytes_.size(); }
  size_t BytesLeft() const { return AtEnd() ? 0 : bytes_.size() - offset_; }
  int RecordsRead() const { return static_cast<int>(offset_ / kGameRecordBytes); }

 private:
  const std::string& bytes_;
  size_t offset_ = 0;
};
