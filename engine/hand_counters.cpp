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
  ++h[1];
  ++h[10];
  ++h[g.PointBeforeRoll > 0 ? 8 : 9];
  Sound(g, kSoundLineWin);
}

void LineLoss(Game& g) {
  auto& h = g.HandStats;
  ++h[15];
  ++h[13];
  if (g.PointBeforeRoll > 0) {  // a seven-out ends the hand
    ++h[11];
    ++h[2];
    h[3] = std::max(h[3], h[0]);
    h[4] = std::max(h[4], h[1]);
    h[5] += h[0];
    h[6] += h[1];
    h[16] = std::max(h[16], h[15]);
    h[17] = h[0];
    h[0] = 0;
    h[18] = h[1];
    h[1] = 0;
    h[19] = h[15];
    h[15] = 0;
  } else {
    ++h[12];
  }
  Sound(g, kSoundLineLoss);
}

void LineBarred(Game& g) {
  ++g.HandStats[15];
  ++g.HandStats[13];
  ++g.HandStats[12];
  Sound(g, kSoundBarred);
}
