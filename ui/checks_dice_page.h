#pragma once
// The "Checks/Dice" tab: the five check values, the random number generator
// with its seeding, and the look of the chips and dice.

#include <QStringList>
#include <array>

#include "ui/config_page.h"

class Dialogs;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class Table;

// The names of the chip and dice styles, in the index order the game keeps.
QStringList ChipStyleNames();
QStringList DiceStyleNames();

class ChecksDicePage : public ConfigPage {
  Q_OBJECT
 public:
  ChecksDicePage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Checks/Dice"); }
  void Refresh() override;
  void CommitPendingEdit() override;

 private:
  QWidget* BuildChecks();
  QWidget* BuildGenerator();
  QWidget* BuildLooks();
  void CommitCheck(int index);
  void SetAndRefresh(const char* name, int value);
  // "Seed RNG now": the player's seed or the clock's, then the notice.
  void SeedNow();

  Table& table_;
  Dialogs& dialogs_;
  std::array<QLineEdit*, 5> checks_{};
  QComboBox* rng_ = nullptr;
  QButtonGroup* seedMode_ = nullptr;
  QCheckBox* reSeed_ = nullptr;
  QLabel* lastSeed_ = nullptr;
  QComboBox* chipStyle_ = nullptr;
  QComboBox* diceStyle_ = nullptr;
};
