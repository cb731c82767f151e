#pragma once
// Money divided by a count, rounded to four decimals with ties to even, as
// every average of the statistics is.

#include <cstdint>

#include "dice/money.h"

inline Currency RoundedQuotient(Currency sum, int64_t count) {
  if (count <= 0) return 0;
  int64_t quotient = sum.raw / count;
  const int64_t remainder = sum.raw % count;
  const int64_t twice = 2 * (remainder < 0 ? -remainder : remainder);
  if (twice > count || (twice == count && quotient % 2 != 0)) quotient += sum.raw < 0 ? -1 : 1;
  return Currency::FromRaw(quotient);
}
