#pragma once
// The Hot-Keys screen: the 36 Ctrl keys, each with the Auto-Bet file it runs
// and the player's note on it. Every change goes through the table, which
// writes "HotKeys.dta" as it makes it, so closing the screen loses nothing.

#include <QWidget>

class Dialogs;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;
class Table;

class HotKeysScreen : public QWidget {
  Q_OBJECT
 public:
  HotKeysScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  // Shows the bindings as the table holds them.
  void Refresh();
  // Makes `key` ('A'..'Z', '0'..'9') the chosen row.
  void SelectKey(char key);
  // Asks for a file for the chosen key; a key already bound keeps its label.
  void DefineChosen();
  void ClearChosen();

 private:
  char ChosenKey() const;
  void LabelEdited(QTableWidgetItem* item);
  void ShowRefusal(const std::string& text);

  Table& table_;
  Dialogs& dialogs_;
  QTableWidget* list_ = nullptr;
  QPushButton *define_ = nullptr, *clear_ = nullptr;
  bool filling_ = false;  // the list is being filled, not edited
};

// Binds a few keys as a player would have them, for the screen's picture.
// The table should have a data folder of its own: each binding is saved.
void DefineSampleHotKeys(Table& table, const std::string& folder);
