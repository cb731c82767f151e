#include "script/line_text.h"

#include "script/catalogue.h"
#include "engine/subject_codes.h"
#include "engine/verb_codes.h"
#include "script/comparison_codes.h"

namespace {

using namespace script_list;

using subject::kChipStack, subject::kChipStackRef;

std::string Amount(Currency a) { return FormatNumberWithCommas(a); }

// The words of a code, with the Chip-Stack number where it needs one.
std::string Named(const ChoiceList& list, int code, int number) {
  std::string w = WordsOf(list, code);
  if (code == kChipStack || code == kChipStackRef) w += std::to_string(number);
  return w;
}

std::string ConditionText(const ScriptLine& l) {
  std::string text = Named(ConditionSubjects(), l.Subject, l.SubjectNum);
  const bool isTrue = l.LineAmount != Currency(0);
  switch (l.Subject) {
    case subject::kInitializing: case subject::kEachRoll: case subject::kNextComeOut: case subject::kLastComeOut:
    case subject::kAnswerYes: case subject::kAnswerNo:
    case subject::kNextNotComeOut: case subject::kLastNotComeOut: case subject::kEachPass: case subject::kEachMiss:
      return text;
    case subject::kPointOn: case subject::kPointNotOn:
      return text + " " + WordsOf(PointChoices(), l.Code);
    case subject::kDecidedFor: case subject::kDecidedAgainst: case subject::kDecidedUnlisted: case subject::kDecided:
      return text + " " + WordsOf(DecidedChoices(), l.Code);
    case subject::kFlag:
      return text + " " + l.Name + (isTrue ? " is True" : " is False");
    case subject::kAnyFlag:
      return text + (isTrue ? " is True" : " is False");
    case subject::kAllFlags:
      return text + (isTrue ? " are True" : " are False");
    default:
      break;
  }
  std::string words = ComparisonWords(l.Code, IsPluralSubject(l.Subject));
  if (comparison::AgainstAmount(l.Code) && IsCountSubject(l.Subject) && !words.empty()) words.pop_back();
  text += " " + words;
  if (comparison::AgainstAmount(l.Code)) return text + Amount(l.LineAmount);
  if (comparison::AgainstTarget(l.Code)) return text + " " + Named(CompareTargets(), l.Target, l.TargetNum);
  if (comparison::OfName(l.Code)) return text + " \"" + l.Name + "\"";
  if (l.LineAmount != Currency(0)) text += " " + Amount(l.LineAmount);
  return text;
}

std::string OperatorText(const ScriptLine& l, const std::string& verb) {
  const int op = l.Code / 10, form = l.Code % 10;
  const char* preposition = op == 1 ? " on " : op == 2 ? " to " : op == 3 ? " from " : " for ";
  const std::string target = Named(ActionTargets(), l.Target, l.TargetNum);
  const std::string source = Named(ActionSources(), l.Subject, l.SubjectNum);
  std::string text;
  if (form == 0) {
    text = verb + (op >= 4 ? " " : "") + Amount(l.LineAmount);
  } else if (form <= 2) {
    text = verb;
    text.replace(text.find('%'), 1, Amount(l.LineAmount) + "%");
    text += " " + source;
  } else {
    text = verb + " " + source;
  }
  return text + preposition + target;
}

std::string ActionText(const ScriptLine& l) {
  const std::string words = WordsOf(ActionVerbs(), l.Code);
  if (l.Code >= verb::kFirstOperator && l.Code <= verb::kLastOperator) return OperatorText(l, words);
  const std::string source = Named(ActionSources(), l.Subject, l.SubjectNum);
  const std::string target = Named(ActionTargets(), l.Target, l.TargetNum);
  switch (l.Code) {
    case verb::kQuestion: case verb::kShowMessage: case verb::kPlaySound: case verb::kActivateProbFile:
    case verb::kOpenClear: case verb::kOpenAppend: case verb::kOutputMessage: case verb::kGoTo: case verb::kGoSub:
    case verb::kSetFlag:
    case verb::kNameChipStack: case verb::kNameChipStackRef:
      return words + " " + l.Name;
    case verb::kQuestionValue: case verb::kShowValue: case verb::kOutputValue: case verb::kOutputLastValue:
    case verb::kSelectRngValue: case verb::kSelectRngLast: case verb::kSeedValue: case verb::kSeedLast:
      return words + " " + source;
    case verb::kGetInput: case verb::kBuy: case verb::kCallOff: case verb::kCallOn: case verb::kResetWinsLosses:
      return words + " " + target;
    case verb::kResetRolls:
      return words + " " + WordsOf(DiceEventTargets(), l.Target);
    case verb::kRound:
      return words + " " + target + " " + WordsOf(RoundChoices(), l.Subject) + Amount(l.LineAmount);
    case verb::kHandleWinning:
      return words + " " + WordsOf(AutoHandleWinning(), l.Target);
    case verb::kHandleLosing:
      return words + " " + WordsOf(AutoHandleLosing(), l.Target);
    case verb::kWithdraw: case verb::kDeposit:
      return words + Amount(l.LineAmount);
    case verb::kWithdrawPercent: case verb::kDepositPercent: {
      std::string text = words;
      text.replace(text.find('%'), 1, Amount(l.LineAmount) + "%");
      return text + " " + source;
    }
    case verb::kSelectRng: case verb::kSeedAmount:
      return words + Amount(l.LineAmount);
    default:
      return words;
  }
}

std::string Render(const ScriptLine& l) {
  switch (l.Kind) {
    case line_kind::kCondition:
      return ConditionText(l);
    case line_kind::kAction:
      return ActionText(l);
    case line_kind::kLabel:
    case line_kind::kComment:
      return l.Name;
    default:
      return line_kind::IsStartCondition(l.Kind) ? WordsOf(StartConditions(), l.Kind)
                                                 : WordsOf(StartActions(), l.Kind);
  }
}

}  // namespace

std::string LineText(const ScriptLine& line) {
  std::string text = Render(line);
  if (text.size() > kLineTextWidth) text.resize(kLineTextWidth);
  return text;
}
