#include "ui/advantage_page.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPrinter>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <string_view>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"
#include "stats/advantage_row.h"
#include "ui/dialogs.h"
#include "ui/report_table.h"
#include "ui/sign_colour.h"

namespace {

enum Column { kBet, kEvRoll, kStDevRoll, kEvDec, kStDevDec, kEvHour, kRollsDec, kMinutesDec, kColumns };
constexpr int kBets = bet::kLastTableBet - bet::kFirstTableBet + 1;
constexpr int kScrollSettleMs = 400;

QString Figure(double value) {
  // No "-0.00": a figure that rounds to nothing is shown as nothing.
  return QString::number(std::fabs(value) < 0.005 ? 0.0 : value, 'f', 2);
}

QStringList Heads(bool misc) {
  QStringList heads = {"Bet", "EV/Roll", "StDev/Roll", "EV/Dec", "StDev/Dec", "EV/Hour"};
  if (misc) heads << "Rolls/Dec" << "Min/Dec";
  return heads;
}

// One bet's line: its texts and the colour of the side it favours.
struct ShownRow {
  std::array<QString, kColumns> texts;
  QColor colour;
};

ShownRow RowOf(const Game& g, int betId) {
  const AdvantageRow r = AdvantageRowOf(g, betId);
  const std::string_view name = bet::CatalogueName(betId);
  return {{QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), Figure(r.evPerRoll),
           Figure(r.stdevPerRoll), Figure(r.evPerDecision), Figure(r.stdevPerDecision), Figure(r.evPerHour),
           Figure(r.rollsPerDecision), Figure(r.minutesPerDecision)},
          SignColour16(r.evPerDecision)};
}

}  // namespace

AdvantagePage::AdvantagePage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  auto* layout = new QVBoxLayout(this);
  auto* note = new QLabel(tr("All figures shown in percentage"), this);
  note->setObjectName("lblAdvantageNote");
  layout->addWidget(note);

  grid_ = new QTableWidget(kBets, kColumns, this);
  grid_->setObjectName("picAdvantage");
  grid_->verticalScrollBar()->setObjectName("vsbAdvantage");
  grid_->setHorizontalHeaderLabels(Heads(true));
  grid_->verticalHeader()->hide();
  grid_->verticalHeader()->setDefaultSectionSize(grid_->fontMetrics().height() + 6);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->setAlternatingRowColors(true);
  grid_->horizontalHeader()->setSectionResizeMode(kBet, QHeaderView::Stretch);
  for (int c = kEvRoll; c < kColumns; ++c) grid_->horizontalHeader()->setSectionResizeMode(c, QHeaderView::ResizeToContents);
  for (int row = 0; row < kBets; ++row)
    for (int c = 0; c < kColumns; ++c) {
      auto* item = new QTableWidgetItem;
      if (c != kBet) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      grid_->setItem(row, c, item);
    }
  layout->addWidget(grid_);

  keepScroll_ = new QTimer(this);
  keepScroll_->setSingleShot(true);
  keepScroll_->setInterval(kScrollSettleMs);
  connect(keepScroll_, &QTimer::timeout, this, &AdvantagePage::CommitPendingEdit);
  connect(grid_->verticalScrollBar(), &QScrollBar::valueChanged, keepScroll_, qOverload<>(&QTimer::start));
  // The kept place can be shown only once the rows are laid out and the bar has its range.
  connect(grid_->verticalScrollBar(), &QScrollBar::rangeChanged, this, &AdvantagePage::ShowKeptPlace);

  BuildMenu();
  Refresh();
}

void AdvantagePage::BuildMenu() {
  menu_ = new QMenu(tr("&Advantage"), this);
  zeroOutcomes_ = menu_->addAction(tr("Count &zero outcomes as decisions"));
  zeroOutcomes_->setObjectName("mnuIncludeZeroOutcomes");
  zeroOutcomes_->setCheckable(true);
  connect(zeroOutcomes_, &QAction::triggered, this, [this](bool on) { Toggle("IncludeZeroOutcomes", on); });
  miscData_ = menu_->addAction(tr("Show misc. roll, dec, and time data"));
  miscData_->setObjectName("mnuShowMiscData");
  miscData_->setCheckable(true);
  connect(miscData_, &QAction::triggered, this, [this](bool on) { Toggle("ShowMiscData", on); });
  menu_->addSeparator();
  QAction* print = menu_->addAction(tr("&Print ..."), this, &AdvantagePage::Print);
  print->setObjectName("mnuPrintAdvPay");
  QAction* csv = menu_->addAction(tr("Export CSV ..."), this, &AdvantagePage::ExportCsv);
  csv->setObjectName("mnuExportAdvantage");
}

void AdvantagePage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (int row = 0; row < kBets; ++row) {
    const ShownRow shown = RowOf(g, bet::kFirstTableBet + row);
    for (int c = 0; c < kColumns; ++c) {
      QTableWidgetItem* item = grid_->item(row, c);
      item->setText(shown.texts[c]);
      item->setForeground(shown.colour);
    }
  }
  grid_->setColumnHidden(kRollsDec, !g.ShowMiscData);
  grid_->setColumnHidden(kMinutesDec, !g.ShowMiscData);
  zeroOutcomes_->setChecked(g.IncludeZeroOutcomes);
  miscData_->setChecked(g.ShowMiscData);
  ShowKeptPlace();
}

// While the player scrolls, the place is theirs; the table has it soon after.
void AdvantagePage::ShowKeptPlace() {
  if (keepScroll_->isActive() || table_.Busy()) return;
  const QSignalBlocker quiet(grid_->verticalScrollBar());
  grid_->verticalScrollBar()->setValue(table_.State().AdvantageScrollTop);
}

void AdvantagePage::CommitPendingEdit() {
  keepScroll_->stop();
  const int top = grid_->verticalScrollBar()->value();
  if (top != table_.State().AdvantageScrollTop) table_.Set("AdvantageScrollTop", top);
}

void AdvantagePage::Toggle(const char* setting, bool on) {
  table_.Set(setting, on ? 1 : 0);
  Refresh();
}

ReportTable AdvantagePage::Report() const {
  const Game& g = table_.State();
  ReportTable report;
  report.heading = tr("Dicemill Advantage");
  report.preamble << tr("All figures shown in percentage");
  if (g.IncludeZeroOutcomes) report.preamble << tr("Zero outcomes counted as decisions");
  report.columns = Heads(g.ShowMiscData);
  const int shown = static_cast<int>(report.columns.size());
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const ShownRow line = RowOf(g, id);
    ReportRow row;
    for (int c = 0; c < shown; ++c) row.push_back({line.texts[c], line.colour});
    report.rows.push_back(std::move(row));
  }
  return report;
}

void AdvantagePage::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(tr("Advantage"));
  if (!dialogs_.ChoosePrinter(printer, "Print Advantage")) return;
  if (!PrintReport(printer, Report()))
    dialogs_.Message({"Print Advantage", "The report could not be printed.", Buttons::Ok, false});
}

void AdvantagePage::ExportCsv() {
  const auto path = dialogs_.FileName("Export Advantage", "*.csv", FileMode::Save);
  if (!path) return;
  QString error;
  if (!WriteReportCsv(QString::fromStdString(*path), Report(), &error))
    dialogs_.Message(
        {"Export Advantage", *path + " could not be written: " + error.toStdString(), Buttons::Ok, false});
}
