#include "ui/steps_viewer.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

const std::vector<StatsScreenEntry>& StepsViewerScreens() {
  static const std::vector<StatsScreenEntry> screens = {
      {MenuCommand::Summary, "&Summary ...", "mnuSummary"},
      {MenuCommand::RollTotals, "Roll &Totals ...", "mnuRolltotals"},
      {MenuCommand::RollFrequencies, "Roll &Frequencies ...", "mnuRollFreqs"},
      {MenuCommand::Bankroll, "&Bankroll / Hyper-Drive ...", "mnuBankroll"},
      {MenuCommand::BetResults, "Bet R&esults ...", "mnuBetStats"},
      {MenuCommand::BetTrends, "Bet T&rends ...", "mnuBetsWonLost"},
      {MenuCommand::GamesLog, "&Games Log ...", "mnuGamesLog"},
      {MenuCommand::ChipStacks, "&Chip Stacks ...", "mnuChipStacks"},
      {MenuCommand::Flags, "F&lags ...", "mnuFlagValues"},
  };
  return screens;
}

StepsViewer::StepsViewer(OpenStatsScreen openScreen, QWidget* parent) : QDialog(parent), open_(std::move(openScreen)) {
  setObjectName(QStringLiteral("frmSteps"));
  setWindowTitle(tr("Auto-Bet Steps"));
  setModal(true);
  auto* layout = new QVBoxLayout(this);
  auto* menus = new QMenuBar(this);
  layout->setMenuBar(menus);
  QMenu* step = menus->addMenu(tr("&Step"));
  QAction* cancel = step->addAction(tr("&Cancel (no more steps)"), this, [this] { Answer(StepReply::Cancel); });
  cancel->setObjectName(QStringLiteral("mnuCancel"));
  QMenu* stats = menus->addMenu(tr("&Statistics"));
  stats->setObjectName(QStringLiteral("mnuStatistics"));
  for (const StatsScreenEntry& e : StepsViewerScreens()) {
    QAction* a = stats->addAction(tr(e.caption), this, [this, id = e.id] {
      if (open_) open_(id);
    });
    a->setObjectName(QString::fromLatin1(e.name));
  }

  lineNum_ = new QLabel(this);
  lineNum_->setObjectName(QStringLiteral("lblLineNum"));
  QFont big = lineNum_->font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.2);
  lineNum_->setFont(big);
  step_ = new QLabel(this);
  step_->setObjectName(QStringLiteral("lblAutoBetStep"));
  step_->setFrameShape(QFrame::StyledPanel);
  step_->setMargin(8);
  step_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QFont mono(QStringLiteral("Monospace"));
  mono.setStyleHint(QFont::TypeWriter);
  step_->setFont(mono);
  status_ = new QLabel(this);
  status_->setObjectName(QStringLiteral("lblStatus"));
  status_->setWordWrap(true);
  status_->setMinimumHeight(status_->fontMetrics().height() * 3);
  status_->setAlignment(Qt::AlignTop | Qt::AlignLeft);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* next = buttons->addButton(tr("&Next"), QDialogButtonBox::AcceptRole);
  next->setObjectName(QStringLiteral("cmdNextAutoBet"));
  next->setDefault(true);
  QPushButton* toEnd = buttons->addButton(tr("&Run to end"), QDialogButtonBox::ActionRole);
  toEnd->setObjectName(QStringLiteral("cmdRunToEnd"));
  QPushButton* stop = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
  stop->setObjectName(QStringLiteral("cmdCancel"));
  connect(next, &QPushButton::clicked, this, [this] { Answer(StepReply::Next); });
  connect(toEnd, &QPushButton::clicked, this, [this] { Answer(StepReply::RunToEnd); });
  connect(stop, &QPushButton::clicked, this, [this] { Answer(StepReply::Cancel); });

  layout->addWidget(lineNum_);
  layout->addWidget(step_);
  layout->addWidget(status_, 1);
  layout->addWidget(buttons);
  setMinimumWidth(560);
}

void StepsViewer::Show(int lineNumber, const std::string& text, const std::string& status) {
  lineNum_->setText(tr("Line #") + QString::number(lineNumber));
  step_->setText(QString::fromStdString(text));
  status_->setText(tr("Status: ") + QString::fromStdString(status));
  reply_ = StepReply::Next;
}

void StepsViewer::Answer(StepReply reply) {
  reply_ = reply;
  accept();
}

void ShowSampleStep(StepsViewer& viewer) {
  // The status as the pass words it; the viewer puts "Status: " before it.
  viewer.Show(13, "Place 6 has won 2", "Condition is true (just now occurred). ");
}
