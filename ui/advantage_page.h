#pragma once
// The "Advantage" tab: the exact expected value and spread of every bet
// under the table's present payoffs, vig and dice, each row coloured by who
// the bet favours. Worked out afresh whenever the table changes.

#include "ui/config_page.h"

class Dialogs;
class QAction;
class QMenu;
class QTableWidget;
class QTimer;
class Table;
struct ReportTable;

class AdvantagePage : public ConfigPage {
  Q_OBJECT
 public:
  AdvantagePage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Advantage"); }
  void Refresh() override;
  QMenu* PageMenu() override { return menu_; }
  void CommitPendingEdit() override;

  // The rows as shown, for printing and export.
  ReportTable Report() const;

 private:
  void BuildMenu();
  void ShowKeptPlace();
  void Toggle(const char* setting, bool on);
  void Print();
  void ExportCsv();

  Table& table_;
  Dialogs& dialogs_;
  QTableWidget* grid_ = nullptr;
  QMenu* menu_ = nullptr;
  QAction* zeroOutcomes_ = nullptr;
  QAction* miscData_ = nullptr;
  // The scroll place is kept with the game once the player stops scrolling.
  QTimer* keepScroll_ = nullptr;
};
