#include "script/actions.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"
#include "script/script_for_test.h"

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

constexpr int kChipStack = 1600;
constexpr int kChipStackRef = 1601;
constexpr int kAllPlace = 1006;
const int kPlace6 = bet::Place(6);
const int kPlace8 = bet::Place(8);

ScriptLine Action(int code, Currency amount = 0, int target = 0, int subject = 0, int subjectNum = 0,
                  const std::string& name = "") {
  ScriptLine l = MakeLine(line_kind::kAction, code, amount, subject, target, name);
  l.SubjectNum = subjectNum;
  return l;
}

bool SameRun(const ScriptLine& a, const ScriptLine& b) {
  return a.Kind == b.Kind && a.Code == b.Code && a.Target == b.Target && a.TargetNum == b.TargetNum;
}

// A table with a script: Run appends lines and carries them out in order,
// zeroing the run where the interpreter would.
struct ScriptTable : TestTable {
  PassState pass;

  void Run(const std::vector<ScriptLine>& lines) {
    const int first = g.AutoBet.NumLines() + 1;
    for (const ScriptLine& l : lines) g.AutoBet.Lines.push_back(l);
    for (int n = first; n <= g.AutoBet.NumLines(); ++n) {
      pass.CurrentLine = n;
      if (n == 1 || !SameRun(g.AutoBet.Line(n - 1), g.AutoBet.Line(n))) {
        pass.RunAmount = 0;
        pass.RunCount = 0;
      }
      CarryOutAction(g, pass, g.AutoBet.Line(n));
    }
  }
  void Run(const ScriptLine& line) { Run(std::vector<ScriptLine>{line}); }
  Currency Stack(int n) const { return g.BetAmount[bet::kFirstStack + n]; }
  void SetStack(int n, Currency amount) { g.BetAmount.Set(bet::kFirstStack + n, amount); }
};

TEST(Actions, EachOperatorFormOnAPlaceBet) {
  // The source is Place 8: $30 now, $10 as the roll started.
  struct Case {
    int code;
    Currency amount, before, after;
  };
  const Case cases[] = {
      {10, 25, 12, 25},  {11, 50, 12, 15},  {12, 50, 12, 5},                   // Bet
      {20, 5, 12, 17},   {21, 50, 12, 27},  {22, 50, 12, 17},                  // Add
      {30, 5, 12, 7},    {31, 10, 12, 9},   {32, 50, 12, 7},                   // Subtract
      {40, 2, 12, 24},   {41, 10, 12, 36},  {42, 20, 12, 24},                  // Multiply
      {50, 4, 12, 3},    {51, 10, 12, 4},   {52, 40, 12, 3}, {50, 0, 12, 12},  // Divide; by 0 nothing
      {50, -4, 12, 0},   {51, -10, 12, 12},                                    // a negative % is no divisor
      {13, 0, 12, 30},   {14, 0, 12, 10},   {15, 0, 12, 30}, {18, 0, 12, 10},  // single-line runs
      {23, 0, 12, 42},   {36, 0, 12, 2},    {47, 0, 12, 360}, {58, 0, 12, 1},
      {10, 0, 12, 0},    {16, 0, 12, 10},
  };
  for (const Case& c : cases) {
    ScriptTable t;
    t.Stand(kPlace8, 10);
    t.g.BetAmount.Set(kPlace8, 30);
    t.Stand(kPlace6, c.before);
    t.Run(Action(c.code, c.amount, kPlace6, kPlace8));
    EXPECT_EQ(t.g.BetAmount[kPlace6], c.after) << "verb " << c.code << " amount " << c.amount.ToDouble();
  }
}

TEST(Actions, RunsOfLikeLinesKeepTheHighestLowestOrAverage) {
  struct Case {
    int code;
    std::vector<int> values;
    Currency before, after;
  };
  const Case cases[] = {
      {13, {20, 50, 30}, 12, 50},  // Bet the highest of
      {15, {20, 50, 30}, 12, 20},  // Bet the lowest of
      {15, {20, 0, 30}, 12, 20},   // zero is never the lowest
      {15, {0}, 12, 12},           // a lowest of 0 does nothing at all
      {17, {20, 50, 30}, 12, 33},  // average, whole dollars
      {17, {20, 0, 40}, 12, 30},   // only values above 0 are averaged
      {23, {20, 50, 30}, 12, 62},  // Add the highest: each line starts from the run's base
      {35, {20, 5, 30}, 12, 7},    // Subtract the lowest
      {43, {2, 3, 1}, 12, 36},     // Multiply by the highest
  };
  for (const Case& c : cases) {
    ScriptTable t;
    t.Stand(kPlace6, c.before);
    std::vector<ScriptLine> lines;
    for (size_t i = 0; i < c.values.size(); ++i) {
      t.SetStack(static_cast<int>(i) + 1, c.values[i]);
      lines.push_back(Action(c.code, 0, kPlace6, kChipStack, static_cast<int>(i) + 1));
    }
    t.Run(lines);
    EXPECT_EQ(t.g.BetAmount[kPlace6], c.after) << "verb " << c.code << " over " << c.values.size() << " lines";
  }

  // A run over a range remembers each slot's base; another line ends the run.
  ScriptTable t;
  t.Stand(bet::Place(4), 10);
  t.Stand(kPlace6, 12);
  t.SetStack(1, 20);
  t.SetStack(2, 50);
  t.Run({Action(23, 0, kAllPlace, kChipStack, 1), Action(23, 0, kAllPlace, kChipStack, 2),
         Action(20, 1, kPlace8), Action(23, 0, kAllPlace, kChipStack, 1)});
  EXPECT_EQ(t.g.BetAmount[bet::Place(4)], 80);
  EXPECT_EQ(t.g.BetAmount[kPlace6], 82);
  EXPECT_EQ(t.g.BetAmount[kPlace8], 71);
}

TEST(Actions, BetGoesThroughPlacement) {
  ScriptTable t;
  // Bet $0 removes the bet: nothing is placed and the spot takes its default status.
  t.Stand(kPlace6, 12);
  t.g.BetStatus.Set(kPlace6, 2);
  t.Run(Action(10, 0, kPlace6));
  EXPECT_EQ(t.g.BetAmount[kPlace6], 0);
  EXPECT_EQ(t.g.BetStatus[kPlace6], 0);
  EXPECT_EQ(t.g.TotalOnTable, 0);

  // A contract bet stays: a Pass Line bet on a point can't be emptied or changed.
  t.SetPoint(6);
  t.Stand(bet::kPassLine, 10);
  t.Run(Action(10, 25, bet::kPassLine));
  EXPECT_EQ(t.g.BetAmount[bet::kPassLine], 10);

  // A refused slot doesn't stop the range: only the Come bet on 6 may take odds.
  t.Stand(bet::Come(6), 10);
  t.ui.messages.clear();
  t.Run(Action(10, 10, 1005));
  for (int n : bet::kNumbers) EXPECT_EQ(t.g.BetAmount[bet::ComeOdds(n)], n == 6 ? 10 : 0) << n;
  EXPECT_EQ(t.ui.messages.size(), 5u);

  // Place bets kept off the point skip the point and the numbers with a Come bet.
  t.g.AutoRemovePlaceBets = true;
  t.Run(Action(10, 5, kAllPlace));
  for (int n : bet::kNumbers) EXPECT_EQ(t.g.BetAmount[bet::Place(n)], n == 6 ? 0 : 5) << n;
  t.g.AutoRemovePlaceBets = false;
  t.Run(Action(20, 1, 1008));  // outside Place bets: 4, 5, 9, 10
  for (int n : bet::kNumbers) EXPECT_EQ(t.g.BetAmount[bet::Place(n)], n == 6 ? 0 : n == 8 ? 5 : 6) << n;
}

TEST(Actions, RoundAndChipStackTargets) {
  struct Case {
    int direction;
    Currency before, unit, after;
  };
  const Case cases[] = {
      {1100, 13, 5, 15}, {1102, 13, 5, 10}, {1101, 13, 5, 15}, {1101, 12, 5, 10},
      {1101, Money(12.5), 5, 15},  // halfway goes up
      {1100, 15, 5, 15},           // already whole
      {1102, Money(7.3), Money(0.25), Money(7.25)},
  };
  for (const Case& c : cases) {
    ScriptTable t;
    t.SetStack(3, c.before);
    ScriptLine round = Action(109, c.unit, kChipStack, c.direction);
    round.TargetNum = 3;
    t.Run(round);
    EXPECT_EQ(t.Stack(3), c.after) << c.direction << " " << c.before.ToDouble();
  }

  ScriptTable t;
  t.SetStack(1, 150);  // a reference out of 0..99 reads nothing and acts on nothing
  ScriptLine viaRef = Action(10, 5, kChipStackRef);
  viaRef.TargetNum = 1;
  t.Run(viaRef);
  for (int n = 0; n < 100; ++n) EXPECT_EQ(t.Stack(n), n == 1 ? 150 : 0) << n;
  t.SetStack(1, Money(7.9));  // the whole value points
  t.Run(viaRef);
  EXPECT_EQ(t.Stack(7), 5);
  ScriptLine all = Action(20, 2, 1602);  // "all Chip-Stacks" reaches slot 200 too
  t.Run(all);
  EXPECT_EQ(t.g.BetAmount[200], 2);
  EXPECT_EQ(t.g.BetAmount[bet::kLastTableBet], 0);
}

TEST(Actions, TableVerbsAndResets) {
  ScriptTable t;
  t.Stand(kPlace6, 12);
  t.Run(Action(71, 0, kPlace6));
  EXPECT_EQ(t.g.BetStatus[kPlace6], -1);
  t.Run(Action(70, 0, kPlace6));
  EXPECT_EQ(t.g.BetAmount[kPlace6], 0);
  EXPECT_EQ(t.g.BetAmount[bet::Buy(6)], 12);

  t.g.BetStreak[0][kPlace8] = 2;
  t.g.BetStreak[1][kPlace8] = -3;
  t.Run(Action(73, 0, kPlace8));
  EXPECT_EQ(t.g.BetStreak[0][kPlace8], 0);
  EXPECT_EQ(t.g.BetStreak[1][kPlace8], 0);

  auto fill = [&] {
    for (auto* table : {&t.g.RollCounts, &t.g.RollsSinceLast, &t.g.PreviousRollCounts, &t.g.PreviousRollsSinceLast})
      table->fill(4);
  };
  fill();
  t.Run(Action(74, 0, 2006));
  EXPECT_EQ(t.g.RollCounts[6] + t.g.RollsSinceLast[6] + t.g.PreviousRollCounts[6] + t.g.PreviousRollsSinceLast[6], 0);
  EXPECT_EQ(t.g.RollCounts[7], 4);
  ScriptLine allNumbers = Action(74, 0, 2017);
  allNumbers.Text = "Reset rolls all the numbers";
  t.Run(allNumbers);
  EXPECT_EQ(t.g.RollCounts[0], 4);  // the game's roll count is not an event
  EXPECT_EQ(t.g.RollCounts[1], 4);
  EXPECT_EQ(t.g.RollCounts[89], 0);

  t.g.AutoRollOn = t.g.KeepRolling = t.g.HyperDriveOn = true;
  t.Run(Action(75));
  EXPECT_FALSE(t.g.AutoRollOn || t.g.KeepRolling);
  EXPECT_EQ(t.g.StopReason, StopReason::ScriptCommand);
}

TEST(Actions, MessagesAndQuestions) {
  ScriptTable t;
  t.Run({Action(79, 0, 0, 0, 0, "Hello"), Action(79, 0, 0, 0, 0, "World")});
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last(), (RecordedMessage{"Auto-Bet", "Hello\rWorld"}));

  // A ";" runs on; a value is followed by " ;"; a question stores its answer.
  t.Run({Action(79, 0, 0, 0, 0, "Bankroll: ;"), Action(85, 0, 0, 1400)});
  EXPECT_EQ(t.Last(), (RecordedMessage{"Auto-Bet", "Bankroll: 500 "}));
  EXPECT_EQ(t.g.LastAnswer, Answer::No);

  // Show message obeys its notice bit; under Hyper-Drive a shown one stops auto-roll.
  t.g.NoticeMask = kNoticeDefault & ~kNoticeScript;
  t.Run(Action(79, 0, 0, 0, 0, "quiet"));
  EXPECT_EQ(t.ui.messages.size(), 2u);
  t.g.HyperDriveOn = t.g.AutoRollOn = true;
  t.g.NoticeMask = kNoticeScriptHyper;
  t.Run(Action(79, 0, 0, 0, 0, "loud"));
  EXPECT_EQ(t.Last().text, "loud");
  EXPECT_FALSE(t.g.AutoRollOn);
}

TEST(Actions, InputFlagsNamesAndSettings) {
  ScriptTable t;
  t.ui.numberReplies = {std::nullopt, Currency(6)};
  t.Run(Action(83, 0, kAllPlace));  // nothing entered: bets alone
  t.Run(Action(83, 0, kAllPlace));
  ASSERT_EQ(t.ui.asked.size(), 2u);  // asked once per line, not per slot
  EXPECT_EQ(t.ui.asked[0], (RecordedMessage{"Auto-Bet", "Please enter a value to bet on:  "}));
  for (int n : bet::kNumbers) EXPECT_EQ(t.g.BetAmount[bet::Place(n)], 6) << n;

  t.g.AutoBet.Flags = {{"up", 0, 0}, {"down", -1, 0}};
  t.Run(Action(77, -1, 0, 0, 0, " nowhere "));
  EXPECT_EQ(t.g.AutoBet.Flags[0].FlagValue, 0);
  t.Run(Action(77, -1, 0, 0, 0, " up "));
  EXPECT_EQ(t.g.AutoBet.Flags[0].FlagValue, -1);
  t.Run(Action(78, 0));
  EXPECT_EQ(t.g.AutoBet.Flags[0].FlagValue + t.g.AutoBet.Flags[1].FlagValue, 0);

  ScriptLine name = Action(87, 0, 0, 0, 0, "Martingale");
  name.TargetNum = 4;
  t.SetStack(1, 100);
  ScriptLine nameRef = Action(89, 0, 0, 0, 0, "lost");
  nameRef.TargetNum = 1;
  t.Run({name, nameRef});
  EXPECT_EQ(t.g.AutoBet.ChipStackNames[4], "Martingale");
  for (int n = 0; n < kChipStackNames; ++n) EXPECT_NE(t.g.AutoBet.ChipStackNames[n], "lost");
  t.Run(Action(88));
  EXPECT_EQ(t.g.AutoBet.ChipStackNames[4], "");

  t.Run({Action(90, 0, 5), Action(110, 0, 3), Action(93, 100), Action(96, 10, 0, 1400)});
  EXPECT_EQ(t.g.WonBetAction, 5);
  EXPECT_EQ(t.g.HandleLosingBets, 3);
  EXPECT_EQ(t.g.Bankroll(), 540);  // +100, then 10% of 600 back

  t.Run({Action(103, 3), Action(103, 6), Action(106, 1234)});
  EXPECT_EQ(t.g.RngChoice, 2);
  EXPECT_EQ(t.g.LastSeed, 1234);

  t.pass.PassStart = 1e9;
  t.Run(Action(80, 0, 0, 0, 0, "chime.wav"));
  EXPECT_LT(t.pass.PassStart, 86400);

  t.Run(Action(998));
  EXPECT_EQ(t.Stack(1), 100);
  EXPECT_EQ(t.g.BetAmount[kPlace6], 0);
  t.Run(Action(999));
  EXPECT_EQ(t.Stack(1), 0);
}

TEST(Actions, OutputFileAndErrors) {
  TempFolder folder;
  const std::filesystem::path& dir = folder.path();
  const std::string path = (dir / "out.txt").string();
  ScriptTable t;
  t.Run({Action(113, 0, 0, 0, 0, path), Action(100, 0, 0, 0, 0, "Bankroll"), Action(101, 0, 0, 1400),
         Action(102), Action(100, 0, 0, 0, 0, "run on;"), Action(114)});
  t.SetStack(2, Money(-2.5));
  t.Run({Action(99, 0, 0, 0, 0, path), Action(108, 0, 0, kChipStack, 2), Action(114)});
  EXPECT_EQ(ReadBytes(path), "Bankroll\t\t500\nrun on\t-2.5");

  auto throwsNumber = [&](const ScriptLine& l) {
    try {
      t.Run(l);
    } catch (const ScriptError& e) {
      return e.Number;
    }
    return 0;
  };
  EXPECT_EQ(throwsNumber(Action(102)), 52);  // no open file
  EXPECT_EQ(throwsNumber(Action(113, 0, 0, 0, 0, " ")), 52);
  EXPECT_EQ(throwsNumber(Action(113, 0, 0, 0, 0, (dir / "no" / "such.txt").string())), 75);
  EXPECT_EQ(throwsNumber(Action(97, 0, 0, 0, 0, (dir / "missing.prb").string())), 53);
  EXPECT_EQ(throwsNumber(Action(109, 0, kPlace6, 1100)), 11);  // Round by 0, even on an empty spot
  t.Stand(kPlace6, 10);
  t.SetStack(1, Currency::FromRaw(900'000'000'000'000'000));
  ScriptLine multiply = Action(40, 1000, kChipStack);
  multiply.TargetNum = 1;
  EXPECT_EQ(throwsNumber(multiply), 6);
  EXPECT_EQ(throwsNumber(Action(11, Currency::FromRaw(INT64_MAX), kPlace6, kChipStack, 1)), 6);
}

}  // namespace
