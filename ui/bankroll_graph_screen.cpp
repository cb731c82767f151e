#include "ui/bankroll_graph_screen.h"

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/between_rolls.h"
#include "sim/run_snapshot.h"
#include "sim/table.h"
#include "stats/game_measures.h"
#include "ui/dialogs.h"
#include "ui/status_panel.h"

namespace {

using graph::kWindowPoints;

// The colours offered for the line, in the order the game keeps their index.
struct NamedColour {
  const char* name;
  QColor colour;
};
const std::array<NamedColour, 8> kColours = {{{"&Green", QColor(0, 128, 0)},
                                              {"&Blue", QColor(0, 70, 200)},
                                              {"&Red", QColor(190, 20, 20)},
                                              {"Bla&ck", QColor(20, 20, 20)},
                                              {"&Purple", QColor(120, 40, 160)},
                                              {"&Teal", QColor(0, 128, 128)},
                                              {"Br&own", QColor(130, 80, 20)},
                                              {"Gr&ey", QColor(110, 110, 110)}}};

constexpr std::array<const char*, 3> kAdjustCaptions = {"&Manual", "Automatic with &Expanding Scale",
                                                        "Automatic with &Snap-back Scale"};
// The game's names of the display switches, in the order of Switch.
constexpr std::array<const char*, 5> kSwitchNames = {"DisplayAverage", "DisplayGridLines", "GraphStyle", "GraphColor",
                                                     "AutoPrint"};
constexpr std::array<const char*, 3> kStyleCaptions = {"&Plain", "&Striped", "S&olid"};
// Where the reference lines first stand: a fifth in from each edge.
constexpr std::array<int, 2> kFirstLines = {kWindowPoints / 5, kWindowPoints - kWindowPoints / 5};

const char* kAveragePrompt =
    "Enter the number of rolls (max 525) that you'd like to include in the bankroll moving average (a value of 0 "
    "will display an average of all rolls since the beginning of the game):";

QString Count(int64_t n) { return QString::fromStdString(FormatWithCommas(n)); }

QLabel* Figure(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setMinimumWidth(80);
  return label;
}

// The averages a game does not keep while the average is hidden: worked out
// from the points at hand, as the engine would with the same data.
void FillAverages(GraphPicture& p, const Game* g, int32_t rolls) {
  p.withAverage = true;
  for (int i = 1; i <= p.count; ++i) {
    if (g) {
      p.averages[i - 1] = MovingAverage(*g, i, rolls);
      continue;
    }
    // A run's copy holds this window only: the average starts afresh with it.
    const int first = rolls > 0 ? std::max(1, i - rolls + 1) : 1;
    Currency sum;
    for (int j = first; j <= i; ++j) sum += p.points[j - 1];
    p.averages[i - 1] = Currency::FromRaw(sum.raw / (i - first + 1));
  }
}

}  // namespace

BankrollGraphScreen::BankrollGraphScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent, Qt::Window), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("frmBankroll"));
  setWindowTitle(tr("Bankroll / Hyper-Drive"));
  auto* column = new QVBoxLayout(this);
  auto* bar = new QMenuBar(this);
  column->setMenuBar(bar);
  view_ = new BankrollGraphView(this);
  connect(view_, &BankrollGraphView::ReferenceLineMoved, this,
          [this](int line, int point, bool done) { MoveReferenceLine(line, point, done); });
  column->addWidget(view_, 1);
  column->addWidget(BuildControls());
  BuildMenus(bar);

  const Game& g = table_.State();
  throttle_->setValue(g.ThrottleValue);
  SetRolls(g.RollCountStop > 0 ? g.RollCountStop : 1'000'000);
  SetRunning(table_.Busy());
  table_.Subscribe(this);
  Refresh();
  // A full window already there was printed, if at all, before this screen.
  lastAutoPrinted_ = picture_.count == kWindowPoints ? picture_.firstRoll : -1;
  resize(760, 560);
}

BankrollGraphScreen::~BankrollGraphScreen() { table_.Unsubscribe(this); }

void BankrollGraphScreen::BuildMenus(QMenuBar* bar) {
  auto action = [](QMenu* menu, const char* name, const QString& text, bool checkable = false) {
    QAction* a = menu->addAction(text);
    a->setObjectName(QString::fromLatin1(name));
    a->setCheckable(checkable);
    return a;
  };
  auto group = [this](QMenu* menu, const char* name, auto captions, std::vector<QAction*>& actions, auto chosen) {
    auto* exclusive = new QActionGroup(menu);
    for (size_t i = 0; i < captions.size(); ++i) {
      QAction* a = menu->addAction(tr(captions[i]));
      a->setObjectName(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(i));
      a->setCheckable(true);
      exclusive->addAction(a);
      connect(a, &QAction::triggered, this, [chosen, i] { chosen(static_cast<int>(i)); });
      actions.push_back(a);
    }
  };

  QMenu* scale = bar->addMenu(tr("&Scale"));
  connect(action(scale, "mnuLarger", tr("&Larger scale")), &QAction::triggered, this,
          [this] { StepGraph(static_cast<int>(GraphStep::ScaleLarger)); });
  connect(action(scale, "mnuSmaller", tr("S&maller scale")), &QAction::triggered, this,
          [this] { StepGraph(static_cast<int>(GraphStep::ScaleSmaller)); });
  connect(action(scale, "mnuMoveUp", tr("Move &up")), &QAction::triggered, this,
          [this] { StepGraph(static_cast<int>(GraphStep::MoveUp)); });
  connect(action(scale, "mnuMoveDown", tr("Move &down")), &QAction::triggered, this,
          [this] { StepGraph(static_cast<int>(GraphStep::MoveDown)); });
  QMenu* adjust = scale->addMenu(tr("&Adjust type"));
  adjust->setObjectName(QStringLiteral("mnuAutoAdjustType"));
  group(adjust, "mnuAutoAdjustType", kAdjustCaptions, adjust_, [this](int type) { ChooseAdjust(type); });

  QMenu* display = bar->addMenu(tr("&Display"));
  grid_ = action(display, "mnuDisplayGridLines", tr("Display &Grid Lines"), true);
  connect(grid_, &QAction::toggled, this, [this](bool on) { Choose(Switch::Grid, on); });
  displayAverage_ = action(display, "mnuDisplayAverage", tr("Display &Moving Average"), true);
  connect(displayAverage_, &QAction::toggled, this, [this](bool on) { Choose(Switch::Average, on); });
  setAverage_ = action(display, "mnuSetAverage", tr("&Set Moving Average ..."));
  connect(setAverage_, &QAction::triggered, this, [this] { ChooseAverage(); });
  refLines_ = action(display, "mnuDisplayRefLines", tr("Display &Reference Lines"), true);
  connect(refLines_, &QAction::triggered, this, [this](bool on) { ToggleReferenceLines(on); });
  display->addSeparator();
  QMenu* type = display->addMenu(tr("Graph &Type"));
  type->setObjectName(QStringLiteral("mnuGraphType"));
  group(type, "mnuGraphType", kStyleCaptions, styles_, [this](int style) { Choose(Switch::Style, style); });
  QMenu* colour = display->addMenu(tr("Set &Color"));
  colour->setObjectName(QStringLiteral("mnuSetColor"));
  std::array<const char*, kColours.size()> names{};
  for (size_t i = 0; i < kColours.size(); ++i) names[i] = kColours[i].name;
  group(colour, "mnuSetColor", names, colours_, [this](int c) { Choose(Switch::Colour, c); });

  QMenu* print = bar->addMenu(tr("&Print"));
  connect(action(print, "mnuPrintNow", tr("Print &Now ...")), &QAction::triggered, this, [this] { PrintNow(); });
  autoPrintAction_ = action(print, "mnuAutoPrint", tr("&Auto-Print"), true);
  connect(autoPrintAction_, &QAction::triggered, this, [this](bool on) { ToggleAutoPrint(on); });
}

QWidget* BankrollGraphScreen::BuildControls() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(0, 0, 0, 0);

  // Under the graph: the edges of the window, the average's caption and the lines.
  leftLabel_ = Figure(panel, "lblRollsLeft");
  rightLabel_ = Figure(panel, "lblRollsRight");
  rightLabel_->setAlignment(Qt::AlignRight);
  averageLabel_ = Figure(panel, "lblMovingAverage");
  averageLabel_->setAlignment(Qt::AlignCenter);
  auto* edges = new QHBoxLayout;
  edges->addSpacing(72);
  edges->addWidget(leftLabel_);
  edges->addStretch();
  edges->addWidget(averageLabel_);
  edges->addStretch();
  edges->addWidget(rightLabel_);
  grid->addLayout(edges, 0, 0, 1, 4);

  refPanel_ = new QWidget(panel);
  auto* lines = new QGridLayout(refPanel_);
  lines->setContentsMargins(72, 0, 0, 0);
  for (int i = 0; i < 2; ++i) {
    refBars_[i] = new QScrollBar(Qt::Horizontal, refPanel_);
    refBars_[i]->setObjectName(QStringLiteral("HScroll%1").arg(i + 1));
    refBars_[i]->setRange(1, kWindowPoints);
    connect(refBars_[i], &QScrollBar::valueChanged, this, [this, i](int point) {
      if (point != look_.refLine[i]) MoveReferenceLine(i, point, !refBars_[i]->isSliderDown());
    });
    connect(refBars_[i], &QScrollBar::sliderReleased, this, [this] { CommitReferenceLines(); });
    lines->addWidget(refBars_[i], i, 0, 1, 3);
  }
  refRolls_ = Figure(refPanel_, "lblRefRolls");
  refBankroll_ = Figure(refPanel_, "lblRefBankroll");
  lines->addWidget(new QLabel(tr("Reference line differences:  "), refPanel_), 2, 0);
  lines->addWidget(refRolls_, 2, 1);
  lines->addWidget(refBankroll_, 2, 2);
  grid->addWidget(refPanel_, 1, 0, 1, 4);

  // The scale buttons, beside the figures.
  auto* scale = new QHBoxLayout;
  auto button = [&](const char* name, const QString& text, GraphStep step) {
    auto* b = new QToolButton(panel);
    b->setObjectName(QString::fromLatin1(name));
    b->setText(text);
    connect(b, &QToolButton::clicked, this, [this, step] { StepGraph(static_cast<int>(step)); });
    scale->addWidget(b);
  };
  button("picUpScaleUp", tr("Up"), GraphStep::MoveUp);
  button("picDownScaleUp", tr("Down"), GraphStep::MoveDown);
  button("picLargerUp", tr("Larger scale"), GraphStep::ScaleLarger);
  button("picSmallerUp", tr("Smaller scale"), GraphStep::ScaleSmaller);
  scale->addStretch();
  autoPrintLabel_ = Figure(panel, "lblAutoPrint");
  scale->addWidget(autoPrintLabel_);
  grid->addLayout(scale, 2, 0, 1, 4);

  auto* figures = new QGridLayout;
  auto pair = [&](int row, int col, const QString& caption, QLabel* value) {
    figures->addWidget(new QLabel(caption, panel), row, col * 2);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figures->addWidget(value, row, col * 2 + 1);
  };
  highLabel_ = Figure(panel, "lblHigh");
  currentLabel_ = Figure(panel, "lblCurrent");
  lowLabel_ = Figure(panel, "lblLow");
  rollsLabel_ = Figure(panel, "lblTotalRolls");
  hoursLabel_ = Figure(panel, "lblSimHours");
  rateLabel_ = Figure(panel, "lblRollsPerHour");
  speedLabel_ = Figure(panel, "lblRollsPerSecond");
  speedLabel_->setText(QStringLiteral("-"));
  pair(0, 0, tr("High:"), highLabel_);
  pair(1, 0, tr("Current:"), currentLabel_);
  pair(2, 0, tr("Low:"), lowLabel_);
  pair(0, 1, tr("Total Rolls:"), rollsLabel_);
  pair(1, 1, tr("Sim hrs:"), hoursLabel_);
  pair(2, 1, tr("Rolls / hr:"), rateLabel_);
  pair(3, 1, tr("Rolls / second:"), speedLabel_);
  grid->addLayout(figures, 3, 0, 1, 2);

  // The run: how many rolls, how fast, and the button.
  auto* run = new QGridLayout;
  count_ = new QSpinBox(panel);
  count_->setObjectName(QStringLiteral("txtNumAutoRolls"));
  count_->setRange(1, static_cast<int>(MaxRolls));
  count_->setGroupSeparatorShown(true);
  run->addWidget(new QLabel(tr("Rolls to run:"), panel), 0, 0);
  run->addWidget(count_, 0, 1, 1, 2);
  throttle_ = new QSlider(Qt::Horizontal, panel);
  throttle_->setObjectName(QStringLiteral("hscrThrottle"));
  throttle_->setRange(0, kThrottleSlowest);
  connect(throttle_, &QSlider::valueChanged, this, [this](int value) { table_.SetThrottle(value); });
  run->addWidget(new QLabel(tr("fast"), panel), 1, 0, Qt::AlignRight);
  run->addWidget(throttle_, 1, 1);
  run->addWidget(new QLabel(tr("slow"), panel), 1, 2);
  button_ = new QPushButton(panel);
  button_->setObjectName(QStringLiteral("cmdHyperDrive"));
  button_->setDefault(true);
  connect(button_, &QPushButton::clicked, this, [this] {
    if (running_)
      emit StopRequested();
    else
      emit StartRequested(count_->value());
  });
  run->addWidget(button_, 2, 0, 1, 3);
  grid->addLayout(run, 3, 2, 1, 2);

  reasonLabel_ = Figure(panel, "lblStopReason");
  reasonLabel_->setWordWrap(true);
  reasonLabel_->setStyleSheet(QStringLiteral("color: #a00000"));
  grid->addWidget(reasonLabel_, 4, 0, 1, 4);
  return panel;
}

// --- What is shown -------------------------------------------------------------

void BankrollGraphScreen::Refresh() {
  if (!table_.Busy()) {
    ShowGame(table_.State());
    return;
  }
  const RunSnapshot shot = table_.LiveSnapshot();
  const double seconds = runClock_.isValid() ? runClock_.elapsed() / 1000.0 : 0;
  ShowRun(shot, seconds > 0 ? (shot.Rolls - rollsAtStart_) / seconds : 0);
}

void BankrollGraphScreen::ShowFigures(const RunSnapshot& shot, double rollsPerSecond) {
  // The game itself is the fuller picture whenever it is free.
  if (!table_.Busy()) {
    ShowGame(table_.State());
    speedLabel_->setText(rollsPerSecond > 0 ? Count(static_cast<int64_t>(rollsPerSecond)) : QStringLiteral("-"));
    return;
  }
  ShowRun(shot, rollsPerSecond);
}

void BankrollGraphScreen::ShowGame(const Game& g) {
  picture_.firstRoll = WindowFirstRoll(g);
  picture_.count = g.GraphCount;
  picture_.top = g.GraphTop;
  picture_.scale = g.GraphScale;
  std::copy_n(g.GraphBankroll.begin() + 1, kWindowPoints, picture_.points.begin());
  averageRolls_ = g.MovingAverageRolls;
  adjustType_ = g.AutoAdjustType;
  fromGame_ = {g.DisplayAverage, g.DisplayGridLines, g.GraphStyle, g.GraphColor, g.AutoPrint};
  ApplyLook();
  picture_.withAverage = false;
  if (ShowsAverage() && g.DisplayAverage) {
    std::copy_n(g.GraphAverage.begin() + 1, kWindowPoints, picture_.averages.begin());
    picture_.withAverage = true;
  } else if (ShowsAverage()) {
    FillAverages(picture_, &g, averageRolls_);
  }
  if (!linesPending_) {
    look_.refLines = g.DisplayRefLines;
    for (int i = 0; i < 2; ++i)
      if (g.RefLinePosition[i] >= 1) look_.refLine[i] = g.RefLinePosition[i];
  }
  rate_ = g.SimRollRate;
  files_ = {tr("Game file:  ") + QString::fromStdString(g.GameFileName.empty() ? "default" : g.GameFileName),
            tr("Auto-bet file:  ") + QString::fromStdString(g.AutoBet.FileName),
            tr("Dice roll file:  ") + QString::fromStdString(g.DiceFile.RollFileName)};
  ShowWindowFigures(g.GraphHigh, g.GraphLow, g.Bankroll(), g.RollCounts[0]);
}

void BankrollGraphScreen::ShowRun(const RunSnapshot& shot, double rollsPerSecond) {
  picture_.firstRoll = shot.GraphFirstRoll;
  picture_.count = shot.GraphCount;
  picture_.top = shot.GraphTop;
  picture_.scale = shot.GraphScale;
  picture_.points = shot.GraphPoints;
  ApplyLook();
  picture_.withAverage = false;
  if (ShowsAverage() && shot.DisplayAverage) {
    picture_.averages = shot.GraphAverages;
    picture_.withAverage = true;
  } else if (ShowsAverage()) {
    FillAverages(picture_, nullptr, averageRolls_);
  }
  // The window's high and low, as far as its points tell them.
  Currency high = shot.Bankroll, low = shot.Bankroll;
  for (int i = 0; i < shot.GraphCount; ++i) {
    high = Max(high, shot.GraphPoints[static_cast<size_t>(i)]);
    low = Min(low, shot.GraphPoints[static_cast<size_t>(i)]);
  }
  ShowWindowFigures(high, low, shot.Bankroll, shot.Rolls);
  speedLabel_->setText(rollsPerSecond > 0 ? Count(static_cast<int64_t>(rollsPerSecond)) : QStringLiteral("-"));
  if (AutoPrinting() && shot.GraphCount == kWindowPoints) AutoPrintFullWindow();
}

void BankrollGraphScreen::ShowWindowFigures(Currency high, Currency low, Currency current, int64_t rolls) {
  high_ = high;
  low_ = low;
  current_ = current;
  rolls_ = rolls;
  highLabel_->setText(MoneyLabel(high));
  lowLabel_->setText(MoneyLabel(low));
  currentLabel_->setText(MoneyLabel(current));
  rollsLabel_->setText(Count(rolls));
  const double rate = static_cast<double>(rate_.raw) / Currency::kScale;
  hoursLabel_->setText(QString::fromStdString(SimHoursText(rate > 0 ? static_cast<double>(rolls) / rate : 0)));
  rateLabel_->setText(QString::fromStdString(RollsPerHourText(rate_)));
  leftLabel_->setText(Count(picture_.firstRoll));
  rightLabel_->setText(Count(picture_.firstRoll + kWindowPoints));
  averageLabel_->setText(ShowsAverage() ? QString::fromStdString(MovingAverageCaption(averageRolls_)) : QString());
  Redraw();
}

void BankrollGraphScreen::Redraw() {
  view_->Show(picture_, look_);
  refPanel_->setVisible(look_.refLines);
  for (int i = 0; i < 2; ++i) {
    const QSignalBlocker quiet(refBars_[i]);
    refBars_[i]->setValue(look_.refLine[i]);
  }
  ShowReferenceDifferences();
  SyncMenus();
}

void BankrollGraphScreen::ShowReferenceDifferences() {
  const int first = look_.refLine[0], second = look_.refLine[1];
  if (first > picture_.count || second > picture_.count) {
    refRolls_->setText(tr("Rolls:  -"));
    refBankroll_->setText(tr("Bankroll:  -"));
    return;
  }
  const auto at = [this](int point) { return picture_.points[static_cast<size_t>(point - 1)]; };
  const Currency gap = at(second) - at(first);
  refRolls_->setText(tr("Rolls:  ") + Count(second - first));
  refBankroll_->setText(tr("Bankroll:  ") + MoneyLabel(gap));
}

void BankrollGraphScreen::SyncMenus() {
  auto check = [](QAction* a, bool on) {
    const QSignalBlocker quiet(a);
    a->setChecked(on);
  };
  check(grid_, look_.grid);
  check(displayAverage_, ShowsAverage());
  check(refLines_, look_.refLines);
  check(autoPrintAction_, AutoPrinting());
  for (size_t i = 0; i < adjust_.size(); ++i) check(adjust_[i], static_cast<int32_t>(i) == adjustType_);
  for (size_t i = 0; i < styles_.size(); ++i) check(styles_[i], static_cast<int>(i) == static_cast<int>(look_.style));
  for (size_t i = 0; i < colours_.size(); ++i) check(colours_[i], static_cast<int32_t>(i) == Value(Switch::Colour));
  autoPrintLabel_->setText(AutoPrinting() ? tr("Auto-Print ON") : QString());
}

// --- The run -------------------------------------------------------------------

void BankrollGraphScreen::SetRunning(bool running) {
  running_ = running;
  button_->setText(running ? tr("Stop Hyper-&Drive") : tr("Start Hyper-&Drive"));
  count_->setEnabled(!running);
  // What the game keeps waits for the run to end; the window's moves and the look do not.
  setAverage_->setEnabled(!running);
  for (QAction* a : adjust_) a->setEnabled(!running);
}

void BankrollGraphScreen::SetRolls(int rolls) {
  if (rolls > 0) count_->setValue(rolls);
}

int BankrollGraphScreen::Rolls() const { return count_->value(); }

void BankrollGraphScreen::RunStarted() {
  reasonLabel_->clear();
  rollsAtStart_ = rolls_;
  runClock_.start();
}

void BankrollGraphScreen::RunStopped(StopReason reason) {
  // The texts break their lines as the message box does, with carriage returns.
  reasonLabel_->setText(QString::fromUtf8(StopReasonText(reason)).replace(QLatin1Char('\r'), QLatin1Char('\n')));
  if (linesPending_) CommitReferenceLines();
  TellPending();
  const double seconds = runClock_.isValid() ? runClock_.elapsed() / 1000.0 : 0;
  const int64_t before = rollsAtStart_;
  Refresh();
  speedLabel_->setText(seconds > 0 ? Count(static_cast<int64_t>((rolls_ - before) / seconds)) : QStringLiteral("-"));
  runClock_.invalidate();
  if (AutoPrinting() && picture_.count == kWindowPoints) AutoPrintFullWindow();
}

void BankrollGraphScreen::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Refresh();  // rolls made while it was hidden were not drawn
}

void BankrollGraphScreen::RollFinished(std::span<const Settlement>) {
  if (!table_.Busy() && isVisible()) Refresh();
}

void BankrollGraphScreen::SettingChanged(const std::string& name) {
  // Another screen or a script may switch the look too.
  if (std::find(kSwitchNames.begin(), kSwitchNames.end(), name) != kSwitchNames.end() && !table_.Busy()) Refresh();
}

// --- The display switches -------------------------------------------------------

int32_t BankrollGraphScreen::Value(Switch which) const {
  const auto i = static_cast<size_t>(which);
  return pending_[i].value_or(fromGame_[i]);
}

void BankrollGraphScreen::ApplyLook() {
  look_.grid = Value(Switch::Grid) != 0;
  look_.style = static_cast<GraphStyle>(std::clamp(Value(Switch::Style), 0, static_cast<int>(kStyleCaptions.size()) - 1));
  look_.colour =
      kColours[static_cast<size_t>(std::clamp(Value(Switch::Colour), 0, static_cast<int>(kColours.size()) - 1))].colour;
}

void BankrollGraphScreen::Choose(Switch which, int32_t value) {
  const auto i = static_cast<size_t>(which);
  pending_[i].reset();
  if (!Tell(which, value) && table_.Busy()) pending_[i] = value;
  Refresh();
}

bool BankrollGraphScreen::Tell(Switch which, int32_t value) {
  // Shown again, the averages are worked out afresh by the table itself.
  return table_.Set(kSwitchNames[static_cast<size_t>(which)], value).Done();
}

void BankrollGraphScreen::TellPending() {
  for (size_t i = 0; i < kSwitches; ++i) {
    if (pending_[i] && Tell(static_cast<Switch>(i), *pending_[i])) pending_[i].reset();
  }
}

// --- Scale, average and lines ------------------------------------------------------

void BankrollGraphScreen::StepGraph(int step) {
  table_.StepGraph(static_cast<GraphStep>(step));
  Refresh();
}

void BankrollGraphScreen::ChooseAdjust(int type) {
  table_.SetGraphAdjust(type);
  Refresh();
}

void BankrollGraphScreen::ChooseAverage() {
  const std::optional<Currency> rolls =
      dialogs_.Number("Set Bankroll Moving Average", kAveragePrompt, Currency(averageRolls_));
  if (!rolls) return;
  // The table keeps the count within 0..525 itself.
  const int64_t whole = rolls->raw / Currency::kScale;
  if (!table_.SetGraphAverage(static_cast<int32_t>(std::clamp<int64_t>(whole, -1, kWindowPoints + 1))).Done()) return;
  Choose(Switch::Average, 1);
}

void BankrollGraphScreen::ToggleReferenceLines(bool on) {
  if (on) {
    look_.refLine = kFirstLines;
    look_.refLines = true;
    linesPending_ = true;
    CommitReferenceLines();
  } else {
    look_.refLines = false;
    linesPending_ = !table_.ClearReferenceLines().Done();
  }
  Refresh();
}

void BankrollGraphScreen::MoveReferenceLine(int line, int point, bool commit) {
  look_.refLine[static_cast<size_t>(line)] = std::clamp(point, 1, kWindowPoints);
  linesPending_ = true;
  Redraw();
  if (commit) CommitReferenceLines();
}

void BankrollGraphScreen::CommitReferenceLines() {
  // A run answers busy: the lines stay where they are drawn and are told after it.
  if (!look_.refLines) {
    linesPending_ = !table_.ClearReferenceLines().Done();
    return;
  }
  linesPending_ = !table_.SetReferenceLines(look_.refLine[0], look_.refLine[1]).Done();
}

void PlayForGraphPicture(Table& table, int rolls) {
  // A player who puts a lost bet back: the runs are short so that the bets return.
  constexpr int kRollsBetweenBets = 10;
  const std::array<std::pair<int, Currency>, 3> bets = {
      {{bet::kPassLine, 10}, {bet::Place(6), 12}, {bet::Place(8), 12}}};
  table.StartFresh();
  (void)table.Seed(Currency(20261124));  // the same picture on every run
  table.Set("AutoTakeFullOdds", 1);
  for (int played = 0; played < rolls; played += kRollsBetweenBets) {
    for (const auto& [id, amount] : bets)
      if (table.State().BetAmount[static_cast<size_t>(id)] == 0) table.Bet(id, amount);
    table.HyperDrive(std::min(kRollsBetweenBets, rolls - played));
  }
}
