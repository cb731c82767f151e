#include "ui/dice_roll_files_screen.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/dialogs.h"
#include "ui/dice_button.h"
#include "ui/roll_list_view.h"
#include "ui/roll_print.h"

namespace {

enum Menu { kFileMenu, kEditMenu, kMarkMenu };

// The print's font size: what the page can hold, and what can be read.
constexpr int kDefaultFontSize = 10, kMinFontSize = 6, kMaxFontSize = 36;

QString Count(int64_t n) { return QLocale().toString(static_cast<qlonglong>(n)); }

QRadioButton* Option(const QString& caption, const QString& name, int id, QButtonGroup* group, QWidget* parent) {
  auto* option = new QRadioButton(caption, parent);
  option->setObjectName(name + QString::number(id));
  group->addButton(option, id);
  return option;
}

}  // namespace

DiceRollFilesScreen::DiceRollFilesScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent, Qt::Window), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("frmDiceRollFiles"));
  list_ = new RollListView(this);
  connect(list_, &RollListView::PositionChosen, this, &DiceRollFilesScreen::MoveTo);
  controls_ = BuildControls();

  auto* row = new QHBoxLayout(this);
  row->addWidget(list_, 1);
  row->addWidget(controls_);
  auto* bar = new QMenuBar(this);
  row->setMenuBar(bar);
  BuildMenus(bar);

  table_.Subscribe(this);
  if (table_.Busy()) RunStarted();  // opened during a run: filled when it ends
  Refresh();
  resize(760, 640);
}

DiceRollFilesScreen::~DiceRollFilesScreen() { table_.Unsubscribe(this); }

void DiceRollFilesScreen::BuildMenus(QMenuBar* bar) {
  auto add = [this](QMenu* menu, const char* name, const QString& caption, auto slot) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
  };
  QMenu* file = menus_[kFileMenu] = bar->addMenu(tr("&File"));
  add(file, "mnuNewOpen", tr("&Open Dice Roll File  or  Enter Name For A New File ..."), [this] { OpenFile(); });
  fileActions_ << add(file, "mnuClose", tr("&Close"), [this] {
    table_.CloseRollFile();
    Refresh();
  });
  file->addSeparator();
  fileActions_ << add(file, "mnuCopyToRollFile", tr("Copy &To Dice Roll File ..."),
                      [this] { Transfer(static_cast<int>(RollFileTransfer::CopyTo)); });
  fileActions_ << add(file, "mnuPasteFromRollFile", tr("Paste &From Dice Roll File ..."),
                      [this] { Transfer(static_cast<int>(RollFileTransfer::PasteFrom)); });
  fileActions_ << add(file, "mnuPasteFromTextFile", tr("Paste From &Ascii/Text File ..."),
                      [this] { Transfer(static_cast<int>(RollFileTransfer::ImportText)); });
  fileActions_ << add(file, "mnuCopyToTextFile", tr("Copy Dice Rolls To Te&xt File ..."), [this] { ExportText(); });

  QMenu* edit = menus_[kEditMenu] = bar->addMenu(tr("&Edit"));
  struct EditItem {
    const char* name;
    const char* caption;
    RollFileEdit edit;
    QKeySequence::StandardKey key;
  };
  const EditItem items[] = {
      {"mnuCut", QT_TR_NOOP("Cu&t"), RollFileEdit::Cut, QKeySequence::Cut},
      {"mnuCopy", QT_TR_NOOP("&Copy"), RollFileEdit::Copy, QKeySequence::Copy},
      {"mnuPaste", QT_TR_NOOP("&Paste"), RollFileEdit::Paste, QKeySequence::Paste},
      {"mnuDelete", QT_TR_NOOP("&Delete"), RollFileEdit::Delete, QKeySequence::Delete},
      {"mnuSelectAll", QT_TR_NOOP("Select &All"), RollFileEdit::SelectAll, QKeySequence::SelectAll},
  };
  for (const EditItem& item : items) {
    if (item.edit == RollFileEdit::SelectAll) edit->addSeparator();
    QAction* action = add(edit, item.name, tr(item.caption), [this, e = item.edit] { Edit(static_cast<int>(e)); });
    action->setShortcut(item.key);
    fileActions_ << action;
    if (item.edit == RollFileEdit::Paste) paste_ = action;
  }
  // The clipboard is a file: whether there is anything to paste is asked as the menu opens.
  connect(edit, &QMenu::aboutToShow, this, &DiceRollFilesScreen::Refresh);

  QMenu* marks = menus_[kMarkMenu] = bar->addMenu(tr("&Highlight"));
  QMenu* totals = marks->addMenu(tr("&Totals"));
  for (int total = 2; total <= 12; ++total) {
    marks_ << add(totals, QStringLiteral("mnuAll%1").arg(total).toLatin1().constData(),
                  tr("All %1's").arg(total), [this] { ShowHighlights(); });
  }
  QMenu* faces = marks->addMenu(tr("&Faces"));
  for (int face = 1; face <= 6; ++face) {
    marks_ << add(faces, QStringLiteral("mnuPip%1").arg(face).toLatin1().constData(),
                  tr("Every die showing %1").arg(face), [this] { ShowHighlights(); });
  }
  for (QAction* mark : marks_) mark->setCheckable(true);
  marks->addSeparator();
  add(marks, "mnuClearAll", tr("Clear &All"), [this] {
    for (QAction* mark : marks_) mark->setChecked(false);
    ShowHighlights();
  });
}

QWidget* DiceRollFilesScreen::BuildControls() {
  auto* panel = new QWidget(this);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);

  auto* recorderBox = new QGroupBox(tr("During game play"), panel);
  auto* recorderRow = new QHBoxLayout(recorderBox);
  recorder_ = new QButtonGroup(this);
  const QString statuses[] = {tr(" Off"), tr(" Record"), tr(" Playback")};
  for (int status = kRecorderOff; status <= kRecorderPlayback; ++status)
    recorderRow->addWidget(Option(statuses[status], QStringLiteral("optRecorderStatus"), status, recorder_, recorderBox));
  connect(recorder_, &QButtonGroup::idClicked, this, [this](int status) {
    table_.SetRecorder(status);  // the table says why when there is no file
    Refresh();
  });
  column->addWidget(recorderBox);

  auto* form = new QFormLayout;
  next_ = new QLineEdit(panel);
  next_->setObjectName(QStringLiteral("txtNextRollNum"));
  next_->setValidator(new QIntValidator(1, INT32_MAX, next_));
  connect(next_, &QLineEdit::returnPressed, this, [this] {
    const int64_t roll = next_->text().toLongLong();
    MoveTo(roll, -1);
    list_->EnsureVisible(roll);
  });
  auto figure = [&](const char* name) {
    auto* label = new QLabel(panel);
    label->setObjectName(QString::fromLatin1(name));
    return label;
  };
  last_ = figure("lblLastRollNum");
  total_ = figure("lblTotalNumRolls");
  selection_ = figure("lblSelectedRolls");
  form->addRow(tr("Next roll is roll #:"), next_);
  form->addRow(tr("Last roll was roll #:"), last_);
  form->addRow(tr("Rolls in the file:"), total_);
  form->addRow(tr("Selected:"), selection_);
  column->addLayout(form);

  column->addWidget(BuildEntryPad());

  auto* output = new QGroupBox(tr("Output Options"), panel);
  auto* outputColumn = new QVBoxLayout(output);
  auto check = [&](const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption, output);
    box->setObjectName(QString::fromLatin1(name));
    box->setChecked(true);
    outputColumn->addWidget(box);
    return box;
  };
  rollNums_ = check("chkRollNums", tr("Include roll #'s"));
  dieNums_ = check("chkDieNums", tr("Include individual die #'s"));
  numbersCalled_ = check("chkNumbersCalled", tr("Include numbers called"));
  printSelected_ = check("chkPrintSelectedRolls", tr(" Include selected rolls only"));
  printSelected_->setChecked(false);
  auto* printRow = new QHBoxLayout;
  fontSize_ = new QLineEdit(QString::number(kDefaultFontSize), output);
  fontSize_->setObjectName(QStringLiteral("txtFontSize"));
  fontSize_->setValidator(new QIntValidator(kMinFontSize, kMaxFontSize, fontSize_));
  fontSize_->setMaximumWidth(40);
  auto* print = new QPushButton(tr("&Print ..."), output);
  print->setObjectName(QStringLiteral("cmdPrint"));
  connect(print, &QPushButton::clicked, this, [this] { Print(); });
  printRow->addWidget(new QLabel(tr("Font size:"), output));
  printRow->addWidget(fontSize_);
  printRow->addStretch(1);
  printRow->addWidget(print);
  outputColumn->addLayout(printRow);
  column->addWidget(output);
  column->addStretch(1);
  return panel;
}

QWidget* DiceRollFilesScreen::BuildEntryPad() {
  auto* box = new QGroupBox(tr("Enter rolls by hand"), this);
  auto* grid = new QGridLayout(box);
  grid->setSpacing(2);
  // Die 1 down the side, die 2 across, as the pad's box view lays them out.
  for (int i = 0; i < 36; ++i) {
    const int die1 = i / 6 + 1, die2 = i % 6 + 1;
    auto* button = new DiceButton(DiceButtonShows::PairAcross, die1, die2, box);
    button->setObjectName(QStringLiteral("cmdRollNumbers%1").arg(i));
    button->setMinimumSize(44, 24);
    connect(button, &DiceButton::clicked, this, [this, die1, die2] { Enter(die1, die2, false); });
    grid->addWidget(button, die1 - 1, die2 - 1);
  }
  auto* random = new QPushButton(tr("Ra&ndom"), box);
  random->setObjectName(QStringLiteral("cmdRandomNum"));
  connect(random, &QPushButton::clicked, this, [this] { Enter(0, 0, true); });
  insert_ = new QButtonGroup(this);
  auto* modes = new QHBoxLayout;
  modes->addWidget(Option(tr(" Type over"), QStringLiteral("optInsertRolls"), 0, insert_, box));
  modes->addWidget(Option(tr(" Insert"), QStringLiteral("optInsertRolls"), 1, insert_, box));
  modes->addStretch(1);
  modes->addWidget(random);
  connect(insert_, &QButtonGroup::idClicked, this, [this](int id) {
    table_.SetRollInsert(id == 1);
    Refresh();
  });
  grid->addLayout(modes, 6, 0, 1, 6);
  return box;
}

void DiceRollFilesScreen::Refresh() {
  if (table_.Busy()) return;  // the run owns the game; RunStopped comes back here
  const Game& g = table_.State();
  const DiceFileState& d = g.DiceFile;
  const bool open = !d.RollFileName.empty();
  // Asked first: it also puts what the table wrote on the disk, where the list reads.
  const int64_t rolls = table_.RollFileRolls();
  const QString path = QString::fromStdString(d.RollFileName);
  setWindowTitle(open ? tr("Dice Roll Files (%1)").arg(QFileInfo(path).fileName()) : tr("Dice Roll Files"));

  recorder_->button(std::clamp(g.DiceFileMode, kRecorderOff, kRecorderPlayback))->setChecked(true);
  insert_->button(d.InsertRolls ? 1 : 0)->setChecked(true);
  for (QAbstractButton* option : insert_->buttons()) option->setEnabled(open);
  next_->setEnabled(open);
  next_->setText(open ? QString::number(d.NextRollNum) : QString());
  last_->setText(open && d.LastRollNum > 0 ? Count(d.LastRollNum) : tr("none"));
  total_->setText(open ? Count(rolls) : tr("none"));
  const int64_t low = std::min(d.NextRollNum, d.SelectAnchor);
  const int64_t high = std::min<int64_t>(std::max(d.NextRollNum, d.SelectAnchor), rolls + 1);
  selection_->setText(!open || high <= low ? tr("none")
                      : high - low == 1    ? tr("roll #%1").arg(Count(low))
                                           : tr("#%1 to #%2 (%3 rolls)").arg(Count(low), Count(high - 1), Count(high - low)));

  list_->ShowFile(path, rolls);
  list_->ShowPosition(d.NextRollNum, d.SelectAnchor, d.LastRollNum);
  for (QAction* action : fileActions_) action->setEnabled(open);
  paste_->setEnabled(open && QFileInfo::exists(QString::fromStdString(EditFilePath(g, kClipboardName))));
}

bool DiceRollFilesScreen::FileOpen(const char* title) {
  if (!table_.State().DiceFile.RollFileName.empty()) return true;
  dialogs_.Message({title, "You need to open a file first.", Buttons::Ok, false});
  return false;
}

void DiceRollFilesScreen::OpenFile() {
  const auto path = dialogs_.FileName("Open Dice Roll File  or  Enter Name For A New File", "*.rol",
                                     FileMode::OpenOrCreate);
  if (!path) return;
  table_.OpenRollFile(*path);  // a name the table can't use is told by it
  Refresh();
}

void DiceRollFilesScreen::Enter(int die1, int die2, bool random) {
  if (!FileOpen("Record Dice Rolls")) return;
  if (random)
    table_.EnterRandomRoll();
  else
    table_.EnterRoll(die1, die2);
  Refresh();
  // The entry and the place of the next one stay in view.
  list_->EnsureVisible(table_.State().DiceFile.NextRollNum);
}

void DiceRollFilesScreen::Edit(int edit) {
  table_.EditRolls(static_cast<RollFileEdit>(edit));
  Refresh();
  list_->EnsureVisible(table_.State().DiceFile.NextRollNum);
}

void DiceRollFilesScreen::Transfer(int transfer) {
  struct Ask {
    const char* title;
    const char* pattern;
    FileMode mode;
  };
  static constexpr Ask kAsks[] = {
      {"Copy To Dice Roll File", "*.rol", FileMode::OpenOrCreate},
      {"Paste From Dice Roll File", "*.rol", FileMode::Open},
      {"Paste From Ascii/Text File", "*.txt", FileMode::Open},
  };
  const Ask& ask = kAsks[transfer];
  const auto path = dialogs_.FileName(ask.title, ask.pattern, ask.mode);
  if (!path) return;
  table_.TransferRolls(static_cast<RollFileTransfer>(transfer), *path);
  Refresh();
}

RollTextOptions DiceRollFilesScreen::TextOptions() const {
  RollTextOptions options;
  options.rollNums = rollNums_->isChecked();
  options.dieNums = dieNums_->isChecked();
  options.numbersCalled = numbersCalled_->isChecked();
  return options;
}

void DiceRollFilesScreen::ExportText() {
  const auto path = dialogs_.FileName("Copy Dice Rolls To Text File", "*.txt", FileMode::Save);
  if (!path) return;
  table_.ExportRolls(*path, TextOptions());  // the table asks about the options and the numbering
  Refresh();
}

void DiceRollFilesScreen::Print() {
  static const char* const kTitle = "Print Dice Rolls";
  if (!FileOpen(kTitle)) return;
  const RollTextOptions options = TextOptions();
  if (!options.dieNums && !options.numbersCalled) {
    dialogs_.Message({kTitle,
                      "You must check at least one of the following boxes found under Output Options:\r"
                      "        Include individual die #'s\r        Include numbers called",
                      Buttons::Ok, false});
    return;
  }
  const DiceFileState& d = table_.State().DiceFile;
  const int64_t rolls = table_.RollFileRolls();  // also puts the table's writes on the disk
  RollPrint job;
  job.rollPath = QString::fromStdString(d.RollFileName);
  job.name = QFileInfo(job.rollPath).fileName();
  job.options = options;
  job.date = QDate::currentDate();
  job.fontSize = std::clamp(fontSize_->text().toInt(), kMinFontSize, kMaxFontSize);
  fontSize_->setText(QString::number(job.fontSize));
  if (printSelected_->isChecked()) {
    job.first = std::min<int64_t>(d.NextRollNum, d.SelectAnchor);
    const int64_t end = std::min<int64_t>(std::max<int64_t>(d.NextRollNum, d.SelectAnchor), rolls + 1);
    job.count = std::max<int64_t>(0, end - job.first);
  } else {
    job.count = rolls;
  }
  if (job.count <= 0) {
    dialogs_.Message({kTitle, "There are no dice rolls to print.", Buttons::Ok, false});
    return;
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(job.name);
  if (!dialogs_.ChoosePrinter(printer, kTitle)) return;
  const int64_t pages = PagesFor(job.count, LayoutRollPages(printer, job));
  const std::string text = "Number of rolls to be printed: " + Count(job.count).toStdString() +
                           "\r\rBased on the options you've selected,\rthis should result in " +
                           Count(pages).toStdString() + (pages == 1 ? " page." : " pages.") +
                           "\r\rAre you ready to begin printing?";
  if (dialogs_.Message({kTitle, text, Buttons::YesNo, false}).reply != Reply::Yes) return;
  if (!PrintRolls(printer, job)) dialogs_.Message({kTitle, "The dice rolls could not be printed.", Buttons::Ok, false});
}

void DiceRollFilesScreen::MoveTo(int64_t next, int64_t anchor) {
  table_.SetRollPosition(next, anchor);
  Refresh();
}

void DiceRollFilesScreen::ShowHighlights() {
  uint16_t totals = 0;
  uint8_t faces = 0;
  for (int total = 2; total <= 12; ++total)
    if (marks_[total - 2]->isChecked()) totals |= static_cast<uint16_t>(1u << total);
  for (int face = 1; face <= 6; ++face)
    if (marks_[11 + face - 1]->isChecked()) faces |= static_cast<uint8_t>(1u << face);
  list_->ShowHighlights(totals, faces);
}

void DiceRollFilesScreen::DiceThrown(int, int) { Refresh(); }  // recording and playback move the position
void DiceRollFilesScreen::UnsavedChanged(bool) { Refresh(); }  // a game opened may bring its own file

void DiceRollFilesScreen::RunStarted() {
  controls_->setEnabled(false);
  for (QMenu* menu : menus_) menu->setEnabled(false);
}

void DiceRollFilesScreen::RunStopped(StopReason) {
  controls_->setEnabled(true);
  for (QMenu* menu : menus_) menu->setEnabled(true);
  Refresh();
}

void ShowSampleRollFile(DiceRollFilesScreen& screen, Table& table, const std::string& folder) {
  table.OpenRollFile((std::filesystem::path(folder) / "Saturday night.rol").string());
  // A fixed stretch of dice, the same in every picture.
  uint32_t state = 20240611;
  for (int roll = 0; roll < 240; ++roll) {
    state = state * 1664525u + 1013904223u;
    table.EnterRoll(static_cast<int>(state >> 8) % 6 + 1, static_cast<int>(state >> 20) % 6 + 1);
  }
  table.SetRollPosition(1);
  table.SetRecorder(kRecorderPlayback);
  for (int roll = 0; roll < 12; ++roll) table.Roll();
  table.SetRollPosition(17, 14);
  screen.findChild<QAction*>(QStringLiteral("mnuAll7"))->trigger();
  screen.Refresh();
}
