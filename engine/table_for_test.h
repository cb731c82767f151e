#pragma once
// The tests' table: a front end that records what the engine shows and
// answers from queues, and a new game, assembled as a played one is, with no
// reseeding and no auto-adjust.

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/payoffs.h"
#include "engine/place_bet.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "engine/settle.h"
#include "sim/assemble_game.h"

using Rows = std::vector<std::pair<std::string, std::string>>;

// Selects a generator and seeds it with `seed`, as a script's seed action does.
inline void SeedSilently(Game& g, int choice, Currency seed) {
  g.RngChoice = choice;
  g.SeedRequest = seed;
  SeedRNG(g, true);
}

struct RecordedMessage {
  std::string title, text;
  bool operator==(const RecordedMessage&) const = default;
};
inline void PrintTo(const RecordedMessage& m, std::ostream* os) { *os << '"' << m.title << "\": \"" << m.text << '"'; }

// An empty queue answers as SilentFrontEnd does.
class RecordingFrontEnd : public FrontEnd {
 public:
  std::vector<RecordedMessage> messages, asked;  // asked: AskNumber's title and text
  std::vector<Currency> offered;
  std::vector<SettleNotice> notices;
  std::vector<int> redrawn, sounds;
  int throws = 0;
  StopReason stopReason = StopReason::None;
  std::deque<std::optional<int>> settleReplies;
  std::deque<std::optional<Currency>> numberReplies;

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    messages.push_back({title, text});
    return buttons == Buttons::Ok ? Reply::Ok : buttons == Buttons::YesNoCancel ? Reply::Cancel : Reply::No;
  }
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offer) override {
    asked.push_back({title, text});
    offered.push_back(offer);
    return numberReplies.empty() ? offer : Pop(numberReplies);
  }
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override {
    notices.push_back(notice);
    const std::optional<int> button = settleReplies.empty() ? std::nullopt : Pop(settleReplies);
    if (!button) return std::nullopt;
    return SettleReply{*button, notice.sameBet, notice.bet};
  }
  void ShowThrow(int, int, int) override { ++throws; }
  void RollFinished(StopReason reason) override { stopReason = reason; }
  void PlaySound(int slot) override { sounds.push_back(slot); }
  void RedrawBet(int betId) override { redrawn.push_back(betId); }

 private:
  template <typename T>
  static T Pop(std::deque<T>& queue) {
    T front = queue.front();
    queue.pop_front();
    return front;
  }
};

// A new game: chips 1..500, default payoffs, a bankroll of 500.
struct TestTable {
  Game g;
  RecordingFrontEnd ui;

  TestTable() {
    AssembleGame(g);
    g.ReSeedNewGames = false;
    g.AutoAdjustMode = 0;
    FillDefaults(g);
    NewGame(g, false);
    g.Ui = &ui;
  }
  // The point as a roll leaves it, with the line odds rows following it.
  void SetPoint(int point) {
    g.Point = g.PointBeforeRoll = point;
    SyncOddsPayoffs(g);
  }
  void Dice(int die1, int die2, int point) {
    g.Die1 = die1;
    g.Die2 = die2;
    g.DiceTotal = die1 + die2;
    SetPoint(point);
  }
  // A working bet that stood when the dice went out, put down past the rules.
  void Stand(int id, Currency amount) {
    g.BetAmount.Set(id, amount);
    g.EditAtRollStart()[id] = amount;
    g.TotalOnTable += amount;
    g.SetCommitted(id, amount);
    g.BetStatus.Set(id, 1);
  }
  // As the top of a roll does: what stands now is committed.
  void Commit() {
    Game::CommittedTable standing;
    std::copy_n(g.BetAmount.begin(), standing.size(), standing.begin());
    g.SetAllCommitted(standing);
  }
  // Asks PlaceBet for `change`; the change made.
  Currency Place(int id, Currency change) {
    g.BetChange = change;
    PlaceBet(g, id);
    return g.BetChangeAllowed;
  }
  // What the bankroll gained.
  Currency Settle(Outcome outcome, int id) {
    const Currency before = g.Bankroll();
    SettleBet(g, outcome, id);
    return g.Bankroll() - before;
  }
  void Roll(int die1, int die2) {
    g.Die1 = die1;
    g.Die2 = die2;
    g.DiceAlreadySet = true;
    RollDice(g);
  }
  const RecordedMessage& Last() const { return ui.messages.back(); }
};
