#pragma once
// The game's figures on one screen ("Summary"): the run's scale, the
// bankroll, the bets decided with the net, and the hands, in the groups the
// engine orders them. The report prints the same under "Dicemill Summary".

#include <QString>
#include <vector>

#include "stats/summary.h"
#include "ui/statistics_screen.h"

class QGridLayout;
class QLabel;

class SummaryScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  SummaryScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;

 private:
  // Lays out the groups once, from the first figures read.
  void Build();

  std::vector<SummaryRow> rows_;
  // One caption and one value a row; the share only on the net's row.
  std::vector<QLabel*> captions_, values_;
  QLabel* share_ = nullptr;
};
