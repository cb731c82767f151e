#pragma once
// The bounds a table keeps typed checks and payoffs within: inside them every
// figure of a game of 100,000,000 rolls stays inside the money's 64 bits. A
// game file is held to them too.

#include <cstdint>

#include "dice/money.h"

namespace table_limits {
constexpr Currency kLeastUnit = Currency::FromRaw(100);  // a cent
constexpr Currency kMostPer = 1'000;
constexpr int64_t kMostRatio = 1'000;  // a payoff's Win against its Per
constexpr Currency kMostChip = 100'000;
constexpr int kChips = 5;
constexpr int kFieldRows = 21;
}  // namespace table_limits
