#pragma once
// The Auto-Play screen: auto-odds and chips, which bets work on the come-out,
// Auto-Roll and the rolls that stop it, what becomes of won and lost bets,
// and how bet amounts are adjusted. Every change goes to the table at once;
// the screen redraws from the table whenever the table tells of a change.
// It starts and stops no run itself: the window that owns the table does.

#include <QWidget>
#include <array>
#include <vector>

#include "sim/table_listener.h"

class Dialogs;
class ModifyAmountRow;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;
class Table;

class AutoPlayScreen : public QWidget, public TableListener {
  Q_OBJECT
 public:
  AutoPlayScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);
  ~AutoPlayScreen() override;

  // Every control from the table's settings; nothing while a run owns it.
  void Refresh();
  // An Auto-Roll run is under way: the button stops it.
  void SetRunning(bool running);
  // "Left:" during a run, as the window hears it from the run.
  void ShowRollsLeft(int rolls);
  // The come-out list's drop-down.
  void ShowWorkOnComeOut(bool open);

  // TableListener: any change may touch a setting shown here.
  void SettingChanged(const std::string& name) override;
  void RollFinished(std::span<const Settlement> settlements) override;
  void UnsavedChanged(bool unsaved) override;
  void RunStarted() override;
  void RunStopped(StopReason reason) override;

 signals:
  void StartAutoRollRequested();
  void StopAutoRollRequested();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* BuildAutoOdds();
  QWidget* BuildWorkOnComeOut();
  QWidget* BuildAutoRoll();
  QWidget* BuildStopOn();
  QWidget* BuildHandling(bool won);
  QWidget* BuildAdjust();

  // A setting changed by a control; a refusal puts the control back.
  void Apply(const std::string& name, int value);
  void ApplyCount(QLineEdit* field, const char* name);
  void SetSelectedWorking(int mode);
  void SelectAllBets();
  void RefreshWorkOnComeOut();
  void RefreshCount(QLineEdit* field, int value);
  void EnableForRun();

  Table& table_;
  Dialogs& dialogs_;
  // Set while the controls are being filled from the table, so that filling
  // them sends nothing back.
  bool loading_ = false;
  bool running_ = false;
  // Set while one button changes many bets: the list is redrawn once at the end.
  bool batch_ = false;

  QCheckBox *takeOdds_ = nullptr, *layOdds_ = nullptr, *removePlace_ = nullptr, *arrangeChips_ = nullptr;
  QToolButton* comeOutArrow_ = nullptr;
  QFrame* comeOutPanel_ = nullptr;
  QListWidget* comeOutList_ = nullptr;
  QCheckBox* autoRoll_ = nullptr;
  QLineEdit *rolls_ = nullptr, *delay_ = nullptr;
  QLabel* rollsLeft_ = nullptr;
  QPushButton* startStop_ = nullptr;
  QListWidget* stopOn_ = nullptr;
  QButtonGroup *wonGroup_ = nullptr, *lostGroup_ = nullptr, *adjustGroup_ = nullptr;
  std::vector<ModifyAmountRow*> amountRows_;
  std::array<QComboBox*, 4> bias_{};
  // Everything a run must not change.
  std::vector<QWidget*> settings_;
};

// Fills a screen on `table` with a player's choices, for its picture.
void StageAutoPlayPicture(Table& table, AutoPlayScreen& screen);
