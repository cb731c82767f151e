#include "store/checksum.h"

#include <array>

namespace {

constexpr std::array<uint32_t, 256> MakeTable() {
  std::array<uint32_t, 256> table{};
  for (uint32_t n = 0; n < 256; ++n) {
    uint32_t c = n;
    for (int k = 0; k < 8; ++k) c = c & 1 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  return table;
}

constexpr std::array<uint32_t, 256> kTable = MakeTable();

}  // namespace

uint32_t Crc32(std::string_view bytes) {
  uint32_t c = 0xFFFFFFFFu;
  for (const char b : bytes) c = kTable[(c ^ static_cast<uint8_t>(b)) & 0xFF] ^ (c >> 8);
  return c ^ 0xFFFFFFFFu;
}
