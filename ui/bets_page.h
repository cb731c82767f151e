#pragma once
// The Configure tab "Bets": table limits, odds allowed, the barred number,
// Put bets and the Lay and Buy vig. Each control goes to the table as soon
// as it is committed; the limits are checked only when the window closes, so
// they are taken as typed.

#include <QString>
#include <string>
#include <vector>

#include "dice/money.h"
#include "ui/config_page.h"

class Dialogs;
class QAbstractButton;
class QComboBox;
class QLineEdit;
class Table;

class BetsPage : public ConfigPage {
  Q_OBJECT
 public:
  BetsPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Bets"); }
  void Refresh() override;
  void CommitPendingEdit() override;

 private:
  // A text field bound to one setting; percentages are shown x100.
  struct AmountField {
    QLineEdit* edit;
    std::string setting;
    bool percent;
  };
  QLineEdit* AddAmount(const char* objectName, const char* setting, bool percent = false);
  void CommitAmount(const AmountField& field);
  void Apply(const std::string& setting, Currency value);

  Table& table_;
  Dialogs& dialogs_;
  std::vector<AmountField> amounts_;
  QComboBox *oddsMethod_ = nullptr, *roundLay_ = nullptr, *roundBuy_ = nullptr;
  QAbstractButton *bar2_ = nullptr, *bar12_ = nullptr, *allowPut_ = nullptr;
  QAbstractButton *chargeAllLay_ = nullptr, *chargeWinLay_ = nullptr;
  QAbstractButton *chargeAllBuy_ = nullptr, *chargeWinBuy_ = nullptr;
};
