#include "script/interpreter.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

#include "engine/notices.h"
#include "engine/table_for_test.h"
#include "script/jumps.h"
#include "script/pass_plan.h"
#include "script/script_for_test.h"

namespace {

using namespace line_kind;

// Records every step of the viewer; a yield can stop the pass as a stop
// command would.
class StepsFrontEnd : public RecordingFrontEnd {
 public:
  struct Step {
    int line;
    std::string status;
  };
  std::vector<Step> steps;
  std::vector<std::string> banners;
  std::vector<double> waits;
  int yields = 0;
  Game* stopAtYield = nullptr;
  Reply answer = Reply::No;

  void ShowStepsBanner(const std::string& word) override { banners.push_back(word); }
  StepReply ShowStep(int line, const std::string&, const std::string& status) override {
    steps.push_back({line, status});
    return replies.empty() ? StepReply::Next : replies[std::min(steps.size(), replies.size()) - 1];
  }
  std::vector<StepReply> replies;  // the player's answer to each step in turn; the last repeats
  void WaitSeconds(double seconds) override { waits.push_back(seconds); }
  bool LetInputRun() override {
    ++yields;
    if (stopAtYield) stopAtYield->AutoBetRunning = false;
    return false;
  }
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    RecordingFrontEnd::ShowMessage(title, text, buttons);
    return buttons == Buttons::YesNo ? answer : Reply::Ok;
  }
};

ScriptLine Line(int kind, int code = 0, const std::string& name = "") { return MakeLine(kind, code, 0, 0, 0, name); }
// "Flag <name> is True": true when the flag is -1, fresh when it changed.
ScriptLine FlagIsTrue(const std::string& name) {
  ScriptLine l = Line(kCondition, 0, name);
  l.Subject = 1500;
  l.LineAmount = -1;
  return l;
}
// An action with no effect: a flag that no script line names.
ScriptLine Act() { return Line(kAction, 77, "no such flag"); }
ScriptLine GoTo(const std::string& label) { return Line(kAction, verb::kGoTo, label); }
ScriptLine GoSub(const std::string& label) { return Line(kAction, verb::kGoSub, label); }
ScriptLine Return() { return Line(kAction, verb::kReturn); }
ScriptLine Label(const std::string& name) { return Line(kLabel, 0, name); }

constexpr const char* kTaken = "Action taken.";

struct Pass {
  TestTable t;
  StepsFrontEnd ui;

  explicit Pass(std::vector<ScriptLine> lines) {
    t.g.Ui = &ui;
    t.g.ShowingSteps = true;
    t.g.AutoBet.Lines = std::move(lines);
  }
  // Fresh: the value changed since the last pass; stale: it did not.
  void Flag(const std::string& name, bool value, bool fresh = true) {
    const int16_t v = value ? -1 : 0;
    const int16_t before = fresh ? static_cast<int16_t>(-1 - v) : v;
    for (::Flag& f : t.g.AutoBet.Flags)
      if (f.FlagName == name) {
        f.FlagValue = v;
        f.FlagPrevious = before;
        return;
      }
    t.g.AutoBet.Flags.push_back({name, v, before});
  }
  std::vector<int> Run() {
    ui.steps.clear();
    RunAutoBet(t.g);
    return Acted();
  }
  std::vector<int> Acted() const {
    std::vector<int> lines;
    for (const auto& s : ui.steps)
      if (s.status == kTaken) lines.push_back(s.line);
    return lines;
  }
  std::vector<std::string> StatusesOf(int line) const {
    std::vector<std::string> out;
    for (const auto& s : ui.steps)
      if (s.line == line) out.push_back(s.status);
    return out;
  }
};

using Lines = std::vector<int>;

TEST(Interpreter, AnEmptyScriptIsNeverRun) {
  Pass p({});
  p.t.g.LastAnswer = Answer::Yes;
  p.Run();
  EXPECT_TRUE(p.ui.banners.empty());
  EXPECT_TRUE(p.ui.waits.empty());
  EXPECT_EQ(p.t.g.LastAnswer, Answer::Yes);
  EXPECT_FALSE(p.t.g.AutoBetRunning);
}

TEST(Interpreter, WhenNeedsAFreshLineWhileDoesNot) {
  struct Case {
    int start;
    bool value, fresh;
    Lines acted;
  };
  const Case cases[] = {
      {kWhen, true, true, {4}},   {kWhen, true, false, {6}}, {kWhen, false, true, {6}},
      {kWhile, true, false, {4}}, {kWhile, true, true, {4}}, {kWhile, false, false, {6}},
  };
  for (const Case& c : cases) {
    Pass p({Line(c.start), FlagIsTrue("a"), Line(kThen), Act(), Line(kElse), Act(), Line(kDoThis), Act()});
    p.Flag("a", c.value, c.fresh);
    Lines want = c.acted;
    want.push_back(8);
    EXPECT_EQ(p.Run(), want) << c.start << " " << c.value << " " << c.fresh;
  }
}

TEST(Interpreter, TwoBlocksJoinedByAndOrXor) {
  struct Case {
    int first, second;
    bool a, aFresh, b, bFresh, taken;
  };
  const Case cases[] = {
      // Xor: exactly one block, in either order, for When and While alike.
      {kWhen, kXorWhen, true, true, true, true, false},     {kWhen, kXorWhen, true, true, false, true, true},
      {kWhen, kXorWhen, false, true, true, true, true},     {kWhen, kXorWhen, false, true, false, true, false},
      {kWhile, kXorWhile, true, true, true, true, false},   {kWhile, kXorWhile, true, true, false, true, true},
      {kWhile, kXorWhile, false, true, true, true, true},   {kWhile, kXorWhile, false, true, false, true, false},
      // Or: either block.
      {kWhen, kOrWhen, true, true, false, true, true},      {kWhen, kOrWhen, false, true, true, true, true},
      // And When needs a fresh line of its own.
      {kWhen, kAndWhen, true, true, true, true, true},      {kWhen, kAndWhen, true, true, true, false, false},
      {kWhen, kAndWhen, true, false, true, true, false},
  };
  for (const Case& c : cases) {
    Pass p({Line(c.first), FlagIsTrue("a"), Line(c.second), FlagIsTrue("b"), Line(kThen), Act()});
    p.Flag("a", c.a, c.aFresh);
    p.Flag("b", c.b, c.bFresh);
    EXPECT_EQ(p.Run(), c.taken ? Lines{6} : Lines{})
        << c.first << "/" << c.second << " a " << c.a << c.aFresh << " b " << c.b << c.bFresh;
    // After a true first block an or-block's lines are skipped.
    if (c.second == kOrWhen && c.a) {
      EXPECT_TRUE(p.StatusesOf(4).empty());
    }
    if (c.second == kOrWhen && !c.a) {
      EXPECT_EQ(p.StatusesOf(4), std::vector<std::string>{"Status: Condition is true (just now occurred). "});
    }
    if (c.second == kAndWhen && !c.aFresh) {
      EXPECT_EQ(p.StatusesOf(3),
                (std::vector<std::string>{"All the conditions in the block were true, but none have just now "
                                          "occurred - so the block is false. ",
                                          "Since some conditions are already false, this block will be skipped. "}));
      EXPECT_TRUE(p.StatusesOf(4).empty());
    }
  }
}

TEST(Interpreter, StatusTextsOfTheSteps) {
  Pass p({Line(kWhen), FlagIsTrue("a"), Line(kThen), Act(), Line(kElse), Act(), Label("x"), Line(kXorWhile)});
  p.Flag("a", true);
  p.Run();
  EXPECT_EQ(p.ui.banners, std::vector<std::string>{"Auto-Betting"});
  using S = std::vector<std::string>;
  EXPECT_EQ(p.StatusesOf(1),
            S{"This block of conditions will be true if each line is true and at least one has just occurred."});
  EXPECT_EQ(p.StatusesOf(3), (S{"All the conditions in the block were true. ",
                                "Since the overall conditions were true, the next actions will be taken. "}));
  EXPECT_EQ(p.StatusesOf(5), S{"Since the previous actions were taken, the next actions will be skipped. "});
  EXPECT_TRUE(p.StatusesOf(6).empty());
  EXPECT_EQ(p.StatusesOf(7), S{"This label was encountered normally."});
  EXPECT_TRUE(p.StatusesOf(8).empty()) << "an or/xor line is skipped once the statement is decided";
  EXPECT_FALSE(p.t.g.AutoBetRunning);
  ASSERT_EQ(p.ui.waits.size(), 1u);
  EXPECT_LE(p.ui.waits[0], 0.3);
}

TEST(Interpreter, JumpsScanFromTheTopForTheirLabel) {
  Pass p({Act(), GoTo("End"), Act(), Line(kComment, 0, "'end"), Label(" end "), Act()});
  EXPECT_EQ(p.Run(), (Lines{1, 2, 6}));
  EXPECT_EQ(p.StatusesOf(5),
            std::vector<std::string>{"A \"Go to\" or \"GoSub\" statement has caused a jump to this label. "});

  Pass missing({Act(), GoTo("nowhere"), Act(), Label("elsewhere"), Act()});
  EXPECT_EQ(missing.Run(), (Lines{1, 2})) << "a missing label ends the pass silently";
  EXPECT_FALSE(missing.t.g.AutoBetRunning);
}

TEST(Interpreter, GoSubReturnsToTheLineAfterIt) {
  Pass p({GoSub("sub"), Act(), GoTo("done"), Label("sub"), Act(), Return(), Label("done")});
  EXPECT_EQ(p.Run(), (Lines{1, 5, 6, 2, 3}));
  EXPECT_EQ(p.StatusesOf(1), (std::vector<std::string>{
                                 kTaken, "A \"Return\" statement has caused a jump back to this \"GoSub\" statement.  "
                                         "Processing will resume with the next line in order."}));

  Pass lone({Return(), Act()});
  EXPECT_EQ(lone.Run(), Lines{2});
  EXPECT_EQ(lone.StatusesOf(1),
            std::vector<std::string>{"This statement will be ignored since it was not encountered as a result of a "
                                     "\"GoSub\" statement.  Processing will resume with the next line in order."});
}

TEST(Interpreter, AScriptThatLoopsForeverStopsAtAYield) {
  Pass p({Label("top"), GoTo("top")});
  p.t.g.ShowingSteps = false;
  p.ui.stopAtYield = &p.t.g;
  p.Run();
  EXPECT_EQ(p.ui.yields, 1);
  EXPECT_FALSE(p.t.g.AutoBetRunning);
}

TEST(Interpreter, HyperDriveShowsAndWaitsForNothing) {
  Pass p({Line(kDoThis), Act()});
  p.t.g.HyperDriveOn = true;
  p.t.g.HotKeyRun = true;
  p.t.g.LastAnswer = Answer::No;
  p.Run();
  EXPECT_TRUE(p.ui.banners.empty());
  EXPECT_TRUE(p.ui.steps.empty());
  EXPECT_TRUE(p.ui.waits.empty());
  EXPECT_EQ(p.t.g.LastAnswer, Answer::None);

  p.t.g.HyperDriveOn = false;
  p.t.g.ShowingSteps = false;
  p.Run();
  EXPECT_EQ(p.ui.banners, std::vector<std::string>{"Hot-Key"});
  EXPECT_TRUE(p.ui.steps.empty());
}

TEST(Interpreter, AnErrorAbortsThePassWithItsLine) {
  const ScriptLine hours = MakeLine(kCondition, 13, 0, 1405);  // simulated hours divide by the roll rate
  for (bool hyper : {false, true}) {
    Pass p({Act(), Line(kWhile), hours, Line(kThen), Act()});
    p.t.g.SimRollRate = 0;
    p.t.g.HyperDriveOn = hyper;
    p.t.g.KeepRolling = true;
    EXPECT_EQ(p.Run(), hyper ? Lines{} : Lines{1});
    ASSERT_EQ(p.ui.messages.size(), 1u);
    EXPECT_EQ(p.ui.messages[0].title, "Auto-Bet Abort");
    EXPECT_EQ(p.ui.messages[0].text,
              "The following error has caused Auto-Betting to abort at line #3:\r\r"
              "Division by zero, Error #11 occurred, at: Run Auto-Bet\r\r\r"
              "Press help for more information.");
    EXPECT_FALSE(p.t.g.KeepRolling);
    EXPECT_TRUE(p.t.g.AutoBetRunning) << "left as it was";
    EXPECT_EQ(p.t.g.StopReason, hyper ? StopReason::ScriptError : StopReason::None);
  }
}

TEST(Interpreter, TheRollRunsTheScriptAndTakesItsSnapshots) {
  const ScriptLine eachRoll = MakeLine(kCondition, 0, 0, 1300);
  Pass p({Line(kWhen), eachRoll, Line(kThen), Act()});
  p.Flag("a", true);
  p.t.g.AutoBetActivated = true;
  p.t.Roll(2, 3);
  EXPECT_EQ(p.Acted(), Lines{4});
  EXPECT_EQ(p.t.g.RollCountAfterPass, 1);
  EXPECT_EQ(p.t.g.AutoBet.Flags[0].FlagPrevious, -1);
  EXPECT_EQ(p.t.g.BetAfterRoll(), p.t.g.BetAmount.All());
  EXPECT_EQ(p.Run(), Lines{}) << "no roll since the last pass";

  p.t.g.AutoBetActivated = false;
  p.ui.steps.clear();
  p.t.Roll(2, 3);
  EXPECT_TRUE(p.ui.steps.empty());
}

TEST(Interpreter, TheInitialCycleIsOfferedOnceAChangedScriptMeetsTheTable) {
  const std::string offer =
      "Your Auto-Bets have changed\r\rYou have an opportunity now to run your Auto-Bet script for one cycle BEFORE "
      "the dice roll in order to check and set any initial conditions.\r\rWould you like to initialize your "
      "Auto-Bets?";
  const ScriptLine init = MakeLine(kCondition, 0, 0, 9999);
  for (Reply answer : {Reply::Yes, Reply::No}) {
    Pass p({Line(kWhen), init, Line(kThen), Act()});
    p.Flag("a", true);
    p.ui.answer = answer;
    p.t.g.InitPending = true;
    OfferInitialCycle(p.t.g);
    EXPECT_TRUE(p.ui.messages.empty()) << "Auto-Bet is off";
    EXPECT_TRUE(p.t.g.InitPending);

    p.t.g.AutoBetActivated = true;
    OfferInitialCycle(p.t.g);
    ASSERT_EQ(p.ui.messages.size(), 1u);
    EXPECT_EQ(p.ui.messages[0], (RecordedMessage{"Auto-Bet", offer}));
    EXPECT_FALSE(p.t.g.InitPending);
    EXPECT_EQ(p.Acted(), answer == Reply::Yes ? Lines{4} : Lines{});
    EXPECT_EQ(p.t.g.AutoBet.Flags[0].FlagPrevious, answer == Reply::Yes ? -1 : 0);
  }
}

// Marks its own line number as run: sets the flag of that name.
ScriptLine Mark(int line) {
  ScriptLine l = Line(kAction, verb::kSetFlag, std::to_string(line));
  l.LineAmount = -1;
  return l;
}

// The lines whose marks a pass set, the steps viewer showing (line by line)
// or in Hyper-Drive (from the plan when the script is plain statements).
Lines MarkedBy(const std::vector<ScriptLine>& lines, bool a, bool aFresh, bool b, bool hyper, bool& plain) {
  Pass p(lines);
  p.t.g.ShowingSteps = !hyper;
  p.t.g.HyperDriveOn = hyper;
  RebuildFlags(p.t.g.AutoBet);
  p.Flag("a", a, aFresh);
  p.Flag("b", b);
  RunAutoBet(p.t.g);
  plain = p.t.g.AutoBet.Plan && p.t.g.AutoBet.Plan->Plain;
  Lines marked;
  for (const ::Flag& f : p.t.g.AutoBet.Flags)
    if (f.FlagValue != 0 && f.FlagName != "a" && f.FlagName != "b") marked.push_back(std::stoi(f.FlagName));
  return marked;
}

TEST(Interpreter, PlainStatementsRunAsTheLoopRunsThem) {
  const ScriptLine note = Line(kComment, 0, "'note");
  const struct {
    std::vector<ScriptLine> lines;
    bool plain;
  } scripts[] = {
      {{Line(kWhen), FlagIsTrue("a"), Line(kThen), Mark(4), Line(kElse), Mark(6), Line(kDoThis), Mark(8)}, true},
      {{note, Line(kWhile), FlagIsTrue("a"), note, FlagIsTrue("b"), Line(kThen), Label("x"), Mark(7), Mark(8),
        Line(kElse), note, Mark(11)},
       true},
      {{Line(kDoThis), Mark(2), Line(kWhen), Line(kThen), Mark(5), Line(kWhile), Line(kThen), Mark(8)}, true},
      {{Line(kWhen), FlagIsTrue("a"), Line(kAndWhen), FlagIsTrue("b"), Line(kThen), Mark(6)}, false},
      {{Mark(1), Line(kWhile), FlagIsTrue("a"), Line(kThen), Mark(5)}, false},
      {{Line(kWhile), FlagIsTrue("b"), Line(kThen), GoTo("x"), Mark(5), Label("x"), Mark(7)}, false},
      {{Line(kDoThis), Mark(2), Line(kElse), Mark(4)}, false},
      {{Line(kAndWhen), FlagIsTrue("a"), Line(kThen), Mark(4)}, false},
  };
  for (size_t n = 0; n < std::size(scripts); ++n) {
    for (const bool a : {true, false}) {
      for (const bool fresh : {true, false}) {
        for (const bool b : {true, false}) {
          bool plain = false, stepped = false;
          const Lines fromPlan = MarkedBy(scripts[n].lines, a, fresh, b, true, plain);
          EXPECT_EQ(fromPlan, MarkedBy(scripts[n].lines, a, fresh, b, false, stepped))
              << "script " << n << " a " << a << fresh << " b " << b;
          EXPECT_EQ(plain, scripts[n].plain) << "script " << n;
        }
      }
    }
  }
}

TEST(Interpreter, ThePlanFollowsAnEditMadeInPlace) {
  Pass p({Line(kDoThis), Mark(2), Mark(3)});
  p.t.g.ShowingSteps = false;
  p.t.g.HyperDriveOn = true;
  RebuildFlags(p.t.g.AutoBet);
  RunAutoBet(p.t.g);
  EXPECT_EQ(p.t.g.AutoBet.Flags[0].FlagValue, -1);
  for (::Flag& f : p.t.g.AutoBet.Flags) f.FlagValue = 0;
  p.t.g.AutoBet.Line(2).Kind = kComment;
  p.t.g.AutoBet.Line(3).Code = verb::kGoTo;  // to no label: the pass ends there
  RunAutoBet(p.t.g);
  EXPECT_EQ(p.t.g.AutoBet.Flags[0].FlagValue, 0) << "line 2 is a comment now";
  EXPECT_EQ(p.t.g.AutoBet.Flags[1].FlagValue, 0) << "line 3 jumps now";
  EXPECT_FALSE(p.t.g.AutoBet.Plan->Plain);
}

}  // namespace

// The viewer's answers: Next goes on, "Run to end" runs the rest of the pass
// unseen, Cancel also stops the next passes from showing steps. Every line
// runs whatever the answer.
TEST(Interpreter, StepAnswersEndTheShowingNotThePass) {
  struct Case {
    StepReply reply;
    size_t stepsSeen;
    bool stillShowing;
  };
  for (const Case& c : {Case{StepReply::Next, 4, true}, Case{StepReply::RunToEnd, 1, true},
                        Case{StepReply::Cancel, 1, false}}) {
    std::vector<ScriptLine> lines = {Line(kDoThis)};
    for (const char* name : {"a", "b", "c"}) {
      lines.push_back(Line(kAction, verb::kSetFlag, name));
      lines.back().LineAmount = Currency(-1);  // "to True"
    }
    Pass p(lines);
    p.t.g.AutoBet.Flags = {{"a", 0, 0}, {"b", 0, 0}, {"c", 0, 0}};
    p.ui.replies = {c.reply};
    p.Run();
    EXPECT_EQ(p.ui.steps.size(), c.stepsSeen);
    EXPECT_EQ(p.t.g.ShowingSteps, c.stillShowing);
    for (const Flag& f : p.t.g.AutoBet.Flags) EXPECT_EQ(f.FlagValue, -1) << f.FlagName;
  }
}
