#include "ui/hot_keys_screen.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "engine/game.h"
#include "sim/table.h"
#include "store/hot_keys_file.h"
#include "ui/dialogs.h"

namespace {

constexpr int kKeyCount = 36;
enum Column { kKeyColumn, kFileColumn, kLabelColumn, kColumnCount };

// Letters first, then digits, as the keyboard's Ctrl keys are listed.
char KeyOfRow(int row) { return row < 26 ? static_cast<char>('A' + row) : static_cast<char>('0' + row - 26); }
int RowOfKey(char key) {
  const char c = HotKeyChar(key);
  if (c >= 'A' && c <= 'Z') return c - 'A';
  if (c >= '0' && c <= '9') return 26 + c - '0';
  return -1;
}

QTableWidgetItem* Cell(const QString& text, bool editable) {
  auto* item = new QTableWidgetItem(text);
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (editable) flags |= Qt::ItemIsEditable;
  item->setFlags(flags);
  return item;
}

}  // namespace

HotKeysScreen::HotKeysScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent, Qt::Window), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("frmHotKeys"));
  setWindowTitle(tr("Hot-Keys"));

  auto* intro = new QLabel(
      tr("Press a Ctrl key on the table to run its Auto-Bet file once. Choose a key, then Define a file for it; "
         "double-click a label to write a note."),
      this);
  intro->setWordWrap(true);

  list_ = new QTableWidget(kKeyCount, kColumnCount, this);
  list_->setObjectName(QStringLiteral("picHotKeys"));
  list_->setHorizontalHeaderLabels({tr("Key"), tr("Auto-Bet File"), tr("Label")});
  list_->verticalHeader()->hide();
  list_->verticalHeader()->setDefaultSectionSize(list_->fontMetrics().height() + 8);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  list_->setAlternatingRowColors(true);
  list_->horizontalHeader()->setSectionResizeMode(kKeyColumn, QHeaderView::ResizeToContents);
  list_->horizontalHeader()->setSectionResizeMode(kFileColumn, QHeaderView::Stretch);
  list_->horizontalHeader()->setSectionResizeMode(kLabelColumn, QHeaderView::Stretch);
  connect(list_, &QTableWidget::itemChanged, this, &HotKeysScreen::LabelEdited);
  connect(list_, &QTableWidget::cellDoubleClicked, this, [this](int, int column) {
    if (column != kLabelColumn) DefineChosen();
  });
  connect(list_, &QTableWidget::itemSelectionChanged, this, [this] {
    const char key = ChosenKey();
    define_->setEnabled(key != 0);
    // The game is a run's while one is under way: the buttons wait for it.
    clear_->setEnabled(key != 0 && !table_.Busy() && FindHotKey(table_.State(), key));
  });

  define_ = new QPushButton(tr("&Define ..."), this);
  define_->setObjectName(QStringLiteral("cmdDefine"));
  connect(define_, &QPushButton::clicked, this, &HotKeysScreen::DefineChosen);
  clear_ = new QPushButton(tr("C&lear"), this);
  clear_->setObjectName(QStringLiteral("cmdClear"));
  connect(clear_, &QPushButton::clicked, this, &HotKeysScreen::ClearChosen);
  auto* close = new QPushButton(tr("Close"), this);
  close->setObjectName(QStringLiteral("cmdClose"));
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  auto* forget = new QShortcut(QKeySequence::Delete, list_);
  forget->setContext(Qt::WidgetShortcut);
  connect(forget, &QShortcut::activated, this, &HotKeysScreen::ClearChosen);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(define_);
  buttons->addWidget(clear_);
  buttons->addStretch(1);
  buttons->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(intro);
  column->addWidget(list_, 1);
  column->addLayout(buttons);

  Refresh();
  SelectKey('A');
  resize(640, 660);
}

void HotKeysScreen::Refresh() {
  if (table_.Busy()) return;
  filling_ = true;
  const Game& g = table_.State();
  for (int row = 0; row < kKeyCount; ++row) {
    const char key = KeyOfRow(row);
    const HotKeyBinding* binding = FindHotKey(g, key);
    QTableWidgetItem* caption = Cell(QString::fromStdString(HotKeyCaption(key)), false);
    QFont font = list_->font();
    font.setBold(binding != nullptr);  // the keys that do something stand out
    caption->setFont(font);
    list_->setItem(row, kKeyColumn, caption);
    const QString path = binding ? QString::fromStdString(binding->File) : QString();
    QTableWidgetItem* file = Cell(QFileInfo(path).fileName(), false);
    file->setToolTip(path);
    list_->setItem(row, kFileColumn, file);
    // A note needs a binding to belong to.
    list_->setItem(row, kLabelColumn, Cell(binding ? QString::fromStdString(binding->Label) : QString(), binding));
  }
  filling_ = false;
  const char key = ChosenKey();
  clear_->setEnabled(key != 0 && FindHotKey(g, key));
}

void HotKeysScreen::SelectKey(char key) {
  const int row = RowOfKey(key);
  if (row >= 0) list_->selectRow(row);
}

char HotKeysScreen::ChosenKey() const {
  const QList<QTableWidgetItem*> chosen = list_->selectedItems();
  return chosen.isEmpty() ? 0 : KeyOfRow(chosen.front()->row());
}

void HotKeysScreen::DefineChosen() {
  const char key = ChosenKey();
  if (key == 0) return;
  if (table_.Busy()) return ShowRefusal(kBusyText);
  const auto path = dialogs_.FileName("Select Auto-Bet File for Hot-Key", "*.bet", FileMode::Open);
  if (!path) return;
  if (path->size() > kHotKeyFieldBytes) {
    ShowRefusal("The Auto-Bet file's path is longer than " + std::to_string(kHotKeyFieldBytes) +
                " characters. Move the file to a shorter path to bind it.");
    return;
  }
  const HotKeyBinding* old = FindHotKey(table_.State(), key);
  // The table tells the player itself when the name is empty or the file can't be saved.
  const TableResult result = table_.DefineHotKey(key, *path, old ? old->Label : std::string());
  if (result.code == TableCode::Busy) ShowRefusal(result.text);
  Refresh();
}

void HotKeysScreen::ClearChosen() {
  const char key = ChosenKey();
  if (table_.Busy()) return ShowRefusal(kBusyText);
  if (key == 0 || !FindHotKey(table_.State(), key)) return;
  const TableResult result = table_.ClearHotKey(key);
  if (result.code == TableCode::Busy) ShowRefusal(result.text);
  Refresh();
}

void HotKeysScreen::LabelEdited(QTableWidgetItem* item) {
  if (filling_ || item->column() != kLabelColumn) return;
  if (table_.Busy()) return ShowRefusal(kBusyText);
  const char key = KeyOfRow(item->row());
  const HotKeyBinding* binding = FindHotKey(table_.State(), key);
  if (!binding) return;
  const std::string label = item->text().trimmed().toStdString();
  if (label.size() > kHotKeyFieldBytes) {
    ShowRefusal("A label holds " + std::to_string(kHotKeyFieldBytes) + " characters at most.");
  } else {
    const TableResult result = table_.DefineHotKey(key, binding->File, label);
    if (result.code == TableCode::Busy) ShowRefusal(result.text);
  }
  // Queued: the edited item must outlive the signal that carries it.
  QMetaObject::invokeMethod(this, &HotKeysScreen::Refresh, Qt::QueuedConnection);
}

void HotKeysScreen::ShowRefusal(const std::string& text) { dialogs_.Message({"Hot-Key", text, Buttons::Ok, false}); }

void DefineSampleHotKeys(Table& table, const std::string& folder) {
  struct Sample {
    char key;
    const char* file;
    const char* label;
  };
  const Sample samples[] = {
      {'B', "Buy the 4 and 10.bet", "Buy both outside numbers"},
      {'D', "Dont Pass with odds.bet", "Dark side, full odds"},
      {'I', "Iron Cross.bet", "Field plus 5, 6, 8"},
      {'P', "Press the place bets.bet", ""},
      {'1', "Three point molly.bet", "Line and two Come bets"},
      {'2', "Take it down.bet", "All bets off the table"},
  };
  for (const Sample& s : samples)
    table.DefineHotKey(s.key, (std::filesystem::path(folder) / s.file).string(), s.label);
}
