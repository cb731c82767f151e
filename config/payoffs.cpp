#include "config/payoffs.h"

#include "engine/game.h"

// Placeholder until the payoff tables are built.
void RestoreDefaultPayoffs(Game& g) {
  for (auto& p : g.Payoff) p = PayoffRecord{};
  for (auto& p : g.FieldPayoff) p = PayoffRecord{};
}
void SetFieldPreset(Game&, int) {}
const char* FieldPresetCaption(int) { return ""; }
void SyncOddsPayoffs(Game&) {}
std::string PayoffRowLabel(const Game& g, int betId) { return g.BetName[betId]; }
bool ValidatePayoffs(Game&) { return true; }
