#include "store/game_file_check.h"

#include <algorithm>
#include <cctype>
#include <memory>

#include "engine/game.h"
#include "store/checksum.h"
#include "store/game_file_links.h"
#include "store/game_file_sections.h"

namespace {

constexpr const char* kSignaturePrefix = "Dicemill Game File, Data Format 5.0";
// Record 1's spare bytes: a mark and the count of records in the file.
constexpr size_t kSealMarkOffset = 232;
constexpr int kSealCountSlot = 236 / 4;
constexpr const char* kSealMark = "DMck";
constexpr size_t kSealMarkWidth = 4;
// The closing record: its marker, then the CRC-32 of every byte before it.
constexpr const char* kCheckMarker = "Dicemill Check, CRC-32";
constexpr size_t kCheckMarkerWidth = 64;
constexpr int kCrcSlot = 16;
constexpr size_t kLinkRecords = 5;

FileRecord RecordAt(const std::string& bytes, size_t index) {
  FileRecord r{};
  std::copy_n(bytes.data() + index * kGameRecordBytes, kGameRecordBytes, r.data());
  return r;
}

FileRecord CheckRecord(uint32_t crc) {
  FileRecord check{};
  PutText(check, 0, kCheckMarkerWidth, kCheckMarker);
  PutInt32(check, kCrcSlot, static_cast<int32_t>(crc));
  return check;
}

bool IsSealed(const FileRecord& first) { return GetText(first, kSealMarkOffset, kSealMarkWidth) == kSealMark; }

// The records the sections up to the script state take, read as they would
// be into a game of no consequence; more than the file holds when it is cut.
size_t SectionRecords(const std::string& bytes) {
  const auto scratch = std::make_unique<Game>();
  RecordReader r(bytes);
  for (size_t i = 0; i < kLinkRecords; ++i) r.Next();
  ReadSettingsRecords(*scratch, r);
  ReadTableRecords(*scratch, r);
  ReadStatisticsRecords(*scratch, r);
  ReadScriptRecords(*scratch, r);
  return static_cast<size_t>(r.RecordsRead());
}

bool SealHolds(const std::string& bytes, const FileRecord& first) {
  const size_t records = bytes.size() / kGameRecordBytes;
  if (GetInt32(first, kSealCountSlot) != static_cast<int64_t>(records) || records < 2) return false;
  const std::string_view body(bytes.data(), bytes.size() - kGameRecordBytes);
  return RecordAt(bytes, records - 1) == CheckRecord(Crc32(body));
}

}  // namespace

bool IsGameFileSignature(const std::string& signature) {
  const std::string prefix = kSignaturePrefix;
  if (signature.compare(0, prefix.size(), prefix) != 0) return false;
  return std::all_of(signature.begin() + static_cast<std::ptrdiff_t>(prefix.size()), signature.end(),
                     [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; });
}

void SealGameFile(std::string& bytes) {
  FileRecord first = RecordAt(bytes, 0);
  PutText(first, kSealMarkOffset, kSealMarkWidth, kSealMark);
  PutInt32(first, kSealCountSlot, static_cast<int32_t>(bytes.size() / kGameRecordBytes + 1));
  bytes.replace(0, kGameRecordBytes, reinterpret_cast<const char*>(first.data()), kGameRecordBytes);
  const FileRecord check = CheckRecord(Crc32(bytes));
  bytes.append(reinterpret_cast<const char*>(check.data()), kGameRecordBytes);
}

bool GameFileIsWhole(const std::string& bytes) {
  if (bytes.empty() || bytes.size() % kGameRecordBytes != 0) return false;
  const FileRecord first = RecordAt(bytes, 0);
  if (!IsGameFileSignature(GetSignature(first))) return false;
  const bool sealed = IsSealed(first);
  if (sealed && !SealHolds(bytes, first)) return false;
  const size_t records = bytes.size() / kGameRecordBytes - (sealed ? 1 : 0);
  size_t at = SectionRecords(bytes);
  if (at > records) return false;
  if (at < records) {  // the continuation, whole, is all that may follow
    const int continuation = ContinuationRecordCount(RecordAt(bytes, at));
    if (continuation == 0) return false;
    at += static_cast<size_t>(continuation);
  }
  return at == records;
}
