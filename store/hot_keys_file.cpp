#include "store/hot_keys_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/file_errors.h"
#include "store/atomic_write.h"

namespace {

constexpr size_t kFileAt = 1;
constexpr size_t kLabelAt = kFileAt + kHotKeyFieldBytes;
constexpr size_t kUsedBytes = kLabelAt + kHotKeyFieldBytes;  // 201
constexpr size_t kMaxCountDigits = 6;

std::filesystem::path HotKeysPath(const Game& g) { return std::filesystem::path(g.DataFolder) / kHotKeysFileName; }

void PutField(std::string& out, size_t at, const std::string& text) {
  std::string field = text.substr(0, kHotKeyFieldBytes);
  field.resize(kHotKeyFieldBytes, ' ');
  out.replace(at, kHotKeyFieldBytes, field);
}

// A field with its blank (or zero) padding taken off the right.
std::string GetField(const std::string& in, size_t at) {
  std::string field = in.substr(at, kHotKeyFieldBytes);
  const size_t end = field.find_last_not_of(std::string(" \0", 2));
  return end == std::string::npos ? "" : field.substr(0, end + 1);
}

std::string Record(char key, const std::string& file, const std::string& label) {
  std::string record(kHotKeyRecordBytes, '\0');
  record[0] = key;
  PutField(record, kFileAt, file);
  PutField(record, kLabelAt, label);
  return record;
}

bool ReadCount(const std::string& text, size_t& count) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return false;
  const std::string digits = text.substr(first);
  if (digits.size() > kMaxCountDigits || digits.find_first_not_of("0123456789") != std::string::npos) return false;
  count = std::stoul(digits);
  return true;
}

}  // namespace

char HotKeyChar(char c) {
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return c;
  return 0;
}

std::string EncodeHotKeys(const std::vector<HotKeyBinding>& keys) {
  std::string out = Record(' ', kHotKeysMagic, std::to_string(keys.size()));
  for (const HotKeyBinding& k : keys) out += Record(k.Key, k.File, k.Label);
  return out;
}

HotKeysStatus DecodeHotKeys(const std::string& bytes, std::vector<HotKeyBinding>& keys) {
  keys.clear();
  size_t count = 0;
  if (bytes.size() < kUsedBytes || GetField(bytes, kFileAt) != kHotKeysMagic ||
      !ReadCount(GetField(bytes, kLabelAt), count))
    return HotKeysStatus::Corrupt;
  // The last record may stop after the bytes it uses.
  if (count > 0 && bytes.size() < count * kHotKeyRecordBytes + kUsedBytes) return HotKeysStatus::Corrupt;
  std::vector<HotKeyBinding> read;
  for (size_t n = 1; n <= count; ++n) {
    const size_t at = n * kHotKeyRecordBytes;
    HotKeyBinding k{bytes[at], GetField(bytes, at + kFileAt), GetField(bytes, at + kLabelAt)};
    const bool twice =
        std::any_of(read.begin(), read.end(), [&](const HotKeyBinding& r) { return r.Key == k.Key; });
    if (HotKeyChar(k.Key) != k.Key || k.File.empty() || twice) return HotKeysStatus::Corrupt;
    read.push_back(std::move(k));
  }
  keys = std::move(read);
  return HotKeysStatus::Ok;
}

FileStatus LoadHotKeys(Game& g) {
  g.HotKeys.clear();
  std::error_code ec;
  const auto path = HotKeysPath(g);
  if (g.DataFolder.empty() || (!std::filesystem::exists(path, ec) && !std::filesystem::is_symlink(path, ec))) return {};
  std::string bytes, reason;
  const bool read = ReadRegularFile(path, kMaxSmallFileBytes, bytes, reason);
  if (read && DecodeHotKeys(bytes, g.HotKeys) == HotKeysStatus::Ok) return {};
  // Whatever is wrong, the table starts with no Hot-Keys and says why.
  g.HotKeys.clear();
  return FileStatus::Failed("Unable to Open Hot-Key File",
                            PrintableName(path) + kBreak +
                                (read ? "has either been corrupted or is not a true Dicemill Hot-Key file." : reason + ".") +
                                kBreak + "No Hot-Keys are defined.");
}

FileStatus SaveHotKeys(Game& g) {
  std::string reason = g.DataFolderInUse ? "is in use by another Dicemill" : "has no data folder";
  if (g.DataFolder.empty() || g.DataFolderInUse || !WriteFileAtomically(HotKeysPath(g), EncodeHotKeys(g.HotKeys), reason))
    return FileErrorStatus(HotKeysPath(g), reason);
  return {};
}

const HotKeyBinding* FindHotKey(const Game& g, char key) {
  const char c = HotKeyChar(key);
  for (const HotKeyBinding& k : g.HotKeys)
    if (c != 0 && k.Key == c) return &k;
  return nullptr;
}

bool DefineHotKey(Game& g, char key, const std::string& file, const std::string& label) {
  const char c = HotKeyChar(key);
  if (c == 0 || file.size() > kHotKeyFieldBytes || label.size() > kHotKeyFieldBytes) return false;
  if (file.empty()) {
    ShowMessage(g, "Hot-Key", "Please enter an Auto-Bet filename to define this Hot-Key.");
    return false;
  }
  for (HotKeyBinding& k : g.HotKeys) {
    if (k.Key == c) {
      k.File = file;
      k.Label = label;
      return true;
    }
  }
  g.HotKeys.push_back({c, file, label});
  return true;
}

bool ClearHotKey(Game& g, char key) {
  const char c = HotKeyChar(key);
  const auto found = std::find_if(g.HotKeys.begin(), g.HotKeys.end(), [&](const HotKeyBinding& k) { return k.Key == c; });
  if (c == 0 || found == g.HotKeys.end()) return false;
  g.HotKeys.erase(found);
  return true;
}
