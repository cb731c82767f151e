#include "engine/catalogue.h"

#include <string>
#include <utility>

namespace bet {
namespace {

constexpr std::array<std::string_view, 84> kNames = {
    "",
    "Lay 4", "Lay 5", "Lay 6", "Lay 8", "Lay 9", "Lay 10",
    "Don't Come 4", "Don't Come 5", "Don't Come 6", "Don't Come 8", "Don't Come 9", "Don't Come 10",
    "Don't Come 4 Odds", "Don't Come 5 Odds", "Don't Come 6 Odds", "Don't Come 8 Odds", "Don't Come 9 Odds",
    "Don't Come 10 Odds",
    "Come 4", "Come 5", "Come 6", "Come 8", "Come 9", "Come 10",
    "Come 4 Odds", "Come 5 Odds", "Come 6 Odds", "Come 8 Odds", "Come 9 Odds", "Come 10 Odds",
    "Place 4", "Place 5", "Place 6", "Place 8", "Place 9", "Place 10",
    "Buy 4", "Buy 5", "Buy 6", "Buy 8", "Buy 9", "Buy 10",
    "Pass Line", "Pass Line Odds", "Come", "Don't Pass", "Don't Pass Odds", "Don't Come",
    "Field", "Big 6", "Big 8",
    "Hard 4", "Hard 6", "Hard 8", "Hard 10",
    "Two", "Three", "Seven", "Eleven", "Twelve", "Craps", "C and E", "Horn", "World",
    "Over 7", "Under 7",
    "Hop 1-3", "Hop 1-4", "Hop 1-5", "Hop 1-6", "Hop 2-2", "Hop 2-3", "Hop 2-4", "Hop 2-5", "Hop 2-6",
    "Hop 3-3", "Hop 3-4", "Hop 3-5", "Hop 3-6", "Hop 4-4", "Hop 4-5", "Hop 4-6", "Hop 5-5",
};

constexpr std::array<HopPair, 17> kHops = {{
    {1, 3}, {1, 4}, {1, 5}, {1, 6}, {2, 2}, {2, 3}, {2, 4}, {2, 5}, {2, 6},
    {3, 3}, {3, 4}, {3, 5}, {3, 6}, {4, 4}, {4, 5}, {4, 6}, {5, 5},
}};

// The catalogue by ranges of BetId: family, duration, contract, come-out.
struct Range {
  int first, last;
  Entry entry;
};
constexpr Range kRanges[] = {
    {1, 6, {Group::Lay, Duration::UntilSevenOrNumber, Contract::Free, 1}},
    {7, 12, {Group::DontComeNumber, Duration::UntilSevenOrNumber, Contract::LowerOnly, 1}},
    {13, 18, {Group::DontComeOdds, Duration::WithParent, Contract::NeedsParent, 1}},
    {19, 24, {Group::ComeNumber, Duration::UntilSevenOrNumber, Contract::Fixed, 1}},
    {25, 30, {Group::ComeOdds, Duration::WithParent, Contract::NeedsParent, 0}},
    {31, 36, {Group::Place, Duration::UntilSeven, Contract::Free, 0}},
    {37, 42, {Group::Buy, Duration::UntilSeven, Contract::Free, 0}},
    {43, 43, {Group::Line, Duration::UntilDecided, Contract::FixedAfterPoint, 1}},
    {44, 44, {Group::LineOdds, Duration::WithParent, Contract::NeedsParent, 0}},
    {45, 45, {Group::ComeBox, Duration::OneRollThenMoves, Contract::NeedsPoint, 0}},
    {46, 46, {Group::Line, Duration::UntilDecided, Contract::LowerAfterPoint, 1}},
    {47, 47, {Group::LineOdds, Duration::WithParent, Contract::NeedsParent, 0}},
    {48, 48, {Group::ComeBox, Duration::OneRollThenMoves, Contract::NeedsPoint, 0}},
    {49, 49, {Group::Field, Duration::OneRoll, Contract::Free, 1}},
    {50, 51, {Group::Big, Duration::UntilSeven, Contract::Free, 1}},
    {52, 55, {Group::HardWay, Duration::UntilSevenOrEasy, Contract::Free, 1}},
    {56, 66, {Group::Proposition, Duration::OneRoll, Contract::Free, 1}},
    {67, 83, {Group::Hop, Duration::OneRoll, Contract::Free, 1}},
};
constexpr Entry kBlank = {Group::None, Duration::None, Contract::Free, 0};

}  // namespace

const Entry& EntryOf(int id) {
  for (const Range& r : kRanges)
    if (id >= r.first && id <= r.last) return r.entry;
  return kBlank;
}

HopPair HopFaces(int hopId) { return kHops[hopId - kFirstHop]; }

int HopFor(int a, int b) {
  if (a > b) std::swap(a, b);
  for (int i = 0; i < static_cast<int>(kHops.size()); ++i)
    if (kHops[i].low == a && kHops[i].high == b) return kFirstHop + i;
  return 0;
}

int FieldRow(int d1, int d2) {
  auto has = [&](int f) { return d1 == f || d2 == f; };
  switch (d1 + d2) {
    case 2: return 1;
    case 3: return 2;
    case 4: return d1 == 2 ? 4 : 3;
    case 5: return has(1) ? 5 : 6;
    case 6: return has(1) ? 7 : has(2) ? 8 : 9;
    case 7: return has(1) ? 10 : has(2) ? 11 : 12;
    case 8: return has(2) ? 13 : has(3) ? 14 : 15;
    case 9: return has(3) ? 16 : 17;
    case 10: return has(4) ? 18 : 19;
    case 11: return 20;
    default: return 21;
  }
}

std::string_view CatalogueName(int id) {
  if (IsTableBet(id)) return kNames[id];
  if (id == kRail) return "Rail";
  return "";
}

std::string StackName(int id) { return "Chip-Stack # " + std::to_string(id - kFirstStack); }

int DefaultWorkOnComeOut(int id) { return EntryOf(id).workOnComeOut; }

}  // namespace bet
