#include "store/script_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "script/text_form.h"
#include "store/bet_file.h"
#include "store/file_errors.h"

namespace {

std::string Lowered(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::tolower(c); });
  return s;
}

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

bool IsBetFilePath(const std::string& path) {
  return Lowered(std::filesystem::path(path).extension().string()) == ".bet";
}

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
  std::string bytes;
  if (IsBetFilePath(path)) {
    for (int n = 1; n <= script.NumLines(); ++n) {
      if (!FitsFileFields(script.Line(n)))
        return FileStatus::Failed("Error", PrintableName(path) + ": line " + std::to_string(n) +
                                               " has a number that a .bet record cannot hold");
    }
    bytes = EncodeBetFile(script, false);
  } else {
    bytes = ScriptToText(script);
  }
  std::string reason;
  if (!WriteFileAtomically(path, bytes, reason)) return FileStatus::Failed("Error", PrintableName(path) + " " + reason + ".");
  return {};
}
