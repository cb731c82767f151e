#include "script/target_range.h"

#include "script/values.h"
#include "engine/subject_codes.h"

namespace {

using namespace subject;

constexpr int kFirstEvent = 2;
constexpr int kLastEvent = 89;

// Older scripts stored "all the numbers" under the 4,5,6,8,9,10 group; their
// text still says which was meant.
bool MeansAllTheNumbers(const ScriptLine& line) {
  return line.Target == kDiceEvents + 17 && line.Text.find("all the numbers") != std::string::npos;
}

}  // namespace

void FindTargetRange(const Game& g, const ScriptLine& line, TargetRange& range) {
  const int target = line.Target;
  int first = 1, last = 0;
  auto slots = [&](int from, int to) {
    first = from;
    last = to;
  };
  if (target >= 0 && target < 100) {
    slots(target, target);
  } else if (target == kAllBets) {
    slots(bet::kFirstTableBet, bet::kLastTableBet);
  } else if (target >= kLayBets && target <= kPlaceBets) {
    const int from = 1 + (target - kLayBets) * 6;  // the groups of six, "all Lay bets" to "all Place bets"
    slots(from, from + 5);
  } else if (target == kInsidePlace) {
    slots(bet::Place(5), bet::Place(9));
  } else if (target == kOutsidePlace) {
    slots(bet::Place(4), bet::Place(10));
  } else if (target == kBuyBets) {
    slots(bet::kBuyBase, bet::kBuyBase + 5);
  } else if (target == kChipStack) {
    const int slot = line.TargetNum + bet::kFirstStack;
    if (line.TargetNum >= 0 && slot < bet::kSlots) slots(slot, slot);
  } else if (target == kChipStackRef) {
    const int ref = ChipStackReference(g, line.TargetNum);
    if (ref >= 0) slots(ref + bet::kFirstStack, ref + bet::kFirstStack);
  } else if (target == kAllChipStacks) {
    slots(bet::kFirstStack, bet::kSlots - 1);  // one past the last Chip-Stack, as it always was
  } else if (target == kPointLay || (target >= kPointCome && target <= kPointBuy)) {
    const int id = ShootersPointBet(g, target);
    if (id != 0) slots(id, id);
  } else if (target == kAllTheNumbers || MeansAllTheNumbers(line)) {
    slots(kFirstEvent, kLastEvent);
  } else if (target > kDiceEvents && target - kDiceEvents <= kLastEvent) {
    slots(target - kDiceEvents, target - kDiceEvents);
  }
  range.first = first;
  range.last = last;
  range.outsidePlace = target == kOutsidePlace;
  range.placeGuard = target == kPlaceBets || target == kInsidePlace || target == kOutsidePlace;
}

bool SkipsSlot(const Game& g, const TargetRange& range, int slot) {
  if (range.outsidePlace && (slot == bet::Place(6) || slot == bet::Place(8))) return true;
  if (!range.placeGuard || !bet::IsPlace(slot)) return false;
  if (g.BetAmount[bet::kPassLine] <= 0 || !g.AutoRemovePlaceBets) return false;
  const int number = bet::NumberAt(slot - bet::kPlaceBase);
  return number == g.Point || g.BetAmount[bet::Come(number)] > 0;
}
