#pragma once
// Money: a 64-bit count of ten-thousandths. Ratios are worked in double and come
// back by rounding to four decimals with ties to even; "integer part" is floor.

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

struct Currency {
  int64_t raw = 0;  // value x 10,000

  static constexpr int64_t kScale = 10000;

  constexpr Currency() = default;
  // Whole amounts are common in code and tests: Currency(5) is $5.
  constexpr Currency(int whole) : raw(int64_t{whole} * kScale) {}
  static constexpr Currency FromRaw(int64_t r) { Currency c; c.raw = r; return c; }
  // Round to four decimals, ties to even.
  static Currency FromDouble(double value);

  double ToDouble() const { return static_cast<double>(raw) / kScale; }
  bool IsWhole() const { return raw % kScale == 0; }

  constexpr Currency operator-() const { return FromRaw(-raw); }
  constexpr Currency& operator+=(Currency o) { raw += o.raw; return *this; }
  constexpr Currency& operator-=(Currency o) { raw -= o.raw; return *this; }
  friend constexpr Currency operator+(Currency a, Currency b) { return FromRaw(a.raw + b.raw); }
  friend constexpr Currency operator-(Currency a, Currency b) { return FromRaw(a.raw - b.raw); }
  friend constexpr bool operator==(Currency a, Currency b) = default;
  friend constexpr auto operator<=>(Currency a, Currency b) = default;
};

// Currency times a whole count stays exact.
constexpr Currency operator*(Currency a, int64_t n) { return Currency::FromRaw(a.raw * n); }

// a * ratio worked in double, rounded back to Currency.
Currency MulRatio(Currency a, double ratio);
// a x num / den, exact, rounded to four decimals with ties to even: how a
// payoff ratio is applied to a bet.
Currency MulDiv(Currency a, Currency num, Currency den);
// Floor of a / unit (the quotient first rounded to Currency, then floored).
int64_t IntegerPartOf(Currency a, Currency unit);
// Floor of a value: the integer part, toward minus infinity.
int64_t Floor(Currency a);

// Inline: the placement and settling of every bet compare money this way.
constexpr Currency Abs(Currency a) { return a.raw < 0 ? -a : a; }
constexpr Currency Max(Currency a, Currency b) { return a < b ? b : a; }
constexpr Currency Min(Currency a, Currency b) { return a < b ? a : b; }
// Copies a block through the C library's copy: the compiler would inline a
// copy of known size as a string move, slow to start for the few hundred
// bytes of a roll's snapshots.
void CopyBlock(void* to, const void* from, size_t bytes);
template <typename T, size_t N>
void CopyArray(std::array<T, N>& to, const std::array<T, N>& from) {
  CopyBlock(to.data(), from.data(), sizeof(T) * N);
}

// Test failures and diagnostics print money as the program shows it.
void PrintTo(Currency value, std::ostream* os);

// Parses a decimal such as "-7.5" or "1,234.25"; false on anything else or on
// more than four decimals' worth of precision lost.
bool ParseCurrency(const std::string& text, Currency& out);

// The one money format of all texts: whole values "#,#;-#,#;0", others
// "#,#.00##;-#,#.00##;0.00" (so 0.5 shows as ".50", as that pattern does).
std::string FormatNumberWithCommas(Currency value);
// A whole count with thousands separators ("#,#"), for texts that show counts.
std::string FormatWithCommas(int64_t value);
