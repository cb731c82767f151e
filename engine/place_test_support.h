#pragma once
// Test helpers for placement and rules: a front end that records every
// message, and a table set up with known payoffs.

#include <string>
#include <vector>

#include "engine/frontend.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/place_bet.h"

namespace place_test {

struct Shown {
  std::string title, text;
};

class RecordingFrontEnd : public FrontEnd {
 public:
  std::vector<Shown> messages;
  std::vector<int> redrawn;

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons) override {
    messages.push_back({title, text});
    return Reply::Ok;
  }
  std::optional<Currency> AskNumber(const std::string&, const std::string&, Currency offered) override {
    return offered;
  }
  std::optional<int> ShowSettleNotice(const SettleNotice&) override { return std::nullopt; }
  void RedrawBet(int betId) override { redrawn.push_back(betId); }
};

// The payoffs these tests rely on, set here so that they hold whatever the
// default table becomes.
inline void SetKnownPayoffs(Game& g) {
  const struct { int n; int comeWin, comePer; int placeWin, placePer; } rows[] = {
      {4, 2, 1, 9, 5}, {5, 3, 2, 7, 5}, {6, 6, 5, 7, 6}, {8, 6, 5, 7, 6}, {9, 3, 2, 7, 5}, {10, 2, 1, 9, 5}};
  for (const auto& r : rows) {
    g.Payoff[bet::ComeOdds(r.n)] = {r.comeWin, -1, r.comePer};
    g.Payoff[bet::DontComeOdds(r.n)] = {r.comePer, -1, r.comeWin};
    g.Payoff[bet::Lay(r.n)] = {r.comePer, -1, r.comeWin};
    g.Payoff[bet::Buy(r.n)] = {r.comeWin, -1, r.comePer};
    g.Payoff[bet::Place(r.n)] = {r.placeWin, -1, r.placePer};
  }
  g.Payoff[bet::kHard4] = g.Payoff[bet::kHard10] = {7, -1, 1};
  g.Payoff[bet::kHard6] = g.Payoff[bet::kHard8] = {9, -1, 1};
  g.Payoff[bet::kTwo] = g.Payoff[bet::kTwelve] = {30, -1, 1};
  g.Payoff[bet::kThree] = g.Payoff[bet::kEleven] = {15, -1, 1};
  g.Payoff[bet::kSeven] = {4, -1, 1};
  g.Payoff[bet::kCraps] = {7, -1, 1};
  g.Payoff[bet::kCandE] = {1, -1, 2};
  g.Payoff[bet::kHorn] = {1, -1, 4};
  g.Payoff[bet::kWorld] = {1, -1, 5};
}

// A table with chips 1, 5, 25, 100, 500, the catalogue names, known payoffs,
// no auto-adjust, a bankroll of 500 and a recording front end.
struct Table {
  Game g;
  RecordingFrontEnd ui;

  Table() {
    FillDefaults(g);
    SetKnownPayoffs(g);
    g.AutoAdjustMode = 0;
    g.Bankroll() = 500;
    g.Ui = &ui;
  }

  // Asks for `change` on betId and returns the change made.
  Currency Place(int betId, Currency change) {
    g.BetChange = change;
    PlaceBet(g, betId);
    return g.BetChangeAllowed;
  }
  // The point is set, with the line odds rows following it.
  void SetPoint(int n) {
    g.Point = g.PointBeforeRoll = n;
    g.Payoff[bet::kPassOdds] = g.Payoff[bet::ComeOdds(n)];
    g.Payoff[bet::kDontPassOdds] = g.Payoff[bet::DontComeOdds(n)];
  }
  // As the top of a roll does: what stands now is committed.
  void Commit() {
    for (int id = 0; id <= bet::kDontPass; ++id) g.BetCommitted[id] = g.BetAmount[id];
  }
  const Shown& Last() const { return ui.messages.back(); }
};

}  // namespace place_test
