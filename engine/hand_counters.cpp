#include "engine/hand_counters.h"

#include <algorithm>

#include "engine/game.h"

namespace {

// Sound slots of the line decisions.
constexpr int kSoundLineWin = 13;
constexpr int kSoundLineLoss = 14;
constexpr int kSoundBarred = 15;

void Sound(Game& g, int slot) {
  if (!g.HyperDriveOn && !g.DisableAllSound) g.Ui->PlaySound(slot);
}

}  // namespace

void LineWin(Game& g) {
  auto& h = g.HandStats;
  ++h[hand::kWins];
  ++h[hand::kAllWins];
  ++h[g.PointBeforeRoll > 0 ? hand::kPointsMade : hand::kComeOutWins];
  Sound(g, kSoundLineWin);
}

void LineLoss(Game& g) {
  using namespace hand;
  auto& h = g.HandStats;
  ++h[kLossesInRow];
  ++h[kAllLosses];
  if (g.PointBeforeRoll > 0) {  // a seven-out ends the hand
    ++h[kSevenOuts];
    ++h[kHands];
    h[kMostRolls] = std::max(h[kMostRolls], h[kRolls]);
    h[kMostWins] = std::max(h[kMostWins], h[kWins]);
    h[kRollsOfHands] += h[kRolls];
    h[kWinsOfHands] += h[kWins];
    h[kMostLossesInRow] = std::max(h[kMostLossesInRow], h[kLossesInRow]);
    h[kLastHandRolls] = h[kRolls];
    h[kRolls] = 0;
    h[kLastHandWins] = h[kWins];
    h[kWins] = 0;
    h[kLastHandLossesInRow] = h[kLossesInRow];
    h[kLossesInRow] = 0;
  } else {
    ++h[kComeOutLosses];
  }
  Sound(g, kSoundLineLoss);
}

void LineBarred(Game& g) {
  ++g.HandStats[hand::kLossesInRow];
  ++g.HandStats[hand::kAllLosses];
  ++g.HandStats[hand::kComeOutLosses];
  Sound(g, kSoundBarred);
}
