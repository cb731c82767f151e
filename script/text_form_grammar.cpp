#include "script/text_form_grammar.h"

#include "script/line_text.h"
#include "engine/subject_codes.h"
#include "engine/verb_codes.h"

namespace text_form {

SubjectKind SubjectKindOf(int subject) {
  switch (subject) {
    case subject::kInitializing: case subject::kEachRoll: case subject::kNextComeOut: case subject::kLastComeOut:
    case subject::kAnswerYes: case subject::kAnswerNo:
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
  if (verb::IsOperator(code)) return VerbKind::Operator;
  switch (code) {
    case verb::kQuestion: case verb::kShowMessage: case verb::kPlaySound: case verb::kActivateProbFile:
    case verb::kOpenClear: case verb::kOpenAppend: case verb::kOutputMessage: case verb::kGoTo: case verb::kGoSub:
      return VerbKind::Name;
    case verb::kSetFlag: return VerbKind::SetFlag;
    case verb::kSetAllFlags: return VerbKind::SetAllFlags;
    case verb::kNameChipStack: case verb::kNameChipStackRef: return VerbKind::NameStack;
    case verb::kQuestionValue: case verb::kShowValue: case verb::kOutputValue: case verb::kOutputLastValue:
    case verb::kSelectRngValue: case verb::kSelectRngLast: case verb::kSeedValue: case verb::kSeedLast:
      return VerbKind::Source;
    case verb::kGetInput: case verb::kBuy: case verb::kCallOff: case verb::kCallOn: case verb::kResetWinsLosses:
      return VerbKind::Target;
    case verb::kResetRolls: return VerbKind::ResetRolls;
    case verb::kRound: return VerbKind::Round;
    case verb::kHandleWinning: return VerbKind::HandleWins;
    case verb::kHandleLosing: return VerbKind::HandleLosses;
    case verb::kWithdraw: case verb::kDeposit: case verb::kSelectRng: case verb::kSeedAmount:
      return VerbKind::Amount;
    case verb::kWithdrawPercent: case verb::kDepositPercent: return VerbKind::PercentOf;
    case verb::kTakeFullOdds: case verb::kLayFullOdds: return VerbKind::Switch;
    case verb::kShowSteps: case verb::kStop: case verb::kReturn: case verb::kClearChipStackNames:
    case verb::kDeactivateProbFile: case verb::kOutputNewLine: case verb::kSeedClock: case verb::kCloseFile:
    case verb::kResetTable: case verb::kResetTableKeepStacks:
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
