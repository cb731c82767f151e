#include "ui/roll_frequencies_screen.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "stats/number_formats.h"
#include "ui/percent_text.h"
#include "ui/sign_colour.h"

namespace {

enum Column { kSelection, kRolls, kSinceLast, kActual, kProbable, kDifference, kAverage, kColumns };
const char* const kColumnTitles[kColumns] = {"Selection", "Rolls",       "Since last", "Actual %",
                                             "Probable %", "Difference", "Avg. rolls to achieve"};

QString Count(int64_t n) { return QString::fromStdString(FormatWithCommas(n)); }
// Signed both ways, so that above and below the odds read apart.
QString Difference(double points) { return (points > 0 ? QStringLiteral("+") : QString()) + PercentText(points); }
QString Average(double rolls) { return QString::fromStdString(FormatTwoDecimals(rolls)); }

QLabel* Figure(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setMinimumWidth(90);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

// The figures of one selection as the table's cells, in column order.
QStringList Cells(const FrequencySelection& s, const SelectionFrequency& f) {
  return {QString::fromLatin1(s.Caption),
          Count(f.SelectionRolls),
          Count(f.RollsSinceLast),
          PercentText(f.ActualPercent),
          PercentText(f.ProbablePercent),
          Difference(f.ActualPercent - f.ProbablePercent),
          Average(f.AverageRollsToAchieve)};
}

}  // namespace

RollFrequenciesScreen::RollFrequenciesScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Roll Frequencies"), parent) {
  setObjectName(QStringLiteral("frmRollFreqs"));
  selections_ = new QComboBox(this);
  selections_->setObjectName(QStringLiteral("cmbFreqNum"));
  selections_->setMaxVisibleItems(24);
  for (const FrequencySelection& s : FrequencySelections()) selections_->addItem(QString::fromLatin1(s.Caption));

  auto* form = new QFormLayout;
  form->setLabelAlignment(Qt::AlignLeft);
  form->addRow(tr("Display frequencies for:"), selections_);
  totalRolls_ = Figure(this, "lblTotalRolls");
  selectionRolls_ = Figure(this, "lblSelectionRolls");
  sinceLast_ = Figure(this, "lblRollsSinceLast");
  actual_ = Figure(this, "lblActualPct");
  probable_ = Figure(this, "lblProbablePct");
  average_ = Figure(this, "lblAverageRolls");
  probableCaption_ = new QLabel(this);
  probableCaption_->setObjectName(QStringLiteral("lblProbableCaption"));
  form->addRow(tr("Total game rolls:"), totalRolls_);
  form->addRow(tr("Total rolls this selection:"), selectionRolls_);
  form->addRow(tr("# rolls since last rolled:"), sinceLast_);
  form->addRow(tr("Actual % rolled:"), actual_);
  form->addRow(probableCaption_, probable_);
  form->addRow(tr("Average # of rolls to achieve:"), average_);

  probableButton_ = new QPushButton(this);
  probableButton_->setObjectName(QStringLiteral("cmdProbable"));
  skewedCaption_ = new QLabel(tr("Percentage dice are in use (skewed)."), this);
  skewedCaption_->setObjectName(QStringLiteral("lblSkewed"));
  auto* side = new QVBoxLayout;
  side->addWidget(probableButton_);
  side->addWidget(skewedCaption_);
  side->addStretch(1);
  auto* top = new QHBoxLayout;
  top->addLayout(form);
  top->addSpacing(24);
  top->addLayout(side);
  top->addStretch(1);
  Body()->addLayout(top);

  all_ = new QTableWidget(kFrequencySelections, kColumns, this);
  all_->setObjectName(QStringLiteral("tblAllSelections"));
  QStringList titles;
  for (const char* t : kColumnTitles) titles << tr(t);
  all_->setHorizontalHeaderLabels(titles);
  all_->verticalHeader()->hide();
  all_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  all_->setSelectionBehavior(QAbstractItemView::SelectRows);
  all_->setSelectionMode(QAbstractItemView::SingleSelection);
  all_->setAlternatingRowColors(true);
  all_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  all_->horizontalHeader()->setSectionResizeMode(kSelection, QHeaderView::ResizeToContents);
  all_->horizontalHeader()->setSectionResizeMode(kAverage, QHeaderView::ResizeToContents);
  all_->verticalHeader()->setDefaultSectionSize(all_->fontMetrics().height() + 6);
  for (int r = 0; r < kFrequencySelections; ++r)
    for (int c = 0; c < kColumns; ++c) {
      auto* item = new QTableWidgetItem;
      item->setTextAlignment((c == kSelection ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
      all_->setItem(r, c, item);
    }
  Body()->addWidget(all_, 1);

  connect(selections_, &QComboBox::currentIndexChanged, this, [this] { ShowSelection(); });
  connect(all_, &QTableWidget::currentCellChanged, this, [this](int row) {
    if (row >= 0) selections_->setCurrentIndex(row);
  });
  connect(probableButton_, &QPushButton::clicked, this, [this] { SetSkewed(!skewed_); });
  SetSkewed(false);
  resize(760, 640);
}

void RollFrequenciesScreen::SetSelection(int selection) { selections_->setCurrentIndex(selection); }
int RollFrequenciesScreen::Selection() const { return selections_->currentIndex(); }

void RollFrequenciesScreen::SetSkewed(bool skewed) {
  skewed_ = skewed;
  probableCaption_->setText(QString::fromLatin1(ProbableCaption(skewed)));
  probableButton_->setText(skewed ? tr("Show &True Probability") : tr("Show &Skewed Probability"));
  RefreshIfIdle();
}

void RollFrequenciesScreen::SettingChanged(const std::string& name) {
  if (name == "UseSkewedProbability") RefreshIfIdle();
}

void RollFrequenciesScreen::ShowSelection() {
  const int n = Selection();
  if (n < 0 || table_.Busy()) return;
  const Game& g = table_.State();
  const SelectionFrequency f = FrequencyOf(g, FrequencySelections()[static_cast<size_t>(n)].Index, skewed_);
  totalRolls_->setText(Count(f.TotalRolls));
  selectionRolls_->setText(Count(f.SelectionRolls));
  sinceLast_->setText(Count(f.RollsSinceLast));
  actual_->setText(PercentText(f.ActualPercent));
  probable_->setText(PercentText(f.ProbablePercent));
  average_->setText(Average(f.AverageRollsToAchieve));
  if (all_->currentRow() != n) all_->setCurrentCell(n, kSelection);
}

void RollFrequenciesScreen::Refresh() {
  const Game& g = table_.State();
  skewedCaption_->setVisible(g.UseSkewedProbability);
  int row = 0;
  for (const FrequencySelection& s : FrequencySelections()) {
    const SelectionFrequency f = FrequencyOf(g, s.Index, skewed_);
    const QStringList cells = Cells(s, f);
    for (int c = 0; c < kColumns; ++c) all_->item(row, c)->setText(cells[c]);
    // Only a difference the rolls can show is coloured: none before the first roll.
    const double off = f.TotalRolls > 0 ? f.ActualPercent - f.ProbablePercent : 0;
    const QColor colour = SignColour(off);
    all_->item(row, kDifference)->setForeground(colour.isValid() ? QBrush(colour) : QBrush());
    ++row;
  }
  ShowSelection();
}

ReportTable RollFrequenciesScreen::Report() const {
  ReportTable report;
  const int n = Selection();
  report.heading = tr("Roll Frequencies for ") + selections_->itemText(n);
  report.preamble << tr("Total game rolls: ") + totalRolls_->text()
                  << tr("Total rolls this selection: ") + selectionRolls_->text()
                  << tr("# rolls since last rolled: ") + sinceLast_->text()
                  << tr("Actual % rolled: ") + actual_->text()
                  << probableCaption_->text() + QLatin1Char(' ') + probable_->text()
                  << tr("Average # of Rolls to achieve:    ") + average_->text();
  for (const char* t : kColumnTitles) report.columns << tr(t);
  for (int r = 0; r < all_->rowCount(); ++r) {
    ReportRow row;
    for (int c = 0; c < kColumns; ++c) {
      const QTableWidgetItem* item = all_->item(r, c);
      const QBrush ink = item->foreground();
      row.push_back({item->text(), ink.style() == Qt::NoBrush ? QColor() : ink.color()});
    }
    report.rows.push_back(row);
  }
  return report;
}
