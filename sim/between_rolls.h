#pragma once
// The controls a screen may work while a run owns the game. They wait for the
// next pause between rolls and are carried out there by the run itself.

struct Game;

enum class BetweenRollsKind { Throttle, GraphWindow, GraphScale };

struct BetweenRolls {
  BetweenRollsKind Kind = BetweenRollsKind::Throttle;
  int Value = 0;  // the throttle; for the graph 1 up or larger, 0 down or smaller
};

constexpr int kThrottleSlowest = 100;  // the throttle bar's range is 0..100

void ApplyBetweenRolls(Game& g, const BetweenRolls& control);
