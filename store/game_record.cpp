#include "store/game_record.h"

#include <algorithm>

namespace {

void PutLittleEndian(FileRecord& r, size_t offset, uint64_t value, size_t bytes) {
  for (size_t i = 0; i < bytes; ++i) r[offset + i] = static_cast<uint8_t>(value >> (8 * i));
}

uint64_t GetLittleEndian(const FileRecord& r, size_t offset, size_t bytes) {
  uint64_t value = 0;
  for (size_t i = 0; i < bytes; ++i) value |= uint64_t{r[offset + i]} << (8 * i);
  return value;
}

template <class T, class Put>
void Pack(RecordWriter& w, const std::vector<T>& values, size_t perRecord, Put put) {
  for (size_t first = 0; first < values.size(); first += perRecord) {
    FileRecord& r = w.Add();
    const size_t end = std::min(values.size(), first + perRecord);
    for (size_t i = first; i < end; ++i) put(r, static_cast<int>(i - first), values[i]);
  }
}

template <class T, class Get>
std::vector<T> Unpack(RecordReader& reader, size_t count, size_t perRecord, Get get) {
  std::vector<T> values;
  values.reserve(count);
  while (values.size() < count) {
    const FileRecord r = reader.Next();
    for (size_t slot = 0; slot < perRecord && values.size() < count; ++slot)
      values.push_back(get(r, static_cast<int>(slot)));
  }
  return values;
}

}  // namespace

void PutCurrency(FileRecord& r, int slot, Currency value) {
  PutLittleEndian(r, static_cast<size_t>(slot) * 8, static_cast<uint64_t>(value.raw), 8);
}
Currency GetCurrency(const FileRecord& r, int slot) {
  return Currency::FromRaw(static_cast<int64_t>(GetLittleEndian(r, static_cast<size_t>(slot) * 8, 8)));
}
void PutInt16(FileRecord& r, int slot, int32_t value) {
  PutLittleEndian(r, static_cast<size_t>(slot) * 2, static_cast<uint16_t>(value), 2);
}
int16_t GetInt16(const FileRecord& r, int slot) {
  return static_cast<int16_t>(GetLittleEndian(r, static_cast<size_t>(slot) * 2, 2));
}
void PutInt32(FileRecord& r, int slot, int32_t value) {
  PutLittleEndian(r, static_cast<size_t>(slot) * 4, static_cast<uint32_t>(value), 4);
}
int32_t GetInt32(const FileRecord& r, int slot) {
  return static_cast<int32_t>(GetLittleEndian(r, static_cast<size_t>(slot) * 4, 4));
}

void PutText(FileRecord& r, size_t offset, size_t width, const std::string& text) {
  for (size_t i = 0; i < width; ++i) r[offset + i] = i < text.size() ? static_cast<uint8_t>(text[i]) : ' ';
}

std::string GetText(const FileRecord& r, size_t offset, size_t width) {
  std::string text(reinterpret_cast<const char*>(r.data() + offset), width);
  const size_t end = text.find_last_not_of(" \0", std::string::npos, 2);
  text.erase(end == std::string::npos ? 0 : end + 1);
  const size_t start = text.find_first_not_of(' ');
  return start == std::string::npos ? std::string() : text.substr(start);
}

FileRecord& RecordWriter::Add() { return records_.emplace_back(); }
FileRecord& RecordWriter::Add(const FileRecord& start) { return records_.emplace_back(start); }

void RecordWriter::AddCurrencies(const std::vector<Currency>& values) {
  Pack(*this, values, kCurrencySlots, PutCurrency);
}
void RecordWriter::AddInt16s(const std::vector<int32_t>& values) { Pack(*this, values, kInt16Slots, PutInt16); }
void RecordWriter::AddInt32s(const std::vector<int32_t>& values) { Pack(*this, values, kInt32Slots, PutInt32); }

std::string RecordWriter::Bytes() const {
  std::string bytes;
  bytes.reserve(records_.size() * kGameRecordBytes);
  for (const FileRecord& r : records_) bytes.append(reinterpret_cast<const char*>(r.data()), r.size());
  return bytes;
}

FileRecord RecordReader::Next() {
  FileRecord r{};
  if (offset_ < bytes_.size()) {
    const size_t n = std::min(kGameRecordBytes, bytes_.size() - offset_);
    std::copy_n(bytes_.data() + offset_, n, r.data());
  }
  offset_ += kGameRecordBytes;
  return r;
}

std::vector<Currency> RecordReader::NextCurrencies(size_t count) {
  return Unpack<Currency>(*this, count, kCurrencySlots, GetCurrency);
}
std::vector<int32_t> RecordReader::NextInt16s(size_t count) {
  return Unpack<int32_t>(*this, count, kInt16Slots, GetInt16);
}
std::vector<int32_t> RecordReader::NextInt32s(size_t count) {
  return Unpack<int32_t>(*this, count, kInt32Slots, GetInt32);
}
