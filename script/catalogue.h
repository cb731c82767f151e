#pragma once
// Every list a script line is built from: codes and their exact words,
// misspellings and trailing blanks included. A row of code 0 is a separator.

#include <string>
#include <vector>

struct ListEntry {
  int Code;
  std::string Words;
  bool operator==(const ListEntry&) const = default;
};
using ChoiceList = std::vector<ListEntry>;

namespace script_list {

inline constexpr const char* kSeparator = "-----";

const ChoiceList& StartConditions();   // kinds 1..8
const ChoiceList& StartActions();      // kinds 11..13
const ChoiceList& ConditionSubjects(); // listCondition
const ChoiceList& CompareTargets();    // listCompare, codes 17..22 compare against these
const ChoiceList& DiceEvents();        // 2002..2089, as subjects
const ChoiceList& DiceEventTargets();  // 2001..2089, lower case, for "Reset rolls"
const ChoiceList& PointChoices();      // "A point is established on" / "is NOT established on"
const ChoiceList& DecidedChoices();    // "A point is decided ..."
const ChoiceList& ActionVerbs();       // the five operator families, then the other verbs
const ChoiceList& ActionSources();     // the "of" list
const ChoiceList& ActionTargets();     // the "to" list
const ChoiceList& RoundChoices();      // "Round", stored in Subject
const ChoiceList& AutoHandleWinning(); // by index 0..5
const ChoiceList& AutoHandleLosing();

// Words of a comparison code, singular ("has won", "is equal to $") or
// plural ("have won", "are equal to $"); "" for an unknown code.
std::string ComparisonWords(int code, bool plural);

// Subjects whose words are plural ("are", "have"): the All and Total groups.
bool IsPluralSubject(int subject);
// Subjects compared with a count ("is equal to 5", no "$").
bool IsCountSubject(int subject);
// The plural count form of 11..16: "are equal to " with no dollar sign.
std::string CountComparisonWords(int code);

// The words of a code in a list; "" when the list has no such code.
std::string WordsOf(const ChoiceList& list, int code);

}  // namespace script_list
