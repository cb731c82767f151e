#pragma once
// What the table view draws, as the owner last gave it: a copy of the parts
// of a game the layout shows, so the view keeps no game state of its own.

#include <QString>
#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/catalogue.h"
#include "ui/chip_painter.h"
#include "ui/die_painter.h"
#include "ui/layout_painter.h"

struct Game;

// A Chip-Stack on a tray tool (7..10).
struct TrayStackLook {
  QString name;
  Currency amount;
};

struct TableLook {
  std::array<Currency, bet::kLastTableBet + 1> amounts{};  // by BetId, 0 unused
  std::array<int32_t, bet::kLastTableBet + 1> statuses{};
  int point = 0;
  int die1 = 0, die2 = 0;  // 0: no throw to show
  CheckValues checks{1, 5, 25, 100, 500};
  std::array<TrayStackLook, 4> stacks{};
  int tool = 1;  // the click tool, or layout::kToolRemove
  int barNumber = 12;
  FieldPrint field;
  // A bet's payoff as the layout prints it ("7 to 6"); empty where none stands alone.
  std::array<QString, bet::kLastTableBet + 1> payoffs{};
  bool showHop = false;
  bool betsAsNumbers = false;
  // The game's table scheme and its colours, which the layout is painted in.
  int scheme = 0;
  LayoutColours colours;
  ChipStyle chipStyle = ChipStyle::Striped;
  DiceStyle diceStyle = DiceStyle::CasinoRed;
};

// The look of a game's table. The display switches (Hop bets, numbers) are
// the window's and are left at their defaults.
TableLook LookOf(const Game& g);
