#pragma once
// One tab of the Configure window. A page shows settings as the table holds
// them and changes them only through Table commands; the window re-reads
// every page after any change, since one setting can move another (a vig
// rule refused, a minimum raised with the checks).

#include <QWidget>

class QMenu;

class ConfigPage : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;

  // The tab's caption, exactly as the tab bar shows it ("Checks/Dice").
  virtual QString Caption() const = 0;
  // Shows the table's settings; called when the window opens, after every
  // change the table reports and when the tab becomes current.
  virtual void Refresh() = 0;
  // The menu that belongs to this tab alone (Payoffs, Probability,
  // Advantage), or nullptr. The window puts it on its menu bar, enabled only
  // while this tab is current.
  virtual QMenu* PageMenu() { return nullptr; }
  // Called before the window closes: commits an edit still in progress, so
  // the closing check sees what the player typed.
  virtual void CommitPendingEdit() {}
  // Takes the player to the control the closing check found at fault: by
  // default the child named `control` (with `index` appended for a control
  // array), focused and its text selected. A grid page shows the row.
  virtual void SelectFault(const QString& control, int index);
};
