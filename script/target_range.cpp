#include "script/target_range.h"

#include "script/values.h"
#include "engine/subject_codes.h"

namespace {

using namespace subject;

constexpr int kFirstEvent = 2;
constexpr int kLastEvent = 89;

TargetRange Slots(int first, int last) {
  TargetRange r;
  r.first = first;
  r.last = last;
  return r;
}

// The groups of six, "all Lay bets" 1001 to "all Place bets" 1006.
TargetRange GroupOfSix(int target) {
  const int first = 1 + (target - kLayBets) * 6;
  return Slots(first, first + 5);
}

// Older scripts stored "all the numbers" under the 4,5,6,8,9,10 group; their
// text still says which was meant.
bool MeansAllTheNumbers(const ScriptLine& line) {
  return line.Target == kDiceEvents + 17 && line.Text.find("all the numbers") != std::string::npos;
}

}  // namespace

TargetRange FindTargetRange(const Game& g, const ScriptLine& line) {
  const int target = line.Target;
  TargetRange r;
  if (target == kAllBets) {
    r = Slots(bet::kFirstTableBet, bet::kLastTableBet);
  } else if (target >= kLayBets && target <= kPlaceBets) {
    r = GroupOfSix(target);
  } else if (target == kInsidePlace) {
    r = Slots(bet::Place(5), bet::Place(9));
  } else if (target == kOutsidePlace) {
    r = Slots(bet::Place(4), bet::Place(10));
    r.outsidePlace = true;
  } else if (target == kBuyBets) {
    r = Slots(bet::kBuyBase, bet::kBuyBase + 5);
  } else if (target >= 0 && target < 100) {
    r = Slots(target, target);
  } else if (target == kChipStack) {
    const int slot = line.TargetNum + bet::kFirstStack;
    if (line.TargetNum >= 0 && slot < bet::kSlots) r = Slots(slot, slot);
  } else if (target == kChipStackRef) {
    const int ref = ChipStackReference(g, line.TargetNum);
    if (ref >= 0) r = Slots(ref + bet::kFirstStack, ref + bet::kFirstStack);
  } else if (target == kAllChipStacks) {
    r = Slots(bet::kFirstStack, bet::kSlots - 1);  // one past the last Chip-Stack, as it always was
  } else if (target == kPointLay || (target >= kPointCome && target <= kPointBuy)) {
    const int id = ShootersPointBet(g, target);
    if (id != 0) r = Slots(id, id);
  } else if (target == kAllTheNumbers || MeansAllTheNumbers(line)) {
    r = Slots(kFirstEvent, kLastEvent);
  } else if (target > kDiceEvents && target - kDiceEvents <= kLastEvent) {
    r = Slots(target - kDiceEvents, target - kDiceEvents);
  }
  r.placeGuard = target == kPlaceBets || target == kInsidePlace || target == kOutsidePlace;
  return r;
}

bool SkipsSlot(const Game& g, const TargetRange& range, int slot) {
  if (range.outsidePlace && (slot == bet::Place(6) || slot == bet::Place(8))) return true;
  if (!range.placeGuard || !bet::IsPlace(slot)) return false;
  if (g.BetAmount[bet::kPassLine] <= 0 || !g.AutoRemovePlaceBets) return false;
  const int number = bet::NumberAt(slot - bet::kPlaceBase);
  return number == g.Point || g.BetAmount[bet::Come(number)] > 0;
}
