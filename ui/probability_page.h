#pragma once
// The "Probability" tab of the Configure window: the percentage dice table,
// how its weights are shown, whether the dice use it, and its .prb file.
// Every edit is a table command; the page re-reads the table after each, so
// a refused edit simply shows the table as it stands.

#include "ui/config_page.h"

class Dialogs;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class ProbabilityGrid;
class Table;

class ProbabilityPage : public ConfigPage {
  Q_OBJECT
 public:
  ProbabilityPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Probability"); }
  void Refresh() override;
  QMenu* PageMenu() override { return menu_; }
  void CommitPendingEdit() override;

  ProbabilityGrid* Grid() const { return grid_; }

  // The page's menu entries.
  void NewTable();
  void OpenTable();
  void SaveTable();
  void ComputeAxis();

 private:
  QWidget* BuildSidePanel();
  void CommitEntry(int row, int column, double typed);
  void ToggleLock(int row, int column);
  void RollsOutOfEdited();

  Table& table_;
  Dialogs& dialogs_;
  ProbabilityGrid* grid_ = nullptr;
  QButtonGroup* displayMode_ = nullptr;
  QLineEdit* rollsOutOf_ = nullptr;
  QCheckBox* useSkewed_ = nullptr;
  QLabel *tableMode_ = nullptr, *fileName_ = nullptr;
  QPushButton* unlockAll_ = nullptr;
  QMenu* menu_ = nullptr;
  bool refreshing_ = false;  // controls are being filled, not changed by the player
};

// A table a shooter might use: both dice set about the 1-6 axis at 40%, and
// the skewed dice switched on, for the page's picture.
void FillSampleProbabilities(Table& table);
