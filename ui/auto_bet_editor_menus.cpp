// The Auto-Bet editor's menus: its files, the checker and the leaving check.

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QMenuBar>
#include <QTableWidget>
#include <QUndoStack>
#include <algorithm>

#include "engine/game.h"
#include "engine/script.h"
#include "script/checker.h"
#include "sim/table.h"
#include "store/bet_file.h"
#include "script/text_form.h"
#include "ui/auto_bet_editor.h"
#include "ui/auto_bet_line_builder.h"
#include "ui/dialogs.h"
#include "ui/script_text_view.h"

namespace {

constexpr const char* kBetPattern = "*.bet";
constexpr const char* kTitle = "Auto-Bet";

// What a sample does, in its own words: the first comment line of the file.
std::string SampleSummary(const std::filesystem::path& file) {
  std::vector<ScriptLine> lines;
  if (!ReadAutoBetFile(file.string(), lines)) return "";
  for (const ScriptLine& l : lines) {
    if (l.Kind != line_kind::kComment) continue;
    std::string text = l.Name.substr(l.Name.starts_with("'") ? 1 : 0);
    const size_t colon = text.find(':');
    return colon == std::string::npos ? text : text.substr(colon + 1);
  }
  return "";
}

std::string Trim(std::string s) {
  s.erase(0, s.find_first_not_of(' '));
  s.erase(s.find_last_not_of(' ') + 1);
  return s;
}

}  // namespace

void AutoBetEditor::BuildMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  auto add = [this](QMenu* menu, const QString& caption, const char* name, auto&& act,
                    QKeySequence key = QKeySequence()) {
    QAction* a = menu->addAction(caption, this, act);
    a->setObjectName(QString::fromLatin1(name));
    if (!key.isEmpty()) a->setShortcut(key);
    return a;
  };
  add(file, tr("&New"), "mnuNew", [this] { NewScript(); });
  add(file, tr("&Open ..."), "mnuOpen", [this] { OpenScript(); });
  QMenu* samples = file->addMenu(tr("Open Sa&mple"));
  samples->setObjectName(QStringLiteral("mnuOpenSample"));
  connect(samples, &QMenu::aboutToShow, this, [this, samples] { FillSamples(samples); });
  FillSamples(samples);
  add(file, tr("&Save"), "mnuSave", [this] { Save(); }, QKeySequence::Save);
  add(file, tr("Save &As ..."), "mnuSaveAs", [this] { SaveAs(); });
  file->addSeparator();
  add(file, tr("&Copy To Auto-Bet File ..."), "mnuCopyToFile", [this] { CopyToFile(); });
  add(file, tr("&Paste From Auto-Bet File ..."), "mnuPasteFromFile", [this] { PasteFromFile(); });
  file->addSeparator();
  add(file, tr("&Close"), "mnuClose", [this] { close(); });

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  QAction* undo = undo_->createUndoAction(this, tr("&Undo"));
  undo->setObjectName(QStringLiteral("mnuUndo"));
  undo->setShortcut(QKeySequence::Undo);
  QAction* redo = undo_->createRedoAction(this, tr("&Redo"));
  redo->setObjectName(QStringLiteral("mnuRedo"));
  redo->setShortcut(QKeySequence::Redo);
  edit->addAction(undo);
  edit->addAction(redo);
  edit->addSeparator();
  add(edit, tr("&Insert Line"), "mnuInsert", [this] { InsertBuilt(); }, QKeySequence(Qt::Key_Insert));
  add(edit, tr("&Replace Line"), "mnuReplace", [this] { ReplaceBuilt(); });
  add(edit, tr("&Delete Lines"), "mnuDelete", [this] { DeleteSelected(); }, QKeySequence::Delete);
  add(edit, tr("Move &Up"), "mnuMoveUp", [this] { MoveSelected(-1); }, QKeySequence(Qt::ALT | Qt::Key_Up));
  add(edit, tr("Move Do&wn"), "mnuMoveDown", [this] { MoveSelected(1); }, QKeySequence(Qt::ALT | Qt::Key_Down));
  edit->addSeparator();
  add(edit, tr("&Copy Lines"), "mnuCopy", [this] { CopySelected(); }, QKeySequence::Copy);
  add(edit, tr("&Paste Lines"), "mnuPaste", [this] { Paste(); }, QKeySequence::Paste);
  add(edit, tr("&Mark Lines"), "mnuMark", [this] { ToggleMark(); }, QKeySequence(Qt::CTRL | Qt::Key_M));

  QMenu* view = menuBar()->addMenu(tr("&View"));
  add(view, tr("&Lines"), "mnuViewLines", [this] { ShowListView(); });
  add(view, tr("&Text"), "mnuViewText", [this] { ShowTextView(); });

  QMenu* check = menuBar()->addMenu(tr("&Check"));
  add(check, tr("&Check Auto-Bets"), "mnuCheckBets", [this] { Check(); }, QKeySequence(Qt::Key_F7));
}

void AutoBetEditor::FillSamples(QMenu* menu) {
  menu->clear();
  std::vector<std::filesystem::path> files;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(samples_, none))
    if (IsBetFilePath(entry.path().string())) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const std::filesystem::path& file : files) {
    const std::string summary = Trim(SampleSummary(file));
    QString caption = QString::fromStdString(file.stem().string());
    if (!summary.empty()) caption += QStringLiteral("  -  ") + QString::fromStdString(summary);
    menu->addAction(caption, this, [this, file] { OpenSample(file); });
  }
  if (files.empty()) menu->addAction(tr("(no samples in %1)").arg(QString::fromStdString(samples_.string())))->setEnabled(false);
}

void AutoBetEditor::NewScript() {
  if (!TakeText()) return;
  if (!table_.NewScriptInEditor().Done()) return;
  Reload();
  changed_ = true;  // the script the table had is gone
}

void AutoBetEditor::OpenScript() {
  if (!TakeText()) return;
  const std::optional<std::string> path = dialogs_.FileName("Open Auto-Bet File", kBetPattern, FileMode::Open);
  if (path) OpenSample(*path);
}

void AutoBetEditor::OpenSample(const std::filesystem::path& file) {
  if (!TakeText()) return;
  if (!table_.OpenScriptInEditor(file.string()).Done()) return;
  Reload();
  changed_ = true;
}

bool AutoBetEditor::Save() {
  if (!TakeText()) return false;
  const std::string& name = table_.State().AutoBet.FileName;
  if (name.empty()) return SaveAs();
  return table_.SaveScriptAs(name).Done();
}

bool AutoBetEditor::SaveAs() {
  if (!TakeText()) return false;
  const std::optional<std::string> path = dialogs_.FileName("Save Auto-Bet File As", kBetPattern, FileMode::Save);
  if (!path || !table_.SaveScriptAs(*path).Done()) return false;
  Reload();
  changed_ = true;  // saving is no reason to skip the first cycle of what was edited
  return true;
}

void AutoBetEditor::CopyToFile() {
  std::vector<ScriptLine> chosen;
  for (int n : SelectedLines()) chosen.push_back(lines_[static_cast<size_t>(n - 1)]);
  if (chosen.empty()) {
    dialogs_.Message({kTitle, "Select the lines to copy first.", Buttons::Ok, false});
    return;
  }
  const std::optional<std::string> path = dialogs_.FileName("Copy To Auto-Bet File", kBetPattern, FileMode::Save);
  if (path) table_.WriteScriptLines(*path, chosen);
}

void AutoBetEditor::PasteFromFile() {
  const std::optional<std::string> path = dialogs_.FileName("Paste From Auto-Bet File", kBetPattern, FileMode::Open);
  if (!path) return;
  std::vector<ScriptLine> lines;
  const FileStatus read = ReadAutoBetFile(*path, lines);
  for (const FileMessage& m : read.Messages) dialogs_.Message({m.Title, m.Text, Buttons::Ok, false});
  if (read) InsertLines(lines);
}

bool AutoBetEditor::Check() {
  if (!TakeText()) return false;
  if (lines_.empty()) {
    dialogs_.Message({kTitle,
                      "This feature checks to see that your Auto-Bet script is properly structured, "
                      "but presently your script is empty.",
                      Buttons::Ok, false});
    return true;
  }
  Script script;
  script.Lines = lines_;
  const std::optional<ScriptFault> fault = CheckScript(script);
  if (!fault) {
    dialogs_.Message({kTitle, "Your script is properly structured.", Buttons::Ok, false});
    return true;
  }
  ShowListView();
  SelectLines({fault->Line});
  dialogs_.Message({fault->Title, fault->Text, Buttons::Ok, false});
  return false;
}

bool AutoBetEditor::MayClose() {
  if (!TakeText()) return false;
  bool active = activated_->isChecked();
  if (active && !lines_.empty()) {
    Script script;
    script.Lines = lines_;
    if (const std::optional<ScriptFault> fault = CheckScript(script)) {
      ShowListView();
      SelectLines({fault->Line});
      dialogs_.Message({fault->Title, fault->Text, Buttons::Ok, false});
      const Reply reply = dialogs_.Message({kTitle,
                                            "Would you like to deactivate Auto-betting and return to the game "
                                            "table anyway?",
                                            Buttons::YesNo, false})
                              .reply;
      if (reply != Reply::Yes) return false;
      active = false;
      activated_->setChecked(false);
    }
  }
  table_.CloseScriptEditor(changed_, active);
  changed_ = false;
  undo_->clear();
  return true;
}

void FillSampleAutoBets(AutoBetEditor& editor) {
  const char* text =
      "'Place 6 and 8, pressed once after two wins in a row; a seven-out starts over.\n"
      "While\n"
      "  Next roll is a come-out roll\n"
      "then\n"
      "  Bet $10 on Pass Line\n"
      "  Go to \"done\"\n"
      "When\n"
      "  A point is established on any point\n"
      "then\n"
      "  Bet $12 on Place 6\n"
      "  Bet $12 on Place 8\n"
      "When\n"
      "  Place 6 has won 2\n"
      "and while\n"
      "  Flag \"pressed 6\" is False\n"
      "then\n"
      "  Bet $24 on Place 6\n"
      "  Set flag \"pressed 6\" to True\n"
      "When\n"
      "  Bankroll is less than $300\n"
      "then\n"
      "  Stop Auto-Rolling / Hyper-Drive\n"
      "Label \"done\"\n";
  std::vector<ScriptLine> lines;
  std::string error;
  if (!ReadScriptText(text, lines, error)) return;
  editor.InsertLines(lines);
  editor.SelectLines({13});
  editor.ToggleMark();
  editor.SelectLines({10, 11});
  editor.Builder()->Load(lines[9]);
}
