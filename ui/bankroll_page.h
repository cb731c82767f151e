#pragma once
// The "Bankroll" tab: what a new game does with the bankroll, whether it may
// go negative, and the ATM with the money it has moved so far.

#include "ui/config_page.h"

class Dialogs;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class Table;

class BankrollPage : public ConfigPage {
  Q_OBJECT
 public:
  BankrollPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Bankroll"); }
  void Refresh() override;
  void CommitPendingEdit() override;

 private:
  QWidget* BuildNewGame();
  QWidget* BuildLimits();
  QWidget* BuildAtm();
  QWidget* BuildStanding();
  // An amount box's text into a setting; a refused amount snaps back (false).
  bool CommitAmount(QLineEdit* edit, const char* setting, const char* title);
  void UseAtm(int action);

  Table& table_;
  Dialogs& dialogs_;
  QButtonGroup* initType_ = nullptr;
  QLineEdit* initAmount_ = nullptr;
  QCheckBox* allowNegative_ = nullptr;
  QLineEdit* atmAmount_ = nullptr;
  QLabel* invested_ = nullptr;
  QLabel* current_ = nullptr;
  QLabel* wonLost_ = nullptr;
  QLabel* net_ = nullptr;
  QLabel* onTable_ = nullptr;
};

// A table whose ATM and bets give the tab something to show: money brought,
// a few bets on the felt and a loss so far.
void FillSampleBankroll(Table& table);
