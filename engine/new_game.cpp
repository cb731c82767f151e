#include "engine/new_game.h"

#include <chrono>
#include <filesystem>

#include "config/payoffs.h"
#include "dice/dice_roll_files.h"
#include "dice/rng.h"
#include "engine/bet_status.h"
#include "engine/game.h"
#include "engine/roll.h"
#include "store/small_files.h"
#include "stats/bet_results.h"
#include "store/game_file.h"
#include "stats/bankroll_graph.h"
#include "stats/games_log.h"

namespace {

// Empty loop passes per millisecond: how Hyper-Drive's throttle is paced.
int32_t MeasureSpeedUnit() {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(100);
  int64_t count = 0;
  while (Clock::now() < end) ++count;
  return static_cast<int32_t>(count / 10);
}

// Bankroll for a new game by BankrollInitType; old is the bankroll before.
Currency BeginningBankroll(Game& g, Currency old) {
  const bool carry = g.BankrollInitType == 2 || g.BankrollInitType == 3;
  // A carried bankroll that is out of bounds is asked for instead.
  const bool ask = g.BankrollInitType == 1 || (carry && (old >= Currency(BankLimit) || old < 0));
  if (ask) {
    std::optional<Currency> answer =
        g.Ui->AskNumber("Set Beginning Bankroll", "Enter your beginning bankroll: ", g.BankrollInitAmount);
    if (answer) g.BankrollInitAmount = *answer;
    g.KeepRolling = false;
    return g.BankrollInitAmount;
  }
  return carry ? old : g.BankrollInitAmount;
}

}  // namespace

void FillDefaults(Game& g) {
  static constexpr int kChips[5] = {1, 5, 25, 100, 500};
  for (int i = 0; i < 5; ++i) g.BetAmount[bet::kFirstChip + i] = kChips[i];
  for (int id = 0; id < bet::kSlots; ++id)
    g.BetName[id] = bet::IsStack(id) && id > bet::kFirstStack ? bet::StackName(id) : std::string(bet::CatalogueName(id));
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    g.WorkOnComeOut[id] = bet::DefaultWorkOnComeOut(id);
  UpdateBetStatusForPoint(g);
  RestoreDefaultPayoffs(g);
}

void StartUp(Game& g, const std::string& folder) {
  g.DataFolder = folder;
  g.SpeedUnit = MeasureSpeedUnit();
  SeedAtStartUp(g);
  FillDefaults(g);
  ListSoundSetsAndHotKeys(g);
  // The default game of the folder sets everything a game file holds; with
  // none there (or one refused) the start is a new game.
  std::error_code ec;
  if (!std::filesystem::is_regular_file(DefaultGamePath(g), ec) || !ShowFileStatus(g, OpenGame(g, DefaultGamePath(g))))
    NewGame(g, false);
  WriteActiveScript(g);
  if (g.Point == 0) PlayComeOutSound(g);
}

void NewGame(Game& g, bool keepChipStacks) {
  // The games log takes its row before the counters are cleared.
  LogFinishedGame(g);
  const Currency savedBankroll = g.Bankroll();
  for (int id = 0; id <= bet::kLastTableBet; ++id)
    g.BetAmount[id] = g.BetAtRollStart[id] = g.BetAfterRoll[id] = 0;
  g.BetCommitted.fill(0);
  g.GameChanged = false;
  for (int id = bet::kFirstStack; id <= bet::kLastStack; ++id) {
    if (keepChipStacks) {
      g.Ui->RedrawBet(id);
      continue;
    }
    g.BetAmount[id] = g.BetAtRollStart[id] = g.BetAfterRoll[id] = 0;
    g.BetName[id] = id > bet::kFirstStack ? bet::StackName(id) : "";
  }
  g.RollCounts.fill(0);
  g.RollsSinceLast.fill(0);
  g.PreviousRollCounts.fill(0);
  g.PreviousRollsSinceLast.fill(0);
  g.RollCountAfterPass = 0;
  g.BetStreak = {};
  g.HandStats.fill(0);
  g.BuyVigOnBet.fill(0);
  g.LayVigOnBet.fill(0);
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) g.BetStatus[id] = g.WorkOnComeOut[id];
  for (Flag& f : g.AutoBet.Flags) f.FlagValue = f.FlagPrevious = 0;
  ClearBetResults(g);
  if (g.ReSeedNewGames) SeedRNG(g, false);

  const Currency bankroll = BeginningBankroll(g, savedBankroll);
  g.BetAmount[bet::kBankroll] = g.BetAtRollStart[bet::kBankroll] = g.BetAfterRoll[bet::kBankroll] = bankroll;
  if (g.BankrollInitType != 3) g.AmountInvested = bankroll;  // type 3 keeps counting from the first start
  if (bankroll < 0) g.AllowNegativeBankroll = true;
  ClearBankrollGraph(g);
  g.HighBankroll = g.LowBankroll = bankroll;
  g.BankrollSum = 0;
  g.RollCountLeft = g.RollCountStop;
  g.StopReason = StopReason::None;
  g.Point = g.PointBeforeRoll = g.PointTwoRollsAgo = 0;
  g.TotalOnTable = 0;
  g.TableUsed = false;
  g.TableCaption = "Dicemill";
  g.GameFileName.clear();
  // A file being played or recorded: rewind it for the new game, or not.
  if (g.DiceFileMode != 0 && g.DiceFile.File.IsOpen()) OfferRewind(g);
  g.Ui->RefreshTable();
}
