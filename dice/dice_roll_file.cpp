#include "dice/dice_roll_file.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>

namespace {

int64_t NowNs() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

constexpr int64_t kFlushEveryNs = 1'000'000'000;
constexpr uint32_t kWritesPerClockRead = 256;

}  // namespace

bool DiceRollFile::Open(const std::string& path, bool create) {
  Close();
  std::error_code ec;
  // A pipe or a device would hang or never end: only regular files are used.
  if (std::filesystem::exists(path, ec) && !std::filesystem::is_regular_file(path, ec)) return false;
  std::FILE* f = std::fopen(path.c_str(), "r+b");
  if (!f && create) {
    if (!std::filesystem::exists(path, ec)) f = std::fopen(path.c_str(), "w+b");
  }
  if (!f) return false;
  file_ = f;
  path_ = path;
  error_ = 0;
  lastFlushNs_ = NowNs();
  offset_ = 0;
  writing_ = false;
  return true;
}

void DiceRollFile::Close() {
  if (file_) std::fclose(file_);
  file_ = nullptr;
  offset_ = -1;
  writing_ = false;
}

bool DiceRollFile::SeekTo(int64_t offset, bool forWrite) {
  // A stream must be repositioned between a write and a read, in either order.
  if (offset == offset_ && forWrite == writing_) return true;
  ++seeks_;
  if (std::fseek(file_, static_cast<long>(offset), SEEK_SET) != 0) {
    offset_ = -1;
    return false;
  }
  offset_ = offset;
  writing_ = forWrite;
  return true;
}

int64_t DiceRollFile::Size() {
  if (!file_) return 0;
  if (std::fseek(file_, 0, SEEK_END) != 0) return 0;
  const long size = std::ftell(file_);
  offset_ = size;
  writing_ = false;
  return size < 0 ? 0 : size;
}

int DiceRollFile::Read(int64_t rollNum) {
  if (!file_ || rollNum < 1 || !SeekTo(rollNum - 1, false)) return -1;
  const int c = std::getc(file_);
  if (c == EOF) {
    offset_ = -1;  // the stream's end-of-file flag is cleared by the next seek
    return -1;
  }
  ++offset_;
  return c;
}

bool DiceRollFile::Write(int64_t rollNum, uint8_t value) {
  if (!file_ || rollNum < 1) return false;
  if (rollNum - 1 != offset_ && rollNum - 1 > Size()) return false;  // no holes
  if (!SeekTo(rollNum - 1, true)) return false;
  if (std::putc(value, file_) == EOF) {
    error_ = errno;
    offset_ = -1;
    return false;
  }
  ++offset_;
  return true;
}

size_t DiceRollFile::ReadBlock(int64_t rollNum, uint8_t* into, size_t count) {
  if (!file_ || rollNum < 1 || !SeekTo(rollNum - 1, false)) return 0;
  const size_t got = std::fread(into, 1, count, file_);
  if (got < count) {
    offset_ = -1;
    return got;
  }
  offset_ += static_cast<int64_t>(got);
  return got;
}

bool DiceRollFile::WriteBlock(int64_t rollNum, const uint8_t* from, size_t count) {
  if (!file_ || rollNum < 1 || !SeekTo(rollNum - 1, true)) return false;
  if (std::fwrite(from, 1, count, file_) != count) {
    error_ = errno;
    offset_ = -1;
    return false;
  }
  offset_ += static_cast<int64_t>(count);
  return true;
}

bool DiceRollFile::Flush() {
  if (!file_) return false;
  lastFlushNs_ = NowNs();
  writesSinceClock_ = 0;
  if (std::fflush(file_) == 0) return true;
  error_ = errno;
  offset_ = -1;
  return false;
}

bool DiceRollFile::FlushIfDue() {
  if (++writesSinceClock_ < kWritesPerClockRead && lastFlushNs_ != 0) return true;
  writesSinceClock_ = 0;
  if (NowNs() - lastFlushNs_ < kFlushEveryNs) return true;
  return Flush();
}

bool DiceRollFile::Truncate(int64_t rolls) {
  if (!file_) return false;
  const std::string path = path_;
  Close();
  std::error_code ec;
  std::filesystem::resize_file(path, static_cast<uintmax_t>(rolls), ec);
  const bool reopened = Open(path, false);
  return !ec && reopened;
}
