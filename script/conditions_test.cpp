#include "script/conditions.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/table_for_test.h"
#include "script/script_for_test.h"

namespace {

struct Outcome {
  bool now, just;
  bool operator==(const Outcome&) const = default;
};
void PrintTo(const Outcome& o, std::ostream* os) { *os << "{now " << o.now << ", just " << o.just << "}"; }

ScriptLine Condition(int subject, int code, Currency amount = 0, int target = 0, int targetNum = 0) {
  ScriptLine line = MakeLine(line_kind::kCondition, code, amount, subject, target);
  line.TargetNum = targetNum;
  return line;
}

Outcome Evaluate(Game& g, const ScriptLine& line, int lastStart = line_kind::kWhen) {
  PassState pass;
  pass.LastStart = lastStart;
  EvaluateCondition(g, pass, line);
  return {pass.BlockTrue, pass.LineJustNow};
}

// Bet slots and the Place groups over them.
constexpr int kPlace4 = 31, kPlace5 = 32, kPlace6 = 33, kPlace8 = 34, kPlace9 = 35, kPassLine = 43;
constexpr int kAnyPlace = 1007, kAllPlace = 1107, kTotalPlace = 1207;

constexpr Outcome kTrueNew{true, true}, kTrueOld{true, false}, kFalseNew{false, true}, kFalse{false, false};

// A game some rolls in, with amounts now and as the last pass ended.
struct Scene {
  Game g;
  explicit Scene(int rolls = 5) { g.RollCounts[0] = g.RollCountAfterPass = rolls; }
  void Bet(int slot, Currency now, Currency before) {
    g.BetAmount.Set(slot, now);
    g.EditAfterRoll()[slot] = before;
  }
  void Streak(int slot, int now, int before) {
    g.BetStreak[1][slot] = now;
    g.BetStreak[0][slot] = before;
  }
};

TEST(Conditions, TimingSubjects) {
  struct Case {
    const char* name;
    int rolls, point, before, twoAgo, total;
    int subject, code;
    Outcome want;
  };
  const Case cases[] = {
      {"next come-out, first roll", 0, 0, 0, 0, 7, 1301, 0, kTrueNew},
      {"next come-out, second come-out", 5, 0, 0, 0, 7, 1301, 0, kTrueOld},
      {"next come-out, point made", 5, 0, 6, 0, 6, 1301, 0, kTrueNew},
      {"next not come-out, point set", 5, 6, 0, 0, 6, 1309, 0, kTrueNew},
      {"next not come-out, point stays", 5, 6, 6, 0, 3, 1309, 0, kTrueOld},
      {"last come-out, after a decision", 5, 0, 0, 5, 5, 1302, 0, kTrueNew},
      {"last come-out, no rolls", 0, 0, 0, 0, 7, 1302, 0, kFalse},
      {"last not come-out, newly", 5, 6, 5, 0, 6, 1310, 0, kTrueNew},
      {"point on 5,6,8,9", 5, 6, 0, 0, 6, 1303, 41, kTrueNew},
      {"point on 5,6,8,9, it is 4", 5, 4, 0, 0, 4, 1303, 41, kFalseNew},
      {"point on 'any come-out roll' never holds", 5, 6, 0, 0, 6, 1303, 49, kFalseNew},
      {"point not on 4, it was 4", 5, 0, 4, 0, 7, 1306, 34, kTrueNew},
      {"decided for any", 5, 0, 6, 0, 6, 1304, 31, kTrueNew},
      {"decided for, a seven", 5, 0, 6, 0, 7, 1304, 31, kFalseNew},
      {"decided against any", 5, 0, 6, 0, 7, 1305, 31, kTrueNew},
      {"decided 4 or 10, it was 10", 5, 0, 10, 0, 10, 1322, 46, kTrueNew},
      {"decided 4 or 10, it was 6", 5, 0, 6, 0, 7, 1322, 46, kFalseNew},
  };
  for (const Case& c : cases) {
    Scene s(c.rolls);
    s.g.Point = c.point;
    s.g.PointBeforeRoll = c.before;
    s.g.PointTwoRollsAgo = c.twoAgo;
    s.g.DiceTotal = c.total;
    EXPECT_EQ(Evaluate(s.g, Condition(c.subject, c.code)), c.want) << c.name;
  }

  Scene s;
  s.g.LastAnswer = Answer::Yes;
  EXPECT_EQ(Evaluate(s.g, Condition(1307, 0)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(1308, 0)), kFalseNew);
  EXPECT_EQ(Evaluate(s.g, Condition(9999, 0)), kFalse);
  s.g.InitPending = true;
  EXPECT_EQ(Evaluate(s.g, Condition(9999, 0)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(1300, 0)), kFalse) << "no roll since the last pass";
  s.g.RollCounts[0] = 6;
  EXPECT_EQ(Evaluate(s.g, Condition(1300, 0)), kTrueNew);
}

TEST(Conditions, CountersAreFreshOnlyAsTheyCrossTheLine) {
  // One hand counter set (HandStats[stat] = value) on a table where the last
  // shooter's hand has ended.
  struct Case {
    const char* name;
    int rolls;
    hand::Stat stat;
    int value, shooterRolls, point;
    int subject, code, amount;
    Outcome want;
  };
  const Case cases[] = {
      {"rolls > 10 at 10: fresh but false", 10, hand::kAllWins, 0, 0, 0, 1311, 13, 10, kFalseNew},
      {"rolls > 10 at 11", 11, hand::kAllWins, 0, 0, 0, 1311, 13, 10, kTrueNew},
      {"rolls > 10 at 12", 12, hand::kAllWins, 0, 0, 0, 1311, 13, 10, kTrueOld},
      {"game passes = 2 on the come-out", 5, hand::kAllWins, 2, 0, 0, 1314, 11, 2, kTrueNew},
      {"game passes = 2 with a point up", 5, hand::kAllWins, 2, 0, 6, 1314, 11, 2, kTrueOld},
      {"last shooter rolls > 3, new shooter", 5, hand::kLastHandRolls, 5, 0, 0, 1323, 13, 3, kTrueNew},
      {"last shooter rolls > 3, shooter rolling", 5, hand::kLastHandRolls, 5, 1, 0, 1323, 13, 3, kTrueOld},
  };
  for (const Case& c : cases) {
    Scene s(c.rolls);
    s.g.HandStats[hand::kLastHandLossesInRow] = 1;
    s.g.HandStats[c.stat] = c.value;
    s.g.HandStats[hand::kRolls] = c.shooterRolls;
    s.g.Point = c.point;
    EXPECT_EQ(Evaluate(s.g, Condition(c.subject, c.code, c.amount)), c.want) << c.name;
  }
}

TEST(Conditions, EachPassAndEachMissFollowTheThrow) {
  struct Case {
    std::vector<std::pair<int, int>> throws;
    bool pass, miss;
  };
  const Case cases[] = {
      {{{3, 4}}, true, false},          // come-out seven
      {{{5, 6}}, true, false},          // come-out eleven
      {{{1, 1}}, false, true},          // come-out craps
      {{{2, 2}, {3, 1}}, true, false},  // point made
      {{{2, 2}, {3, 4}}, false, true},  // seven-out
      {{{2, 2}, {3, 3}}, false, false}, // point roll
      {{{2, 2}}, false, false},         // point set
  };
  for (const Case& c : cases) {
    TestTable t;
    for (auto [d1, d2] : c.throws) t.Roll(d1, d2);
    EXPECT_EQ(Evaluate(t.g, Condition(1313, 0)), (Outcome{c.pass, c.pass})) << c.throws.back().first;
    EXPECT_EQ(Evaluate(t.g, Condition(1316, 0)), (Outcome{c.miss, c.miss})) << c.throws.back().first;
  }
  TestTable fresh;
  EXPECT_EQ(Evaluate(fresh.g, Condition(1313, 0)), kFalse) << "no roll yet";
  EXPECT_EQ(Evaluate(fresh.g, Condition(1316, 0)), kFalse);
}

TEST(Conditions, Bankroll) {
  Scene s(3);
  s.Bet(bet::kBankroll, 500, 300);
  EXPECT_EQ(Evaluate(s.g, Condition(1400, 13, 400)), kTrueNew);
  s.Bet(bet::kBankroll, 500, 450);
  EXPECT_EQ(Evaluate(s.g, Condition(1400, 13, 400)), kTrueOld);

  // Available: the comparison itself, or unlimited when the bankroll may go negative.
  s.g.TotalOnTable = 100;
  s.g.AllowNegativeBankroll = false;
  EXPECT_EQ(Evaluate(s.g, Condition(1410, 11, 400)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(1410, 15, 100)), kFalseNew);
  s.g.AllowNegativeBankroll = true;
  EXPECT_EQ(Evaluate(s.g, Condition(1410, 13, 1'000'000)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(1410, 11, 400)), kFalseNew);

  // Average 500 now, 400 a roll back; its "before" is the negation.
  Scene avg(2);
  avg.g.BankrollSum = 1000;
  avg.Bet(bet::kBankroll, 600, 600);
  EXPECT_EQ(Evaluate(avg.g, Condition(1401, 13, 450)), kTrueOld);
  EXPECT_EQ(Evaluate(avg.g, Condition(1401, 13, 350)), kTrueNew);

  // Simulated hours at 100 rolls an hour.
  Scene hours(200);
  EXPECT_EQ(Evaluate(hours.g, Condition(1405, 16, 2)), kTrueNew);
  hours.g.RollCounts[0] = 201;
  EXPECT_EQ(Evaluate(hours.g, Condition(1405, 16, 2)), kTrueOld);
  hours.g.SimRollRate = 0;
  EXPECT_THROW(Evaluate(hours.g, Condition(1405, 16, 2)), ScriptError);
}

TEST(Conditions, Flags) {
  Scene s;
  const Outcome none = Evaluate(s.g, Condition(1501, 0, -1));
  EXPECT_EQ(none, kFalse) << "no flags";
  for (int subject : {1500, 1502, 1503, 1504}) EXPECT_EQ(Evaluate(s.g, Condition(subject, 23, 0)), kFalse) << subject;

  s.g.AutoBet.Flags = {{"hot", -1, 0}, {"cold", 0, 0}};
  ScriptLine flag = Condition(1500, 0, -1);
  flag.Name = " hot ";
  EXPECT_EQ(Evaluate(s.g, flag), kTrueNew);
  flag.Name = "cold";
  EXPECT_EQ(Evaluate(s.g, flag), kFalse);
  flag.LineAmount = 0;
  EXPECT_EQ(Evaluate(s.g, flag), kTrueOld);
  flag.Name = "lukewarm";
  EXPECT_EQ(Evaluate(s.g, flag), kFalse);

  EXPECT_EQ(Evaluate(s.g, Condition(1501, 0, -1)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(1502, 0, -1)), kFalseNew) << "cold is a mismatch after hot matched";
  s.g.AutoBet.Flags[1].FlagValue = -1;
  EXPECT_EQ(Evaluate(s.g, Condition(1502, 0, -1)), kTrueNew);
  s.g.AutoBet.Flags[0].FlagPrevious = s.g.AutoBet.Flags[1].FlagPrevious = -1;
  EXPECT_EQ(Evaluate(s.g, Condition(1502, 0, -1)), kTrueOld);

  // The counting subjects answer with the last flag's match, whatever the count.
  s.g.AutoBet.Flags = {{"hot", -1, -1}, {"cold", 0, 0}};
  EXPECT_EQ(Evaluate(s.g, Condition(1503, 23, 0)), kTrueOld);
  EXPECT_EQ(Evaluate(s.g, Condition(1503, 23, 1)), kFalse);
  s.g.AutoBet.Flags = {{"cold", 0, 0}, {"hot", -1, -1}};
  EXPECT_EQ(Evaluate(s.g, Condition(1504, 23, 0)), kFalse);
}

TEST(Conditions, ChipStacksAndTheirReferences) {
  Scene s;
  s.Bet(103, 25, 25);
  ScriptLine stack = Condition(1600, 11, 25);
  stack.SubjectNum = 3;
  EXPECT_EQ(Evaluate(s.g, stack), kTrueOld);

  ScriptLine ref = Condition(1601, 11, 25);
  ref.SubjectNum = 2;
  s.Bet(102, 3, 3);
  EXPECT_EQ(Evaluate(s.g, ref), kTrueOld) << "Chip-Stack 2 points at Chip-Stack 3";
  ref.LineAmount = 0;
  for (int outside : {150, -1, 100}) {
    s.Bet(102, outside, outside);
    EXPECT_EQ(Evaluate(s.g, ref), kFalse) << outside << " points nowhere, not at $0";
  }
}

TEST(Conditions, BetRuleOnStreaks) {
  struct Case {
    int code, amount, streak, before;
    Outcome want;
  };
  const Case cases[] = {
      {1, 0, 1, 0, kTrueNew},  {1, 0, 2, 1, kTrueNew},  {1, 0, 0, 1, kFalse},    {1, 2, 2, 1, kTrueNew},
      {1, 2, 2, 2, kTrueOld},  {60, 0, 1, 1, kTrueNew}, {60, 2, 1, 1, kTrueOld}, {2, 1, 2, 1, kTrueNew},
      {61, 1, 0, 1, kTrueNew}, {3, 0, -1, 2, kTrueNew}, {3, 0, -1, -1, kFalse},  {3, 2, -2, -1, kTrueNew},
      {62, 0, 1, 0, kTrueNew}, {4, 1, -3, -2, kTrueOld}, {63, 2, -1, -2, kTrueNew},
  };
  for (const Case& c : cases) {
    Scene s;
    s.Streak(kPlace6, c.streak, c.before);
    EXPECT_EQ(Evaluate(s.g, Condition(kPlace6, c.code, c.amount)), c.want)
        << "code " << c.code << " amount " << c.amount << " streak " << c.before << " -> " << c.streak;
  }
}

TEST(Conditions, AnyAndAllGroupsLeaveAbsentBetsOut) {
  {
    Scene s;
    s.Bet(kPlace4, 5, 5);
    s.Bet(kPlace6, 5, 5);
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 5)), kTrueOld) << "the absent bets don't count";
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 0)), kFalse) << "amount 0 compares every bet";
    s.Bet(kPlace6, 5, 3);
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 5)), kTrueNew) << "one of them was not so before";
    s.Bet(kPlace5, 10, 10);
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 5)), kFalse);
    EXPECT_EQ(Evaluate(s.g, Condition(kAnyPlace, 11, 10)), kTrueOld);
    s.Bet(kPlace5, 10, 5);
    EXPECT_EQ(Evaluate(s.g, Condition(kAnyPlace, 11, 10)), kTrueNew);
  }
  {
    Scene s;
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 5)), kFalse) << "no bet at all";
    EXPECT_EQ(Evaluate(s.g, Condition(kAllPlace, 11, 0)), kTrueOld);
  }
  {
    // A While stops at the first bet that holds; a When walks them all.
    Scene s;
    s.Bet(kPlace4, 5, 7);
    s.Bet(kPlace9, 5, 5);
    EXPECT_EQ(Evaluate(s.g, Condition(kAnyPlace, 11, 5), line_kind::kWhen), kTrueOld);
    EXPECT_EQ(Evaluate(s.g, Condition(kAnyPlace, 11, 5), line_kind::kWhile), kTrueNew);
  }
}

TEST(Conditions, TotalGroupsCompareSumsAndCounts) {
  Scene s;
  s.Bet(kPlace4, 5, 5);
  s.Bet(kPlace6, 10, 5);
  s.Streak(kPlace4, 1, 1);
  s.Streak(kPlace6, 2, 1);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 11, 15)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 15, 20)), kTrueOld);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 23, 2)), kTrueOld);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 25, 2)), kFalse);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 1, 3)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 2, 2)), kTrueNew);
  s.Streak(kPlace4, -1, 1);
  s.Streak(kPlace6, -1, 1);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 3, 2)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 3, -2)), kTrueNew) << "losses by absolute value";
  // A bet no longer on the table whose streak moved keeps the streak sums false.
  s.Streak(kPlace8, -1, 0);
  EXPECT_EQ(Evaluate(s.g, Condition(kTotalPlace, 3, 3)), kFalse);
}

TEST(Conditions, AgainstASecondRange) {
  Scene s;
  s.Bet(kPlace6, 10, 5);
  s.Bet(kPlace8, 5, 5);
  EXPECT_EQ(Evaluate(s.g, Condition(kPlace6, 19, 0, kPlace8)), kTrueNew);
  EXPECT_EQ(Evaluate(s.g, Condition(kPlace8, 19, 0, kPlace6)), kFalse);

  s.Bet(bet::kBankroll, 500, 500);
  s.Bet(101, 500, 500);
  EXPECT_EQ(Evaluate(s.g, Condition(1400, 17, 0, 1600, 1)), kTrueOld);

  s.Bet(kPlace4, 20, 20);
  s.Bet(kPassLine, 10, 10);
  EXPECT_EQ(Evaluate(s.g, Condition(1007, 19, 0, kPassLine)), kTrueOld) << "Place 4 is above the line";
  EXPECT_EQ(Evaluate(s.g, Condition(kPassLine, 21, 0, 1207)), kTrueOld) << "the line is below the Place total";

  s.g.AutoBet.ChipStackNames[1] = "  Reserve ";
  ScriptLine named = Condition(1600, 26);
  named.SubjectNum = 1;
  named.Name = "Reserve";
  EXPECT_EQ(Evaluate(s.g, named), kTrueNew) << "a name is compared each time";
  named.Code = 27;
  EXPECT_EQ(Evaluate(s.g, named), kFalse);
}

TEST(Conditions, BeforeTheFirstRollEveryTrueBetConditionIsJustNow) {
  for (int rolls : {0, 1}) {
    Scene s(rolls);
    s.Bet(kPlace6, 10, 10);
    const Outcome want = rolls == 0 ? kTrueNew : kTrueOld;
    for (int subject : {kPlace6, kAnyPlace, kAllPlace, kTotalPlace})
      EXPECT_EQ(Evaluate(s.g, Condition(subject, 11, 10)), want) << rolls << " " << subject;
  }
  Scene s(0);
  EXPECT_EQ(Evaluate(s.g, Condition(1805, 11, 0)), kFalse) << "no point, no shooter's-point bet";
}

TEST(Conditions, DiceEvents) {
  struct Case {
    int code, n, count, before, since, sinceBefore, rolls;
    Outcome want;
  };
  const Case cases[] = {
      {5, 0, 3, 2, 0, 2, 10, kTrueNew}, {5, 0, 2, 2, 1, 0, 10, kFalse},   {5, 3, 3, 3, 0, 1, 10, kTrueOld},
      {5, 3, 3, 2, 0, 1, 10, kTrueNew}, {5, 3, 3, 3, 0, 1, 0, kTrueNew},  {6, 2, 3, 2, 0, 1, 10, kTrueNew},
      {7, 0, 2, 2, 1, 0, 10, kTrueNew}, {7, 0, 3, 2, 0, 1, 10, kFalse},   {7, 3, 2, 2, 1, 0, 10, kTrueOld},
      {8, 2, 1, 1, 4, 3, 10, kTrueOld}, {8, 2, 2, 2, 1, 0, 10, kFalseNew}, {9, 3, 3, 3, 1, 0, 10, kTrueOld},
      {9, 3, 3, 3, 1, 5, 10, kTrueNew}, {9, 3, 0, 0, 1, 0, 10, kFalseNew}, {10, 5, 1, 1, 5, 4, 10, kTrueNew},
      {10, 5, 1, 1, 6, 5, 10, kTrueOld}, {10, 5, 1, 1, 5, 4, 4, kFalseNew},
  };
  for (const Case& c : cases) {
    Scene s(c.rolls);
    constexpr int kAny7 = 7;
    s.g.RollCounts[kAny7] = c.count;
    s.g.PreviousRollCounts[kAny7] = c.before;
    s.g.RollsSinceLast[kAny7] = c.since;
    s.g.PreviousRollsSinceLast[kAny7] = c.sinceBefore;
    EXPECT_EQ(Evaluate(s.g, Condition(2007, c.code, c.n)), c.want)
        << "code " << c.code << " N " << c.n << " count " << c.before << "->" << c.count << " since "
        << c.sinceBefore << "->" << c.since;
  }

  TestTable t;
  t.Roll(1, 6);
  EXPECT_EQ(Evaluate(t.g, Condition(2078, 5)), kTrueNew) << "die 1 showed a 1";
  EXPECT_EQ(Evaluate(t.g, Condition(2039, 5)), kTrueNew) << "number 7 (1-6)";
  EXPECT_EQ(Evaluate(t.g, Condition(2040, 5)), kFalse) << "not 7 (6-1)";
}

}  // namespace
