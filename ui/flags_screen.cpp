#include "ui/flags_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/signed_cells.h"

namespace {

enum Column { kNumberColumn, kNameColumn, kValueColumn, kPreviousColumn, kColumnCount };

// A script's truth: True is -1, False 0.
QString TruthText(int16_t value) { return value != 0 ? QStringLiteral("True") : QStringLiteral("False"); }

QTableWidgetItem* TruthCell(int16_t value) {
  QTableWidgetItem* cell = signed_cells::Cell(TruthText(value), false, value != 0 ? 1 : 0);
  cell->setTextAlignment(Qt::AlignCenter);
  return cell;
}

}  // namespace

FlagsScreen::FlagsScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Flags"), parent) {
  setObjectName(QStringLiteral("frmFlags"));
  grid_ = new QTableWidget(0, kColumnCount, this);
  grid_->setObjectName(QStringLiteral("picFlags"));
  grid_->setHorizontalHeaderLabels({tr("#"), tr("Flag"), tr("Value"), tr("Previous")});
  grid_->verticalHeader()->hide();
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setAlternatingRowColors(true);
  QHeaderView* header = grid_->horizontalHeader();
  header->setSectionResizeMode(kNumberColumn, QHeaderView::ResizeToContents);
  header->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
  header->setSectionResizeMode(kValueColumn, QHeaderView::ResizeToContents);
  header->setSectionResizeMode(kPreviousColumn, QHeaderView::ResizeToContents);
  header->setMinimumSectionSize(80);
  Body()->addWidget(grid_, 1);
  empty_ = new QLabel(tr("The script uses no Flags."), this);
  empty_->setObjectName(QStringLiteral("lblNoFlags"));
  empty_->setAlignment(Qt::AlignCenter);
  Body()->addWidget(empty_);
  resize(460, 360);
}

void FlagsScreen::Refresh() {
  const std::vector<Flag>& flags = table_.State().AutoBet.Flags;
  grid_->setRowCount(static_cast<int>(flags.size()));
  for (int r = 0; r < grid_->rowCount(); ++r) {
    const Flag& f = flags[static_cast<size_t>(r)];
    grid_->setItem(r, kNumberColumn, signed_cells::Cell(QString::number(r + 1), true));
    grid_->setItem(r, kNameColumn, signed_cells::Cell(QString::fromStdString(f.FlagName)));
    grid_->setItem(r, kValueColumn, TruthCell(f.FlagValue));
    grid_->setItem(r, kPreviousColumn, TruthCell(f.FlagPrevious));
  }
  empty_->setVisible(flags.empty());
}

ReportTable FlagsScreen::Report() const {
  ReportTable report;
  report.heading = QStringLiteral("Dicemill Flags");
  report.columns << QStringLiteral("#") << QStringLiteral("Flag") << QStringLiteral("Value")
                 << QStringLiteral("Previous");
  for (int r = 0; r < grid_->rowCount(); ++r) {
    QStringList texts;
    for (int c = 0; c < kColumnCount; ++c) texts << grid_->item(r, c)->text();
    report.rows.push_back(PlainRow(texts));
  }
  return report;
}
