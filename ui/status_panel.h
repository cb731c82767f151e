#pragma once
// The status lines under the table: money, the point and the last roll, the
// dice in use and what plays by itself. Filled from the game when the table
// is idle, from the run's snapshot while a run owns it.

#include <QFrame>
#include <QString>
#include <array>

#include "dice/money.h"

struct Game;
struct RunSnapshot;
class QLabel;

struct StatusFigures {
  Currency Bankroll, OnTable, Invested;
  int Point = 0, Die1 = 0, Die2 = 0;
  int64_t Rolls = 0;
  QString Dice;  // the generator or the Dice Roll File and its status
  QString Auto;  // Auto-Play, Auto-Bet and Auto-Roll as they stand
};

StatusFigures FiguresOf(const Game& g);
// A run's snapshot has no word on the dice or the switches: those stay as `idle` had them.
StatusFigures FiguresOf(const RunSnapshot& shot, const StatusFigures& idle);

class StatusPanel : public QFrame {
  Q_OBJECT
 public:
  explicit StatusPanel(QWidget* parent = nullptr);
  void Show(const StatusFigures& figures);
  // The prompt of a tool mode, or the run's state.
  void ShowPrompt(const QString& prompt);
  void ShowQuickStats(const QString& line);

 private:
  enum Field { kRack, kOnTable, kInvested, kNet, kPoint, kLastRoll, kRolls, kDice, kAuto, kFieldCount };
  std::array<QLabel*, kFieldCount> values_{};
  QLabel* prompt_ = nullptr;
  QLabel* quickStats_ = nullptr;
};

// "$1,234.50", "-$20": money as the status lines show it.
QString MoneyLabel(Currency amount);
