#include "cli/command_words.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "cli/command_error.h"
#include "engine/catalogue.h"

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view line) {
  std::vector<std::string> words;
  size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && IsBlank(line[i])) ++i;
    if (i == line.size()) break;
    std::string word;
    bool quoted = false;
    while (i < line.size() && (quoted || !IsBlank(line[i]))) {
      if (line[i] == '"')
        quoted = !quoted;
      else
        word += line[i];
      ++i;
    }
    if (quoted) throw CommandError("unclosed double quote");
    words.push_back(std::move(word));
  }
  return words;
}

bool IsBlankOrComment(std::string_view line) {
  for (char c : line) {
    if (IsBlank(c)) continue;
    return c == '#';
  }
  return true;
}

std::string ToLower(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return out;
}

int64_t ReadInteger(const std::string& word, int64_t lo, int64_t hi, const std::string& what) {
  std::string_view digits = word;
  if (!digits.empty() && digits.front() == '+') digits.remove_prefix(1);
  int64_t value = 0;
  auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (digits.empty() || ec == std::errc::invalid_argument || end != digits.data() + digits.size())
    throw CommandError(what + " '" + word + "' is not a whole number");
  if (ec == std::errc::result_out_of_range || value < lo || value > hi)
    throw CommandError(what + " " + word + " is out of range (" + std::to_string(lo) + ".." + std::to_string(hi) + ")");
  return value;
}

Currency ReadAmount(const std::string& word, const std::string& what) {
  // Plain decimals only: strtod alone would also take hex, exponents and "inf".
  auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
  size_t i = 0, digits = 0;
  if (i < word.size() && (word[i] == '-' || word[i] == '+')) ++i;
  for (; i < word.size() && (isDigit(word[i]) || word[i] == ','); ++i) digits += word[i] != ',';
  std::string fraction;
  if (i < word.size() && word[i] == '.')
    for (++i; i < word.size() && isDigit(word[i]); ++i) fraction += word[i];
  digits += fraction.size();
  Currency amount;
  if (digits == 0 || i != word.size() || !ParseCurrency(word[0] == '+' ? word.substr(1) : word, amount))
    throw CommandError(what + " '" + word + "' is not an amount");
  while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  if (fraction.size() > 4) throw CommandError(what + " '" + word + "' has more than four decimals");
  return amount;
}

bool ReadBool(const std::string& word, const std::string& what) {
  const std::string w = ToLower(word);
  if (w == "true" || w == "-1" || w == "1") return true;
  if (w == "false" || w == "0") return false;
  throw CommandError(what + " '" + word + "' is not true, false, -1, 0 or 1");
}

namespace {

// A bet by its catalogue name ("Place 6", any case) or a Chip-Stack as
// "Chip-Stack #3"; 0 for none.
int BetIdByName(const std::string& word) {
  const std::string name = ToLower(word);
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    if (ToLower(bet::CatalogueName(id)) == name) return id;
  constexpr std::string_view kStack = "chip-stack #";
  if (name.starts_with(kStack) && name.size() > kStack.size() && name.size() <= kStack.size() + 2 &&
      std::all_of(name.begin() + kStack.size(), name.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)); })) {
    const int n = std::stoi(name.substr(kStack.size()));
    if (n >= 1 && bet::kFirstStack + n <= bet::kLastStack) return bet::kFirstStack + n;
  }
  return 0;
}

}  // namespace

int ReadBetId(const std::string& word) {
  if (!word.empty() && !std::isdigit(static_cast<unsigned char>(word[0])) && word[0] != '-' && word[0] != '+') {
    if (const int id = BetIdByName(word)) return id;
    throw CommandError("BetId '" + word + "' is no bet's number or name (\"Place 6\", \"Chip-Stack #1\")");
  }
  const int64_t id = ReadInteger(word, INT32_MIN, INT32_MAX, "BetId");
  if (bet::IsTableBet(static_cast<int>(id)) || (id > bet::kFirstStack && id <= bet::kLastStack))
    return static_cast<int>(id);
  throw CommandError("BetId " + word + " is out of range (1..83 table bets, 101..199 Chip-Stacks)");
}
