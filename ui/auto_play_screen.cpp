#include "ui/auto_play_screen.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <limits>

#include "autoplay/bet_handling.h"
#include "autoplay/work_on_come_out.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/dialogs.h"
#include "ui/modify_amount_row.h"

namespace {

// The rolls that may stop Auto-Roll, in the order of StopOnRoll.
const char* const kStopRows[] = {
    "Any winning roll", "Any losing roll", "A 2",   "Any 3",     "Any 4",  "A Hard 4", "Any 5",     "Any 6", "A Hard 6",
    "Any 7",            "Any 8",           "A Hard 8", "Any 9", "Any 10", "A Hard 10", "Any 11", "A 12",
};

const char* const kWonOptions[] = {" Manual", " Take Bet and Winnings", " Same Bet - Take Winnings", " Press 1 Unit",
                                   " Press Double", " Parlay", " Same Bet:", " Bet:"};
const char* const kLostOptions[] = {" Manual", " No Bet/Take Remainder (if any)", " Bet Remainder (if any)",
                                    " Same Bet", " Same Bet Plus 1 Unit", " Double Bet:", " Same Bet:", " Bet:"};
const char* const kAdjustOptions[] = {" Manual", " Auto w/ Minor Correction", " Auto w/ Color Correction"};
// The option of each group that carries an amount row, and the one after it.
constexpr int kSameBetOption = 6;
constexpr int kBetOption = 7;

struct BiasList {
  const char* name;     // the combo's object name
  const char* setting;  // the table's setting
  const char* family;   // the entries' first words
};
const BiasList kBiasLists[] = {
    {"cmbLayBias", "LayBias", "Lay bets bias: "},
    {"cmbPlaceBias", "PlaceBias", "Place bets bias: "},
    {"cmbDoBias", "DoBias", "Do odds bias: "},
    {"cmbDontBias", "DontBias", "Don't odds bias: "},
};
const char* const kBiasWords[] = {"nearest", "increase", "decrease"};

// Enough digits for the most rolls a game holds; the table refuses more.
constexpr int kDigitsOfCounts = 9;

constexpr int kWorkingMode = 1;
constexpr int kOffMode = 0;
constexpr int kDefaultMode = -1;

QString Indexed(const char* name, int index) { return QStringLiteral("%1%2").arg(QString::fromLatin1(name)).arg(index); }

QString LeftText(int rolls) {
  return QObject::tr("Left: %1").arg(QString::fromStdString(FormatNumberWithCommas(Currency(rolls))));
}

// An empty count reads as none.
qlonglong CountIn(const QLineEdit* field) { return field->text().isEmpty() ? 0 : field->text().toLongLong(); }

QLineEdit* CountField(const char* name, QWidget* parent) {
  auto* field = new QLineEdit(QStringLiteral("0"), parent);
  field->setObjectName(QString::fromLatin1(name));
  field->setAlignment(Qt::AlignRight);
  field->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,%1}").arg(kDigitsOfCounts)), field));
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("100000000")) + 16);
  return field;
}

}  // namespace

AutoPlayScreen::AutoPlayScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent, Qt::Window), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("frmAutoPlay"));
  setWindowTitle(tr("Auto-Play"));

  auto* first = new QVBoxLayout;
  first->addWidget(BuildAutoOdds());
  first->addWidget(BuildWorkOnComeOut());
  first->addWidget(BuildAdjust());
  first->addStretch(1);
  auto* second = new QVBoxLayout;
  second->addWidget(BuildAutoRoll());
  second->addWidget(BuildStopOn());
  second->addStretch(1);
  auto* third = new QVBoxLayout;
  third->addWidget(BuildHandling(true));
  third->addWidget(BuildHandling(false));
  third->addStretch(1);

  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(10, 10, 10, 10);
  columns->setSpacing(10);
  columns->addLayout(first);
  columns->addLayout(second);
  columns->addLayout(third);

  SetRunning(false);
  ShowWorkOnComeOut(false);
  Refresh();
  table_.Subscribe(this);
}

AutoPlayScreen::~AutoPlayScreen() { table_.Unsubscribe(this); }

QWidget* AutoPlayScreen::BuildAutoOdds() {
  auto* box = new QGroupBox(tr("Odds and Chips"), this);
  auto* column = new QVBoxLayout(box);
  auto check = [&](const char* name, const QString& caption, const char* setting) {
    auto* c = new QCheckBox(caption, box);
    c->setObjectName(QString::fromLatin1(name));
    connect(c, &QCheckBox::toggled, this, [this, setting](bool on) { Apply(setting, on ? 1 : 0); });
    column->addWidget(c);
    settings_.push_back(c);
    return c;
  };
  takeOdds_ = check("chkAutoTakeFullOdds", tr(" Auto-&Take Full Odds"), "AutoTakeFullOdds");
  layOdds_ = check("chkAutoLayFullOdds", tr(" Auto-&Lay Full Odds"), "AutoLayFullOdds");
  removePlace_ = check("chkAutoRemovePlaceBets", tr(" Auto-Remove &Place Bets"), "AutoRemovePlaceBets");
  arrangeChips_ = check("chkAutoArrangeChips", tr(" Auto-A&rrange Chips"), "AutoArrangeChips");
  return box;
}

QWidget* AutoPlayScreen::BuildWorkOnComeOut() {
  auto* holder = new QWidget(this);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);

  // The caption opens the list, as its arrow does.
  comeOutArrow_ = new QToolButton(holder);
  comeOutArrow_->setObjectName(QStringLiteral("imgWorkComeoutDnArw"));
  comeOutArrow_->setText(tr("&Working on the Come-out Roll:"));
  comeOutArrow_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  comeOutArrow_->setAutoRaise(true);
  comeOutArrow_->setCheckable(true);
  connect(comeOutArrow_, &QToolButton::toggled, this, &AutoPlayScreen::ShowWorkOnComeOut);
  column->addWidget(comeOutArrow_);

  comeOutPanel_ = new QFrame(holder);
  comeOutPanel_->setObjectName(QStringLiteral("picWorkOnComeout"));
  comeOutPanel_->setFrameShape(QFrame::StyledPanel);
  auto* panel = new QVBoxLayout(comeOutPanel_);
  panel->setContentsMargins(4, 4, 4, 4);
  comeOutList_ = new QListWidget(comeOutPanel_);
  comeOutList_->setObjectName(QStringLiteral("lstWorkOnComeOut"));
  comeOutList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    auto* item = new QListWidgetItem(comeOutList_);
    item->setData(Qt::UserRole, id);
  }
  comeOutList_->setMinimumHeight(comeOutList_->sizeHintForRow(0) * 9);
  panel->addWidget(comeOutList_);
  settings_.push_back(comeOutList_);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(4);
  auto button = [&](const char* name, const QString& caption, auto action) {
    auto* b = new QPushButton(caption, comeOutPanel_);
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, action);
    buttons->addWidget(b);
    settings_.push_back(b);
  };
  button("cmdYes", tr("&Yes"), [this] { SetSelectedWorking(kWorkingMode); });
  button("cmdNo", tr("&No"), [this] { SetSelectedWorking(kOffMode); });
  button("cmdDefault", tr("De&fault"), [this] { SetSelectedWorking(kDefaultMode); });
  button("cmdSelectAll", tr("S&elect All"), [this] { SelectAllBets(); });
  panel->addLayout(buttons);
  column->addWidget(comeOutPanel_);
  return holder;
}

QWidget* AutoPlayScreen::BuildAutoRoll() {
  auto* box = new QGroupBox(tr("Auto-Roll"), this);
  auto* grid = new QGridLayout(box);
  autoRoll_ = new QCheckBox(tr("A&uto-Roll Dice"), box);
  autoRoll_->setObjectName(QStringLiteral("chkAutoRollDice"));
  connect(autoRoll_, &QCheckBox::toggled, this, [this](bool on) { Apply("AutoRollOn", on ? 1 : 0); });
  grid->addWidget(autoRoll_, 0, 0, 1, 3);

  rolls_ = CountField("txtNumAutoRolls", box);
  connect(rolls_, &QLineEdit::textEdited, this, [this] { ApplyCount(rolls_, "RollCountStop"); });
  auto* rollsCaption = new QLabel(tr("R&olls:"), box);
  rollsCaption->setBuddy(rolls_);
  rollsLeft_ = new QLabel(box);
  rollsLeft_->setObjectName(QStringLiteral("lblAutoRollsRemaining"));
  grid->addWidget(rollsCaption, 1, 0);
  grid->addWidget(rolls_, 1, 1);
  grid->addWidget(rollsLeft_, 1, 2);

  delay_ = CountField("txtDelayRoll", box);
  connect(delay_, &QLineEdit::textEdited, this, [this] { ApplyCount(delay_, "AutoRollDelay"); });
  auto* delayCaption = new QLabel(tr("&Delay:"), box);
  delayCaption->setBuddy(delay_);
  grid->addWidget(delayCaption, 2, 0);
  grid->addWidget(delay_, 2, 1);
  grid->addWidget(new QLabel(tr("seconds"), box), 2, 2);
  grid->setColumnStretch(2, 1);

  startStop_ = new QPushButton(box);
  startStop_->setObjectName(QStringLiteral("cmdAutoRoll"));
  startStop_->setAutoDefault(false);
  connect(startStop_, &QPushButton::clicked, this, [this] {
    if (running_)
      emit StopAutoRollRequested();
    else
      emit StartAutoRollRequested();
  });
  grid->addWidget(startStop_, 3, 0, 1, 3);
  for (QWidget* w : std::initializer_list<QWidget*>{autoRoll_, rolls_, delay_}) settings_.push_back(w);
  return box;
}

QWidget* AutoPlayScreen::BuildStopOn() {
  auto* holder = new QWidget(this);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  stopOn_ = new QListWidget(holder);
  stopOn_->setObjectName(QStringLiteral("listAutoStop"));
  auto* caption = new QLabel(tr("Auto-&Stop Rolling on:"), holder);
  caption->setBuddy(stopOn_);
  for (const char* row : kStopRows) {
    auto* item = new QListWidgetItem(QString::fromLatin1(row), stopOn_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
    item->setCheckState(Qt::Unchecked);
  }
  // Every row in sight: the list never scrolls.
  const int rows = stopOn_->count();
  stopOn_->setFixedHeight(stopOn_->sizeHintForRow(0) * rows + 2 * stopOn_->frameWidth() + 2);
  stopOn_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(stopOn_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    Apply("StopOnRoll." + std::to_string(stopOn_->row(item)), item->checkState() == Qt::Checked ? 1 : 0);
  });
  column->addWidget(caption);
  column->addWidget(stopOn_);
  settings_.push_back(stopOn_);
  return holder;
}

QWidget* AutoPlayScreen::BuildHandling(bool won) {
  auto* box = new QGroupBox(won ? tr("Auto-Handle Winning &Bets") : tr("Auto-Handle Los&ing Bets"), this);
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(3);
  auto* group = new QButtonGroup(box);
  const char* const* captions = won ? kWonOptions : kLostOptions;
  const char* name = won ? "optHandleWinningBets" : "optHandleLosingBets";
  for (int option = 0; option <= kBetOption; ++option) {
    auto* radio = new QRadioButton(tr(captions[option]), box);
    radio->setObjectName(Indexed(name, option));
    group->addButton(radio, option);
    grid->addWidget(radio, option, 0);
    settings_.push_back(radio);
  }
  const int sameEntry = won ? kModifyWonSame : kModifyLostSame;
  const int betEntry = won ? kModifyWonBet : kModifyLostBet;
  for (auto [option, entry] : {std::pair{kSameBetOption, sameEntry}, std::pair{kBetOption, betEntry}}) {
    auto* row = new ModifyAmountRow(table_, entry, option == kSameBetOption, box);
    grid->addWidget(row, option, 1);
    amountRows_.push_back(row);
    settings_.push_back(row);
  }
  grid->setColumnStretch(1, 1);
  const char* setting = won ? "WonBetAction" : "HandleLosingBets";
  connect(group, &QButtonGroup::idClicked, this, [this, setting](int option) { Apply(setting, option); });
  (won ? wonGroup_ : lostGroup_) = group;
  return box;
}

QWidget* AutoPlayScreen::BuildAdjust() {
  auto* box = new QGroupBox(tr("Auto-&Adjust Bet Amounts"), this);
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(3);
  adjustGroup_ = new QButtonGroup(box);
  for (int mode = 0; mode < 3; ++mode) {
    auto* radio = new QRadioButton(tr(kAdjustOptions[mode]), box);
    radio->setObjectName(Indexed("optAutoAdjustBetAmounts", mode));
    adjustGroup_->addButton(radio, mode);
    grid->addWidget(radio, mode, 0, 1, 2);
    settings_.push_back(radio);
  }
  connect(adjustGroup_, &QButtonGroup::idClicked, this, [this](int mode) { Apply("AutoAdjustMode", mode); });
  for (size_t i = 0; i < bias_.size(); ++i) {
    const BiasList& list = kBiasLists[i];
    auto* combo = new QComboBox(box);
    combo->setObjectName(QString::fromLatin1(list.name));
    for (const char* word : kBiasWords) combo->addItem(QString::fromLatin1(list.family) + QString::fromLatin1(word));
    connect(combo, &QComboBox::activated, this, [this, &list](int bias) { Apply(list.setting, bias); });
    grid->addWidget(combo, 3 + static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    bias_[i] = combo;
  }
  return box;
}

void AutoPlayScreen::Apply(const std::string& name, int value) {
  if (loading_) return;
  const TableResult r = table_.Set(name, value);
  if (!r.Done() && r.code != TableCode::Busy)
    dialogs_.Message({r.title.empty() ? "Auto-Play" : r.title, r.text, Buttons::Ok, false});
  // The table may have refused or asked a question that changed more.
  Refresh();
}

// A count goes in as it is typed; one the table cannot hold is marked and
// changes nothing. A new roll count also starts its countdown afresh.
void AutoPlayScreen::ApplyCount(QLineEdit* field, const char* name) {
  if (loading_) return;
  const qlonglong typed = CountIn(field);
  const int value = static_cast<int>(std::min<qlonglong>(typed, std::numeric_limits<int>::max()));
  TableResult r = table_.Set(name, value);
  if (r.Done() && field == rolls_) r = table_.Set("RollCountLeft", value);
  field->setStyleSheet(r.Done() ? QString() : QStringLiteral("QLineEdit { border: 2px solid #b00020; }"));
  field->setToolTip(r.Done() ? QString() : QString::fromStdString(r.text));
  if (r.Done()) rollsLeft_->setText(LeftText(table_.State().RollCountLeft));
}

void AutoPlayScreen::SetSelectedWorking(int mode) {
  if (loading_ || table_.Busy()) return;
  batch_ = true;
  for (const QListWidgetItem* item : comeOutList_->selectedItems()) {
    const int id = item->data(Qt::UserRole).toInt();
    const int value = mode == kDefaultMode ? bet::DefaultWorkOnComeOut(id) : mode;
    table_.Set("WorkOnComeOut." + std::to_string(id), value);
  }
  batch_ = false;
  RefreshWorkOnComeOut();
}

void AutoPlayScreen::SelectAllBets() {
  comeOutList_->selectAll();
  comeOutList_->setFocus();
}

void AutoPlayScreen::ShowWorkOnComeOut(bool open) {
  comeOutPanel_->setVisible(open);
  comeOutArrow_->setArrowType(open ? Qt::UpArrow : Qt::DownArrow);
  if (comeOutArrow_->isChecked() != open) comeOutArrow_->setChecked(open);
}

void AutoPlayScreen::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  loading_ = true;
  takeOdds_->setChecked(g.AutoTakeFullOdds);
  layOdds_->setChecked(g.AutoLayFullOdds);
  removePlace_->setChecked(g.AutoRemovePlaceBets);
  arrangeChips_->setChecked(g.AutoArrangeChips);
  RefreshWorkOnComeOut();

  autoRoll_->setChecked(g.AutoRollOn);
  RefreshCount(rolls_, g.RollCountStop);
  RefreshCount(delay_, g.AutoRollDelay);
  rollsLeft_->setText(LeftText(g.RollCountLeft));
  for (int row = 0; row < stopOn_->count(); ++row)
    stopOn_->item(row)->setCheckState(g.StopOnRoll[static_cast<size_t>(row)] ? Qt::Checked : Qt::Unchecked);

  if (QAbstractButton* b = wonGroup_->button(g.WonBetAction)) b->setChecked(true);
  if (QAbstractButton* b = lostGroup_->button(g.HandleLosingBets)) b->setChecked(true);
  for (ModifyAmountRow* row : amountRows_) row->Refresh();

  if (QAbstractButton* b = adjustGroup_->button(g.AutoAdjustMode)) b->setChecked(true);
  const int32_t biases[] = {g.LayBias, g.PlaceBias, g.DoBias, g.DontBias};
  for (size_t i = 0; i < bias_.size(); ++i) bias_[i]->setCurrentIndex(biases[i]);
  loading_ = false;
  EnableForRun();
}

void AutoPlayScreen::RefreshWorkOnComeOut() {
  const Game& g = table_.State();
  for (int row = 0; row < comeOutList_->count(); ++row) {
    QListWidgetItem* item = comeOutList_->item(row);
    item->setText(QString::fromStdString(WorkOnComeOutRow(g, item->data(Qt::UserRole).toInt())));
  }
}

// A field that already reads as the table's value is left as typed (empty
// reads as 0, so a field being cleared to type anew stays clear).
void AutoPlayScreen::RefreshCount(QLineEdit* field, int value) {
  if (CountIn(field) == value) return;
  field->setText(QString::number(value));
  field->setStyleSheet(QString());
  field->setToolTip(QString());
}

void AutoPlayScreen::SetRunning(bool running) {
  running_ = running;
  startStop_->setText(running ? tr("Stop Auto-Roll") : tr("Start Auto-Roll"));
  EnableForRun();
}

void AutoPlayScreen::ShowRollsLeft(int rolls) { rollsLeft_->setText(LeftText(rolls)); }

// While a run owns the table nothing here may change; only the run's own
// button stays, to stop it. The bias lists mean nothing without adjustment.
void AutoPlayScreen::EnableForRun() {
  const bool idle = !table_.Busy();
  for (QWidget* w : settings_) w->setEnabled(idle);
  startStop_->setEnabled(idle || running_);
  const bool adjusting = table_.State().AutoAdjustMode != 0;
  for (QComboBox* combo : bias_) combo->setEnabled(idle && adjusting);
}

void AutoPlayScreen::SettingChanged(const std::string&) {
  if (!batch_ && !loading_) Refresh();
}

void AutoPlayScreen::RollFinished(std::span<const Settlement>) { Refresh(); }

void AutoPlayScreen::UnsavedChanged(bool) {
  if (!loading_) Refresh();
}

void AutoPlayScreen::RunStarted() { EnableForRun(); }

void AutoPlayScreen::RunStopped(StopReason) { Refresh(); }

void AutoPlayScreen::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
}

void StageAutoPlayPicture(Table& table, AutoPlayScreen& screen) {
  table.Set("AutoTakeFullOdds", 1);
  table.Set("AutoArrangeChips", 1);
  table.Set("WorkOnComeOut." + std::to_string(bet::Place(6)), 1);
  table.Set("WorkOnComeOut." + std::to_string(bet::Place(8)), 1);
  table.Set("AutoRollOn", 1);
  table.Set("RollCountStop", 500);
  table.Set("RollCountLeft", 312);
  table.Set("AutoRollDelay", 2);
  for (int row : {1, 9, 16}) table.Set("StopOnRoll." + std::to_string(row), 1);
  table.Set("WonBetAction", kSameBetOption);
  table.Set("ModifyOperator." + std::to_string(kModifyWonSame), 0);
  table.Set("ModifyAmount." + std::to_string(kModifyWonSame), 1);
  table.Set("ModifyUnits." + std::to_string(kModifyWonSame), 2);
  table.Set("HandleLosingBets", 3);
  table.Set("ModifyAmount." + std::to_string(kModifyLostBet), 10);
  table.Set("PlaceBias", 1);
  screen.Refresh();
  screen.ShowWorkOnComeOut(true);
  auto* list = screen.findChild<QListWidget*>(QStringLiteral("lstWorkOnComeOut"));
  for (int id : {bet::Place(6), bet::Place(8)}) list->item(id - bet::kFirstTableBet)->setSelected(true);
  list->scrollToItem(list->item(bet::Place(6) - bet::kFirstTableBet), QAbstractItemView::PositionAtCenter);
}
