#include "script/text_form_grammar.h"

#include "script/line_text.h"
#include "script/subject_codes.h"

namespace text_form {

SubjectKind SubjectKindOf(int subject) {
  switch (subject) {
    case subject::kInitializing: case subject::kEachRoll: case subject::kNextComeOut: case subject::kLastComeOut: case subject::kAnswerYes: case subject::kAnswerNo:
    case subject::kNextNotComeOut: case subject::kLastNotComeOut: case subject::kEachPass: case subject::kEachMiss:
      return SubjectKind::Bare;
    case subject::kPointOn: case subject::kPointNotOn:
      return SubjectKind::Point;
    case subject::kDecidedFor: case subject::kDecidedAgainst: case subject::kDecidedUnlisted: case subject::kDecided:
      return SubjectKind::Decided;
    case subject::kFlag:
      return SubjectKind::Flag;
    case subject::kAnyFlag:
      return SubjectKind::AnyFlag;
    case subject::kAllFlags:
      return SubjectKind::AllFlags;
    default:
      return SubjectKind::Compared;
  }
}

VerbKind VerbKindOf(int code) {
  if (code >= 10 && code <= 58 && code % 10 <= 8) return VerbKind::Operator;
  switch (code) {
    case 82: case 79: case 80: case 97: case 113: case 99: case 100: case 117: case 76:
      return VerbKind::Name;
    case 77: return VerbKind::SetFlag;
    case 78: return VerbKind::SetAllFlags;
    case 87: case 89: return VerbKind::NameStack;
    case 85: case 84: case 101: case 108: case 104: case 111: case 107: case 112:
      return VerbKind::Source;
    case 83: case 70: case 71: case 72: case 73:
      return VerbKind::Target;
    case 74: return VerbKind::ResetRolls;
    case 109: return VerbKind::Round;
    case 90: return VerbKind::HandleWins;
    case 110: return VerbKind::HandleLosses;
    case 93: case 95: case 103: case 106:
      return VerbKind::Amount;
    case 94: case 96: return VerbKind::PercentOf;
    case 91: case 92: return VerbKind::Switch;
    case 81: case 75: case 86: case 88: case 98: case 102: case 105: case 114: case 999: case 998:
      return VerbKind::Bare;
    default:
      return VerbKind::Unknown;
  }
}

std::string RenderedText(const ScriptLine& line) {
  std::string text = LineText(line);
  text.erase(text.find_last_not_of(' ') + 1);  // npos + 1 is 0: all blanks go
  return text;
}

const char* Preposition(int operatorCode) {
  switch (operatorCode / 10) {
    case 1: return "on";
    case 2: return "to";
    case 3: return "from";
    default: return "for";
  }
}

const ChoiceList& StartWords() {
  static const ChoiceList list = [] {
    ChoiceList words;
    for (const ChoiceList* l : {&script_list::StartConditions(), &script_list::StartActions()})
      for (const ListEntry& e : *l) words.push_back({e.Code, e.Words.substr(0, e.Words.find(" . . ."))});
    return words;
  }();
  return list;
}

const ChoiceList& ComparisonPhrases() {
  static const ChoiceList list = [] {
    ChoiceList phrases;
    const int codes[] = {1, 2, 3, 4, 60, 61, 62, 63, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14,
                         15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27};
    for (int code : codes) {
      const std::string singular = script_list::ComparisonWords(code, false);
      const std::string plural = script_list::ComparisonWords(code, true);
      phrases.push_back({code, singular});
      if (plural != singular) phrases.push_back({code, plural});
    }
    return phrases;
  }();
  return list;
}

const ChoiceList& LineOpenings() {
  static const ChoiceList list = [] {
    ChoiceList all = StartWords();
    all.push_back({90, kLabelWord});
    all.push_back({99, kCommentWord});
    for (const ChoiceList* l : {&script_list::ActionVerbs(), &script_list::ConditionSubjects()})
      all.insert(all.end(), l->begin(), l->end());
    return all;
  }();
  return list;
}

}  // namespace text_form
