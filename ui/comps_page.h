#pragma once
// Configure's "Comps" tab: which bets earn comps, at what rate of the
// theoretical loss, and how that loss is figured.

#include <array>

#include "ui/config_page.h"

class Dialogs;
class QCheckBox;
class QLineEdit;
class QRadioButton;
class Table;

class CompsPage : public ConfigPage {
  Q_OBJECT
 public:
  CompsPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Comps"); }
  void Refresh() override;
  void CommitPendingEdit() override;

 private:
  void CommitRate();
  void Set(const std::string& name, int value);

  Table& table_;
  Dialogs& dialogs_;
  std::array<QCheckBox*, 3> families_{};  // CompBetsMask.1..3
  QLineEdit* rate_ = nullptr;
  QString rateShown_;
  QRadioButton* perDecision_ = nullptr;
  QRadioButton* perRoll_ = nullptr;
  QRadioButton* trueProbs_ = nullptr;
  QRadioButton* currentProbs_ = nullptr;
};
