#include "ui/roll_pad.h"

#include <QAction>
#include <QActionGroup>
#include <QColorDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "engine/pad.h"
#include "ui/dice_button.h"

namespace {

const char* const kViewKey = "pad/view";
const char* const kCounterKey = "pad/rollCounter";
const char* const kHyperKey = "pad/hyperDriveButton";
const char* const kRandomKey = "pad/randomButton";
const char* const kColorKey = "pad/buttonColor";

// The table's felt, so that the pad looks like a piece of the table.
const QColor kDefaultColor(0x1f, 0x6b, 0x3a);

constexpr int kCellSpacing = 3;

QColor AskForColor(const QColor& current, QWidget* parent) {
  return QColorDialog::getColor(current, parent, QObject::tr("Button Color"));
}

QLabel* Caption(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

}  // namespace

RollPad::RollPad(QWidget* parent) : QWidget(parent, Qt::Window), chooseColor_(AskForColor) {
  setObjectName(QStringLiteral("frmRYON"));
  setWindowTitle(tr("Dice Rolls"));

  pages_ = new QStackedWidget(this);
  pages_->addWidget(BuildTotals());
  pages_->addWidget(BuildTriangle());
  pages_->addWidget(BuildBox());
  pages_->addWidget(BuildFaces());

  counter_ = new QLabel(this);
  counter_->setObjectName(QStringLiteral("lblTotalNumRolls"));
  randomRoll_ = new QPushButton(tr("&Random Roll"), this);
  randomRoll_->setObjectName(QStringLiteral("cmdRandomRoll"));
  connect(randomRoll_, &QPushButton::clicked, this, &RollPad::RandomRollRequested);
  hyperDrive_ = new QPushButton(this);
  hyperDrive_->setObjectName(QStringLiteral("cmdHyperDrive"));
  connect(hyperDrive_, &QPushButton::clicked, this, [this] {
    if (running_)
      emit StopRequested();
    else
      emit HyperDriveRequested();
  });
  SetRunning(false);
  SetRollCount(0);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(counter_);
  buttons->addStretch(1);
  buttons->addWidget(randomRoll_);
  buttons->addWidget(hyperDrive_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(6, 6, 6, 6);
  column->addWidget(pages_, 1);
  column->addLayout(buttons);
  BuildMenus();

  const QSettings settings;
  ApplyColor(QColor(settings.value(kColorKey, kDefaultColor.name()).toString()));
  SetView(settings.value(kViewKey, static_cast<int>(PadView::Totals)).toInt());
  // Below this the triangle's dice get too small to read.
  setMinimumSize(360, 300);
  resize(380, 320);
}

void RollPad::BuildMenus() {
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  QMenu* display = bar->addMenu(tr("&Display"));
  display->setObjectName(QStringLiteral("mnuDisplayRYON"));
  auto* group = new QActionGroup(this);
  const char* const views[kPadViewCount] = {QT_TR_NOOP("&11 Standard Numbers"), QT_TR_NOOP("&36 Combos (triangle)"),
                                            QT_TR_NOOP("&36 Combos (box)"), QT_TR_NOOP("&Individual Dice Faces")};
  for (int view = 0; view < kPadViewCount; ++view) {
    QAction* action = display->addAction(tr(views[view]));
    action->setObjectName(QStringLiteral("mnuDisplayRYON%1").arg(view));
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, view] { SetView(view); });
    viewActions_.append(action);
  }
  display->addSeparator();

  const QSettings settings;
  auto toggle = [&](const char* name, const QString& caption, const char* key, bool byDefault) {
    QAction* action = display->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    action->setCheckable(true);
    action->setChecked(settings.value(key, byDefault).toBool());
    connect(action, &QAction::toggled, this, [this, key](bool on) {
      QSettings().setValue(key, on);
      ShowSwitches();
    });
    return action;
  };
  counterSwitch_ = toggle("mnuRollCounter", tr("Roll &Counter"), kCounterKey, true);
  hyperSwitch_ = toggle("mnuHyperDriveButton", tr("&Hyper-Drive Button"), kHyperKey, false);
  randomSwitch_ = toggle("mnuRandomButton", tr("&Random Button"), kRandomKey, true);
  ShowSwitches();

  display->addSeparator();
  QAction* color = display->addAction(tr("Set &Button Color"));
  color->setObjectName(QStringLiteral("mnuSetColor"));
  connect(color, &QAction::triggered, this, &RollPad::ChooseColor);

  QAction* hide = bar->addAction(tr("Hide"));
  hide->setObjectName(QStringLiteral("mnuHide"));
  connect(hide, &QAction::triggered, this, &QWidget::hide);
}

QWidget* RollPad::BuildTotals() {
  // Bricks of 4, 3 and 4 totals, the middle row set half a button in, so that
  // every button is as wide as every other and 7 sits in the middle.
  auto* page = new QWidget;
  page->setObjectName(QStringLiteral("pageTotals"));
  auto* grid = new QGridLayout(page);
  grid->setSpacing(kCellSpacing);
  grid->setContentsMargins(0, 0, 0, 0);
  struct Brick {
    int total, row, column;
  };
  const Brick bricks[] = {{2, 0, 0}, {3, 0, 2}, {4, 0, 4},  {5, 0, 6},  {6, 1, 1},  {7, 1, 3},
                          {8, 1, 5}, {9, 2, 0}, {10, 2, 2}, {11, 2, 4}, {12, 2, 6}};
  for (const Brick& brick : bricks) {
    auto* button = new DiceButton(DiceButtonShows::Total, brick.total, 0, page);
    button->setObjectName(QStringLiteral("cmdTotal%1").arg(brick.total));
    connect(button, &DiceButton::clicked, this, [this, total = brick.total] { emit TotalChosen(total); });
    grid->addWidget(button, brick.row, brick.column, 1, 2);
  }
  return page;
}

DiceButton* RollPad::PairButton(int die1, int die2, bool across, QWidget* page) {
  auto* button =
      new DiceButton(across ? DiceButtonShows::PairAcross : DiceButtonShows::PairDown, die1, die2, page);
  button->setObjectName(QStringLiteral("cmdPair%1%2").arg(die1).arg(die2));
  connect(button, &DiceButton::clicked, this, [this, die1, die2] { emit PairChosen(die1, die2); });
  return button;
}

QWidget* RollPad::BuildTriangle() {
  // All 36 throws stacked over their totals, 2 to 12: the columns rise to 7
  // and fall again, which is the chance of each total seen at a glance.
  auto* page = new QWidget;
  page->setObjectName(QStringLiteral("pageTriangle"));
  auto* grid = new QGridLayout(page);
  grid->setSpacing(kCellSpacing);
  grid->setContentsMargins(0, 0, 0, 0);
  constexpr int kTallest = 6;
  for (int total = 2; total <= 12; ++total) {
    const int column = total - 2;
    const int count = CombinationCount(total);
    for (int k = 1; k <= count; ++k) {
      int die1 = 0, die2 = 0;
      CombinationDice(total, k, die1, die2);
      grid->addWidget(PairButton(die1, die2, false, page), kTallest - count + k - 1, column);
    }
    grid->addWidget(Caption(QString::number(total), page), kTallest, column);
  }
  for (int row = 0; row < kTallest; ++row) grid->setRowStretch(row, 1);
  return page;
}

QWidget* RollPad::BuildBox() {
  // Die 1 down the side, die 2 across the top.
  auto* page = new QWidget;
  page->setObjectName(QStringLiteral("pageBox"));
  auto* grid = new QGridLayout(page);
  grid->setSpacing(kCellSpacing);
  grid->setContentsMargins(0, 0, 0, 0);
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) grid->addWidget(PairButton(die1, die2, true, page), die1 - 1, die2 - 1);
  return page;
}

QWidget* RollPad::BuildFaces() {
  auto* page = new QWidget;
  page->setObjectName(QStringLiteral("pageFaces"));
  auto* grid = new QGridLayout(page);
  grid->setSpacing(kCellSpacing);
  grid->setContentsMargins(0, 0, 0, 0);
  facePrompt_ = Caption(QString(), page);
  facePrompt_->setObjectName(QStringLiteral("lblDiePrompt"));
  QFont bold = facePrompt_->font();
  bold.setBold(true);
  facePrompt_->setFont(bold);
  // The prompt and both rows sit together in the middle of the page.
  grid->setRowStretch(0, 1);
  grid->addWidget(facePrompt_, 1, 0, 1, 7);
  grid->setRowStretch(4, 1);
  for (int row = 0; row < 2; ++row) {
    faceRowCaption_[row] = new QLabel(row == 0 ? tr("Die 1") : tr("Die 2"), page);
    grid->addWidget(faceRowCaption_[row], row + 2, 0);
    for (int face = 1; face <= 6; ++face) {
      auto* button = new DiceButton(DiceButtonShows::Face, face, 0, page);
      button->setObjectName(QStringLiteral("cmdDie%1Face%2").arg(row + 1).arg(face));
      button->setCheckable(true);
      connect(button, &DiceButton::clicked, this, [this, row, face] { FaceClicked(row, face); });
      grid->addWidget(button, row + 2, face);
      faces_[row].append(button);
    }
  }
  ShowFacePrompt();
  return page;
}

void RollPad::FaceClicked(int row, int face) {
  if (row == 0) {
    // Die 1 may be chosen again until die 2 is: the last choice stands.
    chosenDie1_ = face;
  } else if (chosenDie1_ != 0) {
    const int die1 = chosenDie1_;
    chosenDie1_ = 0;
    ShowFacePrompt();
    emit PairChosen(die1, face);
    return;
  }
  ShowFacePrompt();
}

void RollPad::ShowFacePrompt() {
  // A face stays lit only as the chosen die 1; die 2 is a throw, not a state.
  for (DiceButton* button : faces_[0]) button->setChecked(button->First() == chosenDie1_);
  for (DiceButton* button : faces_[1]) {
    button->setChecked(false);
    button->setEnabled(chosenDie1_ != 0);
  }
  const int choosing = chosenDie1_ == 0 ? 0 : 1;
  for (int row = 0; row < 2; ++row) {
    QFont font = faceRowCaption_[row]->font();
    font.setBold(row == choosing);
    faceRowCaption_[row]->setFont(font);
  }
  facePrompt_->setText(choosing == 0 ? tr("Choose die 1") : tr("Die 1 is %1: choose die 2").arg(chosenDie1_));
}

void RollPad::SetView(int view) {
  if (view < 0 || view >= kPadViewCount) view = static_cast<int>(PadView::Totals);
  pages_->setCurrentIndex(view);
  viewActions_[view]->setChecked(true);
  chosenDie1_ = 0;  // a half-chosen pair does not survive leaving the faces
  ShowFacePrompt();
  QSettings().setValue(kViewKey, view);
}

int RollPad::View() const { return pages_->currentIndex(); }

void RollPad::SetRollCount(int64_t rolls) {
  counter_->setText(tr("Rolls: %1").arg(QLocale().toString(static_cast<qlonglong>(rolls))));
}

void RollPad::SetRunning(bool running) {
  running_ = running;
  hyperDrive_->setText(running ? tr("Stop Hyper-&Drive") : tr("Start Hyper-&Drive"));
}

void RollPad::SetEnabledForRun(bool enabled) {
  pages_->setEnabled(enabled);
  randomRoll_->setEnabled(enabled);
  if (!enabled) {
    chosenDie1_ = 0;
    ShowFacePrompt();
  }
}

void RollPad::ApplyColor(const QColor& color) {
  color_ = color.isValid() ? color : kDefaultColor;
  QPalette tinted = palette();
  tinted.setColor(QPalette::Button, color_);
  tinted.setColor(QPalette::ButtonText, TextColourOn(color_));
  pages_->setPalette(tinted);
  randomRoll_->setPalette(tinted);
  hyperDrive_->setPalette(tinted);
}

void RollPad::ChooseColor() {
  const QColor chosen = chooseColor_(color_, this);
  if (!chosen.isValid()) return;
  ApplyColor(chosen);
  QSettings().setValue(kColorKey, color_.name());
}

void RollPad::ShowSwitches() {
  counter_->setVisible(counterSwitch_->isChecked());
  hyperDrive_->setVisible(hyperSwitch_->isChecked());
  randomRoll_->setVisible(randomSwitch_->isChecked());
}
