// The statistics a run counts in bulk (by throw) must come out the same, to
// the cent and the roll, as booking every roll in full as it comes. Two games
// on the same dice and the same player, one of each kind, are compared over a
// million rolls: a busy table whose bets are called ON and OFF, taken down and
// re-placed, payoffs, vig, the bar and Put bets changed now and then, a script
// that reads the roll counters, and percentage dice.

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>

#include "autoplay/bet_handling.h"
#include "autoplay/work_on_come_out.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "engine/table_commands.h"
#include "script/interpreter.h"
#include "script/text_form.h"
#include "sim/assemble_game.h"
#include "stats/roll_counters.h"
#include "testkit/busy_table.h"

namespace {

constexpr int64_t kRolls = 1'000'000;

// The script presses and reads the dice events every roll.
constexpr const char* kScript =
    "While\n"
    "  Next roll is NOT a come-out roll\n"
    "then\n"
    "  Bet $12 on Place 8\n"
    "When\n"
    "  Number 6 ((5-1) has rolled\n"
    "then\n"
    "  Bet $5 on Field\n"
    "When\n"
    "  Place 8 has won 2\n"
    "then\n"
    "  Bet $24 on Place 8\n";

// A player who keeps the table busy and now and then changes what the
// phantom units depend on; both games get the same moves from the same seed.
class RestlessPlayer : public SilentFrontEnd {
 public:
  RestlessPlayer(Game& g, uint64_t& digest) : g_(g), digest_(digest) {}

  bool LetInputRun() override {
    KeepBusyTable(g_);
    Note();
    if (Chance(40)) CallBet(g_, AnyBet(), Chance(2) ? kToolCallOn : kToolCallOff);
    if (Chance(150)) RemoveBet(g_, AnyBet());
    if (Chance(400)) SetWorkOnComeOut(g_, {AnyBet()}, Chance(2));
    if (Chance(900)) g_.Payoff.Set(AnyBet(), {Currency(Pick(1, 12)), -1, Currency(Pick(1, 6))});
    if (Chance(1500)) g_.FieldPayoff.Set(Pick(1, 21), {Currency(Pick(0, 3)), -1, Currency(Pick(1, 2))});
    if (Chance(2000)) g_.AllowPutBets = !g_.AllowPutBets;
    if (Chance(2500)) g_.BarNumber = g_.BarNumber == 12 ? 2 : 12;
    if (Chance(3000)) g_.LayVigRate = Currency::FromRaw(Pick(0, 1000));
    if (Chance(3500)) g_.ChargeAllBuy = !g_.ChargeAllBuy;
    return true;
  }

 private:
  bool Chance(int oneIn) { return std::uniform_int_distribution<int>(1, oneIn)(moves_) == 1; }
  int Pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(moves_); }
  int AnyBet() { return Pick(bet::kFirstTableBet, bet::kLastTableBet); }

  // What the script would read now, folded into a digest every so often.
  void Note() {
    if (++rolls_ % 37 != 0) return;
    for (int i = 1; i < event::kCount; ++i) {
      const EventFigures f = FiguresOf(g_, i);
      for (int32_t v : {f.count, f.countBefore, f.since, f.sinceBefore})
        digest_ = digest_ * 1099511628211ull ^ static_cast<uint32_t>(v);
    }
  }

  Game& g_;
  uint64_t& digest_;
  std::mt19937 moves_{20261124};
  int64_t rolls_ = 0;
};

// A won bet's handling that also calls the Field ON or OFF now and then:
// the Field is settled later in the same throw, so its phantom unit must
// follow the call made in the middle of the throw.
void WonAndCallTheField(Game& g, int betId, const SettleNotice* notice) {
  WonBetHandling(g, betId, notice);
  if (g.RollCounts[event::kAllRolls] % 5 == 0 && betId != bet::kField)
    CallBet(g, bet::kField, g.BetStatus[bet::kField] == status::kCalledOff ? kToolCallOn : kToolCallOff);
}

struct Side {
  Game g;
  uint64_t digest = 14695981039346656037ull;
  RestlessPlayer player{g, digest};

  explicit Side(bool inFull) {
    AssembleGame(g);
    g.Hooks.WonBet = WonAndCallTheField;
    g.StatisticsInFull = inFull;
    g.Ui = &player;
    g.ReSeedNewGames = false;
    FillDefaults(g);
    g.BankrollInitAmount = 5'000'000;
    std::string error;
    EXPECT_TRUE(ReadScriptText(kScript, g.AutoBet, error)) << error;
    g.AutoBetActivated = true;
    g.UseSkewedProbability = true;
    for (int a = 1; a <= 6; ++a)
      for (int b = 1; b <= 6; ++b) {
        const ProbPosition cell = OutcomeCell(a, b);
        g.Prob.at(cell.row, cell.column).value = 2000 + 250 * ((a * 7 + b * 3) % 9);
      }
    NewGame(g, false);
    g.SeedRequest = 424242;
    SeedRNG(g, true);
  }

  void Run(int rolls) {
    g.RollCountStop = g.RollCountLeft = rolls;
    g.HyperDriveOn = g.KeepRolling = true;
    RollDice(g);
  }
};

void ExpectSameFigures(const Game& inFull, const Game& bulk, int64_t rolls) {
  ASSERT_EQ(inFull.RollCounts, bulk.RollCounts) << "after " << rolls;
  ASSERT_EQ(inFull.RollsSinceLast, bulk.RollsSinceLast) << "after " << rolls;
  ASSERT_EQ(inFull.PreviousRollCounts, bulk.PreviousRollCounts) << "after " << rolls;
  ASSERT_EQ(inFull.PreviousRollsSinceLast, bulk.PreviousRollsSinceLast) << "after " << rolls;
  for (int kind = 0; kind < 2; ++kind)
    for (int id = 0; id < 101; ++id) {
      ASSERT_EQ(inFull.BetWagers[kind][id], bulk.BetWagers[kind][id]) << "wagers " << kind << "/" << id;
      ASSERT_EQ(inFull.BetWins[kind][id], bulk.BetWins[kind][id]) << "wins " << kind << "/" << id;
      ASSERT_EQ(inFull.BetLosses[kind][id], bulk.BetLosses[kind][id]) << "losses " << kind << "/" << id;
    }
  ASSERT_EQ(inFull.BetAmount.All(), bulk.BetAmount.All()) << "after " << rolls;
  ASSERT_EQ(inFull.HandStats, bulk.HandStats) << "after " << rolls;
}

TEST(BulkStatistics, CountedByThrowEqualsBookedInFullOverAMillionRolls) {
  auto inFull = std::make_unique<Side>(true);
  auto bulk = std::make_unique<Side>(false);
  std::mt19937 chunks(7);
  int64_t rolled = 0;
  while (rolled < kRolls) {
    // Runs of every length, down to single rolls, so that figures are read
    // at any point of the counting.
    const int rolls = std::uniform_int_distribution<int>(1, 4)(chunks) == 1
                          ? 1
                          : std::uniform_int_distribution<int>(1, 60'000)(chunks);
    inFull->Run(rolls);
    bulk->Run(rolls);
    rolled += rolls;
    ExpectSameFigures(inFull->g, bulk->g, rolled);
    ASSERT_EQ(inFull->digest, bulk->digest) << "the figures a script reads, after " << rolled;
    if (Abs(bulk->g.Bankroll()) > Currency(BankLimit / 2)) {
      NewGame(inFull->g, false);
      NewGame(bulk->g, false);
    }
  }
}

}  // namespace
