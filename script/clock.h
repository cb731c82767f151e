#pragma once
// The clocks a script pass reads: the time of day for the pause after a
// pass, and the millisecond counter that seeds a generator.

#include <cstdint>

// Seconds since midnight (UTC), with fractions; it wraps to 0 once a day.
double SecondsOfDay();

// A millisecond counter, kept to 31 bits so that it is a positive 32-bit value.
int32_t MillisecondClock();
