#include "ui/games_log_screen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "store/games_log_file.h"
#include "ui/dialogs.h"
#include "ui/games_histogram.h"
#include "ui/games_log_data.h"
#include "ui/signed_cells.h"

namespace {

enum Figure { kMean, kMedian, kStdDev, kSkew, kKurtosis, kMode, kFigures };
constexpr const char* kFigureCaptions[kFigures] = {"Mean", "Median", "Std Dev", "Skew", "Kurtosis", "Mode"};
constexpr const char* kFigureNames[kFigures] = {"lblMean", "lblMedian", "lblStdDev", "lblSkew", "lblKurtosis",
                                                "lblMode"};

QString Text(const std::string& s) { return QString::fromStdString(s); }
QString Money(Currency value) { return Text(FormatNumberWithCommas(value)); }

QLabel* Figure(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setMinimumWidth(90);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

GamesLogScreen::GamesLogScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Games Log"), parent) {
  setObjectName(QStringLiteral("frmGames"));
  QMenu* options = MenuBar()->addMenu(tr("&Options"));
  QAction* breakPoint = options->addAction(tr("Set &Break-point ..."), this, &GamesLogScreen::SetBreakPoint);
  breakPoint->setObjectName(QStringLiteral("mnuSetBreakPoint"));

  auto* heading = new QHBoxLayout;
  logFile_ = new QLabel(this);
  logFile_->setObjectName(QStringLiteral("lblLogFile"));
  logFile_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  status_ = new QLabel(this);
  status_->setObjectName(QStringLiteral("lblStatus"));
  heading->addWidget(logFile_, 1);
  heading->addWidget(status_);
  Body()->addLayout(heading);

  // What to look at: the measure, the outcomes let in, and how to show them.
  auto* controls = new QHBoxLayout;
  controls->addWidget(new QLabel(tr("Measure:"), this));
  measure_ = new QComboBox(this);
  measure_->setObjectName(QStringLiteral("cmbView"));
  for (int f = 0; f < logfield::kMeasures; ++f) measure_->addItem(QString::fromLatin1(MeasureName(f)));
  measure_->setCurrentIndex(view_.Measure);
  connect(measure_, &QComboBox::currentIndexChanged, this, [this](int index) {
    view_.Measure = index;
    Recalculate();
  });
  controls->addWidget(measure_);
  controls->addSpacing(12);
  auto* includeBox = new QGroupBox(tr("Include"), this);
  auto* includeRow = new QHBoxLayout(includeBox);
  for (int i = 0; i < 3; ++i) {
    include_[i] = new QCheckBox(includeBox);
    include_[i]->setObjectName(QStringLiteral("chkInclude%1").arg(i));
    include_[i]->setChecked(view_.Include[i]);
    connect(include_[i], &QCheckBox::toggled, this, [this, i](bool on) {
      view_.Include[i] = on;
      Recalculate();
    });
    includeRow->addWidget(include_[i]);
  }
  controls->addWidget(includeBox);
  auto* displayBox = new QGroupBox(tr("Show"), this);
  auto* displayRow = new QHBoxLayout(displayBox);
  const char* displayTexts[2] = {" Display Data", " Display Histogram"};
  for (int i = 0; i < 2; ++i) {
    display_[i] = new QRadioButton(tr(displayTexts[i]), displayBox);
    display_[i]->setObjectName(QStringLiteral("optDisplay%1").arg(i));
    connect(display_[i], &QRadioButton::toggled, this, [this, i](bool on) {
      if (on) pages_->setCurrentIndex(i);
    });
    displayRow->addWidget(display_[i]);
  }
  controls->addWidget(displayBox);
  controls->addStretch(1);
  Body()->addLayout(controls);

  // The games, as data or as bars.
  pages_ = new QStackedWidget(this);
  dataView_ = new QTableView(this);
  dataView_->setObjectName(QStringLiteral("grdData"));
  data_ = new GamesLogData(dataView_);
  dataView_->setModel(data_);
  dataView_->verticalHeader()->hide();
  dataView_->verticalHeader()->setDefaultSectionSize(dataView_->fontMetrics().height() + 6);
  dataView_->setAlternatingRowColors(true);
  dataView_->setSelectionBehavior(QAbstractItemView::SelectRows);
  dataView_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  pages_->addWidget(dataView_);

  auto* histogramPage = new QWidget(this);
  auto* histogramColumn = new QVBoxLayout(histogramPage);
  histogramColumn->setContentsMargins(0, 0, 0, 0);
  histogram_ = new GamesHistogram(histogramPage);
  histogramColumn->addWidget(histogram_, 1);
  auto* bounds = new QGridLayout;
  bounds->addWidget(new QLabel(tr("Bars"), histogramPage), 0, 0);
  valueCount_ = new QSpinBox(histogramPage);
  valueCount_->setObjectName(QStringLiteral("txtValueCount"));
  valueCount_->setRange(1, 1000);
  valueCount_->setValue(view_.ValueCount);
  connect(valueCount_, &QSpinBox::valueChanged, this, [this](int value) {
    view_.ValueCount = value;
    Recalculate();
  });
  bounds->addWidget(valueCount_, 1, 0);
  bounds->addWidget(new QLabel(tr("Standard Deviations"), histogramPage), 0, 1);
  sdCount_ = new QDoubleSpinBox(histogramPage);
  sdCount_->setObjectName(QStringLiteral("txtSDCount"));
  sdCount_->setRange(0.25, 20);
  sdCount_->setSingleStep(0.5);
  sdCount_->setValue(view_.SDCount.ToDouble());
  connect(sdCount_, &QDoubleSpinBox::valueChanged, this, [this](double value) {
    view_.SDCount = Currency::FromDouble(value);
    Recalculate();
  });
  bounds->addWidget(sdCount_, 1, 1);
  bounds->addWidget(new QLabel(tr("Range"), histogramPage), 0, 2);
  range_ = new QLabel(histogramPage);
  range_->setObjectName(QStringLiteral("lblRange"));
  bounds->addWidget(range_, 1, 2);
  bounds->addWidget(new QLabel(tr("Mid"), histogramPage), 0, 3);
  mid_ = new QLabel(histogramPage);
  mid_->setObjectName(QStringLiteral("lblMid"));
  bounds->addWidget(mid_, 1, 3);
  bounds->setColumnStretch(2, 1);
  bounds->setColumnStretch(3, 1);
  histogramColumn->addLayout(bounds);
  pages_->addWidget(histogramPage);
  display_[kData]->setChecked(true);

  // The figures of the measure, and the games by outcome.
  auto* figuresBox = new QGroupBox(tr("Statistics"), this);
  auto* figuresGrid = new QGridLayout(figuresBox);
  for (int f = 0; f < kFigures; ++f) {
    auto* caption = new QLabel(QString::fromLatin1(kFigureCaptions[f]), figuresBox);
    if (f == kMedian) {
      medianCaption_ = caption;
      caption->setObjectName(QStringLiteral("lblMedianCaption"));
    }
    figuresGrid->addWidget(caption, f, 0);
    figures_[f] = Figure(kFigureNames[f], figuresBox);
    figuresGrid->addWidget(figures_[f], f, 1);
  }
  auto* outcomesBox = new QGroupBox(tr("Games"), this);
  auto* outcomesGrid = new QGridLayout(outcomesBox);
  for (int row = 0; row < 3; ++row) {
    outcomeNames_[row] = new QLabel(outcomesBox);
    outcomeNames_[row]->setObjectName(QStringLiteral("lblOutcome%1").arg(row));
    outcomeCounts_[row] = Figure("", outcomesBox);
    outcomeCounts_[row]->setObjectName(QStringLiteral("lblOutcomeCount%1").arg(row));
    outcomeCounts_[row]->setMinimumWidth(60);
    outcomeShares_[row] = Figure("", outcomesBox);
    outcomeShares_[row]->setObjectName(QStringLiteral("lblOutcomeShare%1").arg(row));
    outcomesGrid->addWidget(outcomeNames_[row], row, 0);
    outcomesGrid->addWidget(outcomeCounts_[row], row, 1);
    outcomesGrid->addWidget(outcomeShares_[row], row, 2);
  }
  auto* rule = new QFrame(outcomesBox);
  rule->setFrameShape(QFrame::HLine);
  rule->setFrameShadow(QFrame::Sunken);
  outcomesGrid->addWidget(rule, 3, 0, 1, 3);
  outcomesGrid->addWidget(new QLabel(tr("Total"), outcomesBox), 4, 0);
  totalCount_ = Figure("lblTotal", outcomesBox);
  totalCount_->setMinimumWidth(60);
  outcomesGrid->addWidget(totalCount_, 4, 1);

  auto* side = new QVBoxLayout;
  side->addWidget(figuresBox);
  side->addWidget(outcomesBox);
  side->addStretch(1);
  auto* main = new QHBoxLayout;
  main->addWidget(pages_, 1);
  main->addLayout(side);
  Body()->addLayout(main, 1);

  ShowOutcomes();
  ShowStatistics();
  resize(960, 560);
}

GamesLogScreen::~GamesLogScreen() = default;

void GamesLogScreen::Refresh() {
  LoadIfChanged();
  ShowStatistics();
}

void GamesLogScreen::UnsavedChanged(bool) { RefreshIfIdle(); }

void GamesLogScreen::LoadIfChanged() {
  const std::string& path = table_.State().GamesLogFile;
  const QFileInfo file(Text(path));
  const QDateTime time = file.lastModified();
  const qint64 size = file.exists() ? file.size() : -1;
  if (path == loadedPath_ && time == loadedTime_ && size == loadedSize_) return;
  loadedPath_ = path;
  loadedTime_ = time;
  loadedSize_ = size;
  games_.clear();
  if (path.empty()) {
    logFile_->setText(tr("No games log is open: choose one with Game > Games Log File ..."));
  } else {
    logFile_->setText(tr("Games log: %1").arg(file.fileName()));
    logFile_->setToolTip(Text(path));
    status_->setText(tr("Loading data ..."));
    if (isVisible()) status_->repaint();
    const FileStatus read = ReadGamesFile(path, games_);
    status_->clear();
    for (const FileMessage& m : read.Messages) dialogs_.Message({m.Title, m.Text, Buttons::Ok, false});
    if (!read) games_.clear();
  }
  Recalculate();
}

void GamesLogScreen::Recalculate() {
  std::string error;
  if (!UpdateGamesPlayed(games_, view_, stats_, error)) {
    dialogs_.Message({"Games Log Error", error, Buttons::Ok, false});
    const int64_t total = stats_.Total;
    stats_ = GamesStatistics{};
    stats_.Total = total;
  }
  data_->Show(games_, view_);
  histogram_->Show(stats_);
  ShowOutcomes();
  ShowStatistics();
}

void GamesLogScreen::ShowStatistics() {
  const bool any = stats_.Included > 0;
  medianCaption_->setText(Text(MedianLabel(stats_)));
  const Currency values[kFigures] = {stats_.Mean, stats_.Median, stats_.StdDev, stats_.Skew, stats_.Kurtosis,
                                     stats_.Mode};
  for (int f = 0; f < kFigures; ++f) {
    QString text = any ? Money(values[f]) : QString();
    if (f == kMode && any && !stats_.HasMode) text = tr("none");
    figures_[f]->setText(text);
  }
  range_->setText(any ? Money(stats_.RangeLow) + QStringLiteral(" to ") + Money(stats_.RangeHigh) : QString());
  mid_->setText(any ? Money(stats_.RangeMid) : QString());
}

void GamesLogScreen::ShowOutcomes() {
  const std::array<std::string, 3> names = OutcomeRowNames(view_);
  for (int row = 0; row < 3; ++row) {
    include_[row]->setText(Text(names[row]));
    outcomeNames_[row]->setText(Text(names[row]));
    outcomeCounts_[row]->setText(Text(FormatWithCommas(stats_.OutcomeCounts[row])));
    outcomeShares_[row]->setText(Text(ShareText(stats_.OutcomeCounts[row], stats_.Total)));
    const QColor color = signed_cells::TextColor(1 - row);  // above, within, below
    outcomeNames_[row]->setStyleSheet(color.isValid() ? QStringLiteral("color: %1").arg(color.name()) : QString());
  }
  totalCount_->setText(Text(FormatWithCommas(stats_.Total)));
}

void GamesLogScreen::SetBreakPoint() {
  const auto answer = dialogs_.TwoNumbers({"Set Break-point",
                                           "Enter the break-point or range that you'd \rlike to use to sort this data:",
                                           "", "", view_.BreakLow, view_.BreakHigh});
  if (!answer) return;
  ::SetBreakPoint(view_, answer->first, answer->second);
  Recalculate();
}

ReportTable GamesLogScreen::Report() const {
  ReportTable report;
  report.heading = QStringLiteral("Dicemill Games Log");
  report.preamble << logFile_->text() << QStringLiteral("Measure: %1").arg(measure_->currentText());
  for (int f = 0; f < kFigures; ++f)
    if (!figures_[f]->text().isEmpty())
      report.preamble << (f == kMedian ? medianCaption_->text().trimmed() : QString::fromLatin1(kFigureCaptions[f])) +
                             QStringLiteral(": ") + figures_[f]->text();
  for (int row = 0; row < 3; ++row)
    report.notes << QStringLiteral("%1: %2 (%3)").arg(outcomeNames_[row]->text(), outcomeCounts_[row]->text(),
                                                       outcomeShares_[row]->text());
  report.notes << QStringLiteral("Total: %1").arg(totalCount_->text());

  if (display_[kHistogram]->isChecked()) {
    report.preamble << QStringLiteral("Range: %1    Mid: %2").arg(range_->text(), mid_->text());
    report.columns << QStringLiteral("Low") << QStringLiteral("High") << QStringLiteral("Games");
    for (const HistogramBar& bar : stats_.Bars)
      report.rows.push_back(PlainRow({Money(bar.Low), Money(bar.High), Text(FormatWithCommas(bar.Games))}));
    return report;
  }
  for (int c = 0; c < data_->columnCount(); ++c) report.columns << data_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
  for (int r = 0; r < data_->rowCount(); ++r) {
    ReportRow row;
    for (int c = 0; c < data_->columnCount(); ++c) {
      const QModelIndex at = data_->index(r, c);
      row.push_back({at.data(Qt::DisplayRole).toString(), at.data(Qt::ForegroundRole).value<QColor>()});
    }
    report.rows.push_back(row);
  }
  return report;
}
