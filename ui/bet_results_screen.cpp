#include "ui/bet_results_screen.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/result_cells.h"
#include "sim/table.h"
#include "stats/game_measures.h"
#include "ui/dialogs.h"
#include "ui/sign_colour.h"

namespace {

enum Column { kWagers, kWins, kLosses, kNet, kNetPercent, kColumns };
const char* const kColumnTitles[kColumns] = {"Wagers", "Wins", "Losses", "Net", "Net %"};
const char* const kColumnNames[kColumns] = {"lblWagers", "lblWins", "lblLosses", "lblNet", "lblNetPct"};
// The rows the engine fills, in its order; the grid is laid out before the
// first figures are read.
const char* const kRowTitles[] = {"Total #",     "Total $",     "High $",        "Low $",
                                  "Average $",   "Last $",      "Last roll #",   "Last roll $",
                                  "Avg. # / hour", "Avg. $ / hour", "Expctd value $"};
constexpr int kRows = static_cast<int>(std::size(kRowTitles));

QString Text(const std::string& s) { return QString::fromStdString(s); }

QString KindWords(int kind) {
  return kind == results::kActual ? QStringLiteral("actual decided wagers")
                                  : QStringLiteral("continuous phantom $1 wagers");
}

}  // namespace

BetResultsScreen::BetResultsScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Bet Results"), parent) {
  setObjectName(QStringLiteral("frmBetResults"));

  // Left: the bets, several at once.
  bets_ = new QListWidget(this);
  bets_->setObjectName(QStringLiteral("lstBets"));
  bets_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  bets_->setMinimumWidth(bets_->fontMetrics().horizontalAdvance(QStringLiteral("Don't Come 10 Odds")) + 40);
  const Game& g = table_.State();
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    auto* item = new QListWidgetItem(Text(g.BetName[static_cast<size_t>(id)]), bets_);
    item->setData(Qt::UserRole, id);
  }
  auto* selectAll = new QPushButton(tr("Select &All"), this);
  selectAll->setObjectName(QStringLiteral("cmdSelectAll"));
  connect(selectAll, &QPushButton::clicked, this, &BetResultsScreen::SelectAll);
  connect(bets_, &QListWidget::itemSelectionChanged, this, [this] { RefreshIfIdle(); });
  auto* left = new QVBoxLayout;
  left->addWidget(bets_, 1);
  left->addWidget(selectAll);

  // Right: the kind, the amounts standing, the grid and the run's scale.
  auto* right = new QVBoxLayout;
  auto* kinds = new QButtonGroup(this);
  const int shown[2] = {results::kActual, results::kPhantom};
  for (int kind : shown) {
    kinds_[kind] = new QRadioButton(QStringLiteral(" Display results of ") + KindWords(kind), this);
    kinds_[kind]->setObjectName(QStringLiteral("optDataType%1").arg(kind));
    kinds->addButton(kinds_[kind], kind);
    right->addWidget(kinds_[kind]);
  }
  kinds_[kind_]->setChecked(true);
  connect(kinds, &QButtonGroup::idClicked, this, &BetResultsScreen::SetKind);

  auto* standing = new QGridLayout;
  current_ = Figure("lblCurrentWagered");
  lastRoll_ = Figure("lblLastRollWagered");
  standing->addWidget(new QLabel(tr("Current $ wagered"), this), 0, 0);
  standing->addWidget(current_, 0, 1);
  standing->addWidget(new QLabel(tr(" $ wagered on last roll"), this), 1, 0);
  standing->addWidget(lastRoll_, 1, 1);
  standing->setColumnStretch(2, 1);
  right->addSpacing(6);
  right->addLayout(standing);

  grid_ = new QTableWidget(kRows, kColumns, this);
  grid_->setObjectName(QStringLiteral("grdResults"));
  QStringList titles, rows;
  for (const char* t : kColumnTitles) titles << tr(t);
  for (const char* t : kRowTitles) rows << tr(t);
  grid_->setHorizontalHeaderLabels(titles);
  grid_->setVerticalHeaderLabels(rows);
  for (int c = 0; c < kColumns; ++c) grid_->horizontalHeaderItem(c)->setData(Qt::UserRole, kColumnNames[c]);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->setFocusPolicy(Qt::NoFocus);
  grid_->setAlternatingRowColors(true);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_->verticalHeader()->setDefaultSectionSize(grid_->fontMetrics().height() + 6);
  grid_->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int r = 0; r < kRows; ++r)
    for (int c = 0; c < kColumns; ++c) {
      auto* item = new QTableWidgetItem;
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      grid_->setItem(r, c, item);
    }
  grid_->setMinimumHeight(grid_->horizontalHeader()->sizeHint().height() +
                          kRows * grid_->verticalHeader()->defaultSectionSize() + 4);
  grid_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  right->addWidget(grid_);

  auto* scale = new QHBoxLayout;
  rolls_ = Figure("lblNumRolls");
  rollsPerHour_ = Figure("lblRollsPerHour");
  hours_ = Figure("lblHours");
  scale->addWidget(new QLabel(tr("Total rolls:"), this));
  scale->addWidget(rolls_);
  scale->addSpacing(16);
  scale->addWidget(new QLabel(tr("Rolls / hr:"), this));
  scale->addWidget(rollsPerHour_);
  scale->addSpacing(16);
  scale->addWidget(new QLabel(tr("Sim hrs:"), this));
  scale->addWidget(hours_);
  scale->addStretch(1);
  right->addLayout(scale);
  right->addStretch(1);

  auto* columns = new QHBoxLayout;
  columns->addLayout(left);
  columns->addLayout(right, 1);
  Body()->addLayout(columns);
  resize(820, 470);
}

QLabel* BetResultsScreen::Figure(const char* name) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

void BetResultsScreen::SetKind(int kind) {
  kind_ = kind == results::kPhantom ? results::kPhantom : results::kActual;
  kinds_[kind_]->setChecked(true);
  RefreshIfIdle();
}

std::vector<int> BetResultsScreen::SelectedBets() const {
  std::vector<int> ids;
  for (int row = 0; row < bets_->count(); ++row)
    if (bets_->item(row)->isSelected()) ids.push_back(bets_->item(row)->data(Qt::UserRole).toInt());
  return ids;
}

void BetResultsScreen::SelectBets(const std::vector<int>& betIds) {
  const QSignalBlocker quiet(bets_);
  bets_->clearSelection();
  QListWidgetItem* first = nullptr;
  for (int id : betIds) {
    if (!bet::IsTableBet(id)) continue;
    QListWidgetItem* item = bets_->item(id - bet::kFirstTableBet);
    item->setSelected(true);
    if (!first) first = item;
  }
  if (first) bets_->scrollToItem(first, QAbstractItemView::PositionAtTop);
  RefreshIfIdle();
}

void BetResultsScreen::SelectAll() {
  const QSignalBlocker quiet(bets_);
  bets_->selectAll();
  RefreshIfIdle();
}

void BetResultsScreen::Refresh() {
  const Game& g = table_.State();
  // The names follow the game: a game opened from a file may word them its own way.
  // Bets the player actually made stand out in bold, to be found among the 83.
  for (int row = 0; row < bets_->count(); ++row) {
    const auto id = static_cast<size_t>(row + bet::kFirstTableBet);
    QListWidgetItem* item = bets_->item(row);
    item->setText(Text(g.BetName[id]));
    QFont font = bets_->font();
    font.setBold(g.BetWagers[results::kActual][id][results::kCount] > 0);
    item->setFont(font);
  }
  view_ = CombinedBetResults(g, SelectedBets(), kind_);
  current_->setText(Text(Dollars(view_.CurrentWagered)));
  lastRoll_->setText(Text(Dollars(view_.WageredLastRoll)));
  rolls_->setText(Text(FormatWithCommas(view_.TotalRolls)));
  rollsPerHour_->setText(Text(RollsPerHourText(view_.RollsPerHour)));
  hours_->setText(Text(SimHoursText(view_.SimHours)));
  for (int r = 0; r < kRows && r < static_cast<int>(view_.Rows.size()); ++r) {
    const BetResultRow& row = view_.Rows[static_cast<size_t>(r)];
    const std::vector<std::string> cells = RowCells(row);
    const QColor colour = SignColour(row.Net);
    for (int c = 0; c < kColumns; ++c) {
      QTableWidgetItem* item = grid_->item(r, c);
      item->setText(Text(cells[static_cast<size_t>(c)]));
      const bool signed_ = c == kNet || c == kNetPercent;
      item->setForeground(signed_ && colour.isValid() ? QBrush(colour) : QBrush());
    }
  }
}

bool BetResultsScreen::ReadyToPrint() {
  if (!SelectedBets().empty()) return true;
  dialogs_.Message({"Print Bet Results", "You need to select one or more bets to print.", Buttons::Ok, false});
  return false;
}

ReportTable BetResultsScreen::Report() const {
  ReportTable report;
  report.heading = tr("Bet Results");
  const std::vector<int> ids = SelectedBets();
  const Game& g = table_.State();
  if (ids.size() == 1) {
    report.preamble << QStringLiteral("Results of ") + KindWords(kind_) + QStringLiteral(" for this bet:");
  } else {
    report.preamble << QStringLiteral("Combined results of ") + KindWords(kind_) + QStringLiteral(" for these ") +
                           QString::number(ids.size()) + QStringLiteral(" bets:");
  }
  QStringList names;
  for (int id : ids) names << Text(g.BetName[static_cast<size_t>(id)]);
  // A few names a line, so that "all 83" does not run down the page.
  constexpr int kNamesPerLine = 6;
  for (qsizetype i = 0; i < names.size(); i += kNamesPerLine)
    report.preamble << QStringLiteral("   ") + names.mid(i, kNamesPerLine).join(QStringLiteral(", "));
  report.preamble << QStringLiteral("Current $ amount wagered: ") + current_->text()
                  << QStringLiteral("$ amount wagered on last roll: ") + lastRoll_->text()
                  << QStringLiteral("Total rolls: ") + rolls_->text()
                  << QStringLiteral("Rolls / hour: ") + rollsPerHour_->text()
                  << QStringLiteral("Sim hours: ") + hours_->text();
  report.columns << QString();
  for (const char* t : kColumnTitles) report.columns << tr(t);
  for (const BetResultRow& row : view_.Rows) {
    const QColor colour = SignColour(row.Net);
    ReportRow line{{Text(row.Label), {}}};
    const std::vector<std::string> cells = RowCells(row);
    for (size_t c = 0; c < cells.size(); ++c)
      line.push_back({Text(cells[c]), c == kNet || c == kNetPercent ? colour : QColor()});
    report.rows.push_back(line);
  }
  return report;
}
