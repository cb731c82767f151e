#include "stats/roll_counters.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <initializer_list>

namespace {

// How a selection is satisfied: a set of totals, one ordered throw (die1,
// die2), either order of a pair, or a face of one die.
enum class Rule : uint8_t { None, Totals, Ordered, EitherOrder, Die1Face, Die2Face };

struct Selection {
  Rule rule = Rule::None;
  uint16_t totals = 0;  // bit n for total n
  uint8_t a = 0, b = 0;
};

constexpr uint16_t Bits(std::initializer_list<int> totals) {
  uint16_t bits = 0;
  for (int t : totals) bits = static_cast<uint16_t>(bits | (1u << t));
  return bits;
}
constexpr Selection Totals(std::initializer_list<int> totals) { return {Rule::Totals, Bits(totals), 0, 0}; }
constexpr Selection Ordered(int a, int b) { return {Rule::Ordered, 0, uint8_t(a), uint8_t(b)}; }
constexpr Selection Either(int a, int b) { return {Rule::EitherOrder, 0, uint8_t(a), uint8_t(b)}; }

// The selections in index order; index 90 is named by no list and stays 0.
constexpr std::array<Selection, event::kCount> MakeSelections() {
  std::array<Selection, event::kCount> s{};
  s[1] = Totals({2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  for (int total = 2; total <= 12; ++total) s[total] = Totals({total});
  s[13] = Ordered(2, 2);
  s[14] = Ordered(3, 3);
  s[15] = Ordered(4, 4);
  s[16] = Ordered(5, 5);
  s[17] = Totals({4, 5, 6, 8, 9, 10});
  s[18] = Totals({5, 6, 8, 9});
  s[19] = Totals({4, 5, 9, 10});
  s[20] = Totals({2, 3, 12});
  s[21] = Totals({2, 3, 4, 9, 10, 11, 12});
  s[22] = Ordered(1, 2);
  s[23] = Ordered(2, 1);
  s[24] = Ordered(1, 3);
  s[25] = Ordered(3, 1);
  s[26] = Either(1, 3);
  s[27] = Ordered(1, 4);
  s[28] = Ordered(4, 1);
  s[29] = Ordered(2, 3);
  s[30] = Ordered(3, 2);
  s[31] = Either(1, 4);
  s[32] = Either(2, 3);
  s[33] = Ordered(1, 5);
  s[34] = Ordered(5, 1);
  s[35] = Ordered(2, 4);
  s[36] = Ordered(4, 2);
  s[37] = Either(1, 5);
  s[38] = Either(2, 4);
  s[39] = Ordered(1, 6);
  s[40] = Ordered(6, 1);
  s[41] = Ordered(2, 5);
  s[42] = Ordered(5, 2);
  s[43] = Ordered(3, 4);
  s[44] = Ordered(4, 3);
  s[45] = Either(1, 6);
  s[46] = Either(2, 5);
  s[47] = Either(3, 4);
  s[48] = Ordered(2, 6);
  s[49] = Ordered(6, 2);
  s[50] = Ordered(3, 5);
  s[51] = Ordered(5, 3);
  s[52] = Either(2, 6);
  s[53] = Either(3, 5);
  s[54] = Ordered(3, 6);
  s[55] = Ordered(6, 3);
  s[56] = Ordered(4, 5);
  s[57] = Ordered(5, 4);
  s[58] = Either(3, 6);
  s[59] = Either(4, 5);
  s[60] = Ordered(4, 6);
  s[61] = Ordered(6, 4);
  s[62] = Either(4, 6);
  s[63] = Ordered(5, 6);
  s[64] = Ordered(6, 5);
  s[65] = Totals({2, 3, 7, 11, 12});
  s[66] = Totals({2, 3, 11, 12});
  s[67] = Totals({4, 5, 6});
  s[68] = Totals({8, 9, 10});
  s[69] = Totals({2, 12});
  s[70] = Totals({3, 11});
  s[71] = Totals({4, 10});
  s[72] = Totals({5, 9});
  s[73] = Totals({6, 8});
  s[74] = Totals({2, 3});
  s[75] = Totals({3, 12});
  s[76] = Totals({7, 11});
  s[77] = Totals({11, 12});
  for (int face = 1; face <= 6; ++face) {
    s[event::kFirstDie1Face + face - 1] = {Rule::Die1Face, 0, uint8_t(face), 0};
    s[event::kFirstDie2Face + face - 1] = {Rule::Die2Face, 0, uint8_t(face), 0};
  }
  return s;
}

constexpr std::array<Selection, event::kCount> kSelections = MakeSelections();

constexpr bool Satisfies(const Selection& s, int die1, int die2) {
  switch (s.rule) {
    case Rule::Totals: return (s.totals >> (die1 + die2)) & 1u;
    case Rule::Ordered: return die1 == s.a && die2 == s.b;
    case Rule::EitherOrder: return (die1 == s.a && die2 == s.b) || (die1 == s.b && die2 == s.a);
    case Rule::Die1Face: return die1 == s.a;
    case Rule::Die2Face: return die2 == s.a;
    case Rule::None: return false;
  }
  return false;
}

// For each of the 36 throws, the selections it satisfies, as two bit words;
// worked out once so a roll in Hyper-Drive only walks set bits.
struct ThrowMask {
  uint64_t low = 0;   // indexes 0..63
  uint64_t high = 0;  // indexes 64..90
};

constexpr std::array<ThrowMask, 36> MakeThrowMasks() {
  std::array<ThrowMask, 36> masks{};
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) {
      ThrowMask& m = masks[(d1 - 1) * 6 + d2 - 1];
      for (int i = 1; i < event::kCount; ++i) {
        if (!Satisfies(kSelections[i], d1, d2)) continue;
        if (i < 64) m.low |= uint64_t{1} << i;
        else m.high |= uint64_t{1} << (i - 64);
      }
    }
  return masks;
}

constexpr std::array<ThrowMask, 36> kThrowMasks = MakeThrowMasks();

// For each selection, the pairs of dice (bit DicePair) that satisfy it.
constexpr std::array<uint64_t, event::kCount> MakePairMasks() {
  std::array<uint64_t, event::kCount> masks{};
  for (int i = 1; i < event::kCount; ++i)
    for (int d1 = 1; d1 <= 6; ++d1)
      for (int d2 = 1; d2 <= 6; ++d2)
        if (Satisfies(kSelections[i], d1, d2)) masks[i] |= uint64_t{1} << ((d1 - 1) * 6 + d2 - 1);
  return masks;
}

constexpr std::array<uint64_t, event::kCount> kPairMasks = MakePairMasks();

// A selection's figures from the figures last written and the tally since.
EventFigures Derive(const Game& g, int i) {
  const RollTally& t = g.Tally;
  EventFigures f{g.RollCounts[i], g.PreviousRollCounts[i], g.RollsSinceLast[i], g.PreviousRollsSinceLast[i]};
  if (t.rolls == 0) return f;
  int32_t sum = 0, latest = 0, latestBefore = 0;
  for (uint64_t pairs = kPairMasks[i]; pairs != 0; pairs &= pairs - 1) {
    const int pair = std::countr_zero(pairs);
    sum += t.count[pair];
    latest = std::max(latest, t.last[pair]);
    latestBefore = std::max(latestBefore, pair == t.latestPair ? t.latestPairBefore : t.last[pair]);
  }
  const int32_t writtenCount = f.count, writtenSince = f.since;
  f.count = writtenCount + sum;
  f.since = latest > 0 ? t.rolls - latest : writtenSince + t.rolls;
  if (!t.latestCounted) {  // the roll under way threw no dice
    f.countBefore = f.count;
    f.sinceBefore = f.since;
    return f;
  }
  const bool latestIn = t.latestPair != kNoPair && ((kPairMasks[i] >> t.latestPair) & 1u);
  f.countBefore = f.count - (latestIn ? 1 : 0);
  f.sinceBefore = latestBefore > 0 ? t.rolls - 1 - latestBefore : writtenSince + t.rolls - 1;
  return f;
}

void CountBits(Game& g, uint64_t bits, int offset) {
  while (bits != 0) {
    const int i = offset + std::countr_zero(bits);
    ++g.RollCounts[i];
    g.RollsSinceLast[i] = 0;
    bits &= bits - 1;
  }
}

}  // namespace

bool SatisfiesEvent(int index, int die1, int die2) {
  if (index < 1 || index >= event::kCount) return false;
  return Satisfies(kSelections[index], die1, die2);
}

EventFigures FiguresOf(const Game& g, int index) {
  if (index < 1 || index >= event::kCount) return {};
  return Derive(g, index);
}

void StartRollTally(Game& g) {
  RollTally& t = g.Tally;
  if (t.rolls == 0) {
    g.PreviousRollCounts = g.RollCounts;
    g.PreviousRollsSinceLast = g.RollsSinceLast;
  }
  t.latestCounted = false;
}

void TallyRoll(Game& g) {
  RollTally& t = g.Tally;
  const bool onTable = g.Die1 >= 1 && g.Die1 <= 6 && g.Die2 >= 1 && g.Die2 <= 6;
  const int pair = onTable ? (g.Die1 - 1) * 6 + g.Die2 - 1 : kNoPair;
  ++t.rolls;
  ++t.count[pair];
  t.latestPair = pair;
  t.latestPairBefore = t.last[pair];
  t.last[pair] = t.rolls;
  t.latestCounted = true;
}

void WriteRollCounters(Game& g) {
  if (g.Tally.rolls == 0) return;
  for (int i = 1; i < event::kCount; ++i) {
    const EventFigures f = Derive(g, i);
    g.RollCounts[i] = f.count;
    g.PreviousRollCounts[i] = f.countBefore;
    g.RollsSinceLast[i] = f.since;
    g.PreviousRollsSinceLast[i] = f.sinceBefore;
  }
  g.PreviousRollCounts[event::kAllRolls] = g.RollCounts[event::kAllRolls] - (g.Tally.latestCounted ? 1 : 0);
  g.Tally = {};
}

void UpdateRollCounters(Game& g) {
  for (int i = 1; i < event::kCount; ++i) ++g.RollsSinceLast[i];
  if (g.Die1 < 1 || g.Die1 > 6 || g.Die2 < 1 || g.Die2 > 6) return;
  const ThrowMask& m = kThrowMasks[(g.Die1 - 1) * 6 + g.Die2 - 1];
  CountBits(g, m.low, 0);
  CountBits(g, m.high, 64);
}
