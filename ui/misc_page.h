#pragma once
// Configure's "Misc." tab: the notice switches, the simulated roll rate and
// the small display switches.

#include <array>

#include "ui/config_page.h"

class Dialogs;
class QCheckBox;
class QComboBox;
class QLineEdit;
class Table;

class MiscPage : public ConfigPage {
  Q_OBJECT
 public:
  MiscPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Misc."); }
  void Refresh() override;
  void CommitPendingEdit() override;

 private:
  void CommitRate();
  void SetFlag(const char* name, bool on);

  Table& table_;
  std::array<QCheckBox*, 5> notices_{};
  QLineEdit* rate_ = nullptr;
  QComboBox* unit_ = nullptr;
  QString rateShown_;  // the text Refresh put in the box: unchanged, it is not re-sent
  QCheckBox* cents_ = nullptr;
  QCheckBox* snap_ = nullptr;
};
