#pragma once
// "Compute percentage dice about an axis": a shooter's effectiveness and the
// axis the dice are set on, for each die. The panel is a thin shell: OK
// applies what it shows through the table, so a test clicks OK on a panel it
// never shows.

#include <QDialog>

#include "dice/prob_table.h"

class QButtonGroup;
class QLineEdit;
class Table;

class AxisPanel : public QDialog {
  Q_OBJECT
 public:
  explicit AxisPanel(Table& table, QWidget* parent = nullptr);

  // Writes an effectiveness above 100 back as 100, computes the table and
  // closes the panel.
  void Apply();

 private:
  Table& table_;
  QLineEdit* effectiveness_[2] = {};
  QButtonGroup* axis_[2] = {};
};
