#include "sim/table.h"

#include <algorithm>

#include "engine/new_game.h"
#include "engine/place_bet.h"
#include "engine/roll.h"
#include "engine/table_commands.h"
#include "script/interpreter.h"
#include "sim/assemble_game.h"
#include "sim/fresh_table.h"
#include "sim/table_command.h"
#include "sim/table_listener.h"
#include "store/folder_lock.h"
#include "store/save_prompts.h"
#include "store/start_up.h"

Table::Table(FrontEnd& screen)
    : relay_(std::make_unique<TableRelay>(screen, [this] { Publish(); })),
      game_(std::make_unique<Game>()),
      folderLock_(std::make_unique<DataFolderLock>()) {
  AssembleGame(*game_);
  game_->Ui = relay_.get();
  told_ = TakeTableSnapshot(*game_);
}

Table::~Table() = default;

// --- Gate and listeners ------------------------------------------------------

void Table::BeginRun() {
  busy_ = true;
  for (TableListener* l : listeners_) l->RunStarted();
}

void Table::EndRun(StopReason reason) {
  busy_ = false;
  Publish();
  for (TableListener* l : listeners_) l->RunStopped(reason);
}

void Table::Subscribe(TableListener* listener) {
  if (std::find(listeners_.begin(), listeners_.end(), listener) == listeners_.end()) listeners_.push_back(listener);
}

void Table::Unsubscribe(TableListener* listener) { std::erase(listeners_, listener); }

void Table::Publish() {
  const TableSnapshot now = TakeTableSnapshot(*game_);
  if (!listeners_.empty()) TellChanges(told_, now, *game_, listeners_);
  told_ = now;
}

TableResult Table::MarkUnsavedIf(bool changed) {
  if (changed) game_->GameChanged = true;
  return {};
}

// --- Start and end -----------------------------------------------------------

void Table::StartFresh(const FreshTable& how) {
  Command([&](Game& g) {
    SetUpFreshTable(g, how);
    return TableResult{};
  });
}

void Table::StartUp(const std::string& folder, bool claimFolder) {
  Command([&](Game& g) {
    if (claimFolder) ClaimDataFolder(g, *folderLock_, folder);
    ::StartUp(g, folder);
    return TableResult{};
  });
}

TableResult Table::Quit(bool mayCancel) {
  return Command([&](Game& g) {
    if (!StopProgram(g, mayCancel)) return TableResult::Fail(TableCode::Cancelled, "");
    return TableResult{};
  });
}

void Table::CloseDown() {
  Command([&](Game& g) {
    ::CloseDown(g);
    return TableResult{};
  });
}

// --- Bets --------------------------------------------------------------------

BetResult Table::Bet(int betId, Currency change) {
  return Command<BetResult>([&](Game& g) {
    BetResult r;
    r.betId = betId;
    if (!bet::IsTableBet(betId) && !bet::IsStack(betId)) {
      r.code = TableCode::Unknown;
      r.text = "no bet has the number " + std::to_string(betId);
      return r;
    }
    g.BetChange = change;
    PlaceBetOnTable(g, betId);
    r.allowed = g.BetChangeAllowed;
    if (!g.MsgText.empty()) {
      r.code = TableCode::Refused;
      r.title = g.MsgTitle;
      r.text = g.MsgText;
    }
    MarkUnsavedIf(r.allowed != 0);
    return r;
  });
}

TableResult Table::Remove(int betId) {
  return Command([&](Game& g) {
    RemoveBet(g, betId);
    return TableResult{};
  });
}

TableResult Table::RemoveAll() {
  return Command([&](Game& g) {
    RemoveAllBets(g);
    return TableResult{};
  });
}

TableResult Table::Call(int betId, bool on) {
  return Command([&](Game& g) {
    CallBet(g, betId, on ? kToolCallOn : kToolCallOff);
    if (!CanBeCalled(betId)) return Told(*relay_, TableCode::Refused, "this bet cannot be called on or off");
    return TableResult{};
  });
}

TableResult Table::CallAll(bool on) {
  return Command([&](Game& g) {
    CallAllBets(g, on);
    return TableResult{};
  });
}

BetResult Table::Buy(int placeBetId) {
  return Command<BetResult>([&](Game& g) {
    BetResult r;
    r.betId = placeBetId;
    const Currency before = g.BetAmount[placeBetId];
    BuyPlaceBet(g, r.betId);
    r.allowed = before;
    if (r.betId == placeBetId) {
      r.allowed = 0;
      r.code = TableCode::Refused;
      r.title = relay_->LastTitle();
      r.text = relay_->LastText();
    }
    return r;
  });
}

TableResult Table::Click(int betId, bool shift) {
  return Command([&](Game& g) {
    ClickBet(g, betId, shift);
    return TableResult{};
  });
}

TableResult Table::SetClickTool(int tool) { return Set("ClickTool", tool); }

TableResult Table::Enter(int betId, const std::string& text) {
  return Command([&](Game& g) {
    if (!CommitEnteredBet(g, betId, text))
      return TableResult::Fail(TableCode::WrongType, "'" + text + "' is not an amount");
    return TableResult{};
  });
}

// --- Rolls and runs ------------------------------------------------------------

void Table::GoToTable() { OfferInitialCycle(*game_); }

RunResult Table::Throw() {
  Game& g = *game_;
  const int32_t before = g.RollCounts[0];
  g.KeepRolling = false;
  RollDice(g);
  RunResult r;
  r.rolls = g.RollCounts[0] - before;
  r.reason = relay_->LastStop();
  return r;
}

RunResult Table::Roll() {
  return Command<RunResult>([&](Game&) {
    GoToTable();
    return Throw();
  });
}

RunResult Table::Roll(int die1, int die2) {
  return Command<RunResult>([&](Game& g) {
    g.Die1 = die1;
    g.Die2 = die2;
    g.DiceAlreadySet = true;
    GoToTable();
    return Throw();
  });
}

RunResult Table::Run(bool hyperDrive) {
  Game& g = *game_;
  // The script's first cycle is offered as the run will play: a Hyper-Drive
  // run shows no notices from its start.
  if (hyperDrive) g.HyperDriveOn = true;
  GoToTable();
  const int32_t before = g.RollCounts[0];
  BeginRun();
  if (hyperDrive) {
    g.KeepRolling = false;  // a start, not the second press that stops a run
    StartHyperDrive(g);
  } else {
    relay_->WatchRolls(true);
    g.KeepRolling = true;
    RollDice(g);
    relay_->WatchRolls(false);
  }
  // The run is over once RollDice returns, whatever it left behind.
  g.KeepRolling = false;
  g.HyperDriveOn = false;
  RunResult r;
  r.rolls = g.RollCounts[0] - before;
  r.reason = relay_->LastStop() == StopReason::None ? g.StopReason : relay_->LastStop();
  EndRun(r.reason);
  return r;
}

RunResult Table::AutoRoll(int32_t rolls) {
  return Command<RunResult>([&](Game& g) {
    if (rolls < 1 || rolls > MaxRolls) {
      RunResult r;
      r.code = TableCode::OutOfRange;
      r.text = "Auto-Roll takes 1 to 100,000,000 rolls";
      return r;
    }
    const bool savedOn = g.AutoRollOn;
    const int32_t savedDelay = g.AutoRollDelay;
    const int32_t savedLeft = g.RollCountLeft;
    g.AutoRollOn = true;
    g.AutoRollDelay = 0;
    g.RollCountLeft = rolls;
    RunResult r = Run(false);
    g.AutoRollOn = savedOn;
    g.AutoRollDelay = savedDelay;
    g.RollCountLeft = savedLeft;
    return r;
  });
}

RunResult Table::HyperDrive(std::optional<int32_t> rolls) {
  return Command<RunResult>([&](Game& g) {
    RunResult r;
    if (rolls && (*rolls < 1 || *rolls > MaxRolls)) {
      r.code = TableCode::OutOfRange;
      r.text = "Hyper-Drive takes 1 to 100,000,000 rolls";
      return r;
    }
    if (rolls) {
      g.RollCountStop = g.RollCountLeft = *rolls;
    } else if (g.RollCountLeft <= 0) {
      r.code = TableCode::Refused;
      r.text = "no roll count is set (RollCountLeft is 0), so the run would not end: give N";
      return r;
    }
    return Run(true);
  });
}

TableResult Table::Stop(StopReason reason) {
  // No gate: stopping is what a busy table is asked. A screen's run owns the
  // game on its own thread: it is told, never touched.
  if (LiveRunning()) {
    live_->Stop();
    return {};
  }
  Game& g = *game_;
  if (reason == StopReason::None) {
    g.KeepRolling = false;
  } else {
    StopRolling(g, reason);
  }
  g.AutoBetRunning = false;  // a script pass that loops stops too
  return {};
}

TableResult Table::SetThrottle(int32_t value) {
  // No gate: the throttle is turned while the dice roll.
  if (value < 0 || value > 100) return TableResult::Fail(TableCode::OutOfRange, "the throttle runs from 0 to 100");
  if (LiveRunning()) {
    live_->SetThrottle(value);
    return {};
  }
  game_->ThrottleValue = value;
  return {};
}
