#pragma once
// The time of day in seconds, for the pause that ends a visible pass. It
// wraps at midnight; a pass that sees it go backwards does not wait.

#include <chrono>
#include <cmath>

inline double SecondsOfDay() {
  using namespace std::chrono;
  const double seconds = duration<double>(system_clock::now().time_since_epoch()).count();
  return std::fmod(seconds, 86400.0);
}
