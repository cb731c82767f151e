#pragma once
// The bankroll and Hyper-Drive screen: the run's figures and the button that
// starts and stops Hyper-Drive. It acts only through the signals it sends;
// the window that owns the table starts and stops the run.

#include <QWidget>

#include "dice/money.h"

class QLabel;
class QPushButton;
class QSpinBox;
struct RunSnapshot;

class BankrollWindow : public QWidget {
  Q_OBJECT
 public:
  explicit BankrollWindow(QWidget* parent = nullptr);

  // The figures of the game or of the run under way.
  void ShowFigures(const RunSnapshot& shot, double rollsPerSecond);
  void SetRunning(bool running);
  // The roll count a run starts with (the Auto-Play roll count).
  void SetRolls(int rolls);
  int Rolls() const;

 signals:
  void StartRequested(int rolls);
  void StopRequested();

 private:
  QLabel *high_, *low_, *current_, *rolls_, *speed_;
  QSpinBox* count_;
  QPushButton* button_;
  bool running_ = false;
};
