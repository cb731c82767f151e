#pragma once
// Bet Trends: one strip per bet actually made, its latest won and lost
// amounts oldest first, each cell washed blue for a win and red for a loss,
// and the span of rolls the strip covers.

#include <vector>

#include "stats/summary.h"
#include "ui/statistics_screen.h"

class QLabel;
class QTableWidget;

class BetTrendsScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  BetTrendsScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;

 private:
  QTableWidget* grid_ = nullptr;
  QLabel* empty_ = nullptr;
  std::vector<BetTrendRow> rows_;
};
