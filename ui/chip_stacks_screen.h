#pragma once
// Chip-Stacks: the script's Chip-Stacks with their names and values, and
// the tray tools 7 to 10, each of which stands for one Chip-Stack on the
// table; the chosen stack is put on a tool from here.

#include "ui/statistics_screen.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;

class ChipStacksScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  ChipStacksScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;
  void SettingChanged(const std::string& name) override;

  // Chooses the row of Chip-Stack `stack` (0..99), showing every stack if
  // that one is not in use; -1 when nothing is chosen.
  void SelectStack(int stack);
  int SelectedStack() const;
  // Puts the chosen stack on tray tool `tool` (7..10).
  void PutOnTool(int tool);

 private:
  void UpdateButtons();

  QTableWidget* grid_ = nullptr;
  QCheckBox* showAll_ = nullptr;
  QLabel* tray_ = nullptr;
  QPushButton* toolButtons_[4] = {};
};
