#pragma once
// Configure's "Colors" tab: the table's colour scheme, shown on a small
// table as it is chosen, and the three colours reports print amounts in.

#include <array>

#include "ui/config_page.h"

class Dialogs;
class QComboBox;
class QLabel;
class Table;

class ColorsPage : public ConfigPage {
  Q_OBJECT
 public:
  ColorsPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Colors"); }
  void Refresh() override;

 private:
  void ShowSwatches();

  Table& table_;
  QComboBox* scheme_ = nullptr;
  QLabel* swatch_ = nullptr;
  // Text, won and lost, as PrintColors.0..2.
  std::array<QComboBox*, 3> prints_{};
  QLabel* printSample_ = nullptr;
};
