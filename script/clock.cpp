#include "script/clock.h"

#include <chrono>

double SecondsOfDay() {
  using namespace std::chrono;
  const auto sinceEpoch = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
  constexpr int64_t kDay = int64_t{86'400} * 1'000'000;
  return static_cast<double>(sinceEpoch % kDay) / 1e6;
}

int32_t MillisecondClock() {
  using namespace std::chrono;
  const auto ms = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  return static_cast<int32_t>(ms & 0x7FFFFFFF);
}
