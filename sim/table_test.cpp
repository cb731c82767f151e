#include "sim/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "engine/game.h"
#include "engine/refusals.h"
#include "sim/table_listener.h"
#include "stats/bankroll_graph.h"
#include "testkit/task_queue.h"

namespace {

struct Fresh {
  SilentFrontEnd ui;
  Table table{ui};
  Fresh() { table.StartFresh(); }
};

PayoffRecord Pays(Currency win, Currency per) { return {win, -1, per}; }

}  // namespace

// Each command answers with a value and marks the game unsaved only where it
// changed it; while a run holds the table, every command but Stop is refused.
TEST(Table, CommandsAnswerAndMarkTheGameUnsaved) {
  const struct {
    const char* what;
    std::function<TableResult(Table&)> run;
    TableCode code;
    bool unsaved;
  } cases[] = {
      {"bet", [](Table& t) { return t.Bet(bet::kField, 5); }, TableCode::Done, true},
      {"come bet on the come-out", [](Table& t) { return t.Bet(bet::kCome, 5); }, TableCode::Refused, false},
      {"no such bet", [](Table& t) { return t.Bet(90, 5); }, TableCode::Unknown, false},
      {"remove", [](Table& t) { return t.Remove(bet::kField); }, TableCode::Done, false},
      {"roll", [](Table& t) { return t.Roll(3, 4); }, TableCode::Done, true},
      {"hyper without a count", [](Table& t) { return t.HyperDrive(std::nullopt); }, TableCode::Refused, false},
      {"hyper", [](Table& t) { return t.HyperDrive(5); }, TableCode::Done, true},
      {"auto-roll of none", [](Table& t) { return t.AutoRoll(0); }, TableCode::OutOfRange, false},
      {"chip", [](Table& t) { return t.SetChip(1, Currency::FromRaw(2500)); }, TableCode::Done, true},
      {"chip of nothing", [](Table& t) { return t.SetChip(1, 0); }, TableCode::OutOfRange, false},
      {"checks out of order",
       [](Table& t) {
         return t.SetChips({5, 1, 25, 100, 500});
       },
       TableCode::OutOfRange, false},
      {"payoff", [](Table& t) { return t.SetPayoff(62, Pays(15, 2)); }, TableCode::Done, true},
      {"payoff of nothing", [](Table& t) { return t.SetPayoff(bet::Place(6), Pays(0, 1)); }, TableCode::OutOfRange,
       false},
      {"field loss beyond the bet", [](Table& t) { return t.SetFieldPayoff(5, Pays(-2, 1)); }, TableCode::OutOfRange,
       false},
      {"field preset", [](Table& t) { return t.SetFieldPreset(3); }, TableCode::Done, true},
      {"no such field preset", [](Table& t) { return t.SetFieldPreset(12); }, TableCode::Unknown, false},
      {"restore payoffs", [](Table& t) { return t.RestoreDefaultPayoffs(); }, TableCode::Done, true},
      {"payoff cell", [](Table& t) { return t.EditPayoffCell(PayoffTable::Bets, bet::Place(6), 0, Currency(8)); },
       TableCode::Done, true},
      {"payoff form key that changes nothing",
       [](Table& t) { return t.EditPayoffCell(PayoffTable::Bets, bet::Place(6), 1, 't'); }, TableCode::Refused,
       false},
      {"tray stack", [](Table& t) { return t.SetTrayStack(8, 3); }, TableCode::Done, false},
      {"tray stack on a check", [](Table& t) { return t.SetTrayStack(5, 3); }, TableCode::Unknown, false},
      {"atm", [](Table& t) { return t.Atm(kAtmWithdraw, 100); }, TableCode::Done, true},
      {"atm beyond the bankroll",
       [](Table& t) {
         t.Set("AllowNegativeBankroll", 0);
         t.Set("NoticeMask", 0);
         return t.Atm(kAtmDeposit, 700);
       },
       TableCode::Refused, true},  // the settings changed the game
      {"setting unchanged", [](Table& t) { return t.Set("TableMinimum", 1); }, TableCode::Done, false},
      {"setting", [](Table& t) { return t.Set("TableMinimum", 5); }, TableCode::Done, true},
      {"entered text", [](Table& t) { return t.Enter(bet::kField, "twelve"); }, TableCode::WrongType, false},
      {"open", [](Table& t) { return t.Open("/nonexistent/game.crp"); }, TableCode::NotDone, false},
      {"save with no file", [](Table& t) { return t.Save(); }, TableCode::NotDone, false},
      {"script", [](Table& t) { return t.LoadScript("/nonexistent/script.txt"); }, TableCode::NotDone, false},
      {"script switch", [](Table& t) { return t.ActivateScript(true); }, TableCode::Done, true},
      {"roll file", [](Table& t) { return t.CloseRollFile(); }, TableCode::NotDone, false},
      {"busy",
       [](Table& t) {
         t.BeginRun();
         const TableResult r = t.Bet(bet::kField, 5);
         t.EndRun(StopReason::None);
         return r;
       },
       TableCode::Busy, false},
      {"stop while busy",
       [](Table& t) {
         t.BeginRun();
         const TableResult r = t.Stop(StopReason::ScriptCommand);
         t.EndRun(StopReason::ScriptCommand);
         return r;
       },
       TableCode::Done, false},
  };
  for (const auto& c : cases) {
    Fresh f;
    const TableResult r = c.run(f.table);
    EXPECT_EQ(r.code, c.code) << c.what << ": " << r.text;
    EXPECT_EQ(f.table.State().GameChanged, c.unsaved) << c.what;
    if (r.code == TableCode::Busy) {
      EXPECT_EQ(r.text, kBusyText);
    }
    if (r.code != TableCode::Done && r.code != TableCode::Busy) {
      EXPECT_FALSE(r.text.empty()) << c.what;
    }
  }
  Fresh f;
  EXPECT_EQ(f.table.Bet(bet::kCome, 5).text, refusal::ComeNoPoint());
}

// The configuration screen closes only on a clean check; a fault names where
// the screen must take the player.
TEST(Table, TheClosingCheckNamesTheFaultsPlace) {
  Fresh f;
  EXPECT_TRUE(f.table.ValidateConfiguration().ok);
  for (int n = 1; n <= 5; ++n) f.table.SetChip(n, std::array<int, 5>{1, 5, 4, 100, 500}[n - 1]);
  const ConfigCheck check = f.table.ValidateConfiguration();
  EXPECT_FALSE(check.ok);
  EXPECT_EQ(check.tab, "Checks/Dice");
  EXPECT_EQ(check.control, "txtDenomination");
  EXPECT_EQ(check.controlIndex, 2);
  f.table.SetChips({1, 5, 25, 100, 500});
  f.table.EditPayoffCell(PayoffTable::Bets, bet::Place(6), 0, Currency(0));
  const ConfigCheck payoff = f.table.ValidateConfiguration();
  EXPECT_EQ(payoff.tab, "Payoffs");
  EXPECT_EQ(payoff.control, "picPayoffs");
  EXPECT_GT(payoff.controlIndex, 0);
  f.table.SetTrayStack(10, 99);
  EXPECT_EQ(f.table.State().TrayStack[4], bet::kFirstStack + 99);
}

TEST(Table, BadSettingsAreAnsweredWithNothingChanged) {
  const struct {
    const char* name;
    Currency value;
    TableCode code;
  } cases[] = {
      {"NoSuchSetting", 1, TableCode::Unknown},
      {"StopOnRoll", 1, TableCode::Unknown},      // an array needs its index
      {"StopOnRoll.17", 1, TableCode::Unknown},   // beyond its last
      {"TableMinimum.1", 5, TableCode::Unknown},  // a single value takes none
      {"AllowPutBets", 2, TableCode::WrongType},
      {"RollCountLeft", Currency::FromRaw(15000), TableCode::WrongType},
      {"AutoRollDelay", 3601, TableCode::OutOfRange},
      {"BarNumber", 7, TableCode::OutOfRange},
      {"ModifyUnits.0", 1, TableCode::OutOfRange},
  };
  for (const auto& c : cases) {
    Fresh f;
    const TableResult r = f.table.Set(c.name, c.value);
    EXPECT_EQ(r.code, c.code) << c.name << ": " << r.text;
    EXPECT_FALSE(f.table.State().GameChanged) << c.name;
  }
  Fresh f;
  EXPECT_EQ(f.table.Get("nosuchsetting").code, TableCode::Unknown);
  EXPECT_EQ(f.table.Get("stoponroll.9").value, 0);  // names match without regard to case
  ASSERT_TRUE(f.table.Set("StopOnRoll.9", 1).Done());
  EXPECT_EQ(f.table.Get("StopOnRoll.9").value, 1);
}

namespace {

// Writes down every event as a short line.
class Recorder : public TableListener {
 public:
  std::vector<std::string> seen;
  void BetChanged(int betId, Currency before, Currency after) override {
    Note("bet " + std::to_string(betId) + " " + Text(before) + ">" + Text(after));
  }
  void BankrollChanged(Currency bankroll, Currency rail) override {
    Note("bankroll " + Text(bankroll) + " rail " + Text(rail));
  }
  void PointChanged(int point) override { Note("point " + std::to_string(point)); }
  void DiceThrown(int die1, int die2) override { Note("dice " + std::to_string(die1) + std::to_string(die2)); }
  void RollFinished(std::span<const Settlement> settled) override {
    std::string line = "settled";
    for (const Settlement& s : settled)
      line += " " + std::to_string(s.BetId) + ":" + std::to_string(static_cast<int>(s.Outcome)) + ":" + Text(s.Net);
    Note(line);
  }
  void StatisticsRefreshed() override { Note("stats"); }
  void SettingChanged(const std::string& name) override { Note("setting " + name); }
  void ChipStacksChanged() override { Note("stacks"); }
  void UnsavedChanged(bool unsaved) override { Note(unsaved ? "unsaved" : "saved"); }
  void RunStarted() override { Note("run"); }
  void RunStopped(StopReason reason) override { Note(std::string("stopped ") + StopReasonText(reason)); }

 private:
  static std::string Text(Currency v) { return std::to_string(v.raw / Currency::kScale); }
  void Note(const std::string& line) { seen.push_back(line); }
};

}  // namespace

// The graph keeps no averages while they are hidden; showing them works out
// those of the window already drawn.
TEST(Table, ShowingTheAverageWorksOutTheWindowsAverages) {
  Fresh f;
  f.table.HyperDrive(100);
  const Game& g = f.table.State();
  ASSERT_FALSE(g.DisplayAverage);
  ASSERT_TRUE(f.table.Set("DisplayAverage", 1).Done());
  EXPECT_EQ(g.GraphAverage[100], MovingAverage(g, 100, g.MovingAverageRolls));
  EXPECT_NE(g.GraphAverage[100], Currency(0));
}

TEST(Table, CommandsTellTheirListenersWhatChanged) {
  Fresh f;
  Recorder heard;
  f.table.Subscribe(&heard);
  f.table.Bet(bet::kPassLine, 10);
  f.table.Roll(2, 2);
  f.table.Roll(1, 3);
  f.table.Set("TableMinimum", 5);
  f.table.Set("TableMinimum", 5);  // no change: nothing told
  f.table.Bet(bet::kFirstStack + 1, 5);
  f.table.HyperDrive(2);
  const size_t beforeAutoRoll = heard.seen.size();
  f.table.AutoRoll(3);
  const std::vector<std::string> expected = {"bet 43 0>10",
                                             "bankroll 500 rail 490",
                                             "unsaved",  // the bet stands on the layout, off the rail
                                             "dice 22",
                                             "point 4",
                                             "settled",
                                             "stats",
                                             "dice 13",
                                             "point 0",
                                             "bankroll 510 rail 500",
                                             "settled 43:1:10",
                                             "stats",
                                             "setting TableMinimum",
                                             "stacks",
                                             "run"};
  ASSERT_GE(heard.seen.size(), expected.size());
  EXPECT_EQ(std::vector<std::string>(heard.seen.begin(), heard.seen.begin() + expected.size()), expected);
  // Hyper-Drive tells one set of changes at its end; each Auto-Roll roll is told.
  EXPECT_EQ(heard.seen[beforeAutoRoll - 1], "stopped Stopped by roll count on Auto-Play screen.");
  EXPECT_EQ(std::count(heard.seen.begin(), heard.seen.begin() + beforeAutoRoll, "stats"), 3);
  EXPECT_EQ(std::count(heard.seen.begin() + beforeAutoRoll, heard.seen.end(), "stats"), 3);
  f.table.Unsubscribe(&heard);
  const size_t heardSoFar = heard.seen.size();
  f.table.Roll(3, 4);
  EXPECT_EQ(heard.seen.size(), heardSoFar);
}

// A screen's run holds the game on its own thread: commands are refused
// until the run hands the game back, Stop reaches it at once, and its end is
// told on the screen's thread.
TEST(Table, LiveRunsLeaveTheScreenAnsweringAndEndWhereTheyAreTold) {
  Fresh f;
  Recorder heard;
  f.table.Subscribe(&heard);
  TaskQueue screen;
  const auto ended = [&] { return !f.table.Busy(); };
  const int32_t rollsBefore = f.table.State().RollCounts[0];

  ASSERT_TRUE(f.table.Set("RollCountStop", 5000).Done());
  ASSERT_TRUE(f.table.Set("RollCountLeft", 5000).Done());
  ASSERT_TRUE(f.table.StartLive(RunKind::HyperDrive, screen.Poster()).Done());
  EXPECT_EQ(f.table.Bet(bet::kField, 5).code, TableCode::Busy);
  EXPECT_EQ(f.table.StartLive(RunKind::HyperDrive, screen.Poster()).code, TableCode::Busy);
  ASSERT_TRUE(screen.PumpUntil(ended));
  EXPECT_EQ(f.table.State().RollCounts[0], rollsBefore + 5000);
  EXPECT_EQ(f.table.LiveSnapshot().Rolls, f.table.State().RollCounts[0]);
  EXPECT_EQ(heard.seen.back(), "stopped Stopped by roll count on Auto-Play screen.");

  ASSERT_TRUE(f.table.Set("RollCountLeft", 0).Done());  // no count: only Stop ends it
  ASSERT_TRUE(f.table.StartLive(RunKind::HyperDrive, screen.Poster()).Done());
  EXPECT_TRUE(f.table.SetThrottle(7).Done());  // reaches the run, not the game under it
  EXPECT_TRUE(f.table.StepGraph(GraphStep::MoveUp).Done());
  EXPECT_TRUE(f.table.Stop().Done());
  ASSERT_TRUE(screen.PumpUntil(ended));
  EXPECT_EQ(f.table.State().ThrottleValue, 7);
  EXPECT_TRUE(f.table.Bet(bet::kField, 5).Done());
  f.table.Unsubscribe(&heard);
}
