#include "sim/table_state_json.h"

#include <string>

#include "sim/money_json.h"
#include "engine/game.h"

namespace {

// The non-zero slots lo..hi of a money array, keyed by slot number.
template <typename Array>
Json NonZeroSlots(const Array& amounts, int lo, int hi) {
  Json slots = Json::object();
  for (int id = lo; id <= hi; ++id)
    if (amounts[id] != 0) slots[std::to_string(id)] = MoneyJson(amounts[id]);
  return slots;
}

template <typename Array>
Json MoneyArray(const Array& amounts) {
  Json list = Json::array();
  for (Currency c : amounts) list.push_back(MoneyJson(c));
  return list;
}

}  // namespace

Json TableStateJson(const Game& g) {
  Json status = Json::array();
  for (int id = 0; id <= bet::kLastTableBet; ++id) status.push_back(g.BetStatus[id]);
  Json chips = Json::array();
  for (int id = bet::kFirstChip; id <= bet::kLastChip; ++id) chips.push_back(MoneyJson(g.BetAmount[id]));

  // The fields the protocol promises come first, in its order; extras follow.
  return {
      {"bankroll", MoneyJson(g.Bankroll())},
      {"totalOnTable", MoneyJson(g.TotalOnTable)},
      {"amountInvested", MoneyJson(g.AmountInvested)},
      {"point", g.Point},
      {"pointBeforeRoll", g.PointBeforeRoll},
      {"die1", g.Die1},
      {"die2", g.Die2},
      {"diceTotal", g.DiceTotal},
      {"rollCount", g.RollCounts[0]},
      {"bets", NonZeroSlots(g.BetAmount, bet::kFirstTableBet, bet::kLastTableBet)},
      {"stacks", NonZeroSlots(g.BetAmount, bet::kFirstStack, bet::kLastStack)},
      {"committed", NonZeroSlots(g.CommittedAmounts(), 1, Game::kCommittedSlots - 1)},
      {"status", status},
      {"handStats", g.HandStats},
      {"buyVig", MoneyArray(g.BuyVigOnBet)},
      {"layVig", MoneyArray(g.LayVigOnBet)},
      {"stopReason", StopReasonText(g.StopReason)},
      {"rail", MoneyJson(g.Bankroll() - g.TotalOnTable)},
      {"highBankroll", MoneyJson(g.HighBankroll)},
      {"lowBankroll", MoneyJson(g.LowBankroll)},
      {"rollCountLeft", g.RollCountLeft},
      {"rollCountStop", g.RollCountStop},
      {"chips", chips},
      {"noticeMask", g.NoticeMask},
      {"rngChoice", g.RngChoice},
      {"lastSeed", g.LastSeed},
      {"modSeed", g.ModSeed},
  };
}
