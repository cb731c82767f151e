#pragma once
// Arithmetic of the script's verbs. A result that leaves the range of
// Currency aborts the pass with an Overflow error instead of wrapping.

#include <cstdint>

#include "dice/money.h"

// A double, rounded to Currency (ties to even).
Currency CheckedFromDouble(double value);
// percent % of value, worked in double.
Currency PercentOf(Currency percent, Currency value);
Currency CheckedAdd(Currency a, Currency b);
// a x b and a / b, exact, rounded to four decimals with ties to even.
// Dividing by 0 is the caller's to prevent.
Currency CheckedTimes(Currency a, Currency b);
Currency CheckedOver(Currency a, Currency b);
// A whole count of dollars as Currency.
Currency CheckedWhole(int64_t dollars);
// count x unit, exact.
Currency CheckedMultiple(int64_t count, Currency unit);
