#include "ui/auto_bet_editor.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QUndoStack>
#include <QVBoxLayout>
#include <algorithm>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/auto_bet_line_builder.h"
#include "ui/script_text_view.h"

// One change of the lines: both sides kept whole, as scripts are short.
class LinesEdit : public QUndoCommand {
 public:
  LinesEdit(AutoBetEditor& editor, std::vector<ScriptLine> before, std::vector<ScriptLine> after,
            std::vector<int> select, const QString& what)
      : QUndoCommand(what), editor_(editor), before_(std::move(before)), after_(std::move(after)),
        select_(std::move(select)) {}
  void undo() override { editor_.Apply(before_, select_); }
  void redo() override { editor_.Apply(after_, select_); }

 private:
  AutoBetEditor& editor_;
  std::vector<ScriptLine> before_, after_;
  std::vector<int> select_;
};

namespace {

enum Column { kNumberColumn, kTextColumn };
enum View { kListView, kTextView };

QString NumberText(int n, bool marked) { return (marked ? QStringLiteral("\u25B6 ") : QString()) + QString::number(n); }

}  // namespace

AutoBetEditor::AutoBetEditor(Table& table, Dialogs& dialogs, std::filesystem::path samples, QWidget* parent)
    : QMainWindow(parent), table_(table), dialogs_(dialogs), samples_(std::move(samples)) {
  setObjectName(QStringLiteral("frmAutoBet"));
  setWindowTitle(tr("Auto-Bet"));
  undo_ = new QUndoStack(this);

  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  activated_ = new QCheckBox(tr("Auto-Bets activated"), central);
  activated_->setObjectName(QStringLiteral("chkAutoBetsActivated"));
  layout->addWidget(activated_);

  views_ = new QTabWidget(central);
  views_->setObjectName(QStringLiteral("tabViews"));
  auto* listPage = new QSplitter(Qt::Horizontal, views_);
  list_ = new QTableWidget(0, 2, listPage);
  list_->setObjectName(QStringLiteral("lstAutoBets"));
  list_->setHorizontalHeaderLabels({tr("#"), tr("Logged bets")});
  list_->verticalHeader()->hide();
  list_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  list_->horizontalHeader()->setSectionResizeMode(kNumberColumn, QHeaderView::ResizeToContents);
  list_->horizontalHeader()->setSectionResizeMode(kTextColumn, QHeaderView::Stretch);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setShowGrid(false);
  list_->setWordWrap(false);
  QFont mono(QStringLiteral("Monospace"));
  mono.setStyleHint(QFont::TypeWriter);
  list_->setFont(mono);
  list_->verticalHeader()->setDefaultSectionSize(list_->fontMetrics().height() + 4);

  auto* side = new QWidget(listPage);
  auto* sideLayout = new QVBoxLayout(side);
  builder_ = new LineBuilder(side);
  sideLayout->addWidget(builder_);
  auto* buttons = new QGridLayout;
  auto button = [&](const QString& caption, const char* name, int row, int column, auto&& act) {
    auto* b = new QPushButton(caption, side);
    b->setObjectName(QString::fromLatin1(name));
    connect(b, &QPushButton::clicked, this, act);
    buttons->addWidget(b, row, column);
  };
  button(tr("&Insert"), "cmdInsert", 0, 0, [this] { InsertBuilt(); });
  button(tr("&Replace"), "cmdReplace", 0, 1, [this] { ReplaceBuilt(); });
  button(tr("&Delete"), "cmdDelete", 0, 2, [this] { DeleteSelected(); });
  button(tr("Move &Up"), "cmdMoveUp", 1, 0, [this] { MoveSelected(-1); });
  button(tr("Move Do&wn"), "cmdMoveDown", 1, 1, [this] { MoveSelected(1); });
  button(tr("&Mark"), "cmdMark", 1, 2, [this] { ToggleMark(); });
  sideLayout->addLayout(buttons);
  sideLayout->addStretch(1);
  listPage->addWidget(list_);
  listPage->addWidget(side);
  listPage->setStretchFactor(0, 3);
  listPage->setStretchFactor(1, 2);

  text_ = new ScriptTextView(views_);
  views_->addTab(listPage, tr("&Lines"));
  views_->addTab(text_, tr("&Text"));
  layout->addWidget(views_, 1);
  setCentralWidget(central);

  connect(list_, &QTableWidget::itemSelectionChanged, this, &AutoBetEditor::SelectionMoved);
  connect(list_, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
    builder_->Load(lines_.at(static_cast<size_t>(row)));
  });
  // Leaving the text view takes what was typed; a fault keeps the player there.
  connect(views_, &QTabWidget::currentChanged, this, [this](int index) {
    if (filling_) return;
    if (index == kListView && !TakeText()) {
      filling_ = true;
      views_->setCurrentIndex(kTextView);
      filling_ = false;
    } else if (index == kTextView) {
      text_->SetLines(lines_);
    }
  });
  connect(activated_, &QCheckBox::toggled, this, [this] { changed_ = changed_ || !filling_; });
  BuildMenus();
  resize(980, 600);
  Reload();
}

void AutoBetEditor::Reload() {
  const Game& g = table_.State();
  filling_ = true;
  activated_->setChecked(g.AutoBetActivated);
  filling_ = false;
  undo_->clear();
  changed_ = false;
  lines_ = g.AutoBet.Lines;
  FillList();
  if (views_->currentIndex() == kTextView) text_->SetLines(lines_);
  const QString name = QString::fromStdString(std::filesystem::path(g.AutoBet.FileName).filename().string());
  setWindowTitle(name.isEmpty() ? tr("Auto-Bet") : tr("Auto-Bet - %1").arg(name));
}

void AutoBetEditor::FillList() {
  filling_ = true;
  list_->setRowCount(static_cast<int>(lines_.size()));
  for (int row = 0; row < list_->rowCount(); ++row) {
    const ScriptLine& l = lines_[static_cast<size_t>(row)];
    auto* number = new QTableWidgetItem(NumberText(row + 1, l.Marked));
    number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const bool indented = l.Kind == line_kind::kCondition || l.Kind == line_kind::kAction;
    auto* text = new QTableWidgetItem(QString::fromStdString((indented ? "    " : "") + l.Text));
    if (l.Kind == line_kind::kComment) text->setForeground(QColor(0x2e, 0x7d, 0x32));
    if (line_kind::IsStartCondition(l.Kind) || line_kind::IsStartAction(l.Kind) || l.Kind == line_kind::kLabel) {
      QFont bold = list_->font();
      bold.setBold(true);
      text->setFont(bold);
    }
    list_->setItem(row, kNumberColumn, number);
    list_->setItem(row, kTextColumn, text);
  }
  filling_ = false;
}

void AutoBetEditor::Apply(const std::vector<ScriptLine>& lines, const std::vector<int>& select) {
  lines_ = lines;
  changed_ = true;
  table_.ReplaceScript(lines_);
  FillList();
  SelectLines(select);
  if (views_->currentIndex() == kTextView) text_->SetLines(lines_);
}

void AutoBetEditor::Edit(std::vector<ScriptLine> after, const QString& what, std::vector<int> select) {
  undo_->push(new LinesEdit(*this, lines_, std::move(after), std::move(select), what));
}

void AutoBetEditor::SelectLines(const std::vector<int>& numbers) {
  filling_ = true;
  list_->clearSelection();
  for (int n : numbers) {
    if (n < 1 || n > list_->rowCount()) continue;
    list_->selectionModel()->select(list_->model()->index(n - 1, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  if (!numbers.empty() && numbers.front() >= 1 && numbers.front() <= list_->rowCount()) {
    list_->setCurrentCell(numbers.front() - 1, kTextColumn, QItemSelectionModel::NoUpdate);
    list_->scrollTo(list_->model()->index(numbers.front() - 1, 0), QAbstractItemView::PositionAtTop);
  }
  filling_ = false;
  SelectionMoved();
}

std::vector<int> AutoBetEditor::SelectedLines() const {
  std::vector<int> rows;
  for (const QModelIndex& i : list_->selectionModel()->selectedRows()) rows.push_back(i.row() + 1);
  std::sort(rows.begin(), rows.end());
  return rows;
}

// The editor's marks follow the list's selection; they are no change of the script.
void AutoBetEditor::SelectionMoved() {
  if (filling_) return;
  const std::vector<int> chosen = SelectedLines();
  for (size_t i = 0; i < lines_.size(); ++i)
    lines_[i].Selected = std::binary_search(chosen.begin(), chosen.end(), static_cast<int>(i) + 1);
}

namespace {
// Where new lines go: before the first selected line, else at the end.
size_t InsertAt(const std::vector<int>& selected, size_t count) {
  return selected.empty() ? count : static_cast<size_t>(selected.front() - 1);
}
std::vector<int> Run(size_t from, size_t count) {
  std::vector<int> numbers;
  for (size_t i = 0; i < count; ++i) numbers.push_back(static_cast<int>(from + i) + 1);
  return numbers;
}
}  // namespace

void AutoBetEditor::InsertLines(const std::vector<ScriptLine>& lines) {
  if (lines.empty()) return;
  std::vector<ScriptLine> after = lines_;
  const size_t at = InsertAt(SelectedLines(), after.size());
  std::vector<ScriptLine> fresh = lines;
  for (ScriptLine& l : fresh) l.Selected = l.Marked = false;  // a new line comes unmarked
  after.insert(after.begin() + static_cast<std::ptrdiff_t>(at), fresh.begin(), fresh.end());
  Edit(std::move(after), tr("Insert"), Run(at, lines.size()));
}

void AutoBetEditor::InsertBuilt() { InsertLines({builder_->Line()}); }

void AutoBetEditor::ReplaceBuilt() {
  const std::vector<int> selected = SelectedLines();
  if (selected.empty()) return InsertBuilt();
  std::vector<ScriptLine> after = lines_;
  after[static_cast<size_t>(selected.front() - 1)] = builder_->Line();
  Edit(std::move(after), tr("Replace"), {selected.front()});
}

void AutoBetEditor::DeleteSelected() {
  const std::vector<int> selected = SelectedLines();
  if (selected.empty()) return;
  std::vector<ScriptLine> after;
  for (size_t i = 0; i < lines_.size(); ++i)
    if (!std::binary_search(selected.begin(), selected.end(), static_cast<int>(i) + 1)) after.push_back(lines_[i]);
  const int next = std::min(selected.front(), static_cast<int>(after.size()));
  Edit(std::move(after), tr("Delete"), {next});
}

void AutoBetEditor::MoveSelected(int by) {
  const std::vector<int> selected = SelectedLines();
  if (selected.empty()) return;
  if ((by < 0 && selected.front() == 1) || (by > 0 && selected.back() == static_cast<int>(lines_.size()))) return;
  std::vector<ScriptLine> after = lines_;
  std::vector<int> moved;
  if (by < 0) {
    for (int n : selected) std::swap(after[static_cast<size_t>(n - 1)], after[static_cast<size_t>(n - 2)]);
  } else {
    for (auto it = selected.rbegin(); it != selected.rend(); ++it)
      std::swap(after[static_cast<size_t>(*it - 1)], after[static_cast<size_t>(*it)]);
  }
  for (int n : selected) moved.push_back(n + by);
  Edit(std::move(after), by < 0 ? tr("Move Up") : tr("Move Down"), moved);
}

void AutoBetEditor::CopySelected() {
  clipboard_.clear();
  for (int n : SelectedLines()) clipboard_.push_back(lines_[static_cast<size_t>(n - 1)]);
}

void AutoBetEditor::Paste() { InsertLines(clipboard_); }

void AutoBetEditor::ToggleMark() {
  const std::vector<int> selected = SelectedLines();
  if (selected.empty()) return;
  std::vector<ScriptLine> after = lines_;
  for (int n : selected) after[static_cast<size_t>(n - 1)].Marked = !after[static_cast<size_t>(n - 1)].Marked;
  Edit(std::move(after), tr("Mark"), selected);
}

void AutoBetEditor::ShowListView() { views_->setCurrentIndex(kListView); }
void AutoBetEditor::ShowTextView() { views_->setCurrentIndex(kTextView); }

bool AutoBetEditor::TakeText() {
  if (!text_->Edited()) return true;
  std::vector<ScriptLine> typed;
  if (!text_->ReadLines(typed)) return false;
  Edit(std::move(typed), tr("Typing"), {});
  text_->SetLines(lines_);  // the text as the program writes it, so a second pass changes nothing
  return true;
}

void AutoBetEditor::closeEvent(QCloseEvent* event) {
  if (MayClose()) event->accept();
  else event->ignore();
}
