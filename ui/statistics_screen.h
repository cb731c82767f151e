#pragma once
// What every statistics screen shares: a modeless window that follows the
// table (after each visible roll, and once when a run ends, never per roll
// of a run), and a File menu that prints the screen's report or exports its
// table as CSV. A screen supplies its widgets, Refresh() and Report().

#include <QWidget>

#include "sim/table_listener.h"
#include "ui/report_table.h"

class Dialogs;
class QMenu;
class QMenuBar;
class QVBoxLayout;
class Table;

class StatisticsScreen : public QWidget, public TableListener {
  Q_OBJECT
 public:
  StatisticsScreen(Table& table, Dialogs& dialogs, const QString& title, QWidget* parent = nullptr);
  ~StatisticsScreen() override;

  // Re-reads the table; skipped while a run owns it (the run's end calls it).
  virtual void Refresh() = 0;
  // What the screen shows, as a report for paper and CSV.
  virtual ReportTable Report() const = 0;

  // The File menu's commands, open to tests.
  void Print();
  void ExportCsv();

  // TableListener: a visible roll or a command changed the figures.
  void RollFinished(std::span<const Settlement> settlements) override;
  void StatisticsRefreshed() override;
  void RunStopped(StopReason reason) override;
  void FlagsChanged() override;
  void ChipStacksChanged() override;

 protected:
  // Where the screen puts its widgets, under the menu bar.
  QVBoxLayout* Body() const { return body_; }
  QMenuBar* MenuBar() const { return menuBar_; }
  // Refresh, unless a run owns the table.
  void RefreshIfIdle();
  // False stops a print before the printer dialog: Bet Results first wants
  // a selection, and says so.
  virtual bool ReadyToPrint() { return true; }
  void showEvent(QShowEvent* event) override;

  Table& table_;
  Dialogs& dialogs_;

 private:
  QMenuBar* menuBar_ = nullptr;
  QVBoxLayout* body_ = nullptr;
};
