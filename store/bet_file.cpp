#include "store/bet_file.h"

#include <bit>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "engine/file_errors.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "store/atomic_write.h"

namespace {

// Field offsets within a record; bytes 238..255 are padding.
constexpr size_t kText = 0, kKind = 128, kCode = 130, kName = 134, kAmount = 214, kSubject = 222,
                 kSubjectNum = 226, kSpare1 = 228, kTarget = 230, kTargetNum = 234, kSpare2 = 236;

constexpr const char* kOpenTitle = "Unable to Open Auto-Bet File";

void PutBytes(std::string& out, size_t at, uint64_t v, int n) {
  for (int i = 0; i < n; ++i) out[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
}
uint64_t GetBytes(const std::string& in, size_t at, int n) {
  uint64_t v = 0;
  for (int i = 0; i < n; ++i) v |= uint64_t{static_cast<unsigned char>(in[at + i])} << (8 * i);
  return v;
}
void PutText(std::string& out, size_t at, std::string text, size_t width) {
  text.resize(width, ' ');
  out.replace(at, width, text);
}
std::string GetText(const std::string& in, size_t at, size_t width) {
  std::string s = in.substr(at, width);
  const size_t last = s.find_last_not_of(' ');
  return last == std::string::npos ? "" : s.substr(0, last + 1);
}
void PutFloat(std::string& out, size_t at, int32_t v) {
  PutBytes(out, at, std::bit_cast<uint32_t>(static_cast<float>(v)), 4);
}
int32_t GetFloat(const std::string& in, size_t at) {
  const float f = std::bit_cast<float>(static_cast<uint32_t>(GetBytes(in, at, 4)));
  return std::isfinite(f) && std::fabs(f) < 2e9f ? static_cast<int32_t>(std::lround(f)) : 0;
}
int32_t Get16(const std::string& in, size_t at) { return static_cast<int16_t>(GetBytes(in, at, 2)); }
int32_t Get32(const std::string& in, size_t at) { return static_cast<int32_t>(GetBytes(in, at, 4)); }

std::string Record(const ScriptLine& l) {
  std::string r(kBetRecordBytes, '\0');
  PutText(r, kText, l.Text, kLineTextWidth);
  PutBytes(r, kKind, static_cast<uint16_t>(l.Kind), 2);
  PutBytes(r, kCode, static_cast<uint32_t>(l.Code), 4);
  PutText(r, kName, l.Name, kLineNameWidth);
  PutBytes(r, kAmount, static_cast<uint64_t>(l.LineAmount.raw), 8);
  PutFloat(r, kSubject, l.Subject);
  PutBytes(r, kSubjectNum, static_cast<uint16_t>(l.SubjectNum), 2);
  PutBytes(r, kSpare1, static_cast<uint16_t>(l.Spare1), 2);
  PutFloat(r, kTarget, l.Target);
  PutBytes(r, kTargetNum, static_cast<uint16_t>(l.TargetNum), 2);
  PutBytes(r, kSpare2, static_cast<uint16_t>(l.Spare2), 2);
  return r;
}

ScriptLine ReadRecord(const std::string& in, size_t at) {
  ScriptLine l;
  l.Text = GetText(in, at + kText, kLineTextWidth);
  l.Kind = Get16(in, at + kKind);
  l.Code = Get32(in, at + kCode);
  l.Name = GetText(in, at + kName, kLineNameWidth);
  l.LineAmount = Currency::FromRaw(static_cast<int64_t>(GetBytes(in, at + kAmount, 8)));
  l.Subject = GetFloat(in, at + kSubject);
  l.SubjectNum = Get16(in, at + kSubjectNum);
  l.Spare1 = Get16(in, at + kSpare1);
  l.Target = GetFloat(in, at + kTarget);
  l.TargetNum = Get16(in, at + kTargetNum);
  l.Spare2 = Get16(in, at + kSpare2);
  return l;
}

}  // namespace

std::string EncodeBetFile(const Script& script, bool selectedOnly) {
  std::vector<const ScriptLine*> lines;
  for (const ScriptLine& l : script.Lines)
    if (!selectedOnly || l.Selected) lines.push_back(&l);
  ScriptLine header;
  header.Text = kBetFileMagic;
  header.LineAmount = Currency(static_cast<int>(lines.size()));
  std::string out = Record(header);
  for (const ScriptLine* l : lines) out += Record(*l);
  return out;
}

DecodedBetFile DecodeBetFile(const std::string& bytes) {
  DecodedBetFile file;
  if (bytes.size() < kBetRecordBytes) return file;
  const std::string magic = GetText(bytes, kText, kLineTextWidth);
  if (magic.compare(0, 19, "Tumbledice AutoBets") == 0) {
    file.Status = BetFileStatus::Sibling;
    return file;
  }
  if (magic.compare(0, 17, "Dicemill AutoBets") != 0) return file;
  file.Version = Trimmed(magic.size() > 4 ? magic.substr(magic.size() - 4) : magic);
  const double version = std::strtod(file.Version.c_str(), nullptr);
  if (version > 5.0) {
    file.Status = BetFileStatus::Newer;
    return file;
  }
  if (version < 5.0) {  // 3.9 included: its record is no longer read
    file.Status = BetFileStatus::Older;
    return file;
  }
  const int64_t count = static_cast<int64_t>(GetBytes(bytes, kAmount, 8));
  if (count < 0 || count % Currency::kScale != 0 ||
      count / Currency::kScale > static_cast<int64_t>(bytes.size() / kBetRecordBytes) - 1)
    return file;
  for (int64_t n = 1; n <= count / Currency::kScale; ++n) {
    file.Lines.push_back(ReadRecord(bytes, static_cast<size_t>(n) * kBetRecordBytes));
    if (!AmountInRange(file.Lines.back())) {
      file.Lines.clear();
      return file;
    }
  }
  file.Status = BetFileStatus::Ok;
  return file;
}

FileStatus ReadAutoBetFile(const std::string& path, std::vector<ScriptLine>& lines) {
  std::string bytes, reason;
  if (!ReadRegularFile(path, kMaxScriptFileBytes, bytes, reason)) return FileErrorStatus(path, reason);
  DecodedBetFile file = DecodeBetFile(bytes);
  switch (file.Status) {
    case BetFileStatus::Ok:
      lines = std::move(file.Lines);
      return {};
    case BetFileStatus::NotDicemill:
      return FileStatus::Failed(
          kOpenTitle, PrintableName(path) + kBreak + "has either been corrupted or is not a true Dicemill Auto-Bet file.");
    case BetFileStatus::Newer:
      return FileStatus::Failed(
          kOpenTitle, PrintableName(path) + kBreak + "requires Dicemill version " + file.Version + " or later to run.");
    case BetFileStatus::Sibling:  // its conversion is not offered: refused as an old format
    case BetFileStatus::Older:
      break;
  }
  return FileStatus::Failed(kOpenTitle, PrintableName(path) + kBreak +
                                            "has either been corrupted or was written with an older format which is no "
                                            "longer in use.");
}

FileStatus OpenAutoBetFile(Game& g, const std::string& path) {
  std::vector<ScriptLine> lines;
  FileStatus read = ReadAutoBetFile(path, lines);
  if (!read) return read;
  g.AutoBet.Lines = std::move(lines);
  g.AutoBet.FileName = path;
  RebuildFlags(g.AutoBet);
  g.InitPending = true;  // a changed script offers its first cycle at the table
  return {};
}

FileStatus SaveAutoBetFile(Game& g, const std::string& path, bool selectedOnly) {
  for (const ScriptLine& l : g.AutoBet.Lines) {
    if (!FitsFileFields(l))  // such a line is refused when built; never narrowed here
      return FileStatus::Failed("Dicemill", RunTimeErrorText("Overflow", 6, "Save Auto-Bet File"));
  }
  std::string reason;
  if (!WriteFileAtomically(path, EncodeBetFile(g.AutoBet, selectedOnly), reason)) return FileErrorStatus(path, reason);
  if (!selectedOnly) {
    g.AutoBet.FileName = path;
    g.ScriptDirty = false;
  }
  return {};
}

bool IsBetFilePath(const std::string& path) {
  std::string extension = std::filesystem::path(path).extension().string();
  for (char& ch : extension) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
  return extension == ".bet";
}

FileStatus SaveBetFile(const std::string& path, const Script& script) {
  for (int n = 1; n <= script.NumLines(); ++n) {
    if (!FitsFileFields(script.Line(n)))
      return FileStatus::Failed("Error", PrintableName(path) + ": line " + std::to_string(n) +
                                             " has a number that a .bet record cannot hold");
  }
  std::string reason;
  if (!WriteFileAtomically(path, EncodeBetFile(script, false), reason))
    return FileStatus::Failed("Error", PrintableName(path) + " " + reason + ".");
  return {};
}
