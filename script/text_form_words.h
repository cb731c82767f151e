#pragma once
// The pieces a line of the text form is read from: catalogue words, matched
// without regard to case or to how many blanks stand between words; amounts;
// whole numbers; quoted names. Failures throw TextFormError, which the reader
// turns into its one message.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dice/money.h"
#include "script/catalogue.h"

struct TextFormError {
  size_t Column = 0;         // 0-based, within the text line
  std::string Found;         // the word that did not fit ("" at the end of the line)
  std::string Expected;      // what would have fitted, in words or as quoted choices
  std::string Message;       // a fault that is not about a word: said as it stands
};

// Exact decimal money: "-1234.5", no thousands separators, at most four
// decimals. Parsing also takes separators ("1,000") and a bare ".50".
std::string ExactAmountText(Currency value);
bool ParseExactAmount(std::string_view text, Currency& out);

// A name between double quotes: \" and \\ escape, bytes below 32 and 127 are
// written \xHH; other bytes stand as they are.
std::string QuotedName(const std::string& name);

struct ListMatch {
  int Code = 0;
  Currency Percent;  // the amount standing in place of "%" in a verb
};

class LineCursor {
 public:
  // `line` is a whole text line; reading starts at `start`.
  LineCursor(const std::string& line, size_t start) : s_(line), pos_(start) {}

  size_t Pos() const { return pos_; }
  bool AtEnd();
  // The longest entry the text goes on with; nothing when none fits.
  std::optional<ListMatch> TryList(const ChoiceList& list);
  // As TryList; when nothing fits, fails with the entries that would fit.
  ListMatch ExpectList(const ChoiceList& list);
  // Case-insensitive words, at a word boundary.
  bool TryWords(std::string_view words);
  void ExpectWords(std::string_view words);
  std::optional<Currency> TryAmount();
  Currency ExpectAmount();
  int32_t ExpectNumber();
  std::string ExpectQuoted();
  void ExpectEnd();
  [[noreturn]] void Fail(const std::string& expected);
  [[noreturn]] void FailWithChoices(const ChoiceList& list);

 private:
  size_t MatchEntry(std::string_view words, Currency* percent) const;
  void SkipBlanks();

  const std::string& s_;
  size_t pos_;
};

// The words of a list entry without the blanks it may end with.
std::string TrimmedWords(const std::string& words);

// The letters to change, add or drop to turn one word into the other, case aside.
size_t EditDistance(const std::string& a, const std::string& b);
// A message lists no more close matches than this.
inline constexpr size_t kMostChoicesShown = 5;
