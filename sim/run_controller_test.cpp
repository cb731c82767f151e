#include "sim/run_controller.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "engine/table_for_test.h"
#include "script/text_form.h"
#include "sim/hyper_drive.h"
#include "testkit/task_queue.h"

namespace {

// Records where each question was answered; may stop the run from inside an answer.
class Screen : public RecordingFrontEnd {
 public:
  std::vector<std::thread::id> askedOn;
  RunController* stopAtQuestion = nullptr;
  size_t stopAfter = 0;

  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offer) override {
    askedOn.push_back(std::this_thread::get_id());
    if (stopAtQuestion && askedOn.size() == stopAfter) stopAtQuestion->Stop();
    return RecordingFrontEnd::AskNumber(title, text, offer);
  }
};

// A table with a script, every question of which is answered $5.
struct ScriptedTable {
  Game g;
  Screen ui;

  ScriptedTable(const std::string& script, int32_t rolls) {
    AssembleGame(g);
    g.ReSeedNewGames = false;
    FillDefaults(g);
    g.BankrollInitAmount = 100'000;
    NewGame(g, false);
    g.Ui = &ui;
    SeedSilently(g, 0, 20261124);
    std::string error;
    EXPECT_TRUE(ReadScriptText(script, g.AutoBet, error)) << error;
    g.AutoBetActivated = true;
    g.AutoRollOn = true;
    g.RollCountStop = g.RollCountLeft = rolls;
    ui.numberReplies.assign(100'000, Currency(5));
  }
  void OnThisThread(RunKind kind) {
    if (kind == RunKind::HyperDrive) {
      StartHyperDrive(g);
    } else {
      g.KeepRolling = true;
      RollDice(g);
      g.KeepRolling = false;
    }
  }
};

const char* const kPassLineWithOdds = "When\n  A point is established on any point\nthen\n  Bet $10 on Pass Line Odds\n"
                                      "Do this\n  Bet $10 on Pass Line\n  Bet $5 on Field\n";
const char* const kAskEveryRoll = "Do this\n  Get input and bet it on Field\n  Bet $10 on Pass Line\n";

// Runs `kind` through a controller, pumping its tasks here until the finish.
RunEnd Control(RunKind kind, TaskQueue& queue, RunController& rc) {
  RunEnd end;
  rc.OnFinished([&](const RunEnd& e) { end = e; });
  EXPECT_TRUE(rc.Start(kind));
  if (!queue.PumpUntil([&] { return !rc.Running(); })) {
    ADD_FAILURE() << "the run did not end";
    rc.Stop();  // so that Wait() below need not answer for the run
  }
  rc.Wait();
  return end;
}

TEST(RunController, EndsWithTheTableTheSameRunLeavesOnTheCallersThread) {
  struct Case {
    RunKind kind;
    const char* script;
    int32_t rolls;
  };
  for (const Case& c : {Case{RunKind::HyperDrive, kPassLineWithOdds, 20'000}, Case{RunKind::AutoRoll, kAskEveryRoll, 300}}) {
    ScriptedTable here(c.script, c.rolls), there(c.script, c.rolls);
    here.OnThisThread(c.kind);
    TaskQueue queue;
    RunController rc(there.g, there.ui, queue.Poster());
    const RunEnd end = Control(c.kind, queue, rc);
    const RunSnapshot last = rc.Snapshot();

    EXPECT_EQ(there.g.RollCounts[0], c.rolls);
    EXPECT_EQ(there.g.RollCounts, here.g.RollCounts);
    EXPECT_EQ(there.g.BetAmount.All(), here.g.BetAmount.All());
    EXPECT_EQ(std::pair(there.g.Die1, there.g.Die2), std::pair(here.g.Die1, here.g.Die2));
    EXPECT_EQ(there.g.HighBankroll, here.g.HighBankroll);
    EXPECT_EQ(there.g.LowBankroll, here.g.LowBankroll);
    EXPECT_EQ(there.ui.messages, here.ui.messages);
    EXPECT_EQ(there.ui.asked, here.ui.asked);
    EXPECT_EQ(there.ui.stopReason, here.ui.stopReason);
    EXPECT_EQ(end.StopReason, here.ui.stopReason);
    EXPECT_FALSE(end.Stopped);
    EXPECT_EQ(there.g.Ui, &there.ui);
    EXPECT_FALSE(last.Running);
    EXPECT_EQ(last.Rolls, c.rolls);
    EXPECT_EQ(last.Bankroll, here.g.Bankroll());
    // Every question reached the screen on the thread that pumps its queue.
    for (std::thread::id id : there.ui.askedOn) EXPECT_EQ(id, std::this_thread::get_id());
    if (c.kind == RunKind::AutoRoll) {
      EXPECT_EQ(there.ui.askedOn.size(), static_cast<size_t>(c.rolls));
    }
  }
}

TEST(RunController, AStopEndsAutoRollAfterTheRollInProgress) {
  {  // from inside the third roll's question
    ScriptedTable r(kAskEveryRoll, 0);
    TaskQueue queue;
    RunController rc(r.g, r.ui, queue.Poster());
    r.ui.stopAtQuestion = &rc;
    r.ui.stopAfter = 3;
    const RunEnd end = Control(RunKind::AutoRoll, queue, rc);
    EXPECT_TRUE(end.Stopped);
    EXPECT_EQ(end.StopReason, StopReason::None);
    EXPECT_EQ(r.g.RollCounts[0], 3);
    EXPECT_EQ(r.ui.askedOn.size(), 3u);
    EXPECT_FALSE(r.g.KeepRolling);
  }
  {  // during the wait between rolls, long before it is over
    ScriptedTable r(kAskEveryRoll, 0);
    r.g.AutoRollDelay = 60;
    TaskQueue queue;
    RunController rc(r.g, r.ui, queue.Poster());
    ASSERT_TRUE(rc.Start(RunKind::AutoRoll));
    ASSERT_TRUE(queue.PumpUntil([&] { return rc.Snapshot().Rolls == 1; }));
    rc.Stop();
    EXPECT_TRUE(queue.PumpUntil([&] { return !rc.Running(); }, std::chrono::seconds(10)));
    rc.Wait();
    EXPECT_EQ(r.g.RollCounts[0], 1);
  }
}

TEST(RunController, HyperDriveSnapshotsClimbUntilStopAndASecondStartIsRefused) {
  ScriptedTable r(kPassLineWithOdds, 0);  // no roll count: only the roll ceiling would end it
  TaskQueue queue;
  RunController rc(r.g, r.ui, queue.Poster());
  RunEnd end;
  bool finished = false;
  rc.OnFinished([&](const RunEnd& e) {
    end = e;
    finished = true;
  });
  ASSERT_TRUE(rc.Start(RunKind::HyperDrive));
  EXPECT_FALSE(rc.Start(RunKind::HyperDrive));
  EXPECT_FALSE(rc.Start(RunKind::AutoRoll));
  rc.SetThrottle(2);

  int64_t seen = 0;
  int snapshots = 0;
  auto climbs = [&] {
    const RunSnapshot s = rc.Snapshot();
    EXPECT_GE(s.Rolls, seen);
    EXPECT_EQ(s.Rack, s.Bankroll - s.TotalOnTable);
    snapshots += s.Rolls > seen;
    seen = s.Rolls;
    return snapshots >= 3;
  };
  ASSERT_TRUE(queue.PumpUntil(climbs));
  EXPECT_TRUE(rc.Snapshot().Running);
  rc.Stop();
  ASSERT_TRUE(queue.PumpUntil([&] { return finished; }, std::chrono::seconds(5)));
  rc.Wait();

  EXPECT_TRUE(end.Stopped);
  EXPECT_EQ(end.StopReason, StopReason::None);
  EXPECT_FALSE(rc.Running());
  EXPECT_LT(r.g.RollCounts[0], MaxRolls);
  EXPECT_FALSE(r.g.HyperDriveOn);
  EXPECT_EQ(r.g.ThrottleValue, 2);
  const RunSnapshot last = rc.Snapshot();
  EXPECT_FALSE(last.Running);
  EXPECT_GE(last.Rolls, seen);
  EXPECT_EQ(last.Rolls, r.g.RollCounts[0]);
  EXPECT_EQ(last.Bets, r.g.BetAmount.All());
  // The redraws the run asked for are made once it is over.
  EXPECT_FALSE(r.ui.redrawn.empty());
}

}  // namespace
