#include "ui/auto_bet_choices.h"

#include "engine/script_line.h"
#include "engine/subject_codes.h"
#include "script/comparison_codes.h"
#include "script/text_form_grammar.h"

namespace builder {

namespace {

constexpr int kLabelKind = line_kind::kLabel, kCommentKind = line_kind::kComment;

void AddCodes(ChoiceList& to, int first, int last, bool plural) {
  for (int code = first; code <= last; ++code) to.push_back({code, script_list::ComparisonWords(code, plural)});
}

void AddCounts(ChoiceList& to) {
  for (int code = comparison::kFirstAmount; code <= comparison::kLastAmount; ++code)
    to.push_back({code, script_list::CountComparisonWords(code)});
}

// "has won", "has lost" and their negations and bounds.
void AddWinsLosses(ChoiceList& to, bool plural) {
  for (int code : {1, 2, 3, 4, 60, 61, 62, 63}) to.push_back({code, script_list::ComparisonWords(code, plural)});
}

void AddPricedAndCompared(ChoiceList& to, bool plural) {
  AddCodes(to, comparison::kFirstAmount, comparison::kLastTarget, plural);
}

bool IsBet(int s) { return s > 0 && s < 100; }
bool IsShooterPoint(int s) { return s >= subject::kPointLay && s <= subject::kPointBuy; }
bool InGroup(int s, int base) { return s > base && s < base + 100; }

}  // namespace

const ChoiceList& LineKinds() {
  static const ChoiceList kinds = [] {
    ChoiceList list = script_list::StartConditions();
    for (const ListEntry& e : script_list::StartActions()) list.push_back(e);
    list.push_back({line_kind::kCondition, "Condition line"});
    list.push_back({line_kind::kAction, "Action line"});
    list.push_back({kLabelKind, "Label"});
    list.push_back({kCommentKind, "Comment"});
    return list;
  }();
  return kinds;
}

const ChoiceList& Subjects() {
  static const ChoiceList subjects = [] {
    ChoiceList list = script_list::ConditionSubjects();
    // The dice events close the list when the catalogue keeps them apart.
    bool hasEvents = false;
    for (const ListEntry& e : list) hasEvents = hasEvents || e.Code > subject::kDiceEvents;
    if (!hasEvents) {
      list.push_back({0, script_list::kSeparator});
      for (const ListEntry& e : script_list::DiceEvents()) list.push_back(e);
    }
    return list;
  }();
  return subjects;
}

ChoiceList ComparisonsFor(int s) {
  ChoiceList list;
  const bool plural = script_list::IsPluralSubject(s);
  if (s > subject::kDiceEvents && s < subject::kDiceEvents + 100) {
    AddCodes(list, 5, 10, false);
  } else if (s == subject::kTrueFlags || s == subject::kFalseFlags) {
    AddCodes(list, comparison::kFirstCount, comparison::kLastCount, false);
  } else if (s == subject::kChipStack || s == subject::kChipStackRef || s == subject::kAnyGroup + 20) {
    AddPricedAndCompared(list, false);
    AddCodes(list, comparison::kIsNamed, comparison::kIsNotNamed, false);
  } else if (s == subject::kAllGroup + 20) {
    AddPricedAndCompared(list, true);
  } else if (s == subject::kTotalGroup + 20) {
    AddPricedAndCompared(list, true);
    AddCodes(list, comparison::kFirstCount, comparison::kLastCount, true);
  } else if (IsBet(s) || IsShooterPoint(s) || InGroup(s, subject::kAnyGroup)) {
    AddWinsLosses(list, false);
    AddPricedAndCompared(list, false);
  } else if (InGroup(s, subject::kAllGroup)) {
    AddWinsLosses(list, true);
    AddPricedAndCompared(list, true);
  } else if (InGroup(s, subject::kTotalGroup)) {
    AddWinsLosses(list, true);
    AddPricedAndCompared(list, true);
    AddCodes(list, comparison::kFirstCount, comparison::kLastCount, true);
  } else if (script_list::IsCountSubject(s)) {
    AddCounts(list);
  } else if (text_form::SubjectKindOf(s) == text_form::SubjectKind::Compared) {
    AddPricedAndCompared(list, plural);
  }
  return list;
}

ChoiceList TruthChoices(int s) {
  const bool plural = s == subject::kAllFlags;
  return {{-1, plural ? "are True" : "is True"}, {1, plural ? "are False" : "is False"}};
}

}  // namespace builder
