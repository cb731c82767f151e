// Reading the text form: the words of a line give its codes, the braces
// after them any field the words do not carry.

#include <optional>

#include "script/line_text.h"
#include "script/text_form.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"
#include "script/comparison_codes.h"

using namespace text_form;
using namespace script_list;

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string TrimRight(const std::string& s) {
  size_t end = s.size();
  while (end > 0 && (IsBlank(s[end - 1]) || s[end - 1] == '\r')) --end;
  return s.substr(0, end);
}

// A Chip-Stack code is followed by its number.
int32_t NumberAfter(LineCursor& c, int code) { return TakesNumber(code) ? c.ExpectNumber() : 0; }

Currency TrueOrFalse(LineCursor& c, const char* verb) {
  const std::string t = std::string(verb) + " True", f = std::string(verb) + " False";
  if (c.TryWords(t)) return Currency(-1);
  if (c.TryWords(f)) return Currency(0);
  c.Fail("\"" + t + "\" or \"" + f + "\"");
}

void ReadComparison(LineCursor& c, ScriptLine& l) {
  l.Code = c.ExpectList(ComparisonPhrases()).Code;
  if (comparison::AgainstTarget(l.Code)) {
    if (std::optional<ListMatch> target = c.TryList(CompareTargets())) {
      l.Target = target->Code;
      l.TargetNum = NumberAfter(c, l.Target);
      return;
    }
    if (std::optional<Currency> count = c.TryAmount()) {  // "is equal to 5": the count form of 11..16
      l.Code -= 6;
      l.LineAmount = *count;
      return;
    }
    c.FailWithChoices(CompareTargets());
  }
  if (comparison::AgainstAmount(l.Code) || comparison::OfCount(l.Code)) {
    l.LineAmount = c.ExpectAmount();
  } else if (comparison::OfName(l.Code)) {
    l.Name = c.ExpectQuoted();
  } else if (std::optional<Currency> n = c.TryAmount()) {  // "has won", "has rolled": none is "each"
    l.LineAmount = *n;
  }
}

void ReadCondition(LineCursor& c, ScriptLine& l) {
  l.Kind = line_kind::kCondition;
  l.Subject = c.ExpectList(ConditionSubjects()).Code;
  l.SubjectNum = NumberAfter(c, l.Subject);
  switch (SubjectKindOf(l.Subject)) {
    case SubjectKind::Bare:
      break;
    case SubjectKind::Point:
      l.Code = c.ExpectList(PointChoices()).Code;
      break;
    case SubjectKind::Decided:
      l.Code = c.ExpectList(DecidedChoices()).Code;
      break;
    case SubjectKind::Flag:
      l.Name = c.ExpectQuoted();
      l.LineAmount = TrueOrFalse(c, "is");
      break;
    case SubjectKind::AnyFlag:
    case SubjectKind::AllFlags:
      l.LineAmount = c.TryWords("are True") ? Currency(-1) : c.TryWords("are False") ? Currency(0) : TrueOrFalse(c, "is");
      break;
    case SubjectKind::Compared:
      ReadComparison(c, l);
      break;
  }
}

void ReadSource(LineCursor& c, ScriptLine& l) {
  l.Subject = c.ExpectList(ActionSources()).Code;
  l.SubjectNum = NumberAfter(c, l.Subject);
}

void ReadTarget(LineCursor& c, ScriptLine& l) {
  l.Target = c.ExpectList(ActionTargets()).Code;
  l.TargetNum = NumberAfter(c, l.Target);
}

void ReadOperator(LineCursor& c, ScriptLine& l, const ListMatch& verb) {
  const int form = l.Code % 10;
  if (form == 0) {
    l.LineAmount = c.ExpectAmount();
  } else {
    if (form <= 2) l.LineAmount = verb.Percent;
    ReadSource(c, l);
  }
  c.ExpectWords(Preposition(l.Code));
  ReadTarget(c, l);
}

void ReadAction(LineCursor& c, ScriptLine& l) {
  l.Kind = line_kind::kAction;
  const ListMatch verb = c.ExpectList(ActionVerbs());
  l.Code = verb.Code;
  switch (VerbKindOf(l.Code)) {
    case VerbKind::Operator: ReadOperator(c, l, verb); break;
    case VerbKind::Name: l.Name = c.ExpectQuoted(); break;
    case VerbKind::SetFlag:
      l.Name = c.ExpectQuoted();
      l.LineAmount = TrueOrFalse(c, "to");
      break;
    case VerbKind::SetAllFlags: l.LineAmount = TrueOrFalse(c, "to"); break;
    case VerbKind::NameStack:
      l.TargetNum = c.ExpectNumber();
      l.Name = c.ExpectQuoted();
      break;
    case VerbKind::Source: ReadSource(c, l); break;
    case VerbKind::Target: ReadTarget(c, l); break;
    case VerbKind::ResetRolls: l.Target = c.ExpectList(DiceEventTargets()).Code; break;
    case VerbKind::Round:
      ReadTarget(c, l);
      l.Subject = c.ExpectList(RoundChoices()).Code;
      l.LineAmount = c.ExpectAmount();
      break;
    case VerbKind::HandleWins: l.Target = c.ExpectList(AutoHandleWinning()).Code; break;
    case VerbKind::HandleLosses: l.Target = c.ExpectList(AutoHandleLosing()).Code; break;
    case VerbKind::Amount: l.LineAmount = c.ExpectAmount(); break;
    case VerbKind::PercentOf:
      l.LineAmount = verb.Percent;
      ReadSource(c, l);
      break;
    case VerbKind::Switch:
      if (c.TryWords("on")) l.LineAmount = Currency(-1);
      else if (!c.TryWords("off")) c.Fail("\"on\" or \"off\"");
      break;
    case VerbKind::Bare:
    case VerbKind::Unknown:
      break;
  }
}

// The words before the braces; a line of braces alone starts from a blank line.
ScriptLine ReadWords(const std::string& text, size_t from) {
  ScriptLine l;
  LineCursor c(text, from);
  if (c.AtEnd()) return l;
  if (std::optional<ListMatch> start = c.TryList(StartWords())) {
    l.Kind = start->Code;
    if (!c.TryWords(". . .")) c.TryWords("...");
  } else if (c.TryWords(kLabelWord)) {
    l.Kind = line_kind::kLabel;
    l.Name = c.ExpectQuoted();
  } else if (c.TryWords(kCommentWord)) {
    l.Kind = line_kind::kComment;
    l.Name = c.ExpectQuoted();
  } else {
    // Condition or Action: whichever list goes on further decides.
    LineCursor asVerb(text, from), asSubject(text, from);
    const bool verb = asVerb.TryList(ActionVerbs()).has_value();
    const bool subject = asSubject.TryList(ConditionSubjects()).has_value();
    if (!verb && !subject) c.FailWithChoices(LineOpenings());
    if (verb && (!subject || asVerb.Pos() >= asSubject.Pos()))
      ReadAction(c, l);
    else
      ReadCondition(c, l);
  }
  c.ExpectEnd();
  return l;
}

// Where the braces open: the first "{" outside double quotes; npos if none.
size_t BraceStart(const std::string& s) {
  bool quoted = false;
  for (size_t i = 0; i < s.size(); ++i) {
    if (quoted && s[i] == '\\') ++i;
    else if (s[i] == '"') quoted = !quoted;
    else if (!quoted && s[i] == '{') return i;
  }
  return std::string::npos;
}

const ChoiceList& FieldKeys() {
  static const ChoiceList keys = {{1, "Kind"},       {2, "Code"},   {3, "Name"},     {4, "LineAmount"},
                                  {5, "Subject"},    {6, "SubjectNum"}, {7, "Spare1"}, {8, "Target"},
                                  {9, "TargetNum"},  {10, "Spare2"}, {11, "Text"}};
  return keys;
}

// `{Key=value ...}` to the end of the line; returns the Text if it is given.
std::optional<std::string> ReadFields(const std::string& text, size_t brace, ScriptLine& l) {
  LineCursor c(text, brace + 1);
  std::optional<std::string> givenText;
  while (!c.TryWords("}")) {
    if (c.AtEnd()) c.Fail("\"}\"");
    const int key = c.ExpectList(FieldKeys()).Code;
    c.ExpectWords("=");
    switch (key) {
      case 1: l.Kind = c.ExpectNumber(); break;
      case 2: l.Code = c.ExpectNumber(); break;
      case 3: l.Name = c.ExpectQuoted(); break;
      case 4: l.LineAmount = c.ExpectAmount(); break;
      case 5: l.Subject = c.ExpectNumber(); break;
      case 6: l.SubjectNum = c.ExpectNumber(); break;
      case 7: l.Spare1 = c.ExpectNumber(); break;
      case 8: l.Target = c.ExpectNumber(); break;
      case 9: l.TargetNum = c.ExpectNumber(); break;
      case 10: l.Spare2 = c.ExpectNumber(); break;
      default: givenText = c.ExpectQuoted(); break;
    }
  }
  c.ExpectEnd();
  return givenText;
}

// What a .bet record can hold, so that every line read can be saved.
void CheckWidths(const ScriptLine& l) {
  if (!FitsFileFields(l))
    throw TextFormError{0, "", "", "Kind, SubjectNum, Spare1, TargetNum and Spare2 must lie in -32768..32767"};
  constexpr int32_t kExactInFloat = 1 << 24;  // Subject and Target are floats in a record
  if (l.Subject < -kExactInFloat || l.Subject > kExactInFloat || l.Target < -kExactInFloat || l.Target > kExactInFloat)
    throw TextFormError{0, "", "", "Subject and Target must lie in -16777216..16777216"};
  if (l.Kind == line_kind::kComment && l.Name.size() > kLineNameWidth)
    throw TextFormError{0, "", "", "comment longer than 80 characters (it has " + std::to_string(l.Name.size()) + ")"};
  if (l.Name.size() > kLineNameWidth)
    throw TextFormError{0, "", "", "the name has " + std::to_string(l.Name.size()) + " characters; at most 80 fit"};
  if (l.Text.size() > kLineTextWidth)
    throw TextFormError{0, "", "", "the Text has " + std::to_string(l.Text.size()) + " characters; at most 128 fit"};
}

std::string Quote(const std::string& s) { return "\"" + s + "\""; }

}  // namespace

ScriptLine ParseTextLine(const std::string& textLine) {
  const std::string text = TrimRight(textLine);
  size_t from = 0;
  while (from < text.size() && IsBlank(text[from])) ++from;
  ScriptLine l;
  if (from < text.size() && text[from] == '\'') {  // a comment, as written
    l.Kind = line_kind::kComment;
    l.Name = text.substr(from);
    l.Text = l.Name;
    CheckWidths(l);
    return l;
  }
  const size_t brace = BraceStart(text);
  l = ReadWords(brace == std::string::npos ? text : text.substr(0, brace), from);
  std::optional<std::string> givenText;
  if (brace != std::string::npos) givenText = ReadFields(text, brace, l);
  l.Text = givenText ? *givenText : RenderedText(l);
  CheckWidths(l);
  return l;
}

bool ReadScriptText(const std::string& text, std::vector<ScriptLine>& lines, std::string& error) {
  std::vector<ScriptLine> read;
  int number = 0;
  // A byte-order mark, as some editors write, is no part of the first line;
  // a carriage return before a line end goes with the trailing blanks.
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  for (size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0; at < text.size();) {
    size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    const std::string line = text.substr(at, end - at);
    at = end + 1;
    ++number;
    const size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos || line[first] == '#') continue;
    try {
      read.push_back(ParseTextLine(line));
      if (!AmountInRange(read.back()))
        throw TextFormError{0, "", "", "the amount is beyond the largest a line may hold ($" +
                                           FormatNumberWithCommas(kMostLineAmount) + ")"};
    } catch (const TextFormError& e) {
      error = "line " + std::to_string(number);
      if (!e.Message.empty())
        error += ": " + e.Message;
      else
        error += ", column " + std::to_string(e.Column + 1) + ": " +
                 (e.Found.empty() ? "the line ends too soon" : "unknown word " + Quote(e.Found)) + "; expected " +
                 e.Expected;
      return false;
    }
  }
  lines = std::move(read);
  return true;
}

bool ReadScriptText(const std::string& text, Script& script, std::string& error) {
  std::vector<ScriptLine> lines;
  if (!ReadScriptText(text, lines, error)) return false;
  script.Lines = std::move(lines);
  RebuildFlags(script);
  return true;
}

bool SameScriptFields(const ScriptLine& a, const ScriptLine& b) {
  ScriptLine x = a, y = b;
  x.Selected = y.Selected = false;
  x.Marked = y.Marked = false;
  return x == y;
}
