#pragma once
// The Auto-Bet editor: one script seen two ways. The list view numbers the
// lines and builds each from choice lists; the text view shows the same
// lines in the text form for those who type. Every edit goes to the table
// as it is made (ReplaceScript), so the script menus act on what is shown;
// the first cycle of a changed script waits until the editor closes.

#include <QMainWindow>
#include <filesystem>
#include <vector>

#include "engine/script_line.h"

class Dialogs;
class LineBuilder;
class QAction;
class QCheckBox;
class QMenu;
class QTabWidget;
class QTableWidget;
class QUndoStack;
class ScriptTextView;
class Table;

class AutoBetEditor : public QMainWindow {
  Q_OBJECT
 public:
  // `samples` is the folder "Open Sample" lists (the data folder keeps the shipped ones).
  AutoBetEditor(Table& table, Dialogs& dialogs, std::filesystem::path samples, QWidget* parent = nullptr);

  // Takes the table's script afresh: what the editor shows when it opens.
  void Reload();
  const std::vector<ScriptLine>& Lines() const { return lines_; }
  bool Changed() const { return changed_; }

  // --- The list ------------------------------------------------------------------
  // Marks lines 1-based as selected, the first of them current.
  void SelectLines(const std::vector<int>& numbers);
  std::vector<int> SelectedLines() const;
  void InsertBuilt();   // the builder's line before the current one (or at the end)
  void ReplaceBuilt();  // the builder's line in place of the current one
  void InsertLines(const std::vector<ScriptLine>& lines);
  void DeleteSelected();
  void MoveSelected(int by);  // -1 up, +1 down
  void CopySelected();
  void Paste();
  void ToggleMark();

  // --- The menus ------------------------------------------------------------------
  void NewScript();
  void OpenScript();
  void OpenSample(const std::filesystem::path& file);
  bool Save();
  bool SaveAs();
  void CopyToFile();
  void PasteFromFile();
  // Shows the checker's verdict and selects the faulty line; false on a fault.
  bool Check();
  // The leaving check: false keeps the editor open.
  bool MayClose();

  void ShowListView();
  void ShowTextView();

  LineBuilder* Builder() const { return builder_; }
  ScriptTextView* TextView() const { return text_; }
  QTableWidget* List() const { return list_; }
  QCheckBox* Activated() const { return activated_; }
  QUndoStack* Undo() const { return undo_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  friend class LinesEdit;
  void BuildMenus();
  void FillSamples(QMenu* menu);
  // The text view's lines become the lines; false (text view kept) on a fault.
  bool TakeText();
  // An undoable change of the lines, named for the Edit menu.
  void Edit(std::vector<ScriptLine> after, const QString& what, std::vector<int> select);
  // Shows these lines, tells the table, and selects `select`.
  void Apply(const std::vector<ScriptLine>& lines, const std::vector<int>& select);
  void FillList();
  void SelectionMoved();
  void ShowFileMessages(const std::vector<std::pair<std::string, std::string>>& messages);

  Table& table_;
  Dialogs& dialogs_;
  std::filesystem::path samples_;
  std::vector<ScriptLine> lines_;
  std::vector<ScriptLine> clipboard_;
  bool changed_ = false;
  bool filling_ = false;

  QTabWidget* views_;
  QTableWidget* list_;
  LineBuilder* builder_;
  ScriptTextView* text_;
  QCheckBox* activated_;
  QUndoStack* undo_;
};

// Fills the editor as a player would have it, for the screen's pictures: a
// sample strategy with a Go to, a comment, a label and a marked line.
void FillSampleAutoBets(AutoBetEditor& editor);
