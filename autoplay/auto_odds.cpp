#include "autoplay/auto_odds.h"

#include <string>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/place_bet.h"

namespace {

// The odds of every number bet whose flat stands, six above it.
void FillNumberOdds(Game& g, int firstOdds) {
  for (int oddsId = firstOdds; oddsId < firstOdds + 6; ++oddsId)
    if (g.BetAmount[oddsId - 6] > 0) TakeFullOdds(g, oddsId);
}

bool Offer(Game& g, const char* active, const char* question, const char* title) {
  const std::string text = std::string(active) + kBreak + question;
  return g.Ui->ShowMessage(title, text, Buttons::YesNo) == Reply::Yes;
}

}  // namespace

void TakeFullOdds(Game& g, int oddsId) {
  if (!bet::IsOdds(oddsId)) return;
  SetBetToMaximum(g, oddsId);  // silences notices and restores the mask itself
}

void TakeFullOddsOnAll(Game& g) {
  if (g.BetAmount[bet::kPassLine] > 0 && g.Point > 0) TakeFullOdds(g, bet::kPassOdds);
  FillNumberOdds(g, bet::kComeOddsBase);
}

void LayFullOddsOnAll(Game& g) {
  if (g.BetAmount[bet::kDontPass] > 0 && g.Point > 0) {
    g.Ui->RedrawBet(bet::kDontPass);
    TakeFullOdds(g, bet::kDontPassOdds);
  }
  FillNumberOdds(g, bet::kDontComeOddsBase);
}

void SetAutoTakeFullOdds(Game& g, bool on, bool quiet) {
  g.AutoTakeFullOdds = on;
  if (!on || quiet) return;
  if (Offer(g, "Auto-Take Full Odds is now active.",
            "Do you also want to take full odds on any bets that are already on the table?", "Auto-Take Full Odds"))
    TakeFullOddsOnAll(g);
}

void SetAutoLayFullOdds(Game& g, bool on, bool quiet) {
  g.AutoLayFullOdds = on;
  if (!on || quiet) return;
  if (Offer(g, "Auto-Lay Full Odds is now active.",
            "Do you also want to lay full odds on any bets that are already on the table?", "Auto-Lay Full Odds"))
    LayFullOddsOnAll(g);
}
