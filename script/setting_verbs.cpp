// The verbs that act on the script's own state and on the game's settings:
// Flags, Chip-Stack names, Auto-Play options, the ATM, the generators, sound,
// the steps viewer and a new game.

#include <cmath>

#include "autoplay/atm.h"
#include "autoplay/auto_odds.h"
#include "dice/rng.h"
#include "engine/new_game.h"
#include "engine/seed.h"
#include "script/clock.h"
#include "script/values.h"
#include "script/verb_families.h"
#include "script/verb_math.h"
#include "engine/verb_codes.h"

namespace {

using namespace verb;

constexpr int kHandlingOptions = 8;  // option indexes 0..7 of either side
constexpr int kScriptRngs = 5;       // a script selects #1 to #5
constexpr double kSoundPause = 0.6;  // a sound stands in for the pause after a pass

int16_t FlagValueOf(Currency amount) { return amount != 0 ? -1 : 0; }

void SetFlags(Game& g, const ScriptLine& line, bool all) {
  const std::string name = Trimmed(line.Name);
  for (Flag& f : g.AutoBet.Flags)
    if (all || f.FlagName == name) f.FlagValue = FlagValueOf(line.LineAmount);
}

void NameChipStack(Game& g, int number, const std::string& name) {
  if (number >= 0 && number < kChipStackNames) g.AutoBet.ChipStackNames[number] = name;
}

void SetHandling(int32_t& option, int target) {
  if (target >= 0 && target < kHandlingOptions) option = target;
}

void SetFullOdds(Game& g, bool take, Currency amount) {
  const bool on = Floor(amount) != 0;
  if (take) {
    g.AutoTakeFullOdds = on;
    if (on) TakeFullOddsOnAll(g);
  } else {
    g.AutoLayFullOdds = on;
    if (on) LayFullOddsOnAll(g);
  }
}

Currency ValueOfLine(const Game& g, const ScriptLine& line, bool last) {
  return last ? GetLastValue(g, line.Subject, line.SubjectNum) : GetValue(g, line.Subject, line.SubjectNum);
}

void SelectRng(Game& g, Currency amount) {
  const int64_t n = Floor(amount);
  if (n > 0 && n <= kScriptRngs) g.RngChoice = static_cast<int32_t>(n - 1);
}

void SeedWith(Game& g, Currency request) {
  g.SeedRequest = request;
  SeedRNG(g, true);
}

// #3 takes the clock divided by 100 elsewhere; here the stored seed is
// divided instead and the whole clock is offered, which #3's limit refuses.
// Scripts that use #3 with this verb depend on that.
void SeedFromClock(Game& g) {
  if (g.RngChoice == 2) g.ModSeed = static_cast<int32_t>(std::nearbyint(g.ModSeed / 100.0));
  SeedWith(g, Currency(MillisecondClock()));
}

void PlaySound(Game& g, PassState& pass, const ScriptLine& line) {
  if (!g.DisableAllSound && !g.HyperDriveOn) g.Ui->PlaySoundFile(Trimmed(line.Name));
  pass.PassStart = SecondsOfDay() - kSoundPause;
}

void ResetTable(Game& g, bool keepChipStacks) {
  // The finished game's entry goes into the games log here, once there is one.
  NewGame(g, keepChipStacks);
}

}  // namespace

bool CarryOutSettingVerb(Game& g, PassState& pass, const ScriptLine& line) {
  switch (line.Code) {
    case kSetFlag: SetFlags(g, line, false); break;
    case kSetAllFlags: SetFlags(g, line, true); break;
    case kNameChipStack: NameChipStack(g, line.TargetNum, line.Name); break;
    case kNameChipStackRef: NameChipStack(g, ChipStackReference(g, line.TargetNum), line.Name); break;
    case kClearChipStackNames: g.AutoBet.ChipStackNames.fill(std::string()); break;
    case kShowSteps: g.ShowingSteps = true; break;
    case kHandleWinning: SetHandling(g.WonBetAction, line.Target); break;
    case kHandleLosing: SetHandling(g.HandleLosingBets, line.Target); break;
    case kTakeFullOdds: SetFullOdds(g, true, line.LineAmount); break;
    case kLayFullOdds: SetFullOdds(g, false, line.LineAmount); break;
    case kWithdraw: Atm(g, kAtmWithdraw, line.LineAmount); break;
    case kDeposit: Atm(g, kAtmDeposit, line.LineAmount); break;
    case kWithdrawPercent: Atm(g, kAtmWithdraw, PercentOf(line.LineAmount, ValueOfLine(g, line, false))); break;
    case kDepositPercent: Atm(g, kAtmDeposit, PercentOf(line.LineAmount, ValueOfLine(g, line, false))); break;
    case kSelectRng: SelectRng(g, line.LineAmount); break;
    case kSelectRngValue: SelectRng(g, ValueOfLine(g, line, false)); break;
    case kSelectRngLast: SelectRng(g, ValueOfLine(g, line, true)); break;
    case kSeedClock: SeedFromClock(g); break;
    case kSeedAmount: SeedWith(g, line.LineAmount); break;
    case kSeedValue: SeedWith(g, ValueOfLine(g, line, false)); break;
    case kSeedLast: SeedWith(g, ValueOfLine(g, line, true)); break;
    case kPlaySound: PlaySound(g, pass, line); break;
    case kResetTable: ResetTable(g, false); break;
    case kResetTableKeepStacks: ResetTable(g, true); break;
    default: return false;
  }
  // What the game file keeps has changed; a new game starts clean.
  const bool changesGame = line.Code != kPlaySound && line.Code != kShowSteps && line.Code != kResetTable &&
                           line.Code != kResetTableKeepStacks;
  if (changesGame) g.GameChanged = true;
  return true;
}
