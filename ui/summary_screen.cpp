#include "ui/summary_screen.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <set>
#include <string>

#include "sim/table.h"
#include "ui/sign_colour.h"

namespace {

// Rows that open a group of their own although they carry a figure; a row
// with no figure opens a group and names it.
const std::set<std::string> kGroupLeaders = {"Total rolls:", "# of Come-out rolls:", "# of Points established:",
                                             "Total Passes:"};
// The groups from here on stand in the right-hand column, so that the
// window is wider than tall.
constexpr const char* kSecondColumn = "Hands:";
constexpr int kIndent = 14;

bool IsHeading(const SummaryRow& row) { return row.Value.empty(); }
// "# that Passed ..." and "# that Missed ..." break down the count above them.
bool IsFollower(const SummaryRow& row) { return row.Label.rfind("# that ", 0) == 0; }
bool IsNet(const SummaryRow& row) { return !row.Share.empty(); }

QString Text(const std::string& s) { return QString::fromStdString(s); }

void Tint(QLabel* label, const QColor& colour) {
  label->setStyleSheet(colour.isValid() ? QStringLiteral("color: %1;").arg(colour.name()) : QString());
}

// The net's sign, as its label words it: a loss, or a win that may be nothing.
double NetSign(const SummaryRow& row) {
  if (row.Label == "Net loss:") return -1;
  return row.Value.find_first_of("123456789") == std::string::npos ? 0 : 1;
}

}  // namespace

SummaryScreen::SummaryScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Summary"), parent) {
  setObjectName(QStringLiteral("frmSummary"));
}

void SummaryScreen::Build() {
  auto* columns = new QHBoxLayout;
  columns->setSpacing(12);
  QVBoxLayout* column = nullptr;
  QGridLayout* grid = nullptr;
  int line = 0;
  for (const SummaryRow& row : rows_) {
    const bool heading = IsHeading(row);
    if (!column || row.Label == kSecondColumn) {
      column = new QVBoxLayout;
      columns->addLayout(column);
    }
    if (!grid || heading || kGroupLeaders.count(row.Label)) {
      auto* box = new QGroupBox(heading ? Text(row.Label) : QString(), this);
      grid = new QGridLayout(box);
      grid->setColumnStretch(0, 1);
      grid->setHorizontalSpacing(16);
      column->addWidget(box);
      line = 0;
      if (heading) {
        // The heading is the box's title; keep the row's slots in step.
        captions_.push_back(nullptr);
        values_.push_back(nullptr);
        continue;
      }
    }
    auto* caption = new QLabel(Text(row.Label), this);
    auto* value = new QLabel(this);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Room for a large figure from the start, so the window keeps its size as they grow.
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("$99,999,999")));
    if (IsFollower(row)) caption->setIndent(kIndent);
    if (IsNet(row)) {
      QFont bold = caption->font();
      bold.setBold(true);
      caption->setFont(bold);
      value->setFont(bold);
      share_ = new QLabel(this);
      share_->setObjectName(QStringLiteral("lblNetShare"));
      share_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      share_->setFont(bold);
      grid->addWidget(share_, line, 2);
      caption->setObjectName(QStringLiteral("lblNet"));
    }
    grid->addWidget(caption, line, 0);
    grid->addWidget(value, line, 1);
    captions_.push_back(caption);
    values_.push_back(value);
    ++line;
  }
  for (int c = 0; c < columns->count(); ++c)
    if (auto* col = qobject_cast<QVBoxLayout*>(columns->itemAt(c)->layout())) col->addStretch(1);
  Body()->addLayout(columns);
}

void SummaryScreen::Refresh() {
  rows_ = table_.Summary();
  if (captions_.empty()) Build();
  for (size_t i = 0; i < rows_.size() && i < values_.size(); ++i) {
    const SummaryRow& row = rows_[i];
    if (!values_[i]) continue;
    captions_[i]->setText(Text(row.Label));
    values_[i]->setText(Text(row.Value));
    if (IsNet(row)) {
      const QColor colour = SignColour(NetSign(row));
      share_->setText(Text(row.Share));
      for (QLabel* label : {captions_[i], values_[i], share_}) Tint(label, colour);
    }
  }
}

ReportTable SummaryScreen::Report() const {
  ReportTable report;
  report.heading = QStringLiteral("Dicemill Summary");
  bool underHeading = false;
  for (const SummaryRow& row : rows_) {
    const QColor colour = IsNet(row) ? SignColour(NetSign(row)) : QColor();
    if (kGroupLeaders.count(row.Label)) underHeading = false;
    // Rows under a heading, and the break-downs, stand indented.
    const bool indented = !IsHeading(row) && (underHeading || IsFollower(row));
    const QString label = indented ? QStringLiteral("   ") + Text(row.Label) : Text(row.Label);
    if (IsHeading(row)) underHeading = true;
    report.rows.push_back({{label, {}}, {Text(row.Value), colour}, {Text(row.Share), colour}});
  }
  return report;
}
