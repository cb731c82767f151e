// Seeding the selected generator from a request, the clock or the player.

#include "engine/seed.h"

#include <chrono>
#include <limits>
#include <optional>

#include "dice/rng.h"
#include "engine/game.h"
#include "engine/notices.h"

namespace {

constexpr int32_t kModSeedLimit = 999'999;  // #3's step overflows well above this

int32_t UpperSeedLimit(const Game& g) {
  return g.RngChoice == 2 ? kModSeedLimit : std::numeric_limits<int32_t>::max();
}

bool WithinLimits(Currency seed, int32_t upper) { return seed >= Currency(1) && seed <= Currency(upper); }

// The millisecond clock. Kept to 31 bits so that a reading is always a
// positive 32-bit integer and a long-running machine still seeds.
int32_t ClockMilliseconds() {
  auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
  return static_cast<int32_t>(ms.count() & 0x7FFFFFFF);
}

// Nearest whole number, ties to even. Only called within the limits.
int32_t SeedFromRequest(Currency request) {
  int64_t whole = request.raw / Currency::kScale;
  int64_t fraction = request.raw % Currency::kScale;
  constexpr int64_t kHalf = Currency::kScale / 2;
  if (fraction > kHalf || (fraction == kHalf && whole % 2 != 0)) ++whole;
  return static_cast<int32_t>(whole);
}

void ReportOverflow(Game& g) { ShowMessage(g, "Dicemill", RunTimeErrorText("Overflow", 6, "SeedRNG")); }

// Ran1 and Ran2 are seeded by a negated seed subtracted from their
// increment, which leaves 32 bits for seeds near the top of the range.
// Such a seed is reported and leaves the generator as it was.
template <typename State>
void SeedShuffled(Game& g, int32_t seed, State& state, bool (*overflows)(int32_t),
                  float (*draw)(State&, int32_t&, std::string&)) {
  int32_t idum = -seed;
  if (overflows(idum)) {
    ReportOverflow(g);
    return;
  }
  draw(state, idum, g.ErrorText);
}

void SeedRan1(Game& g, int32_t seed) { SeedShuffled(g, seed, g.Rng.ran1, Ran1InitOverflows, Ran1); }
void SeedRan2(Game& g, int32_t seed) { SeedShuffled(g, seed, g.Rng.ran2, Ran2InitOverflows, Ran2); }

void SeedSelected(Game& g, int32_t seed) {
  uint32_t word = static_cast<uint32_t>(seed);
  switch (g.RngChoice) {
    case 0:
    case 7: init_genrand(g.Rng.mt, word); break;
    case 1: srandMT(g.Rng.cokus, word); break;
    case 2: RanMod(g, 6); break;  // ModSeed already holds the seed
    case 3: SeedRan2(g, seed); break;
    case 4: SeedRan1(g, seed); break;
    case 5: init_genrand(g.Rng.mt, word); SeedRan1(g, seed); break;
    case 6: srandMT(g.Rng.cokus, word); SeedRan2(g, seed); break;
    default: break;
  }
}

// Asks until the answer is within the limits. A front end may cancel
// (nullopt), which the desktop prompt never does; then nothing is seeded.
// A front end that keeps handing back an out-of-limits default unchanged
// (a silent one does) is taken as cancelling too, rather than looping.
std::optional<Currency> AskForSeed(Game& g, int32_t upper) {
  const std::string request = "Please enter a value between 1 and " + FormatWithCommas(upper) +
                              " to seed the random number generator:" + kBreak;
  const Currency offered(g.LastSeed);
  std::string text = request;
  bool defaultRefused = false;
  for (;;) {
    std::optional<Currency> answer = g.Ui->AskNumber("RNG Seed", text, offered);
    if (!answer || WithinLimits(*answer, upper)) return answer;
    if (*answer == offered) {
      if (defaultRefused) return std::nullopt;
      defaultRefused = true;
    }
    text = std::string("Your seed value is out of limits.") + kTwoBreaks + request;
  }
}

}  // namespace

void SeedRNG(Game& g, bool silent) {
  const int32_t upper = UpperSeedLimit(g);
  if (!silent) {
    if (!g.UserSeedMode) {
      g.SeedRequest = Currency(ClockMilliseconds());
      // #3 takes a fresh reading divided by 100. Past about a
      // day of clock time it is above #3's limit and the seed is dropped;
      // #3 then goes on from whatever ModSeed the last seeding left.
      if (g.RngChoice == 2) g.SeedRequest = Currency::FromDouble(ClockMilliseconds() / 100.0);
    } else {
      g.KeepRolling = false;
      std::optional<Currency> answer = AskForSeed(g, upper);
      if (!answer) return;
      g.SeedRequest = *answer;
    }
  }
  if (!WithinLimits(g.SeedRequest, upper)) return;
  const int32_t seed = SeedFromRequest(g.SeedRequest);
  g.ModSeed = seed;
  g.LastSeed = seed;
  SeedSelected(g, seed);
}

void SeedAtStartUp(Game& g) {
  for (int choice = 4; choice >= 0; --choice) {
    g.RngChoice = choice;
    SeedRNG(g, false);
  }
}

void DrawDice(Game& g) { DrawDice(g, g.RollCounts[0], g.ErrorText); }

int32_t DrawPercentageX(Game& g) { return DrawPercentageX(g, g.RollCounts[0], g.ErrorText); }
