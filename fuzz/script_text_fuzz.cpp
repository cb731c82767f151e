// libFuzzer target: the script text reader, and the script it holds played for a few rolls.
#include <cstddef>
#include <cstdint>

#include "fuzz/fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::ScriptText(std::string(reinterpret_cast<const char*>(data), size));
  fuzz::ScriptTextAndPlay(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
