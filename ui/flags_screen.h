#pragma once
// Flags: every Flag of the game's script with its value now and its value
// at the end of the script's previous pass.

#include "ui/statistics_screen.h"

class QLabel;
class QTableWidget;

class FlagsScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  FlagsScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;

 private:
  QTableWidget* grid_ = nullptr;
  QLabel* empty_ = nullptr;
};
