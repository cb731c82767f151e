#pragma once
// "Roll Frequencies": one of the 88 selections in detail (how often it came,
// how long since, its share against the odds, and the rolls it takes on
// average), above all 88 at a glance in one table. A click on the table
// picks the selection.

#include "stats/roll_views.h"
#include "ui/statistics_screen.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

class RollFrequenciesScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  RollFrequenciesScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;
  void SettingChanged(const std::string& name) override;

  // 0..87, in the order of the list.
  void SetSelection(int selection);
  int Selection() const;
  // True: the probable percent is that of the percentage dice table.
  void SetSkewed(bool skewed);
  bool Skewed() const { return skewed_; }

 private:
  void ShowSelection();

  bool skewed_ = false;
  QComboBox* selections_ = nullptr;
  QLabel *totalRolls_ = nullptr, *selectionRolls_ = nullptr, *sinceLast_ = nullptr, *actual_ = nullptr,
         *probableCaption_ = nullptr, *probable_ = nullptr, *average_ = nullptr, *skewedCaption_ = nullptr;
  QPushButton* probableButton_ = nullptr;
  QTableWidget* all_ = nullptr;
};
