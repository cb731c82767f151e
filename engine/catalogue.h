#pragma once
// The numbered catalogue of every wager the table knows, and the arithmetic of
// positions that the rest of the engine relies on. Data lives in one place.

#include <array>
#include <string>
#include <string_view>

namespace bet {
// Slots of BetAmount that are not table bets.
constexpr int kBankroll = 0;
constexpr int kFirstTableBet = 1;
constexpr int kLastTableBet = 83;
constexpr int kRail = 93;
constexpr int kFirstChip = 95;   // also the smallest check, the rounding unit
constexpr int kLastChip = 99;
// The five check colours, 1 the smallest, are the chip slots in order.
constexpr int kChipColours = kLastChip - kFirstChip + 1;
constexpr int ChipSlot(int colour) { return kFirstChip - 1 + colour; }
constexpr int kFirstStack = 100;
constexpr int kLastStack = 199;
constexpr int kSlots = 201;      // 0..200

// Single bets by their catalogue numbers.
constexpr int kPassLine = 43;
constexpr int kPassOdds = 44;
constexpr int kCome = 45;
constexpr int kDontPass = 46;
constexpr int kDontPassOdds = 47;
constexpr int kDontCome = 48;
constexpr int kField = 49;
constexpr int kBig6 = 50;
constexpr int kBig8 = 51;
constexpr int kHard4 = 52, kHard6 = 53, kHard8 = 54, kHard10 = 55;
constexpr int kTwo = 56, kThree = 57, kSeven = 58, kEleven = 59, kTwelve = 60;
constexpr int kCraps = 61;
constexpr int kCandE = 62;
constexpr int kHorn = 63;
constexpr int kWorld = 64;
constexpr int kOver7 = 65, kUnder7 = 66;
constexpr int kFirstHop = 67, kLastHop = 83;

// Group bases: the bet of number n in a group of six is base + NumberIndex(n).
constexpr int kLayBase = 1;
constexpr int kDontComeBase = 7;
constexpr int kDontComeOddsBase = 13;
constexpr int kComeNumberBase = 19;
constexpr int kComeOddsBase = 25;
constexpr int kPlaceBase = 31;
constexpr int kBuyBase = 37;
// The odds of a Come or Don't Come number stand one group above it.
constexpr int kOddsAboveNumber = kComeOddsBase - kComeNumberBase;

constexpr std::array<int, 6> kNumbers = {4, 5, 6, 8, 9, 10};

constexpr bool IsPointNumber(int n) { return n == 4 || n == 5 || n == 6 || n == 8 || n == 9 || n == 10; }
// The place of 4, 5, 6, 8, 9, 10 in a group of six: 0..5.
constexpr int NumberIndex(int n) { return n < 7 ? n - 4 : n - 5; }
constexpr int NumberAt(int index) { return kNumbers[index]; }

constexpr int Lay(int n) { return kLayBase + NumberIndex(n); }
constexpr int DontCome(int n) { return kDontComeBase + NumberIndex(n); }
constexpr int DontComeOdds(int n) { return kDontComeOddsBase + NumberIndex(n); }
constexpr int Come(int n) { return kComeNumberBase + NumberIndex(n); }
constexpr int ComeOdds(int n) { return kComeOddsBase + NumberIndex(n); }
constexpr int Place(int n) { return kPlaceBase + NumberIndex(n); }
constexpr int Buy(int n) { return kBuyBase + NumberIndex(n); }
// The odds of a Come or Don't Come number bet.
constexpr int OddsOf(int numberId) { return numberId + kOddsAboveNumber; }
// The Place and Buy bets of the number a Come number bet stands on.
constexpr int PlaceOfCome(int comeId) { return comeId - kComeNumberBase + kPlaceBase; }
constexpr int BuyOfCome(int comeId) { return comeId - kComeNumberBase + kBuyBase; }

constexpr bool InRange(int id, int lo, int hi) { return id >= lo && id <= hi; }
constexpr bool IsTableBet(int id) { return InRange(id, kFirstTableBet, kLastTableBet); }
constexpr bool IsStack(int id) { return InRange(id, kFirstStack, kLastStack); }
constexpr bool IsLay(int id) { return InRange(id, 1, 6); }
constexpr bool IsDontComeNumber(int id) { return InRange(id, 7, 12); }
constexpr bool IsDontComeOdds(int id) { return InRange(id, 13, 18); }
constexpr bool IsComeNumber(int id) { return InRange(id, 19, 24); }
constexpr bool IsComeOdds(int id) { return InRange(id, 25, 30); }
constexpr bool IsPlace(int id) { return InRange(id, 31, 36); }
constexpr bool IsBuy(int id) { return InRange(id, 37, 42); }
constexpr bool IsHardWay(int id) { return InRange(id, kHard4, kHard10); }
constexpr bool IsHop(int id) { return InRange(id, kFirstHop, kLastHop); }
constexpr bool IsOneRoll(int id) { return id == kField || InRange(id, 56, 83); }
// Odds bets of every kind (line and number).
constexpr bool IsOdds(int id) { return id == kPassOdds || id == kDontPassOdds || IsComeOdds(id) || IsDontComeOdds(id); }
// The flat bet beneath an odds bet.
constexpr int ParentOf(int oddsId) {
  return oddsId == kPassOdds ? kPassLine : oddsId == kDontPassOdds ? kDontPass : oddsId - kOddsAboveNumber;
}

// The two totals of Hop bet id (67..83), lower face first.
struct HopPair { int low, high; };
HopPair HopFaces(int hopId);
// The Hop bet for the faces a, b, or 0 when the pair has no Hop (2, 3, 11, 12).
int HopFor(int a, int b);

// Field payoff row 1..21 for a dice pair.
int FieldRow(int die1, int die2);

// The families of the catalogue.
enum class Group {
  None, Lay, DontComeNumber, DontComeOdds, ComeNumber, ComeOdds, Place, Buy,
  Line, LineOdds, ComeBox, Field, Big, HardWay, Proposition, Hop,
};
// How long a bet stands.
enum class Duration { None, UntilSevenOrNumber, UntilSeven, UntilDecided, WithParent, OneRollThenMoves, OneRoll,
                      UntilSevenOrEasy };
// What the player may do with a bet once the dice have gone out on it.
enum class Contract {
  Free,             // anything
  LowerOnly,        // Don't Come on its number: may come down, not go up
  Fixed,            // Come on its number: stays unless Put bets are allowed
  FixedAfterPoint,  // Pass Line once a point is on
  LowerAfterPoint,  // Don't Pass once a point is on
  NeedsParent,      // odds: only with the flat bet beneath them
  NeedsPoint,       // Come and Don't Come boxes: only with a point on
};

struct Entry {
  Group group;
  Duration duration;
  Contract contract;
  int workOnComeOut;  // 1 works on the come-out, 0 is off
};
// The catalogue row of a table bet 1..83; a blank row for any other slot.
const Entry& EntryOf(int id);

// Catalogue entry of a BetId: its shown name ("" where the catalogue has none).
std::string_view CatalogueName(int id);
// Default name of Chip-Stack slot 100+n: "Chip-Stack # n".
std::string StackName(int id);
// Whether a bet works on the come-out by default (1) or is off (0).
int DefaultWorkOnComeOut(int id);
}  // namespace bet
