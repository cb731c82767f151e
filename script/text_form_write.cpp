// Writing the text form. The words come from the line's codes; the writer
// then reads its own words back, and whatever field they did not give back
// follows in braces. A line whose words would not read back at all is
// written as braces alone, so every line survives the trip exactly.

#include "script/text_form.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"
#include "script/comparison_codes.h"

using namespace text_form;
using namespace script_list;

namespace {

std::string Amount(Currency a) { return FormatNumberWithCommas(a); }

// Words of a code with the Chip-Stack number that goes with it; "" if none.
std::string Named(const ChoiceList& list, int code, int number) {
  std::string w = TrimmedWords(WordsOf(list, code));
  if (!w.empty() && TakesNumber(code)) w += std::to_string(number);
  return w;
}

// "" when any part has no words, so that the caller falls back to braces.
std::string Join(std::initializer_list<std::string> parts) {
  std::string out;
  for (const std::string& p : parts) {
    if (p.empty()) return "";
    out += (out.empty() ? "" : " ") + p;
  }
  return out;
}

std::string PercentVerb(const std::string& verb, Currency amount) {
  std::string w = verb;
  const size_t at = w.find('%');
  if (at != std::string::npos) w.replace(at, 1, Amount(amount) + "%");
  return w;
}

std::string ComparisonBody(const ScriptLine& l) {
  const bool plural = IsPluralSubject(l.Subject);
  const std::string words = ComparisonWords(l.Code, plural);
  if (comparison::AgainstAmount(l.Code)) {
    if (IsCountSubject(l.Subject)) return Join({ComparisonWords(l.Code + 6, plural), Amount(l.LineAmount)});
    return words + Amount(l.LineAmount);
  }
  if (comparison::AgainstTarget(l.Code)) return Join({words, Named(CompareTargets(), l.Target, l.TargetNum)});
  if (comparison::OfCount(l.Code)) return Join({words, Amount(l.LineAmount)});
  if (comparison::OfName(l.Code)) return Join({words, QuotedName(l.Name)});
  if (l.LineAmount == Currency(0)) return words;
  return Join({words, Amount(l.LineAmount)});
}

std::string ConditionBody(const ScriptLine& l) {
  const std::string subject = Named(ConditionSubjects(), l.Subject, l.SubjectNum);
  const bool isTrue = l.LineAmount != Currency(0);
  switch (SubjectKindOf(l.Subject)) {
    case SubjectKind::Bare: return subject;
    case SubjectKind::Point: return Join({subject, WordsOf(PointChoices(), l.Code)});
    case SubjectKind::Decided: return Join({subject, WordsOf(DecidedChoices(), l.Code)});
    case SubjectKind::Flag: return Join({subject, QuotedName(l.Name), isTrue ? "is True" : "is False"});
    case SubjectKind::AnyFlag: return Join({subject, isTrue ? "is True" : "is False"});
    case SubjectKind::AllFlags: return Join({subject, isTrue ? "are True" : "are False"});
    case SubjectKind::Compared: return Join({subject, ComparisonBody(l)});
  }
  return "";
}

std::string OperatorBody(const ScriptLine& l, const std::string& verb) {
  const int op = l.Code / 10, form = l.Code % 10;
  const std::string source = Named(ActionSources(), l.Subject, l.SubjectNum);
  std::string head;
  if (form == 0)
    head = op <= 3 ? verb + Amount(l.LineAmount) : Join({verb, Amount(l.LineAmount)});
  else if (form <= 2)
    head = Join({PercentVerb(verb, l.LineAmount), source});
  else
    head = Join({verb, source});
  return Join({head, Preposition(l.Code), Named(ActionTargets(), l.Target, l.TargetNum)});
}

std::string ActionBody(const ScriptLine& l) {
  const std::string verb = WordsOf(ActionVerbs(), l.Code);
  if (verb.empty()) return "";
  const std::string source = Named(ActionSources(), l.Subject, l.SubjectNum);
  const std::string target = Named(ActionTargets(), l.Target, l.TargetNum);
  const char* toTrue = l.LineAmount != Currency(0) ? "to True" : "to False";
  switch (VerbKindOf(l.Code)) {
    case VerbKind::Operator: return OperatorBody(l, verb);
    case VerbKind::Name: return Join({verb, QuotedName(l.Name)});
    case VerbKind::SetFlag: return Join({verb, QuotedName(l.Name), toTrue});
    case VerbKind::SetAllFlags: return Join({verb, toTrue});
    case VerbKind::NameStack: return Join({verb + std::to_string(l.TargetNum), QuotedName(l.Name)});
    case VerbKind::Source: return Join({verb, source});
    case VerbKind::Target: return Join({verb, target});
    case VerbKind::ResetRolls: return Join({verb, WordsOf(DiceEventTargets(), l.Target)});
    case VerbKind::Round:
      return Join({verb, target, WordsOf(RoundChoices(), l.Subject) + Amount(l.LineAmount)});
    case VerbKind::HandleWins: return Join({verb, WordsOf(AutoHandleWinning(), l.Target)});
    case VerbKind::HandleLosses: return Join({verb, WordsOf(AutoHandleLosing(), l.Target)});
    case VerbKind::Amount: return verb + Amount(l.LineAmount);
    case VerbKind::PercentOf: return Join({PercentVerb(verb, l.LineAmount), source});
    case VerbKind::Switch: return Join({verb, l.LineAmount != Currency(0) ? "on" : "off"});
    case VerbKind::Bare: return verb;
    case VerbKind::Unknown: return "";
  }
  return "";
}

std::string Words(const ScriptLine& l) {
  switch (l.Kind) {
    case line_kind::kCondition: return ConditionBody(l);
    case line_kind::kAction: return ActionBody(l);
    case line_kind::kLabel: return std::string(kLabelWord) + " " + QuotedName(l.Name);
    case line_kind::kComment: return std::string(kCommentWord) + " " + QuotedName(l.Name);
    default: return WordsOf(StartWords(), l.Kind);
  }
}

// `{Key=value ...}` for every field of `want` that `got` lacks; "" if none.
std::string Braces(const ScriptLine& got, const ScriptLine& want) {
  std::string out;
  auto number = [&](const char* key, int32_t a, int32_t b) {
    if (a != b) out += std::string(out.empty() ? "" : " ") + key + "=" + std::to_string(b);
  };
  auto text = [&](const char* key, const std::string& a, const std::string& b) {
    if (a != b) out += std::string(out.empty() ? "" : " ") + key + "=" + QuotedName(b);
  };
  number("Kind", got.Kind, want.Kind);
  number("Code", got.Code, want.Code);
  text("Name", got.Name, want.Name);
  if (got.LineAmount != want.LineAmount)
    out += std::string(out.empty() ? "" : " ") + "LineAmount=" + ExactAmountText(want.LineAmount);
  number("Subject", got.Subject, want.Subject);
  number("SubjectNum", got.SubjectNum, want.SubjectNum);
  number("Spare1", got.Spare1, want.Spare1);
  number("Target", got.Target, want.Target);
  number("TargetNum", got.TargetNum, want.TargetNum);
  number("Spare2", got.Spare2, want.Spare2);
  text("Text", RenderedText(want), want.Text);
  return out.empty() ? "" : "{" + out + "}";
}

bool ReadsBackAs(const std::string& text, const ScriptLine& l) {
  try {
    return SameScriptFields(ParseTextLine(text), l);
  } catch (const TextFormError&) {
    return false;
  }
}

bool IsPlainComment(const std::string& name) {
  if (name.empty() || name[0] != '\'' || name.back() == ' ' || name.back() == '\t') return false;
  for (char c : name)
    if (static_cast<unsigned char>(c) < 32 || c == 127) return false;
  return true;
}

}  // namespace

std::string LineToText(const ScriptLine& l) {
  if (l.Kind == line_kind::kComment && IsPlainComment(l.Name) && ReadsBackAs(l.Name, l)) return l.Name;
  const std::string indent = l.Kind == line_kind::kCondition || l.Kind == line_kind::kAction ? "  " : "";
  const std::string words = Words(l);
  if (!words.empty()) {
    try {
      const std::string braces = Braces(ParseTextLine(words), l);
      const std::string text = indent + words + (braces.empty() ? "" : " " + braces);
      if (ReadsBackAs(text, l)) return text;
    } catch (const TextFormError&) {
    }
  }
  const std::string braces = Braces(ScriptLine{}, l);
  return indent + (braces.empty() ? "{Kind=0}" : braces);  // a line of nothing at all is still a line
}

std::string ScriptToText(const Script& script) {
  std::string out;
  for (const ScriptLine& l : script.Lines) out += LineToText(l) + "\n";
  return out;
}
