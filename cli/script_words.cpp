#include "cli/script_words.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "script/catalogue.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"

namespace {

struct WordList {
  const char* heading;
  std::vector<const ChoiceList*> lists;
};

std::vector<WordList> Vocabulary() {
  using namespace script_list;
  return {
      {"Start lines", {&text_form::StartWords()}},
      {"Condition subjects", {&ConditionSubjects()}},
      {"Comparisons", {&text_form::ComparisonPhrases()}},
      {"Compared values", {&CompareTargets()}},
      {"Dice events", {&DiceEvents()}},
      {"Points established", {&PointChoices()}},
      {"Points decided", {&DecidedChoices()}},
      {"Action verbs", {&ActionVerbs()}},
      {"Sources (\"of\")", {&ActionSources()}},
      {"Targets (\"to\")", {&ActionTargets()}},
      {"Rounding", {&RoundChoices()}},
      {"Dice events to reset", {&DiceEventTargets()}},
      {"Winning bets handled", {&AutoHandleWinning()}},
      {"Losing bets handled", {&AutoHandleLosing()}},
  };
}

bool StartsWith(const std::string& words, const std::string& prefix) {
  if (prefix.size() > words.size()) return false;
  for (size_t i = 0; i < prefix.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(words[i])) != std::tolower(static_cast<unsigned char>(prefix[i])))
      return false;
  return true;
}

}  // namespace

bool WriteScriptWords(const std::string& prefix, std::ostream& out) {
  bool any = false;
  for (const WordList& w : Vocabulary()) {
    std::vector<std::string> shown;
    for (const ChoiceList* list : w.lists)
      for (const ListEntry& e : *list) {
        const std::string words = TrimmedWords(e.Words);
        if (words.empty() || words == script_list::kSeparator || !StartsWith(words, prefix)) continue;
        if (std::find(shown.begin(), shown.end(), words) == shown.end()) shown.push_back(words);
      }
    if (shown.empty()) continue;
    out << (any ? "\n" : "") << w.heading << ":\n";
    for (const std::string& words : shown) out << "  " << words << "\n";
    any = true;
  }
  return any;
}
