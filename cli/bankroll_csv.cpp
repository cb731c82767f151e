#include "cli/bankroll_csv.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

std::string PlainAmount(Currency amount) {
  const uint64_t magnitude = amount.raw < 0 ? -static_cast<uint64_t>(amount.raw) : static_cast<uint64_t>(amount.raw);
  std::string text = (amount.raw < 0 ? "-" : "") + std::to_string(magnitude / Currency::kScale);
  uint64_t fraction = magnitude % Currency::kScale;
  if (fraction == 0) return text;
  std::string digits = std::to_string(fraction);
  digits.insert(0, 4 - digits.size(), '0');
  while (digits.back() == '0') digits.pop_back();
  return text + "." + digits;
}

BankrollCsvWriter::~BankrollCsvWriter() {
  for (Part& p : parts_)
    if (p.file) std::fclose(p.file);
  if (out_) {
    std::fclose(out_);
    std::remove(tempPath_.c_str());
  }
}

std::FILE* BankrollCsvWriter::MakeHiddenFile() {
  const std::filesystem::path target(path_);
  std::string name = (target.parent_path() / ("." + target.filename().string() + ".part.XXXXXX")).string();
  const int fd = mkstemp(name.data());
  if (fd < 0) return nullptr;
  unlink(name.c_str());
  std::FILE* file = fdopen(fd, "w+b");
  if (!file) close(fd);
  return file;
}

FileStatus BankrollCsvWriter::Open(const std::string& path, int64_t firstSeed, int64_t firstGame, int games) {
  path_ = path;
  firstSeed_ = firstSeed;
  firstGame_ = firstGame;
  const std::filesystem::path target(path);
  tempPath_ = (target.parent_path() / ("." + target.filename().string() + ".XXXXXX")).string();
  const int fd = mkstemp(tempPath_.data());
  if (fd >= 0) {
    const mode_t mask = umask(0);  // a new file's usual permissions, not mkstemp's private ones
    umask(mask);
    fchmod(fd, 0666 & ~mask);
    out_ = fdopen(fd, "wb");
  }
  if (!out_) {
    FileStatus failed = FileStatus::Failed("Error", path + ": cannot be written: " + std::strerror(errno));
    if (fd >= 0) close(fd), std::remove(tempPath_.c_str());
    return failed;
  }
  parts_.resize(static_cast<size_t>(games));
  std::fputs("game,seed,roll,bankroll\n", out_);
  return {};
}

void BankrollCsvWriter::Add(int64_t gameIndex, Currency bankroll) {
  Part& part = parts_[static_cast<size_t>(gameIndex - firstGame_)];
  if (!part.file && !(part.file = MakeHiddenFile())) {
    Fail();
    return;
  }
  std::fprintf(part.file, "%lld,%lld,%lld,%s\n", static_cast<long long>(gameIndex + 1),
               static_cast<long long>(firstSeed_ + gameIndex), static_cast<long long>(part.rolls++),
               PlainAmount(bankroll).c_str());
}

void BankrollCsvWriter::Fail() {
  int none = 0;
  failure_.compare_exchange_strong(none, errno != 0 ? errno : EIO);
}

void BankrollCsvWriter::EndGame(int64_t gameIndex) {
  std::lock_guard<std::mutex> hold(lock_);
  parts_[static_cast<size_t>(gameIndex - firstGame_)].ended = true;
  JoinFinishedParts();
}

void BankrollCsvWriter::JoinFinishedParts() {
  std::vector<char> buffer(1 << 16);
  for (; nextToJoin_ < parts_.size() && parts_[nextToJoin_].ended; ++nextToJoin_) {
    Part& part = parts_[nextToJoin_];
    if (!part.file) continue;
    if (std::fflush(part.file) != 0 || std::ferror(part.file)) Fail();
    std::rewind(part.file);
    for (size_t got; (got = std::fread(buffer.data(), 1, buffer.size(), part.file)) > 0;)
      if (std::fwrite(buffer.data(), 1, got, out_) != got) Fail();
    std::fclose(part.file);
    part.file = nullptr;
  }
}

FileStatus BankrollCsvWriter::Finish() {
  std::lock_guard<std::mutex> hold(lock_);
  for (Part& p : parts_) p.ended = p.ended || p.file;  // an interrupted batch keeps what it played
  JoinFinishedParts();
  const bool written = failure_ == 0 && std::fflush(out_) == 0 && !std::ferror(out_) && fsync(fileno(out_)) == 0;
  const int cause = failure_ != 0 ? failure_.load() : errno;
  const bool closed = std::fclose(out_) == 0;
  out_ = nullptr;
  if (written && closed && std::rename(tempPath_.c_str(), path_.c_str()) == 0) return {};
  FileStatus failed =
      FileStatus::Failed("Error", path_ + ": could not be written: " + std::strerror(written && closed ? errno : cause));
  std::remove(tempPath_.c_str());
  return failed;
}
