#include "ui/bet_trends_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/signed_cells.h"

namespace {

constexpr int kCells = Game::kTrendCells;
constexpr int kBetColumn = 0, kFirstCell = 1, kSpanColumn = kFirstCell + kCells, kColumns = kSpanColumn + 1;

}  // namespace

BetTrendsScreen::BetTrendsScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Bet Trends"), parent) {
  setObjectName(QStringLiteral("frmBetTrends"));
  auto* caption = new QLabel(QString::fromLatin1(kBetTrendsHeading), this);
  caption->setObjectName(QStringLiteral("lblHeading"));
  caption->setWordWrap(true);
  Body()->addWidget(caption);

  grid_ = new QTableWidget(0, kColumns, this);
  grid_->setObjectName(QStringLiteral("picTrends"));
  QStringList headers{tr("Bet")};
  // The latest result stands last, so the newest column lines up bet to bet.
  for (int i = kCells; i >= 1; --i) headers << (i == 1 ? tr("Latest") : QString::number(1 - i));
  headers << tr("Span");
  grid_->setHorizontalHeaderLabels(headers);
  grid_->verticalHeader()->hide();
  grid_->verticalHeader()->setDefaultSectionSize(grid_->fontMetrics().height() + 10);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->setFocusPolicy(Qt::NoFocus);
  grid_->setShowGrid(true);
  grid_->setGridStyle(Qt::SolidLine);
  QHeaderView* header = grid_->horizontalHeader();
  header->setSectionResizeMode(kBetColumn, QHeaderView::ResizeToContents);
  for (int c = kFirstCell; c < kSpanColumn; ++c) header->setSectionResizeMode(c, QHeaderView::Stretch);
  header->setSectionResizeMode(kSpanColumn, QHeaderView::ResizeToContents);
  header->setMinimumSectionSize(52);
  Body()->addWidget(grid_, 1);

  empty_ = new QLabel(tr("No bet has been decided yet."), this);
  empty_->setObjectName(QStringLiteral("lblNoTrends"));
  empty_->setAlignment(Qt::AlignCenter);
  Body()->addWidget(empty_);
  resize(860, 340);
}

void BetTrendsScreen::Refresh() {
  rows_ = BetTrendRows(table_.State());
  grid_->setRowCount(static_cast<int>(rows_.size()));
  for (int r = 0; r < grid_->rowCount(); ++r) {
    const BetTrendRow& row = rows_[static_cast<size_t>(r)];
    grid_->setItem(r, kBetColumn, signed_cells::Cell(QString::fromStdString(row.Name)));
    const QStringList results = QString::fromStdString(row.Results).split(QLatin1Char('|'));
    const int blanks = kCells - static_cast<int>(results.size());
    for (int c = 0; c < kCells; ++c) {
      const QString text = c < blanks ? QString() : results[c - blanks];
      const int sign = signed_cells::SignOfText(text);
      QTableWidgetItem* cell = signed_cells::Cell(text, true, sign);
      cell->setTextAlignment(Qt::AlignCenter);
      if (!text.isEmpty()) cell->setBackground(signed_cells::Wash(sign));
      grid_->setItem(r, kFirstCell + c, cell);
    }
    grid_->setItem(r, kSpanColumn, signed_cells::Cell(QString::fromStdString(row.Span), true));
  }
  empty_->setVisible(rows_.empty());
}

ReportTable BetTrendsScreen::Report() const {
  ReportTable report;
  report.heading = QStringLiteral("Dicemill Bet Trends");
  report.preamble << QString::fromLatin1(kBetTrendsHeading);
  report.columns << QStringLiteral("Bet") << QStringLiteral("Recent results") << QStringLiteral("Span");
  for (const BetTrendRow& row : rows_)
    report.rows.push_back(PlainRow(
        {QString::fromStdString(row.Name), QString::fromStdString(row.Results), QString::fromStdString(row.Span)}));
  return report;
}
