#include "store/games_log_file.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <system_error>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/file_errors.h"
#include "store/atomic_write.h"

namespace {

constexpr int kTitleBytes = 92;
constexpr int kCountOffset = 92;

void PutLittleEndian(std::string& bytes, size_t at, uint64_t value, int size) {
  for (int i = 0; i < size; ++i) bytes[at + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

uint64_t GetLittleEndian(const std::string& bytes, size_t at, int size) {
  uint64_t value = 0;
  for (int i = 0; i < size; ++i) value |= uint64_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
  return value;
}

std::string TrimBlanks(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  const auto last = text.find_last_not_of(" \t\r\n");
  return text.substr(first, last - first + 1);
}

FileStatus NotAGamesFile(const std::filesystem::path& path) {
  return FileStatus::Failed(
      "Unable to Open Dicemill Games File",
      PrintableName(path) + kBreak + "is either from an older version, has been corrupted, or is not a true Dicemill Games File.");
}

FileStatus RunTimeError(const std::string& description, int number, const std::string& routine) {
  return FileStatus::Failed("Dicemill", RunTimeErrorText(description, number, routine));
}

// Field numbers as the log's statistics name them.
constexpr int kRolls = 0, kBetsDecided = 1, kBetsWon = 2, kBetsLost = 3, kNetBetsWon = 4;
constexpr int kAmountWagered = 5, kAmountWon = 6, kAmountLost = 7, kNetAmountWon = 8, kHands = 12;

bool IsCount(Currency value) { return value.raw >= 0 && value.IsWhole(); }

bool IsDifference(Currency difference, Currency a, Currency b) {
  int64_t expected = 0;
  return !__builtin_sub_overflow(a.raw, b.raw, &expected) && expected == difference.raw;
}

// What every game the program logs satisfies: counts are whole and not
// negative, amounts not negative, and the nets are the differences stored
// beside them. A record shifted by even one byte fails it.
bool IsPlausible(const GameLogRecord& r) {
  for (int f : {kRolls, kBetsDecided, kBetsWon, kBetsLost, kHands})
    if (!IsCount(r[f])) return false;
  for (int f : {kAmountWagered, kAmountWon, kAmountLost})
    if (r[f].raw < 0) return false;
  return IsDifference(r[kNetBetsWon], r[kBetsWon], r[kBetsLost]) &&
         IsDifference(r[kNetAmountWon], r[kAmountWon], r[kAmountLost]);
}


}  // namespace

std::string EncodeGamesFile(const std::vector<GameLogRecord>& games) {
  std::string bytes((games.size() + 1) * kGamesRecordBytes, '\0');
  std::string title = kGamesFileTitle;
  title.resize(kTitleBytes, ' ');
  bytes.replace(0, kTitleBytes, title);
  PutLittleEndian(bytes, kCountOffset, static_cast<uint32_t>(games.size()), 4);
  for (size_t game = 0; game < games.size(); ++game)
    for (int field = 0; field < kGameLogFields; ++field)
      PutLittleEndian(bytes, (game + 1) * kGamesRecordBytes + field * 8, static_cast<uint64_t>(games[game][field].raw), 8);
  return bytes;
}

bool DecodeGamesFile(const std::string& bytes, std::vector<GameLogRecord>& games) {
  if (bytes.size() < static_cast<size_t>(kGamesRecordBytes)) return false;
  if (TrimBlanks(bytes.substr(0, kTitleBytes)) != kGamesFileTitle) return false;
  const auto count = static_cast<int32_t>(GetLittleEndian(bytes, kCountOffset, 4));
  // Exactly the records the count says: a cut or shifted file is refused.
  if (count < 0 || bytes.size() != (static_cast<size_t>(count) + 1) * kGamesRecordBytes) return false;
  std::vector<GameLogRecord> read(static_cast<size_t>(count));
  for (size_t game = 0; game < read.size(); ++game)
    for (int field = 0; field < kGameLogFields; ++field)
      read[game][field] = Currency::FromRaw(
          static_cast<int64_t>(GetLittleEndian(bytes, (game + 1) * kGamesRecordBytes + field * 8, 8)));
  if (!std::all_of(read.begin(), read.end(), IsPlausible)) return false;
  games = std::move(read);
  return true;
}

FileStatus ReadGamesFile(const std::filesystem::path& path, std::vector<GameLogRecord>& games) {
  std::error_code ec;
  if (!std::filesystem::exists(path, ec)) return RunTimeError("File not found", 53, "Open Games File");
  std::string bytes, reason;
  if (!ReadRegularFile(path, kMaxGamesLogBytes, bytes, reason)) return FileErrorStatus(path, reason);
  if (!DecodeGamesFile(bytes, games)) return NotAGamesFile(path);
  return {};
}

FileStatus AppendGamesToLog(const std::filesystem::path& path, const std::vector<GameLogRecord>& added) {
  std::vector<GameLogRecord> games;
  std::error_code ec;
  if (std::filesystem::exists(path, ec)) {
    FileStatus read = ReadGamesFile(path, games);
    if (!read) return read;
  }
  games.insert(games.end(), added.begin(), added.end());
  std::string reason = "would hold more games than a log can count";
  if (games.size() > static_cast<size_t>(INT32_MAX) || !WriteFileAtomically(path, EncodeGamesFile(games), reason))
    return FileErrorStatus(path, reason);
  return {};
}

FileStatus OpenGamesFile(Game& g, const std::string& path) {
  std::error_code ec;
  std::vector<GameLogRecord> games;
  FileStatus opened = std::filesystem::exists(path, ec) ? ReadGamesFile(path, games) : AppendGamesToLog(path, {});
  if (opened) g.GamesLogFile = path;
  return opened;
}

FileStatus SaveGameToLog(const std::string& path, const GameLogRecord& record) {
  return AppendGamesToLog(path, {record});
}

void LogFinishedGame(Game& g) {
  if (g.GamesLogFile.empty() || g.RollCounts[0] == 0) return;
  (void)ShowFileStatus(g, SaveGameToLog(g.GamesLogFile, FinishedGameRecord(g)));
}
