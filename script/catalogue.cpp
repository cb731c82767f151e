#include "script/catalogue.h"

#include <cctype>

#include "engine/catalogue.h"

namespace script_list {
namespace {

const ListEntry kSep{0, kSeparator};

// Bet groups of conditions: family, words, and whether the singular keeps
// the trailing blank it has always had.
struct Family {
  int number;
  const char* name;
};
const Family kFamilies[] = {{1, ""},     {2, "Lay "},  {3, "Don't Come "}, {4, "Don't Come Odds "},
                            {5, "Come "}, {6, "Come Odds "}, {7, "Place "}, {8, "Buy "}};

std::string LowerFirst(std::string s) {
  if (!s.empty()) s[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(s[0])));
  return s;
}

void AddBetGroups(ChoiceList& list, bool lower) {
  const char* words[] = {"Any ", "All ", "Total "};
  for (int g = 0; g < 3; ++g) {
    for (const Family& f : kFamilies) {
      std::string w = std::string(words[g]) + f.name + (g == 0 ? "bet" : "bets");
      if (g == 0 && f.number == 6) w += ' ';  // "Any Come Odds bet " has always ended so
      list.push_back({1000 + 100 * g + f.number, lower ? LowerFirst(w) : w});
    }
  }
}

void AddBets(ChoiceList& list) {
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    list.push_back({id, std::string(bet::CatalogueName(id))});
}

void AddShootersPoint(ChoiceList& list) {
  list.insert(list.end(), {{1800, "Lay (shooter's point)"},
                           {1803, "Come (shooter's point)"},
                           {1804, "Come Odds (shooter's point)"},
                           {1805, "Place (shooter's point)"},
                           {1806, "Buy (shooter's point)"}});
}

const ChoiceList kDiceEvents = {
    {2002, "Number 2 (1-1)"}, {2022, "Number 3 (1-2)"}, {2023, "Number 3 (2-1)"},
    {2003, "Number 3 (1-2) or (2-1)"}, {2024, "Number 4 (1-3)"}, {2025, "Number 4 (3-1)"},
    {2013, "Hard 4 (2-2)"}, {2026, "Number 4 (1-3) or (3-1)"}, {2004, "Any 4"},
    {2027, "Number 5 (1-4)"}, {2028, "Number 5 (4-1)"}, {2029, "Number 5 (2-3)"},
    {2030, "Number 5 (3-2)"}, {2031, "Number 5 (1-4) or (4-1)"}, {2032, "Number 5 (2-3) or (3-2)"},
    {2005, "Any 5"}, {2033, "Number 6 (1-5)"}, {2034, "Number 6 ((5-1)"},
    {2035, "Number 6 (2-4)"}, {2036, "Number 6 (4-2)"}, {2014, "Hard 6 (3-3)"},
    {2037, "Number 6 (1-5) or (5-1)"}, {2038, "Number 6 (2-4) or (4-2)"}, {2006, "Any 6"},
    {2039, "Number 7 (1-6)"}, {2040, "Number 7 (6-1)"}, {2041, "Number 7 (2-5)"},
    {2042, "Number 7 (5-2)"}, {2043, "Number 7 (3-4)"}, {2044, "Number 7 (4-3)"},
    {2045, "Number 7 (1-6) or (6-1)"}, {2046, "Number 7 (2-5) or (5-2)"}, {2047, "Number 7 (3-4) or (4-3)"},
    {2007, "Any 7"}, {2048, "Number 8 (2-6)"}, {2049, "Number 8 (6-2)"},
    {2050, "Number 8 (3-5)"}, {2051, "Number 8 (5-3)"}, {2015, "Hard 8 (4-4)"},
    {2052, "Number 8 (2-6) or (6-2)"}, {2053, "Number 8 (3-5) or (5-3)"}, {2008, "Any 8"},
    {2054, "Number 9 (3-6)"}, {2055, "Number 9 (6-3)"}, {2056, "Number 9 (4-5)"},
    {2057, "Number 9 (5-4)"}, {2058, "Number 9 (3-6) or (6-3)"}, {2059, "Number 9 (4-5) or (5-4)"},
    {2009, "Any 9"}, {2060, "Number 10 (4-6)"}, {2061, "Number 10 (6-4)"},
    {2016, "Hard 10 (5-5)"}, {2062, "Number 10 (4-6) or (6-4)"}, {2010, "Any 10"},
    {2063, "Number 11 (5-6)"}, {2064, "Number 11 (6-5)"}, {2011, "Number 11 (5-6) or (6-5)"},
    {2012, "Number 12 (6-6)"}, {2021, "Number 2,3,4,9,10,11,or 12"}, {2017, "Number 4,5,6,8,9,or 10"},
    {2065, "Number 2,3,7,11,or 12"}, {2066, "Number 2,3,11,or 12"}, {2018, "Number 5,6,8,or 9"},
    {2019, "Number 4,5,9,or 10"}, {2020, "Number 2,3,or 12"}, {2067, "Number 4,5,or 6"},
    {2068, "Number 8,9,or 10"}, {2069, "Number 2 or 12"}, {2070, "Number 3 or 11"},
    {2071, "Number 4 or 10"}, {2072, "Number 5 or 9"}, {2073, "Number 6 or 8"},
    {2074, "Number 2 or 3"}, {2075, "Number 3 or 12"}, {2076, "Number 7 or 11"},
    {2077, "Number 11 or 12"},
    {2078, "Die 1, face 1"}, {2079, "Die 1, face 2"}, {2080, "Die 1, face 3"},
    {2081, "Die 1, face 4"}, {2082, "Die 1, face 5"}, {2083, "Die 1, face 6"},
    {2084, "Die 2, face 1"}, {2085, "Die 2, face 2"}, {2086, "Die 2, face 3"},
    {2087, "Die 2, face 4"}, {2088, "Die 2, face 5"}, {2089, "Die 2, face 6"},
};

// "Number 3 (1-2) or (2-1)" -> "number 3 (1-2) and (2-1)"; a set of totals
// "Number 2,3,or 12" -> "number group 2,3,12"; dice faces keep capitals.
std::string EventTargetWords(const std::string& w) {
  if (w.rfind("Die ", 0) == 0) return w;
  std::string s = LowerFirst(w);
  const bool totals = s.rfind("number ", 0) == 0 && s.find('(') == std::string::npos;
  if (totals && s.find_first_of(", ", 7) != std::string::npos) {
    std::string digits;
    for (size_t i = 7; i < s.size(); ++i) {
      if (std::isdigit(static_cast<unsigned char>(s[i]))) digits += s[i];
      else if (!digits.empty() && digits.back() != ',' && (s[i] == ',' || s[i] == ' ')) digits += ',';
    }
    return "number group " + digits;
  }
  for (size_t at = s.find(" or "); at != std::string::npos; at = s.find(" or ", at)) s.replace(at, 4, " and ");
  return s;
}

ChoiceList PointList(bool decided) {
  const char* head = decided ? "the number " : "the point ";
  ChoiceList list;
  if (!decided) list.push_back({49, "any come-out roll"});
  list.push_back({31, decided ? "any number" : "any point"});
  const std::pair<int, const char*> rows[] = {{34, "4"}, {35, "5"}, {36, "6"}, {38, "8"}, {39, "9"},
                                              {40, "10"}, {41, "5, 6, 8, or 9"}, {42, "4, 5, 9, or 10"},
                                              {43, "4, 6, 8, or 10"}, {44, "4, 5, or 6"}, {45, "8, 9, or 10"},
                                              {46, "4 or 10"}, {47, "5 or 9"}, {48, "6 or 8"}};
  for (const auto& [code, words] : rows) list.push_back({code, std::string(head) + words});
  return list;
}

ChoiceList MakeVerbs() {
  const char* ops[] = {"Bet", "Add", "Subtract", "Multiply by", "Divide by"};
  const char* forms[] = {" % of", " % of the last", " the highest of:", " the highest of the last:",
                         " the lowest of:", " the lowest of the last:", " the average of:",
                         " the average of the last:"};
  ChoiceList list;
  for (int op = 0; op < 5; ++op) {
    list.push_back({10 * (op + 1), std::string(ops[op]) + (op < 3 ? " $" : "")});
    for (int f = 0; f < 8; ++f) list.push_back({10 * (op + 1) + f + 1, std::string(ops[op]) + forms[f]});
  }
  list.insert(list.end(), {
      {82, "Yes/No question:"}, {85, "Yes/No question: Value of"}, {79, "Show message:"},
      {84, "Show message: Value of"}, {83, "Get input and bet it on"}, {70, "Buy the Place Bet"},
      {71, "Call OFF"}, {72, "Call ON"}, {73, "Reset wins / losses"}, {74, "Reset rolls"},
      {75, "Stop Auto-Rolling / Hyper-Drive"}, {117, "Go to"}, {76, "Gosub"}, {86, "Return"},
      {77, "Set flag"}, {78, "Set all flags"}, {109, "Round"}, {87, "Name Chip-Stack #"},
      {89, "Name Chip-Stack ref #"}, {88, "Clear all Chip-Stack names"}, {80, "Play sound:"},
      {97, "Activate Probability File:"}, {98, "Deactivate Probability File"}, {81, "Show Steps"},
      {90, "Set Auto-Handle Winning Bets"}, {110, "Set Auto-Handle Losing Bets"},
      {91, "Set Auto-Take Full Odds"}, {92, "Set Auto-Lay Full Odds"}, {93, "ATM - withdraw $"},
      {94, "ATM - withdraw % of"}, {95, "ATM - deposit $"}, {96, "ATM - deposit % of"},
      {103, "Select RNG #"}, {104, "Select RNG # as value of"}, {111, "Select RNG # as value of the last"},
      {105, "Seed RNG with date/time"}, {106, "Seed RNG with #"}, {107, "Seed RNG with value of"},
      {112, "Seed RNG with value of the last"}, {113, "Open/clear file for output:"},
      {99, "Open/append file for output:"}, {100, "Output to file. Message:"},
      {101, "Output to file. Value of"}, {108, "Output to file. Value of the last"},
      {102, "Output to file. New line."}, {114, "Close file"}, {999, "Reset table"},
      {998, "Reset table (preserve Chip-Stacks)"},
  });
  return list;
}

ChoiceList MakeSubjects() {
  ChoiceList list = {
      {9999, "Initializing Auto-Bet"}, {1300, "On each roll"}, {1311, "The # of rolls in the game"},
      {1312, "The # of rolls for this shooter"}, {1323, "The # of rolls for the last shooter"},
      {1301, "Next roll is a come-out roll"}, {1309, "Next roll is NOT a come-out roll"},
      {1302, "Last roll was a come-out roll"}, {1310, "Last roll was NOT a come-out roll"},
      {1303, "A point is established on"}, {1306, "A point is NOT established on"},
      {1322, "A point is decided \"for\" or \"against\""}, {1304, "A point is decided \"for\""},
      {1305, "A point is decided \"against\""}, {1313, "On each pass"}, {1314, "The # of passes in the game"},
      {1315, "The # of passes for this shooter"}, {1324, "The # of passes for the last shooter"},
      {1316, "On each miss"}, {1317, "The # of misses in the game"}, {1318, "The # of misses for this shooter"},
      {1325, "The # of misses for the last shooter"}, {1400, "Bankroll"}, {1401, "Average bankroll"},
      {1410, "Available bankroll"}, {1405, "Simulated hours"}, {1307, "Last answer was \"Yes\""},
      {1308, "Last answer was \"No\""}, {1500, "Flag"}, {1501, "Any flag"}, {1502, "All flags"},
      {1503, "Total # of true flags"}, {1504, "Total # of false flags"}, {1600, "Chip-Stack #"},
      {1601, "Chip-Stack ref #"}, {1020, "Any Chip-Stack"}, {1120, "All Chip-Stacks"},
      {1220, "Total Chip-Stacks"},
  };
  list.push_back(kSep);
  AddBetGroups(list, false);
  list.push_back(kSep);
  AddBets(list);
  list.push_back(kSep);
  AddShootersPoint(list);
  list.push_back(kSep);
  list.insert(list.end(), kDiceEvents.begin(), kDiceEvents.end());
  return list;
}

ChoiceList MakeCompareTargets() {
  ChoiceList list = {{1400, "bankroll"},       {1401, "bankroll average"}, {1410, "bankroll available"},
                     {1600, "Chip-Stack #"},   {1601, "Chip-Stack ref #"}, {1020, "any Chip-Stack"},
                     {1120, "all Chip-Stacks"}, {1220, "total Chip-Stacks"}};
  list.push_back(kSep);
  AddBetGroups(list, true);
  list.push_back(kSep);
  AddBets(list);
  list.push_back(kSep);
  AddShootersPoint(list);
  return list;
}

ChoiceList MakeSources() {
  ChoiceList list = {
      {1311, "game rolls"}, {1312, "shooter rolls"}, {1314, "game passes"}, {1315, "shooter passes"},
      {1317, "game misses"}, {1318, "shooter misses"}, {1402, "highest bankroll"}, {1400, "bankroll"},
      {1403, "lowest bankroll"}, {1401, "average bankroll"}, {1410, "available bankroll"},
      {1702, "total # of current wagers"}, {1703, "total $ of current wagers"},
      {1700, "total # of decided wagers"}, {1701, "total $ of decided wagers"}, {1000, "total bets"},
      {1001, "total Lay bets"}, {1002, "total Don't Come bets"}, {1003, "total Don't Come Odds bets"},
      {1004, "total Come bets"}, {1005, "total Come Odds bets"}, {1006, "total Place bets"},
      {1007, "total inside Place bets"}, {1008, "total outside Place bets"}, {1009, "total Buy bets"},
      {1602, "total Chip-Stacks"}, {1600, "Chip-Stack #"}, {1601, "Chip-Stack ref #"},
  };
  list.push_back(kSep);
  AddShootersPoint(list);
  list.push_back(kSep);
  AddBets(list);
  return list;
}

ChoiceList MakeTargets() {
  ChoiceList list = {
      {1000, "all bets"}, {1001, "all Lay bets"}, {1002, "all Don't Come bets"},
      {1003, "all Don't Come Odds bets"}, {1004, "all Come bets"}, {1005, "all Come Odds bets"},
      {1006, "all Place bets"}, {1007, "all inside Place bets"}, {1008, "all outside Place bets"},
      {1009, "all Buy bets"}, {1602, "all Chip-Stacks"}, {1600, "Chip-Stack #"}, {1601, "Chip-Stack ref #"},
  };
  list.push_back(kSep);
  AddShootersPoint(list);
  list.push_back(kSep);
  AddBets(list);
  return list;
}

ChoiceList MakeEventTargets() {
  ChoiceList list = {{2001, "all the numbers"}};
  for (const ListEntry& e : kDiceEvents) list.push_back({e.Code, EventTargetWords(e.Words)});
  return list;
}

struct Comparison {
  int code;
  const char* singular;
  const char* plural;  // nullptr: formed from the singular
};
const Comparison kComparisons[] = {
    {1, "has won", "have won"}, {2, "has won more than", "have won more than"},
    {3, "has lost", "have lost"}, {4, "has lost more than", "have lost more than"},
    {60, "has not won", nullptr}, {61, "has won less than", nullptr}, {62, "has not lost", nullptr},
    {63, "has lost less than", nullptr}, {5, "has rolled", nullptr}, {6, "has rolled more than", nullptr},
    {7, "has not rolled", nullptr}, {8, "has rolled less than", nullptr},
    {9, "has rolled in the last", nullptr}, {10, "has not rolled in the last", nullptr},
    {11, "is equal to $", "are equal to $"}, {12, "is not equal to $", nullptr},
    {13, "is greater than $", nullptr}, {14, "is not greater than $", nullptr},
    {15, "is less than $", nullptr}, {16, "is not less than $", nullptr},
    {17, "is equal to", "are equal to"}, {18, "is not equal to", nullptr}, {19, "is greater than", nullptr},
    {20, "is not greater than", nullptr}, {21, "is less than", nullptr}, {22, "is not less than", nullptr},
    {23, "number", "number"}, {24, "number more than", "number more than"},
    {25, "number less than", "number less than"}, {26, "is named", "are named"},
    {27, "is not named", "are not named"},
};

std::string Pluralised(const std::string& s) {
  if (s.rfind("has ", 0) == 0) return "have " + s.substr(4);
  if (s.rfind("is ", 0) == 0) return "are " + s.substr(3);
  return s;
}

}  // namespace

const ChoiceList& StartConditions() {
  static const ChoiceList list = {{1, "When . . ."},     {2, "While . . ."},   {3, "and when . . ."},
                                  {4, "and while . . ."}, {5, "or when . . ."}, {6, "or while . . ."},
                                  {7, "xor when . . ."},  {8, "xor while . . ."}};
  return list;
}
const ChoiceList& StartActions() {
  static const ChoiceList list = {{11, "then . . ."}, {12, "else . . ."}, {13, "Do this . . ."}};
  return list;
}
const ChoiceList& ConditionSubjects() {
  static const ChoiceList list = MakeSubjects();
  return list;
}
const ChoiceList& CompareTargets() {
  static const ChoiceList list = MakeCompareTargets();
  return list;
}
const ChoiceList& DiceEvents() { return kDiceEvents; }
const ChoiceList& DiceEventTargets() {
  static const ChoiceList list = MakeEventTargets();
  return list;
}
const ChoiceList& PointChoices() {
  static const ChoiceList list = PointList(false);
  return list;
}
const ChoiceList& DecidedChoices() {
  static const ChoiceList list = PointList(true);
  return list;
}
const ChoiceList& ActionVerbs() {
  static const ChoiceList list = MakeVerbs();
  return list;
}
const ChoiceList& ActionSources() {
  static const ChoiceList list = MakeSources();
  return list;
}
const ChoiceList& ActionTargets() {
  static const ChoiceList list = MakeTargets();
  return list;
}
const ChoiceList& RoundChoices() {
  static const ChoiceList list = {
      {1100, "up to the nearest $"}, {1101, "to the nearest $"}, {1102, "down to the nearest $"}};
  return list;
}
const ChoiceList& AutoHandleWinning() {
  static const ChoiceList list = {{0, "Manual"},      {1, "Take Bet and Winnings"}, {2, "Same Bet - Take Winnings"},
                                  {3, "Press 1 Unit"}, {4, "Press Double"},          {5, "Parlay"}};
  return list;
}
const ChoiceList& AutoHandleLosing() {
  static const ChoiceList list = {{0, "Manual"},   {1, "No Bet/Take Remainder (if any)"}, {2, "Bet Remainder (if any)"},
                                  {3, "Same Bet"}, {4, "Same Bet plus 1 Unit"},           {5, "Double Bet"}};
  return list;
}

std::string ComparisonWords(int code, bool plural) {
  for (const Comparison& c : kComparisons) {
    if (c.code != code) continue;
    if (!plural) return c.singular;
    return c.plural ? c.plural : Pluralised(c.singular);
  }
  return "";
}

std::string CountComparisonWords(int code) {
  if (code < 11 || code > 16) return "";
  std::string words = ComparisonWords(code, true);
  words.pop_back();  // "are equal to $" -> "are equal to "
  return words;
}

std::string WordsOf(const ChoiceList& list, int code) {
  for (const ListEntry& e : list)
    if (e.Code == code && e.Words != kSeparator) return e.Words;
  return "";
}

bool IsPluralSubject(int subject) { return subject >= 1100 && subject < 1300; }

bool IsCountSubject(int subject) {
  switch (subject) {
    case 1311: case 1312: case 1314: case 1315: case 1317: case 1318:
    case 1323: case 1324: case 1325: case 1405: case 1503: case 1504:
      return true;
    default:
      return false;
  }
}

}  // namespace script_list
