// libFuzzer target: the game file reader.
#include <cstddef>
#include <cstdint>

#include "fuzz/fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::GameFile(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
