#include "store/prob_file.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <fstream>
#include <system_error>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/file_errors.h"
#include "store/atomic_write.h"

namespace {

constexpr size_t kRecordBytes = 256;
constexpr size_t kHeaderTextBytes = 92;
constexpr int kIntsPerRecord = 64;
constexpr int kTableInts = 224;  // flags, then values; column by column

int32_t& TableInt(ProbTable& t, int index) {
  const int half = index / 112, column = index % 112 / 14, row = index % 14;
  ProbCell& cell = t.at(row, column);
  return half == 0 ? cell.flags : cell.value;
}

void PutInt(std::string& out, size_t at, int32_t v) {
  const auto u = static_cast<uint32_t>(v);
  for (int i = 0; i < 4; ++i) out[at + i] = static_cast<char>((u >> (8 * i)) & 0xFF);
}

int32_t GetInt(const std::string& in, size_t at) {
  uint32_t u = 0;
  for (int i = 0; i < 4; ++i) u |= uint32_t{static_cast<unsigned char>(in[at + i])} << (8 * i);
  return static_cast<int32_t>(u);
}


}  // namespace

std::string EncodeProbFile(const ProbTable& table) {
  ProbTable t = table;
  std::string out(kProbFileSize, '\0');
  std::string header = kProbFileHeader;
  header.resize(kHeaderTextBytes, ' ');
  out.replace(0, kHeaderTextBytes, header);
  // The integers go through one record-sized buffer; the last record keeps
  // whatever the buffer held beyond the table, as the reader ignores it.
  int32_t buffer[kIntsPerRecord] = {};
  size_t record = 1;
  for (int i = 0; i < kTableInts; ++i) {
    buffer[i % kIntsPerRecord] = TableInt(t, i);
    const bool full = i % kIntsPerRecord == kIntsPerRecord - 1;
    if (full || i == kTableInts - 1) {
      for (int k = 0; k < kIntsPerRecord; ++k) PutInt(out, record * kRecordBytes + 4 * k, buffer[k]);
      ++record;
    }
  }
  return out;
}

std::optional<ProbTable> DecodeProbFile(const std::string& bytes) {
  if (bytes.size() < kProbFileSize) return std::nullopt;
  std::string header = bytes.substr(0, kHeaderTextBytes);
  const size_t first = header.find_first_not_of(' ');
  const size_t last = header.find_last_not_of(' ');
  header = first == std::string::npos ? "" : header.substr(first, last - first + 1);
  if (header != kProbFileHeader) return std::nullopt;
  ProbTable t;
  for (int i = 0; i < kTableInts; ++i) TableInt(t, i) = GetInt(bytes, kRecordBytes + 4 * size_t(i));
  return t;
}

FileStatus OpenProbabilityFile(Game& g, const std::string& path) {
  std::string bytes, reason;
  if (!ReadRegularFile(path, kMaxSmallFileBytes, bytes, reason)) return FileErrorStatus(path, reason);
  const std::optional<ProbTable> table = DecodeProbFile(bytes);
  if (!table) {
    return FileStatus::Failed(
        "Unable to Open Dicemill Probability File",
        PrintableName(path) + kBreak +
            "is either from an older version, has been corrupted, or is not a true Dicemill Probability File.");
  }
  g.Prob = *table;
  g.ProbFileName = path;
  g.ProbModified = false;
  return {};
}

FileStatus SaveProbabilityFile(Game& g, const std::string& path) {
  std::string reason;
  if (!WriteFileAtomically(path, EncodeProbFile(g.Prob), reason)) return FileErrorStatus(path, reason);
  g.ProbFileName = path;
  g.ProbModified = false;
  return {};
}

bool QuerySaveProbabilityPage(Game& g) {
  if (!g.ProbModified) return true;
  const Reply reply = ShowMessage(g, "Save Probabilities?",
                                  std::string("These numbers have not been saved.") + kBreak +
                                      "Do you want to save them now?",
                                  Buttons::YesNoCancel);
  if (reply == Reply::Cancel) return false;
  if (reply == Reply::No) return true;
  // With no name of its own the numbers need one from the player; a front
  // end without a file dialog answers nothing, which counts as its Cancel.
  const std::string name = std::filesystem::path(g.ProbFileName).filename().string();
  if (name == "default.prb") return false;
  std::string path = g.ProbFileName;
  if (path.empty() || path == "untitled") {
    const std::optional<std::string> chosen = g.Ui->AskFileName("Save Probability File As", "*.prb");
    if (!chosen) return false;
    path = *chosen;
  }
  return ShowFileStatus(g, SaveProbabilityFile(g, path));
}

bool NewProbabilities(Game& g) {
  if (!QuerySaveProbabilityPage(g)) return false;
  ResetToTrue(g.Prob);
  g.ProbFileName = "untitled";
  g.ProbModified = false;
  return true;
}
