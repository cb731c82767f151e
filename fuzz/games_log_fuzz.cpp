// libFuzzer target: the games log reader and its statistics.
#include <cstddef>
#include <cstdint>

#include "fuzz/fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::GamesLog(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
