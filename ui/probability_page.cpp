#include "ui/probability_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/axis_panel.h"
#include "ui/dialogs.h"
#include "ui/probability_grid.h"

namespace {

constexpr const char* kFilePattern = "*.prb";
constexpr int kSidePanelWidth = 290;
constexpr int kFileNameWidth = 190;

const char* const kDisplayModeTexts[] = {" Show as percentage", " Show as +/- from true %", " Show as # rolls out of:",
                                         " Show as +/- from true rolls out of:"};

bool CountsRolls(int displayMode) { return displayMode == kShowRollsOutOf || displayMode == kShowPlusMinusTrueRolls; }

QLabel* SmallNote(const QString& text, QWidget* parent) {
  auto* note = new QLabel(text, parent);
  note->setWordWrap(true);
  QFont f = note->font();
  f.setPointSizeF(f.pointSizeF() * 0.9);
  note->setFont(f);
  note->setStyleSheet(QStringLiteral("color: #5b6470;"));
  return note;
}

}  // namespace

ProbabilityPage::ProbabilityPage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  auto* layout = new QHBoxLayout(this);
  grid_ = new ProbabilityGrid(this);
  layout->addWidget(grid_, 0, Qt::AlignTop);
  layout->addWidget(BuildSidePanel(), 1);

  // The table keeps the cell last under edit; the page starts there.
  if (!table_.Busy()) {
    const ProbTable& t = table_.State().Prob;
    grid_->Choose({t.at(2, 0).flags, t.at(1, 0).flags});
  }
  connect(grid_, &ProbabilityGrid::EntryCommitted, this, &ProbabilityPage::CommitEntry);
  connect(grid_, &ProbabilityGrid::LockToggled, this, &ProbabilityPage::ToggleLock);

  menu_ = new QMenu(tr("&Probability"), this);
  menu_->setObjectName(QStringLiteral("mnuProbability"));
  menu_->addAction(tr("&New"), this, &ProbabilityPage::NewTable);
  menu_->addAction(tr("&Open ..."), this, &ProbabilityPage::OpenTable);
  menu_->addAction(tr("&Save ..."), this, &ProbabilityPage::SaveTable);
  menu_->addSeparator();
  menu_->addAction(tr("Compute percentage dice about an a&xis"), this, &ProbabilityPage::ComputeAxis);
  Refresh();
}

QWidget* ProbabilityPage::BuildSidePanel() {
  auto* side = new QWidget(this);
  side->setFixedWidth(kSidePanelWidth);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);

  auto* tableBox = new QGroupBox(tr("Table"), side);
  auto* tableForm = new QFormLayout(tableBox);
  tableMode_ = new QLabel(tableBox);
  tableMode_->setObjectName(QStringLiteral("lblPercentageDice"));
  tableMode_->setStyleSheet(QStringLiteral("font-weight: bold; color: #2d6cdf;"));
  fileName_ = new QLabel(tableBox);
  fileName_->setObjectName(QStringLiteral("lblPrbFileName"));
  tableForm->addRow(tr("Kind:"), tableMode_);
  tableForm->addRow(tr("File:"), fileName_);
  column->addWidget(tableBox);

  useSkewed_ = new QCheckBox(QStringLiteral(" Use the probabilities depicted here."), side);
  useSkewed_->setObjectName(QStringLiteral("chkUseSkewedProbability"));
  connect(useSkewed_, &QCheckBox::toggled, this, [this](bool on) {
    if (refreshing_) return;
    table_.Set("UseSkewedProbability", on ? 1 : 0);
    Refresh();
  });
  column->addWidget(useSkewed_);
  column->addWidget(
      SmallNote(QStringLiteral("Note:  If this box is UNchecked the\ntrue probabilities will be used."), side));

  auto* showBox = new QGroupBox(tr("Show the weights"), side);
  auto* showLayout = new QVBoxLayout(showBox);
  displayMode_ = new QButtonGroup(showBox);
  for (int mode = kShowPercent; mode <= kShowPlusMinusTrueRolls; ++mode) {
    auto* option = new QRadioButton(QString::fromLatin1(kDisplayModeTexts[mode]), showBox);
    option->setObjectName(QStringLiteral("optProbability%1").arg(mode));
    displayMode_->addButton(option, mode);
    showLayout->addWidget(option);
  }
  rollsOutOf_ = new QLineEdit(showBox);
  rollsOutOf_->setObjectName(QStringLiteral("txtRollsOutOf"));
  rollsOutOf_->setAlignment(Qt::AlignRight);
  rollsOutOf_->setMaximumWidth(90);
  auto* rollsLine = new QHBoxLayout;
  rollsLine->addSpacing(24);
  rollsLine->addWidget(rollsOutOf_);
  rollsLine->addWidget(new QLabel(tr("rolls"), showBox));
  rollsLine->addStretch();
  showLayout->addLayout(rollsLine);
  connect(displayMode_, &QButtonGroup::idClicked, this, [this](int mode) {
    grid_->CommitIfEdited();
    table_.Set("ProbDisplayMode", mode);
    Refresh();
  });
  connect(rollsOutOf_, &QLineEdit::editingFinished, this, &ProbabilityPage::RollsOutOfEdited);
  column->addWidget(showBox);

  auto* legend = new QHBoxLayout;
  auto* swatch = new QLabel(side);
  swatch->setFixedSize(14, 14);
  swatch->setStyleSheet(QStringLiteral("background: #ffe96b; border: 1px solid #b4bdca; border-radius: 3px;"));
  legend->addWidget(swatch, 0, Qt::AlignTop);
  legend->addWidget(SmallNote(tr("Locked: keeps its weight while the free cells share the rest."), side), 1);
  column->addLayout(legend);
  column->addWidget(
      SmallNote(tr("Type a weight and press Enter. L locks or unlocks the cell; the arrow keys move."), side));

  unlockAll_ = new QPushButton(QStringLiteral("Unlock All Cells"), side);
  unlockAll_->setObjectName(QStringLiteral("cmdLock"));
  connect(unlockAll_, &QPushButton::clicked, this, [this] {
    table_.UnlockAllProbabilities();
    Refresh();
  });
  column->addWidget(unlockAll_);
  column->addStretch();
  return side;
}

void ProbabilityPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  refreshing_ = true;
  grid_->Show(g.Prob, g.ProbDisplayMode, g.ProbRollsOutOf);
  tableMode_->setText(g.Prob.Mode() == kFreeFormDice ? QStringLiteral("Free Form Dice")
                                                     : QStringLiteral("Percentage Dice"));
  const QString file = QString::fromStdString(g.ProbFileName);
  // A long name is cut in its middle rather than widening the panel; the tip
  // gives it whole.
  const QString shown =
      fileName_->fontMetrics().elidedText(QFileInfo(file).fileName(), Qt::ElideMiddle, kFileNameWidth);
  fileName_->setText(shown + (g.ProbModified ? QStringLiteral(" *") : QString()));
  fileName_->setToolTip(file);
  useSkewed_->setChecked(g.UseSkewedProbability);
  if (QAbstractButton* option = displayMode_->button(g.ProbDisplayMode)) option->setChecked(true);
  rollsOutOf_->setText(QString::number(g.ProbRollsOutOf));
  rollsOutOf_->setEnabled(CountsRolls(g.ProbDisplayMode));
  refreshing_ = false;
}

void ProbabilityPage::CommitPendingEdit() { grid_->CommitIfEdited(); }

void ProbabilityPage::CommitEntry(int row, int column, double typed) {
  // An edit that leaves no cell free to take up the change is simply not
  // made: the grid shows the table as it stands.
  table_.SetProbabilityCell(row, column, typed, table_.State().ProbDisplayMode);
  Refresh();
}

void ProbabilityPage::ToggleLock(int row, int column) {
  const bool locked = (table_.State().Prob.at(row, column).flags & kUserLock) != 0;
  table_.LockProbabilityCell(row, column, !locked);
  Refresh();
}

void ProbabilityPage::RollsOutOfEdited() {
  if (refreshing_) return;
  const TableResult r = table_.Set("ProbRollsOutOf", Currency::FromDouble(LeadingNumber(rollsOutOf_->text())));
  if (!r.Done())
    dialogs_.Message({"Probability", "The number of rolls must be a whole number from 1 to 1,000,000.", Buttons::Ok});
  Refresh();
}

// The table asks about unsaved numbers itself ("Save Probabilities?") before
// New and Open, through the front end.
void ProbabilityPage::NewTable() {
  table_.ResetProbabilities();
  Refresh();
}

void ProbabilityPage::OpenTable() {
  const auto path = dialogs_.FileName("Open Probability File", kFilePattern, FileMode::Open);
  if (!path) return;
  table_.OpenProbabilities(*path);  // a refused file has said why
  Refresh();
}

void ProbabilityPage::SaveTable() {
  CommitPendingEdit();
  const auto path = dialogs_.FileName("Save Probability File As", kFilePattern, FileMode::Save);
  if (!path) return;
  table_.SaveProbabilities(*path);
  Refresh();
}

void ProbabilityPage::ComputeAxis() {
  CommitPendingEdit();
  AxisPanel panel(table_, this);
  panel.exec();
  Refresh();
}

void FillSampleProbabilities(Table& table) {
  table.ComputeProbabilityAxis(kAxis16, 40, kAxis16, 40);
  table.Set("UseSkewedProbability", 1);
}
