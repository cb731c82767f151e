#pragma once
// One line of an Auto-Bet script. A line is made of codes chosen from fixed
// lists; Text is only their rendering, kept beside them.

#include <cstdint>
#include <string>

#include "dice/money.h"

namespace line_kind {
constexpr int kWhen = 1;
constexpr int kWhile = 2;
constexpr int kAndWhen = 3;
constexpr int kAndWhile = 4;
constexpr int kOrWhen = 5;
constexpr int kOrWhile = 6;
constexpr int kXorWhen = 7;
constexpr int kXorWhile = 8;
constexpr int kThen = 11;
constexpr int kElse = 12;
constexpr int kDoThis = 13;
constexpr int kCondition = 20;
constexpr int kAction = 30;
constexpr int kLabel = 90;
constexpr int kComment = 99;

constexpr bool IsStartCondition(int kind) { return kind >= kWhen && kind <= kXorWhile; }
constexpr bool IsStartAction(int kind) { return kind >= kThen && kind <= kDoThis; }
}  // namespace line_kind

constexpr size_t kLineNameWidth = 80;
constexpr size_t kLineTextWidth = 128;

struct ScriptLine {
  int32_t Kind = 0;
  int32_t Code = 0;        // comparison (Condition) or verb (Action)
  std::string Name;        // flag, label, message, file or Chip-Stack name
  Currency LineAmount;     // "is True" -1, "is False" 0; 0 in an occurrence test is "each"
  int32_t Subject = 0;     // subject (Condition) or the "of" source (Action)
  int32_t SubjectNum = 0;  // Chip-Stack number of Subject
  int32_t Spare1 = 0;      // kept and saved, never read by a run
  int32_t Target = 0;      // compared-against value (Condition) or the "to" target (Action)
  int32_t TargetNum = 0;
  int32_t Spare2 = 0;
  bool Selected = false;   // editor marks, not script properties
  bool Marked = false;
  std::string Text;

  bool operator==(const ScriptLine&) const = default;
};

// The largest amount a line may hold, either sign: far above any bet, seed
// or count, and far enough below the ends of Currency that the verbs'
// arithmetic on it can never overflow. A file whose line holds more is
// damaged.
constexpr Currency kMostLineAmount = Currency::FromRaw(1'000'000'000'000 * Currency::kScale);
constexpr bool AmountInRange(const ScriptLine& l) {
  return l.LineAmount.raw >= -kMostLineAmount.raw && l.LineAmount.raw <= kMostLineAmount.raw;
}

// The file keeps Kind, SubjectNum, Spare1, TargetNum and Spare2 in 16 bits;
// a line whose numbers do not fit is refused when it is built.
constexpr bool FitsSixteenBits(int32_t v) { return v >= INT16_MIN && v <= INT16_MAX; }
constexpr bool FitsFileFields(const ScriptLine& l) {
  return FitsSixteenBits(l.Kind) && FitsSixteenBits(l.SubjectNum) && FitsSixteenBits(l.Spare1) &&
         FitsSixteenBits(l.TargetNum) && FitsSixteenBits(l.Spare2);
}
