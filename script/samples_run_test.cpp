// Each sample strategy, driven by hand rolls, places the bets its comment
// lines promise, roll by roll. The .bet of a sample must do the same as its
// text.

#include "test_paths.h"
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "engine/roll.h"
#include "engine/table_for_test.h"
#include "script/interpreter.h"
#include "script/script_file.h"

namespace {

// Slot and amount of every bet (1..83) and Chip-Stack (100..199) that is not zero.
using Bets = std::map<int, Currency>;
using Flags = std::set<std::string>;  // the flags that are True

constexpr int kStack1 = bet::kFirstStack + 1;
constexpr int kPlace5 = bet::Place(5), kPlace6 = bet::Place(6), kPlace8 = bet::Place(8);
constexpr int kCome4 = bet::Come(4), kCome5 = bet::Come(5), kCome6 = bet::Come(6), kCome8 = bet::Come(8);
constexpr int kCome4Odds = bet::ComeOdds(4), kCome5Odds = bet::ComeOdds(5);
constexpr int kCome6Odds = bet::ComeOdds(6), kCome8Odds = bet::ComeOdds(8);
using bet::kCome, bet::kDontPass, bet::kDontPassOdds, bet::kField, bet::kPassLine, bet::kPassOdds;

struct HandRoll {
  int die1, die2;
  Bets bets;       // after the roll and the script's pass
  Flags flags{};
  bool stops = false;     // the script stopped the rolling
  int bankroll = 0;       // checked when not 0
};

struct Sample {
  const char* name;
  Bets initial;  // after the initial cycle
  Flags initialFlags;
  std::vector<HandRoll> rolls;
};

Bets TableBets(const Game& g) {
  Bets bets;
  for (int id = bet::kFirstTableBet; id <= bet::kLastStack; ++id)
    if (g.BetAmount[id] != 0 && (bet::IsTableBet(id) || bet::IsStack(id))) bets[id] = g.BetAmount[id];
  return bets;
}

Flags TrueFlags(const Game& g) {
  Flags flags;
  for (const Flag& f : g.AutoBet.Flags)
    if (f.FlagValue != 0) flags.insert(f.FlagName);
  return flags;
}

// Loads the sample, answers Yes to the initial cycle and throws the rolls.
void RunSample(const Sample& sample, const std::string& extension) {
  const std::string path =
      (std::filesystem::path(DICEMILL_SOURCE_DIR) / "samples" / sample.name).string() + extension;
  SCOPED_TRACE(path);
  TestTable t;
  const FileStatus loaded = LoadScriptFile(path, t.g.AutoBet);
  ASSERT_TRUE(loaded) << loaded.FirstMessage();
  t.g.AutoBetActivated = true;
  t.g.InitPending = true;
  RunAutoBet(t.g);
  TakeScriptSnapshots(t.g);
  t.g.InitPending = false;
  EXPECT_EQ(TableBets(t.g), sample.initial);
  EXPECT_EQ(TrueFlags(t.g), sample.initialFlags);

  for (size_t i = 0; i < sample.rolls.size(); ++i) {
    const HandRoll& roll = sample.rolls[i];
    SCOPED_TRACE("roll " + std::to_string(i + 1) + ": " + std::to_string(roll.die1) + "+" + std::to_string(roll.die2));
    t.g.KeepRolling = true;
    t.Roll(roll.die1, roll.die2);
    EXPECT_EQ(TableBets(t.g), roll.bets);
    EXPECT_EQ(TrueFlags(t.g), roll.flags);
    EXPECT_EQ(!t.g.KeepRolling, roll.stops);
    if (roll.bankroll != 0) {
      EXPECT_EQ(t.g.Bankroll(), Currency(roll.bankroll));
    }
  }
}

void RunBothForms(const Sample& sample) {
  RunSample(sample, ".txt");
  RunSample(sample, ".bet");
}

TEST(Samples, PassLineFullOdds) {
  const Bets line = {{kPassLine, 10}};
  RunBothForms({"pass-line-full-odds", line, {}, {
      {2, 2, {{kPassLine, 10}, {kPassOdds, 20}}},  // point 4: double odds
      {3, 3, {{kPassLine, 10}, {kPassOdds, 20}}},
      {1, 3, line},                                // point made: the odds come down
      {5, 2, line},                                // a natural
      {4, 1, {{kPassLine, 10}, {kPassOdds, 20}}},  // point 5
      {6, 1, line},                                // seven-out, a new line bet
      {3, 3, {{kPassLine, 10}, {kPassOdds, 25}}},  // point 6: 2.5 times
      {4, 2, line},
      {1, 1, line},                                // craps, a new line bet
  }});
}

TEST(Samples, ThreePointMolly) {
  RunBothForms({"three-point-molly", {{kPassLine, 10}}, {}, {
      {2, 2, {{kPassLine, 10}, {kPassOdds, 20}, {kCome, 10}}},
      {3, 3, {{kPassLine, 10}, {kPassOdds, 20}, {kCome6, 10}, {kCome6Odds, 25}, {kCome, 10}}},
      {2, 3, {{kPassLine, 10}, {kPassOdds, 20}, {kCome6, 10}, {kCome6Odds, 25}, {kCome5, 10}, {kCome5Odds, 20}}},
      // Come 6 wins and comes down with its odds: a new Come bet replaces it.
      {4, 2, {{kPassLine, 10}, {kPassOdds, 20}, {kCome5, 10}, {kCome5Odds, 20}, {kCome, 10}}},
      {4, 4, {{kPassLine, 10}, {kPassOdds, 20}, {kCome5, 10}, {kCome5Odds, 20}, {kCome8, 10}, {kCome8Odds, 25}}},
      // Point made: the Come bets stay on their numbers through the come-out.
      {3, 1, {{kPassLine, 10}, {kCome5, 10}, {kCome5Odds, 20}, {kCome8, 10}, {kCome8Odds, 25}}},
      // Come-out 5: Come 5 wins, the Pass Line takes the point and one Come bet is added.
      {4, 1, {{kPassLine, 10}, {kPassOdds, 20}, {kCome8, 10}, {kCome8Odds, 25}, {kCome, 10}}},
      {6, 1, {{kPassLine, 10}}},  // seven-out
      {2, 2, {{kPassLine, 10}, {kPassOdds, 20}, {kCome, 10}}},
      {4, 4, {{kPassLine, 10}, {kPassOdds, 20}, {kCome8, 10}, {kCome8Odds, 25}, {kCome, 10}}},
      // Point made: the Come bet goes to the 4 as well.
      {1, 3, {{kPassLine, 10}, {kCome4, 10}, {kCome4Odds, 20}, {kCome8, 10}, {kCome8Odds, 25}}},
      {5, 2, {{kPassLine, 10}}},  // come-out 7: both Come bets lose, their odds come back
  }});
}

TEST(Samples, IronCross) {
  const Bets cross = {{kPassLine, 10}, {kField, 10}, {kPlace5, 10}, {kPlace6, 12}, {kPlace8, 12}};
  const Bets placesOff = {{kPassLine, 10}, {kPlace5, 10}, {kPlace6, 12}, {kPlace8, 12}};
  RunBothForms({"iron-cross", {{kPassLine, 10}}, {}, {
      {2, 2, cross},                       // point 4
      {3, 2, cross, {}, false, 504},       // Place 5 wins 14, the lost Field is bet again
      {6, 3, cross, {}, false, 514},       // the Field wins
      {4, 4, cross, {}, false, 518},
      {1, 3, placesOff, {}, false, 538},   // point made: the Field comes down, the Place bets stay
      {6, 5, placesOff, {}, false, 548},   // a natural
      {3, 3, cross, {}, false, 548},       // point 6: Place 6 was off on the come-out
      {5, 2, {{kPassLine, 10}}, {}, false, 494},  // seven-out
  }});
}

TEST(Samples, Place6And8Press) {
  const Flags six = {"pressed 6"}, both = {"pressed 6", "pressed 8"};
  RunBothForms({"place-6-8-press", {{kPassLine, 10}}, {}, {
      {4, 1, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},  // point 5
      {3, 3, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},  // Place 6 wins once
      {4, 2, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 12}}, six},  // twice: pressed
      {5, 1, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 12}}, six},  // a third win: no second press
      {4, 4, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 12}}, six},
      {2, 6, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 24}}, both},
      {3, 2, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 24}}, both},  // point made: same shooter
      {5, 5, {{kPassLine, 10}, {kPlace6, 24}, {kPlace8, 24}}, both},  // point 10
      {6, 1, {{kPassLine, 10}}},                                      // seven-out clears the flags
      {2, 2, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},        // point 4
      {3, 3, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},        // one win
      {6, 1, {{kPassLine, 10}}},
      {2, 2, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},
      {3, 3, {{kPassLine, 10}, {kPlace6, 12}, {kPlace8, 12}}},  // a win, a loss, a win: not in a row
  }});
}

TEST(Samples, DontPassStopLoss) {
  const Flags recorded = {"recorded"};
  const Bets dontPass = {{kDontPass, 10}, {kStack1, 300}};
  // The bankroll counts the bets on the table: only what is lost lowers it.
  RunBothForms({"dont-pass-stop-loss", dontPass, recorded, {
      {2, 2, {{kDontPass, 10}, {kDontPassOdds, 40}, {kStack1, 300}}, recorded, false, 500},  // lay 40 to win 20
      {1, 3, dontPass, recorded, false, 450},  // point made: both lost, a new bet
      {6, 1, dontPass, recorded, false, 440},  // come-out 7 loses
      {2, 1, dontPass, recorded, false, 450},  // come-out 3 wins, the bet stays
      {6, 6, dontPass, recorded, false, 450},  // 12 is barred: a push
      {3, 3, {{kDontPass, 10}, {kDontPassOdds, 30}, {kStack1, 300}}, recorded, false, 450},
      {5, 2, dontPass, recorded, false, 485},  // seven-out: 10 and 25 won, the lay comes down
      {2, 2, {{kDontPass, 10}, {kDontPassOdds, 40}, {kStack1, 300}}, recorded, false, 485},
      {2, 2, dontPass, recorded, false, 435},
      {5, 5, {{kDontPass, 10}, {kDontPassOdds, 40}, {kStack1, 300}}, recorded, false, 435},
      {4, 6, dontPass, recorded, false, 385},
      {2, 2, {{kDontPass, 10}, {kDontPassOdds, 40}, {kStack1, 300}}, recorded, false, 385},
      {3, 1, dontPass, recorded, false, 335},
      {4, 6, {{kDontPass, 10}, {kDontPassOdds, 40}, {kStack1, 300}}, recorded, false, 335},
      {6, 4, dontPass, recorded, true, 285},  // below $300: stop
  }});
}

TEST(Samples, FieldMartingale) {
  auto field = [](int amount) { return Bets{{kField, amount}, {kStack1, amount}}; };
  RunBothForms({"field-martingale", field(5), {}, {
      {1, 1, field(5)},    // a win stays at $5
      {3, 2, field(10)},   // losses double the bet
      {4, 3, field(20)},
      {6, 2, field(40)},
      {3, 3, field(80)},
      {5, 3, field(160)},
      {4, 1, field(5)},    // the next bet would be $320: back to $5
      {2, 2, field(5)},
      {1, 4, field(10)},
      {6, 6, field(5)},    // a win after a loss: back to $5
      {6, 5, field(5)},
  }});
}

}  // namespace
