#include "cli/run_outputs.h"

#include <filesystem>
#include <system_error>

#include "store/file_errors.h"
#include "store/games_log_file.h"

namespace {

// A plain decimal without separators: "512", "-3.25", "0.0125".
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

}  // namespace

std::string BankrollCsv(const BatchResult& batch) {
  std::string csv = "game,seed,roll,bankroll\n";
  for (size_t game = 0; game < batch.Games.size(); ++game) {
    const GameResult& r = batch.Games[game];
    const std::string prefix = std::to_string(game + 1) + "," + std::to_string(r.Seed) + ",";
    for (size_t roll = 0; roll < r.BankrollSeries.size(); ++roll)
      csv += prefix + std::to_string(roll) + "," + PlainAmount(r.BankrollSeries[roll]) + "\n";
  }
  return csv;
}

bool WriteBankrollCsv(const std::string& path, const BatchResult& batch, std::string& error) {
  if (WriteFileAtomically(path, BankrollCsv(batch))) return true;
  error = "--bankroll-csv: \"" + path + "\" could not be written";
  return false;
}

namespace {

std::string OneLine(const GamesFileError& failure) {
  std::string text = failure.Text;
  for (char& c : text)
    if (c == '\r') c = ' ';
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return "--log: " + failure.Title + ": " + text;
}

}  // namespace

bool CheckGamesLog(const std::string& path, std::string& error) {
  std::error_code ec;
  if (!std::filesystem::exists(path, ec)) return true;
  std::vector<GameLogRecord> games;
  GamesFileError failure;
  if (ReadGamesFile(path, games, failure)) return true;
  error = OneLine(failure);
  return false;
}

bool AppendBatchToLog(const std::string& path, const BatchResult& batch, std::string& error) {
  std::vector<GameLogRecord> records;
  records.reserve(batch.Games.size());
  for (const GameResult& r : batch.Games) records.push_back(r.LogRecord);
  GamesFileError failure;
  if (AppendGamesToLog(path, records, failure)) return true;
  error = OneLine(failure);
  return false;
}
