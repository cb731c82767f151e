#include "ui/chip_stacks_screen.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/game.h"
#include "engine/table_commands.h"
#include "sim/table.h"
#include "ui/dialogs.h"
#include "ui/signed_cells.h"

namespace {

enum Column { kNumberColumn, kNameColumn, kValueColumn, kToolColumn, kColumnCount };
constexpr int kTools = kToolLastStack - kToolFirstStack + 1;

Currency StackValue(const Game& g, int stack) { return g.BetAmount[static_cast<size_t>(bet::kFirstStack + stack)]; }

int StackOfTool(const Game& g, int tool) {
  return g.TrayStack[static_cast<size_t>(tool - kToolFirstStack + 1)] - bet::kFirstStack;
}

// The tray tools (7..10) that hold `stack`: one stack may be on several.
QStringList ToolsOfStack(const Game& g, int stack) {
  QStringList tools;
  for (int tool = kToolFirstStack; tool <= kToolLastStack; ++tool)
    if (StackOfTool(g, tool) == stack) tools << QString::number(tool);
  return tools;
}

// In use: a value, a name, or a place on the tray.
bool InUse(const Game& g, int stack) {
  return StackValue(g, stack) != 0 || !Trimmed(g.AutoBet.ChipStackNames[static_cast<size_t>(stack)]).empty() ||
         !ToolsOfStack(g, stack).isEmpty();
}

}  // namespace

ChipStacksScreen::ChipStacksScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Chip-Stacks"), parent) {
  setObjectName(QStringLiteral("frmStackValues"));
  showAll_ = new QCheckBox(tr("Show &all 100 Chip-Stacks"), this);
  showAll_->setObjectName(QStringLiteral("chkShowAll"));
  connect(showAll_, &QCheckBox::toggled, this, [this] { RefreshIfIdle(); });
  Body()->addWidget(showAll_);

  grid_ = new QTableWidget(0, kColumnCount, this);
  grid_->setObjectName(QStringLiteral("picStacks"));
  grid_->setHorizontalHeaderLabels({tr("#"), tr("Name"), tr("Value"), tr("Tray tool")});
  grid_->verticalHeader()->hide();
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->setAlternatingRowColors(true);
  QHeaderView* header = grid_->horizontalHeader();
  header->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
  header->setMinimumSectionSize(70);
  grid_->setColumnWidth(kNumberColumn, 50);
  grid_->setColumnWidth(kValueColumn, 110);
  grid_->setColumnWidth(kToolColumn, 90);
  connect(grid_, &QTableWidget::itemSelectionChanged, this, &ChipStacksScreen::UpdateButtons);
  Body()->addWidget(grid_, 1);

  tray_ = new QLabel(this);
  tray_->setObjectName(QStringLiteral("lblTray"));
  Body()->addWidget(tray_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(new QLabel(tr("Put the chosen stack on tool:"), this));
  for (int i = 0; i < kTools; ++i) {
    const int tool = kToolFirstStack + i;
    toolButtons_[i] = new QPushButton(QString::number(tool), this);
    toolButtons_[i]->setObjectName(QStringLiteral("cmdTool%1").arg(tool));
    connect(toolButtons_[i], &QPushButton::clicked, this, [this, tool] { PutOnTool(tool); });
    buttons->addWidget(toolButtons_[i]);
  }
  buttons->addStretch(1);
  Body()->addLayout(buttons);
  UpdateButtons();
  resize(520, 460);
}

void ChipStacksScreen::SettingChanged(const std::string& name) {
  if (name == "TrayStack") RefreshIfIdle();
}

void ChipStacksScreen::Refresh() {
  const Game& g = table_.State();
  const int chosen = SelectedStack();
  const QSignalBlocker quiet(grid_);
  grid_->setRowCount(0);
  for (int stack = 0; stack < kChipStackNames; ++stack) {
    if (!showAll_->isChecked() && !InUse(g, stack)) continue;
    const int r = grid_->rowCount();
    grid_->insertRow(r);
    QTableWidgetItem* number = signed_cells::Cell(QString::number(stack), true);
    number->setData(Qt::UserRole, stack);
    grid_->setItem(r, kNumberColumn, number);
    grid_->setItem(r, kNameColumn,
                   signed_cells::Cell(QString::fromStdString(g.AutoBet.ChipStackNames[static_cast<size_t>(stack)])));
    const Currency value = StackValue(g, stack);
    grid_->setItem(r, kValueColumn,
                   signed_cells::Cell(QString::fromStdString(FormatNumberWithCommas(value)), true,
                                      value > 0 ? 1 : (value < 0 ? -1 : 0)));
    QTableWidgetItem* toolCell = signed_cells::Cell(ToolsOfStack(g, stack).join(QStringLiteral(", ")));
    toolCell->setTextAlignment(Qt::AlignCenter);
    grid_->setItem(r, kToolColumn, toolCell);
    if (stack == chosen) grid_->selectRow(r);
  }
  QStringList tools;
  for (int tool = kToolFirstStack; tool <= kToolLastStack; ++tool)
    tools << QStringLiteral("%1: #%2").arg(tool).arg(StackOfTool(g, tool));
  tray_->setText(tr("Tray tools  ") + tools.join(QStringLiteral("    ")));
  UpdateButtons();
}

int ChipStacksScreen::SelectedStack() const {
  const QList<QTableWidgetItem*> chosen = grid_->selectedItems();
  for (QTableWidgetItem* item : chosen)
    if (item->column() == kNumberColumn) return item->data(Qt::UserRole).toInt();
  return -1;
}

void ChipStacksScreen::SelectStack(int stack) {
  for (int pass = 0; pass < 2; ++pass) {
    for (int r = 0; r < grid_->rowCount(); ++r)
      if (grid_->item(r, kNumberColumn)->data(Qt::UserRole).toInt() == stack) return grid_->selectRow(r);
    if (showAll_->isChecked()) return;
    showAll_->setChecked(true);  // refreshes with every stack listed
  }
}

void ChipStacksScreen::PutOnTool(int tool) {
  const int stack = SelectedStack();
  if (stack < 0) return;
  const TableResult done = table_.SetTrayStack(tool, stack);
  if (!done.Done())
    dialogs_.Message({"Chip-Stacks", "Chip-Stack #" + std::to_string(stack) + " was not put on tool " +
                                         std::to_string(tool) + ": " + done.text, {}, false});
  RefreshIfIdle();
}

void ChipStacksScreen::UpdateButtons() {
  const bool chosen = SelectedStack() >= 0 && !table_.Busy();
  for (QPushButton* b : toolButtons_) b->setEnabled(chosen);
}

ReportTable ChipStacksScreen::Report() const {
  ReportTable report;
  report.heading = QStringLiteral("Dicemill Chip-Stacks");
  report.preamble << tray_->text();
  report.columns << QStringLiteral("#") << QStringLiteral("Name") << QStringLiteral("Value")
                 << QStringLiteral("Tray tool");
  for (int r = 0; r < grid_->rowCount(); ++r) {
    ReportRow row;
    for (int c = 0; c < kColumnCount; ++c) {
      const QTableWidgetItem* cell = grid_->item(r, c);
      const QVariant color = cell->data(Qt::ForegroundRole);  // unset: the page's own colour
      row.push_back({cell->text(), color.isValid() ? color.value<QBrush>().color() : QColor()});
    }
    report.rows.push_back(row);
  }
  return report;
}
