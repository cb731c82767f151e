#include "engine/new_game.h"

#include <optional>

#include "engine/bet_status.h"
#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "engine/payoffs.h"
#include "engine/seed.h"

namespace {

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
  for (int i = 0; i < 5; ++i) g.BetAmount.Set(bet::kFirstChip + i, kChips[i]);
  for (int id = 0; id < bet::kSlots; ++id)
    g.BetName[id] = bet::IsStack(id) && id > bet::kFirstStack ? bet::StackName(id) : std::string(bet::CatalogueName(id));
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    g.WorkOnComeOut[id] = bet::DefaultWorkOnComeOut(id);
  UpdateBetStatusForPoint(g);
  RestoreDefaultPayoffs(g);
}

void NewGame(Game& g, bool keepChipStacks) {
  // The games log takes its row before the counters are cleared.
  if (g.Hooks.GameFinished) g.Hooks.GameFinished(g);
  const Currency savedBankroll = g.Bankroll();
  for (int id = 0; id <= bet::kLastTableBet; ++id) {
    g.BetAmount.Set(id, 0);
    g.SetSnapshotSlot(id, 0);
  }
  g.SetAllCommitted({});
  g.GameChanged = false;
  for (int id = bet::kFirstStack; id <= bet::kLastStack; ++id) {
    if (keepChipStacks) {
      g.Ui->RedrawBet(id);
      continue;
    }
    g.BetAmount.Set(id, 0);
    g.SetSnapshotSlot(id, 0);
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
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) g.BetStatus.Set(id, g.WorkOnComeOut[id]);
  for (Flag& f : g.AutoBet.Flags) f.FlagValue = f.FlagPrevious = 0;
  if (g.Hooks.CountersCleared) g.Hooks.CountersCleared(g);
  if (g.ReSeedNewGames) SeedRNG(g, false);

  const Currency bankroll = BeginningBankroll(g, savedBankroll);
  g.BetAmount.Set(bet::kBankroll, bankroll);
  g.SetSnapshotSlot(bet::kBankroll, bankroll);
  if (g.BankrollInitType != 3) g.AmountInvested = bankroll;  // type 3 keeps counting from the first start
  if (bankroll < 0) g.AllowNegativeBankroll = true;
  if (g.Hooks.BankrollSet) g.Hooks.BankrollSet(g);
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
