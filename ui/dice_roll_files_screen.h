#pragma once
// The Dice Roll Files screen: the open file's rolls, the recorder switch,
// the position of the next roll, hand entry and the editing of the file.
// Everything it changes goes through the table; it reads the game only
// while no run owns it, and catches up when a run ends.

#include <QList>
#include <QWidget>
#include <cstdint>
#include <string>

#include "sim/table_listener.h"

class Dialogs;
class QAction;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class RollListView;
class Table;
struct RollTextOptions;

class DiceRollFilesScreen : public QWidget, public TableListener {
  Q_OBJECT
 public:
  DiceRollFilesScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);
  ~DiceRollFilesScreen() override;

  // Shows the file, the recorder and the position as the table has them.
  void Refresh();
  RollListView* List() const { return list_; }

  // --- TableListener ---
  void DiceThrown(int die1, int die2) override;
  void UnsavedChanged(bool unsaved) override;
  void RunStarted() override;
  void RunStopped(StopReason reason) override;

 private:
  void BuildMenus(QMenuBar* bar);
  QWidget* BuildControls();
  QWidget* BuildEntryPad();
  void OpenFile();
  void Enter(int die1, int die2, bool random);
  void Transfer(int transfer);
  void ExportText();
  // Prints the file's rolls, or the selected ones, as the output options say.
  void Print();
  void Edit(int edit);
  void MoveTo(int64_t next, int64_t anchor);
  void ShowHighlights();
  // Without a file the hand entry says so, as the recorder does.
  bool FileOpen(const char* title);
  RollTextOptions TextOptions() const;

  Table& table_;
  Dialogs& dialogs_;
  RollListView* list_ = nullptr;
  QButtonGroup* recorder_ = nullptr;
  QButtonGroup* insert_ = nullptr;
  QLineEdit* next_ = nullptr;
  QLabel *last_ = nullptr, *total_ = nullptr, *selection_ = nullptr;
  QCheckBox *rollNums_ = nullptr, *dieNums_ = nullptr, *numbersCalled_ = nullptr, *printSelected_ = nullptr;
  QLineEdit* fontSize_ = nullptr;
  QWidget* controls_ = nullptr;
  QList<QAction*> fileActions_;  // what needs an open file
  QList<QAction*> marks_;        // the highlights by total, then by face
  QAction* paste_ = nullptr;
  QMenu* menus_[3] = {};
};

// Opens (creating) a roll file in `folder` and fills it with a stretch of
// play, a selection and highlights, for the screen's picture.
void ShowSampleRollFile(DiceRollFilesScreen& screen, Table& table, const std::string& folder);
