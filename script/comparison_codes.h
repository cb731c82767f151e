#pragma once
// The comparisons of a Condition line (its Code): against the line's amount,
// against a value named by its Target, a count of bets, or a Chip-Stack's
// name. The two compared forms run in the same order.

namespace comparison {
constexpr int kEqual = 11, kNotEqual = 12, kMore = 13, kNotMore = 14, kLess = 15, kNotLess = 16;
constexpr int kFirstAmount = kEqual, kLastAmount = kNotLess;
constexpr int kTargetOffset = 6;  // kEqual + 6 compares with the target's value
constexpr int kFirstTarget = kFirstAmount + kTargetOffset, kLastTarget = kLastAmount + kTargetOffset;
constexpr int kNumber = 23, kNumberMoreThan = 24, kNumberLessThan = 25;  // of the bets that stand
constexpr int kFirstCount = kNumber, kLastCount = kNumberLessThan;
constexpr int kIsNamed = 26, kIsNotNamed = 27;

constexpr bool AgainstAmount(int code) { return code >= kFirstAmount && code <= kLastAmount; }
constexpr bool AgainstTarget(int code) { return code >= kFirstTarget && code <= kLastTarget; }
constexpr bool OfCount(int code) { return code >= kFirstCount && code <= kLastCount; }
constexpr bool OfName(int code) { return code == kIsNamed || code == kIsNotNamed; }
}  // namespace comparison
