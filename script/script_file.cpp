#include "script/script_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "engine/file_errors.h"
#include "script/text_form.h"
#include "store/atomic_write.h"
#include "store/bet_file.h"

namespace {

bool LooksLikeBetFile(const std::string& bytes) {
  return bytes.rfind("Dicemill AutoBets", 0) == 0 || bytes.rfind("Tumbledice AutoBets", 0) == 0;
}

bool ReadBetLines(const std::string& path, const std::string& bytes, std::vector<ScriptLine>& lines,
                  std::string& error) {
  DecodedBetFile file = DecodeBetFile(bytes);
  switch (file.Status) {
    case BetFileStatus::Ok:
      lines = std::move(file.Lines);
      return true;
    case BetFileStatus::Newer:
      error = PrintableName(path) + ": requires Dicemill version " + file.Version + " or later to run.";
      return false;
    case BetFileStatus::Sibling:
    case BetFileStatus::Older:
      error = PrintableName(path) + ": has either been corrupted or was written with an older format which is no longer in use.";
      return false;
    case BetFileStatus::NotDicemill:
      break;
  }
  error = PrintableName(path) + ": has either been corrupted or is not a true Dicemill Auto-Bet file.";
  return false;
}

}  // namespace

FileStatus LoadScriptFile(const std::string& path, Script& script) {
  std::string bytes, reason;
  if (!ReadRegularFile(path, kMaxScriptFileBytes, bytes, reason))
    return FileStatus::Failed("Error", PrintableName(path) + " " + reason + ".");
  std::vector<ScriptLine> lines;
  std::string error;
  if (IsBetFilePath(path) || LooksLikeBetFile(bytes)) {
    if (!ReadBetLines(path, bytes, lines, error)) return FileStatus::Failed("Error", error);
  } else if (!ReadScriptText(bytes, lines, error)) {
    return FileStatus::Failed("Error", PrintableName(path) + ": " + error);
  }
  script.Lines = std::move(lines);
  script.FileName = path;
  RebuildFlags(script);
  return {};
}

FileStatus SaveScriptFile(const std::string& path, const Script& script) {
  if (IsBetFilePath(path)) return SaveBetFile(path, script);
  std::string reason;
  if (!WriteFileAtomically(path, ScriptToText(script), reason)) return FileStatus::Failed("Error", PrintableName(path) + " " + reason + ".");
  return {};
}
