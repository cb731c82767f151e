#include "engine/roll.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "dice/rng.h"
#include "engine/bet_status.h"
#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/payoffs.h"
#include "engine/place_bet.h"
#include "engine/settle_order.h"
#include "engine/throw_plan.h"

namespace {

// Sound slots of the roll.
constexpr int kSoundDouble = 16;
constexpr int kSoundComeOut = 17;
constexpr int kSoundNewShooter = 18;

// StopOnRoll indexes.
constexpr int kStopOnWin = 0;
constexpr int kStopOnLoss = 1;

void Stop(Game& g) { g.KeepRolling = false; }

void Sound(Game& g, int slot) {
  if (!g.HyperDriveOn && !g.DisableAllSound) g.Ui->PlaySound(slot);
}

bool Doubles(const Game& g) { return g.Die1 == g.Die2; }

// The StopOnRoll index of a total (2..12), and of a hard way (4, 6, 8, 10).
int TotalStopIndex(int total) {
  static constexpr std::array<int, 13> kIndex = {0, 0, 2, 3, 4, 6, 7, 9, 10, 12, 13, 15, 16};
  return kIndex[total];
}
int HardStopIndex(int total) { return total == 4 ? 5 : total == 6 ? 8 : total == 8 ? 11 : 14; }

// After the total, an Auto-Roll stops on the rolls the player marked.
void TestStopOnRoll(Game& g, const ThrowDecisions& decided) {
  if (g.HyperDriveOn || !g.AutoRollOn) return;
  const int total = g.DiceTotal;
  bool stop = g.StopOnRoll[TotalStopIndex(total)];
  if (Doubles(g) && total != 2 && total != 12) stop = stop || g.StopOnRoll[HardStopIndex(total)];
  if (decided.anyWon && g.StopOnRoll[kStopOnWin]) stop = true;
  if (decided.anyLost && g.StopOnRoll[kStopOnLoss]) stop = true;
  if (stop) Stop(g);
}

// A new point or a new come-out.
void AfterPointMoved(Game& g) {
  g.Ui->RefreshTable();  // the puck moves
  UpdateBetStatusForPoint(g);
  if (g.Point == 0) return;
  SyncOddsPayoffs(g);
  const bool passLine = g.BetAmount[bet::kPassLine] > 0;
  if (passLine && g.AutoTakeFullOdds) SetBetToMaximum(g, bet::kPassOdds);
  if (g.BetAmount[bet::kDontPass] > 0 && g.AutoLayFullOdds) {
    g.Ui->RedrawBet(bet::kDontPass);
    SetBetToMaximum(g, bet::kDontPassOdds);
  }
  // The line bet takes only the Place bet down; a Buy on the point stays.
  if (passLine && g.AutoRemovePlaceBets) TakeDownBet(g, bet::Place(g.Point));
}

// Hyper-Drive paces itself by burning a counted loop.
void BurnPaceLoop(const Game& g) {
  const int64_t passes = int64_t{g.ThrottleValue} * g.ThrottleValue * g.SpeedUnit;
  [[maybe_unused]] volatile int64_t sink = 0;
  for (int64_t i = 0; i < passes; ++i) sink = i;
}

void LeaveHyperDrive(Game& g) {
  g.HyperDriveOn = false;
  if (g.StopReason != StopReason::None) ShowMessage(g, "Hyper-Drive Stopped", StopReasonText(g.StopReason));
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) g.Ui->RedrawBet(id);
  for (int id = bet::kFirstStack; id <= bet::kLastStack; ++id) g.Ui->RedrawBet(id);
  g.TableDirty = true;
  g.Ui->RefreshTable();
}

void AutoRollWait(Game& g) {
  using Clock = std::chrono::steady_clock;
  const auto until = Clock::now() + std::chrono::seconds(g.AutoRollDelay);
  g.BetsMovedSincePass = true;
  do {
    g.Ui->LetInputRun();
  } while (g.KeepRolling && Clock::now() < until);
}

void Finish(Game& g) {
  if (g.Hooks.RollsFinished) g.Hooks.RollsFinished(g);
  if (g.StopReason == StopReason::EndOfRollFile && !g.Ui->IsMinimised()) OfferRewind(g);
  g.Ui->RollFinished(g.StopReason);
  if (!g.Ui->IsMinimised()) g.StopReason = StopReason::None;
  if (g.Point == 0) PlayComeOutSound(g);
  g.RollInProgress = false;
}

// The streaks at the top of the roll: only the bets decided since the last
// top can differ.
void CatchUpStreaks(Game& g) {
  g.StreaksMoved.ForEach([&g](int id) {
    if (id < static_cast<int>(g.BetStreak[0].size())) g.BetStreak[0][id] = g.BetStreak[1][id];
  });
  g.StreaksMoved = {};
}

void TakeSnapshots(Game& g) {
  g.Settlements.Clear();
  // The last pass's snapshot is the layout now unless input ran since.
  if (g.BetsMovedSincePass) {
    g.AtRollStartIndex = static_cast<uint8_t>(g.AfterRollIndex ^ 1);
    g.BetAmount.Sync(g.AtRollStartIndex, g.BetSnapshots[g.AtRollStartIndex]);
  } else {
    g.AtRollStartIndex = g.AfterRollIndex;
  }
  CatchUpStreaks(g);
  // Reads the last roll's DiceTotal and PointBeforeRoll.
  if (g.Hooks.RollStarting) g.Hooks.RollStarting(g);
  g.CommitLayout();
  g.PointTwoRollsAgo = g.PointBeforeRoll;
  g.PointBeforeRoll = g.Point;
}

// False when a Dice Roll File being played gives no roll: the run stops
// with its reason and this throw settles nothing.
bool GetDice(Game& g) {
  if (g.DiceAlreadySet) {
    g.DiceAlreadySet = false;
    return true;
  }
  if (g.DiceFileMode == kRecorderPlayback) {
    const FileRoll got = NextRollFromFile(g);
    if (got == FileRoll::Rolled) return true;
    Stop(g);
    g.StopReason = got == FileRoll::EndOfFile ? StopReason::EndOfRollFile : StopReason::RollFileOutOfLimits;
    return false;
  }
  DrawDice(g, g.RollCounts[0], g.ErrorText);
  if (!g.ErrorText.empty()) {
    ShowMessage(g, "Dicemill", g.ErrorText);
    g.ErrorText.clear();
  }
  return true;
}

void MovePoint(Game& g) {
  const int next = NextPoint(g.Point, g.DiceTotal);
  if (g.Point == 0 && next != 0) ++g.HandStats[hand::kPointsEstablished];
  g.Point = next;
}

// One throw: snapshots, dice, point, settling and the end-of-roll books.
void Throw(Game& g) {
  TakeSnapshots(g);
  if (!GetDice(g)) return;
  // The settling reads the throw's plan after the statistics have counted
  // the dice: its first lines can be on their way meanwhile.
  PrefetchPlan(g.Die1, g.Die2, g.PointBeforeRoll, g.BarNumber);
  if (!g.HyperDriveOn) g.Ui->ShowThrow(g.Die1, g.Die2, NextPoint(g.Point, g.Die1 + g.Die2));
  if (g.DiceFileMode == kRecorderRecord) RecordRoll(g, g.Die1, g.Die2);
  g.DiceTotal = g.Die1 + g.Die2;
  Sound(g, g.DiceTotal);
  if (Doubles(g) && g.DiceTotal != 2 && g.DiceTotal != 12) Sound(g, kSoundDouble);
  MovePoint(g);

  ++g.RollCounts[event::kAllRolls];
  if (g.Hooks.DiceCounted) g.Hooks.DiceCounted(g);
  g.GameChanged = true;
  ++g.HandStats[hand::kRolls];
  if (g.PointBeforeRoll == 0) ++g.HandStats[hand::kComeOutRolls];

  const ThrowDecisions decided = SettleTheThrow(g);
  if (g.Hooks.ThrowSettled) g.Hooks.ThrowSettled(g);
  TestStopOnRoll(g, decided);

  if (g.Point != g.PointBeforeRoll) AfterPointMoved(g);
  if (g.TableDirty && !g.HyperDriveOn) {
    g.Ui->RefreshTable();
    g.TableDirty = false;
  }
  g.BankrollSum += g.Bankroll();
  if (Abs(g.Bankroll()) > Currency(BankLimit)) CheckBankLimit(g);
  g.HighBankroll = Max(g.HighBankroll, g.Bankroll());
  g.LowBankroll = Min(g.LowBankroll, g.Bankroll());
  if (g.Hooks.BankrollBooked) g.Hooks.BankrollBooked(g);
  if (g.AutoBetActivated && g.AutoBet.NumLines() > 0 && g.Hooks.ScriptPass) g.Hooks.ScriptPass(g);
  TakeScriptSnapshots(g);

  if (g.RollCountLeft > 0 && --g.RollCountLeft == 0) {
    Stop(g);
    if (g.HyperDriveOn && g.StopReason == StopReason::None) g.StopReason = StopReason::RollCount;
    g.RollCountLeft = g.RollCountStop;
  }
}

// No roll is thrown at or beyond the ceiling. False stops the run.
bool BelowMaxRolls(Game& g) {
  if (g.RollCounts[0] < MaxRolls) return true;
  Stop(g);
  if (g.HyperDriveOn)
    g.StopReason = StopReason::MaxRolls;
  else
    ShowMessage(g, "Reached Maximum Roll Limit",
                WithResetTail("Sorry ... you've reached the maximum limit of " + FormatWithCommas(MaxRolls) + " rolls."));
  return false;
}

// The dialog of the bank limit; returns the refusal whose text it shows.
StopReason ShowBankLimit(Game& g) {
  const bool won = g.Bankroll() > 0;
  const StopReason refusal = won ? StopReason::StartRefusedBankLimit : StopReason::StartRefusedMaxLoss;
  g.Ui->PlaySoundFile("Chips.wav");
  ShowMessage(g, won ? "Congratulations!" : "Sorry ... this wasn't your lucky day.", StopReasonText(refusal));
  return refusal;
}

// A start beyond the bank limit is refused alike however it was asked for:
// the dialog says why, and a run reports the same text as its stop reason.
void RefuseStart(Game& g) {
  Stop(g);
  g.HyperDriveOn = false;
  g.Ui->RollFinished(ShowBankLimit(g));
  g.StopReason = StopReason::None;
}

}  // namespace

int NextPoint(int point, int total) {
  if (point == 0) return bet::IsPointNumber(total) ? total : 0;
  return total == point || total == 7 ? 0 : point;
}

void RollDice(Game& g) {
  if (g.RollInProgress) return;  // a second roll never starts inside a run
  // The bet-entry box of a screen is committed by the front end before it
  // asks for a roll.
  if (Abs(g.Bankroll()) > Currency(BankLimit)) {
    RefuseStart(g);
    return;
  }
  g.TableUsed = true;
  g.RollInProgress = true;
  g.BetsMovedSincePass = true;  // anything may have happened since the last roll
  g.StopReason = StopReason::None;

  for (;;) {
    if (BelowMaxRolls(g)) Throw(g);
    if (g.HyperDriveOn) {
      if (g.Ui->LetInputRun()) g.BetsMovedSincePass = true;
      BurnPaceLoop(g);
      if (g.KeepRolling) continue;
      LeaveHyperDrive(g);
    }
    if (g.AutoRollOn && g.KeepRolling) {
      AutoRollWait(g);
      if (g.KeepRolling) {
        if (g.Point == 0) PlayComeOutSound(g);
        continue;
      }
    }
    break;
  }
  Finish(g);
}

void MoveBet(Game& g, int fromBet, int toBet) {
  const Currency amount = g.BetAmount[fromBet];
  if (amount <= 0) return;
  const bool soundWasOff = g.DisableAllSound;
  g.DisableAllSound = true;
  g.BetChange = -amount;
  PlaceBet(g, fromBet);
  g.Ui->RedrawBet(fromBet);
  g.MovingBet = true;
  g.BetChange = amount;
  PlaceBetOnTable(g, toBet);
  g.MovingBet = false;
  g.SetCommitted(toBet, amount);  // at once a contract bet on its number
  if (bet::IsComeNumber(toBet) && g.AutoRemovePlaceBets) {
    TakeDownBet(g, bet::PlaceOfCome(toBet));
    TakeDownBet(g, bet::BuyOfCome(toBet));
  }
  g.DisableAllSound = soundWasOff;
}

void CheckBankLimit(Game& g) {
  // Beyond the limit the run ends in every mode; Hyper-Drive says why when
  // it stops, a visible table says so at once if this roll crossed the line.
  Stop(g);
  if (g.HyperDriveOn) {
    g.StopReason = g.Bankroll() > 0 ? StopReason::BankLimit : StopReason::MaxLoss;
  } else if (g.Bankroll() != g.BetAfterRoll()[bet::kBankroll]) {
    ShowBankLimit(g);
  }
}

void TakeScriptSnapshots(Game& g) {
  g.AfterRollIndex = static_cast<uint8_t>(g.AtRollStartIndex ^ 1);
  g.BetAmount.Sync(g.AfterRollIndex, g.BetSnapshots[g.AfterRollIndex]);
  g.BetsMovedSincePass = false;
  for (Flag& flag : g.AutoBet.Flags) flag.FlagPrevious = flag.FlagValue;
  g.RollCountAfterPass = g.RollCounts[0];
}

void PlayComeOutSound(Game& g) {
  if (g.HandStats[hand::kRolls] == 0) Sound(g, kSoundNewShooter);
  Sound(g, kSoundComeOut);
}
