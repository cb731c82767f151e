#include "script/text_form_words.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsAlnum(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

std::vector<std::string> Words(std::string_view s) {
  std::vector<std::string> words;
  std::string word;
  for (char c : s) {
    if (IsBlank(c)) {
      if (!word.empty()) words.push_back(word);
      word.clear();
    } else {
      word += Lower(c);
    }
  }
  if (!word.empty()) words.push_back(word);
  return words;
}

// Length of the amount token at `at`: a sign, digits and separators, a point
// and decimals. 0 when none starts there.
size_t AmountTokenLength(std::string_view s, size_t at) {
  size_t i = at;
  if (i < s.size() && s[i] == '-') ++i;
  const size_t digitsFrom = i;
  while (i < s.size() && (IsDigit(s[i]) || s[i] == ',' || s[i] == '.')) ++i;
  bool anyDigit = false;
  for (size_t k = digitsFrom; k < i; ++k) anyDigit = anyDigit || IsDigit(s[k]);
  return anyDigit ? i - at : 0;
}

}  // namespace

std::string ExactAmountText(Currency value) {
  const uint64_t mag = value.raw < 0 ? -static_cast<uint64_t>(value.raw) : static_cast<uint64_t>(value.raw);
  std::string text = (value.raw < 0 ? "-" : "") + std::to_string(mag / Currency::kScale);
  const uint64_t frac = mag % Currency::kScale;
  if (frac != 0) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%04u", static_cast<unsigned>(frac));
    std::string f = digits;
    while (f.back() == '0') f.pop_back();
    text += "." + f;
  }
  return text;
}

bool ParseExactAmount(std::string_view t, Currency& out) {
  size_t i = 0;
  const bool negative = i < t.size() && t[i] == '-';
  if (negative) ++i;
  const uint64_t limit = negative ? uint64_t{1} << 63 : (uint64_t{1} << 63) - 1;
  uint64_t whole = 0, frac = 0;
  int digits = 0, decimals = 0;
  for (; i < t.size() && (IsDigit(t[i]) || t[i] == ','); ++i) {
    if (t[i] == ',') continue;
    if (whole > limit / 10) return false;
    whole = whole * 10 + static_cast<uint64_t>(t[i] - '0');
    ++digits;
  }
  if (i < t.size() && t[i] == '.') {
    for (++i; i < t.size() && IsDigit(t[i]); ++i) {
      if (++decimals > 4) return false;
      frac = frac * 10 + static_cast<uint64_t>(t[i] - '0');
    }
    if (decimals == 0) return false;
  }
  if (i != t.size() || digits + decimals == 0) return false;
  for (int d = decimals; d < 4; ++d) frac *= 10;
  if (whole > (limit - frac) / Currency::kScale) return false;
  const uint64_t mag = whole * Currency::kScale + frac;
  out = Currency::FromRaw(negative ? static_cast<int64_t>(0 - mag) : static_cast<int64_t>(mag));
  return true;
}

std::string QuotedName(const std::string& name) {
  std::string out = "\"";
  for (char c : name) {
    const auto u = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (u < 32 || u == 127) {
      char hex[8];
      std::snprintf(hex, sizeof hex, "\\x%02X", u);
      out += hex;
    } else {
      out += c;
    }
  }
  return out + "\"";
}

std::string TrimmedWords(const std::string& words) {
  const size_t last = words.find_last_not_of(' ');
  return last == std::string::npos ? "" : words.substr(0, last + 1);
}

void LineCursor::SkipBlanks() {
  while (pos_ < s_.size() && IsBlank(s_[pos_])) ++pos_;
}

bool LineCursor::AtEnd() {
  SkipBlanks();
  return pos_ >= s_.size();
}

// The end of `words` matched at the cursor, or npos. Blanks match any run of
// blanks; a "%" takes an amount before it, kept in `percent`.
size_t LineCursor::MatchEntry(std::string_view words, Currency* percent) const {
  size_t j = pos_;
  for (size_t i = 0; i < words.size();) {
    const char w = words[i];
    if (w == ' ') {
      if (j >= s_.size() || !IsBlank(s_[j])) return std::string::npos;
      while (j < s_.size() && IsBlank(s_[j])) ++j;
      while (i < words.size() && words[i] == ' ') ++i;
      continue;
    }
    if (w == '%' && percent) {
      const size_t n = AmountTokenLength(s_, j);
      if (n == 0 || !ParseExactAmount(std::string_view(s_).substr(j, n), *percent)) return std::string::npos;
      j += n;
      while (j < s_.size() && IsBlank(s_[j])) ++j;
      if (j >= s_.size() || s_[j] != '%') return std::string::npos;
      ++i, ++j;
      continue;
    }
    if (j >= s_.size() || Lower(s_[j]) != Lower(w)) return std::string::npos;
    ++i, ++j;
  }
  if (!words.empty() && j < s_.size() && IsAlnum(s_[j]) && IsAlnum(words.back())) return std::string::npos;
  return j;
}

std::optional<ListMatch> LineCursor::TryList(const ChoiceList& list) {
  SkipBlanks();
  std::optional<ListMatch> best;
  size_t bestEnd = 0;
  for (const ListEntry& e : list) {
    if (e.Code == 0 && e.Words == script_list::kSeparator) continue;
    std::string_view words = e.Words;
    while (!words.empty() && words.back() == ' ') words.remove_suffix(1);
    if (words.empty()) continue;
    Currency percent;
    const size_t end = MatchEntry(words, &percent);
    if (end != std::string::npos && (!best || end > bestEnd)) {
      best = ListMatch{e.Code, percent};
      bestEnd = end;
    }
  }
  if (best) pos_ = bestEnd;
  return best;
}

ListMatch LineCursor::ExpectList(const ChoiceList& list) {
  if (std::optional<ListMatch> m = TryList(list)) return *m;
  FailWithChoices(list);
}

bool LineCursor::TryWords(std::string_view words) {
  SkipBlanks();
  const size_t end = MatchEntry(words, nullptr);
  if (end == std::string::npos) return false;
  pos_ = end;
  return true;
}

void LineCursor::ExpectWords(std::string_view words) {
  if (!TryWords(words)) Fail("\"" + std::string(words) + "\"");
}

std::optional<Currency> LineCursor::TryAmount() {
  SkipBlanks();
  const size_t n = AmountTokenLength(s_, pos_);
  Currency value;
  if (n == 0 || !ParseExactAmount(std::string_view(s_).substr(pos_, n), value)) return std::nullopt;
  if (pos_ + n < s_.size() && IsAlnum(s_[pos_ + n])) return std::nullopt;
  pos_ += n;
  return value;
}

Currency LineCursor::ExpectAmount() {
  if (std::optional<Currency> a = TryAmount()) return *a;
  Fail("an amount (such as 10, 2.50 or 1,000)");
}

int32_t LineCursor::ExpectNumber() {
  SkipBlanks();
  size_t i = pos_;
  if (i < s_.size() && s_[i] == '-') ++i;
  int64_t value = 0;
  const size_t from = i;
  while (i < s_.size() && IsDigit(s_[i]) && value <= INT32_MAX) value = value * 10 + (s_[i++] - '0');
  if (i == from || (i < s_.size() && IsAlnum(s_[i]))) Fail("a whole number");
  if (s_[pos_] == '-') value = -value;
  if (value < INT32_MIN || value > INT32_MAX) Fail("a whole number that fits 32 bits");
  pos_ = i;
  return static_cast<int32_t>(value);
}

std::string LineCursor::ExpectQuoted() {
  SkipBlanks();
  if (pos_ >= s_.size() || s_[pos_] != '"') Fail("a name in double quotes, such as \"loop\"");
  std::string name;
  size_t i = pos_ + 1;
  for (; i < s_.size() && s_[i] != '"'; ++i) {
    if (s_[i] != '\\') {
      name += s_[i];
      continue;
    }
    ++i;
    if (i < s_.size() && (s_[i] == '"' || s_[i] == '\\')) {
      name += s_[i];
    } else if (i + 2 < s_.size() && s_[i] == 'x' && std::isxdigit(static_cast<unsigned char>(s_[i + 1])) &&
               std::isxdigit(static_cast<unsigned char>(s_[i + 2]))) {
      name += static_cast<char>(std::stoi(s_.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      pos_ = i - 1;
      Fail("\\\", \\\\ or \\xHH after a backslash");
    }
  }
  if (i >= s_.size()) {
    pos_ = s_.size();
    Fail("a closing double quote");
  }
  pos_ = i + 1;
  return name;
}

void LineCursor::ExpectEnd() {
  if (!AtEnd()) Fail("the end of the line");
}

void LineCursor::Fail(const std::string& expected) {
  SkipBlanks();
  size_t end = pos_;
  while (end < s_.size() && !IsBlank(s_[end])) ++end;
  throw TextFormError{pos_, s_.substr(pos_, end - pos_), expected, ""};
}

size_t EditDistance(const std::string& a, const std::string& b) {
  std::vector<size_t> row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    size_t diagonal = row[0];
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t above = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (Lower(a[i - 1]) == Lower(b[j - 1]) ? 0 : 1)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

// Names the first word that no entry goes on with, and the entries that
// agree with the text up to it: those are the ones that would fit there.
void LineCursor::FailWithChoices(const ChoiceList& list) {
  SkipBlanks();
  const size_t start = pos_;
  const std::vector<std::string> typed = Words(std::string_view(s_).substr(pos_));
  size_t best = 0;
  std::vector<std::pair<size_t, std::string>> agreeing;
  for (const ListEntry& e : list) {
    if (e.Code == 0 && e.Words == script_list::kSeparator) continue;
    const std::vector<std::string> words = Words(e.Words);
    size_t k = 0;
    while (k < words.size() && k < typed.size() && words[k] == typed[k]) ++k;
    best = std::max(best, k);
    agreeing.push_back({k, TrimmedWords(e.Words)});
  }
  std::vector<std::string> choices;
  for (const auto& [k, words] : agreeing)
    if (k == best) choices.push_back(words);
  bool sameLetterOnly = false;
  if (best == 0 && !typed.empty()) {  // nothing agrees: offer those of the same first letter, if any
    std::vector<std::string> sameLetter;
    for (const std::string& c : choices)
      if (!c.empty() && Lower(c[0]) == typed[0][0]) sameLetter.push_back(c);
    if (!sameLetter.empty()) choices = sameLetter;
    sameLetterOnly = !sameLetter.empty();
  }
  // The closest few, by how far their next word is from the word typed.
  const std::string wrong = best < typed.size() ? typed[best] : "";
  auto distance = [&](const std::string& choice) {
    const std::vector<std::string> words = Words(choice);
    return best < words.size() ? EditDistance(words[best], wrong) : wrong.size();
  };
  std::stable_sort(choices.begin(), choices.end(),
                   [&](const std::string& a, const std::string& b) { return distance(a) < distance(b); });
  const size_t more = choices.size() > kMostChoicesShown ? choices.size() - kMostChoicesShown : 0;
  choices.resize(choices.size() - more);
  // Step over the words that agreed, to point at the first that did not.
  for (size_t w = 0; w < best; ++w) {
    while (pos_ < s_.size() && !IsBlank(s_[pos_])) ++pos_;
    SkipBlanks();
  }
  std::string expected = "one of ";
  for (size_t i = 0; i < choices.size(); ++i) expected += (i ? ", \"" : "\"") + choices[i] + "\"";
  if (more > 0) {
    std::string prefix = TrimmedWords(s_.substr(start, pos_ - start));
    if (prefix.empty() && sameLetterOnly) prefix = s_.substr(start, 1);
    expected += " (or " + std::to_string(more) + " more; `dicemill-cli script words" +
                (prefix.empty() ? "" : " \"" + prefix + "\"") + "` lists them)";
  }
  Fail(expected);
}
