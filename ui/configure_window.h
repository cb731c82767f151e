#pragma once
// The Configure window: every rule, payoff, limit and die of the table on
// ten tabs. It is modal over the table and closes only when the settings
// pass the table's check; on a fault the check's one message has been shown,
// and the window takes the player to the tab and control at fault.

#include <QDialog>
#include <QList>

#include "sim/table_listener.h"

class ConfigPage;
class QMenu;
class QTabWidget;
class Table;

class ConfigureWindow : public QDialog, public TableListener {
  Q_OBJECT
 public:
  // Takes the pages, in tab order, as its own.
  ConfigureWindow(Table& table, const QList<ConfigPage*>& pages, QWidget* parent = nullptr);
  ~ConfigureWindow() override;

  QTabWidget* Tabs() const { return tabs_; }
  ConfigPage* Page(int index) const { return pages_.value(index); }
  // The tab whose caption is `caption`, or -1.
  int TabOf(const QString& caption) const;

  // Closes when the check passes; otherwise stays open at the fault.
  void done(int result) override;

  // TableListener: another screen, the ATM or a refused change moved a
  // setting the current tab shows.
  void BetChanged(int betId, Currency before, Currency after) override;
  void BankrollChanged(Currency bankroll, Currency rail) override;
  void SettingChanged(const std::string& name) override;

 private:
  void ShowTab(int index);
  void RefreshSoon();

  Table& table_;
  QTabWidget* tabs_ = nullptr;
  QList<ConfigPage*> pages_;
  QList<QMenu*> menus_;  // each page's own menu, or nullptr
  bool refreshPending_ = false;
};
