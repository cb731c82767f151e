#include "cli/run_outputs.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "sim/terminal_text.h"
#include "store/games_log_file.h"

namespace {

std::string OneLine(const std::string& path, const FileStatus& status) {
  const FileMessage& failure = status.Messages.front();
  std::string text = TerminalText(failure.Text);
  for (char& c : text)
    if (c == '\n') c = ' ';
  return "--log " + path + ": " + failure.Title + ": " + text;
}

}  // namespace

bool CheckOutputPath(const std::string& option, const std::string& path, std::string& error) {
  namespace fs = std::filesystem;
  std::error_code ec;
  const fs::path target(path);
  const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
  if (fs::is_directory(target, ec))
    error = option + " " + path + ": is a directory";
  else if (!fs::exists(folder, ec))
    error = option + " " + path + ": the folder " + folder.string() + " does not exist";
  else if (!fs::is_directory(folder, ec))
    error = option + " " + path + ": " + folder.string() + " is not a folder";
  else if (access(folder.c_str(), W_OK | X_OK) != 0)
    error = option + " " + path + ": the folder " + folder.string() + " cannot be written to";
  else
    return true;
  return false;
}

bool CheckGamesLog(const std::string& path, std::string& error) {
  if (!CheckOutputPath("--log", path, error)) return false;
  std::error_code ec;
  if (!std::filesystem::exists(path, ec)) return true;
  std::vector<GameLogRecord> games;
  const FileStatus read = ReadGamesFile(path, games);
  if (read) return true;
  error = OneLine(path, read);
  return false;
}

bool AppendBatchToLog(const std::string& path, const BatchResult& batch, std::string& error) {
  std::vector<GameLogRecord> records;
  records.reserve(batch.Games.size());
  for (const GameResult& r : batch.Games) records.push_back(r.LogRecord);
  const FileStatus appended = AppendGamesToLog(path, records);
  if (appended) return true;
  error = OneLine(path, appended);
  return false;
}
