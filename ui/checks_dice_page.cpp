#include "ui/checks_dice_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <limits>

#include "dice/rng.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "sim/table.h"
#include "ui/chip_painter.h"
#include "ui/die_painter.h"
#include "ui/dialogs.h"

namespace {

constexpr int kRngModSeed = 2;          // generator #3, whose step overflows above a small seed
constexpr int32_t kModSeedLimit = 999'999;
constexpr Currency kLeastCheck = Currency::FromRaw(Currency::kScale / 100);
constexpr Currency kMostCheck = 100'000;

// A chip of the check's value, drawn over its box so the player sees which
// colour the table will stack.
class ChipSwatch : public QWidget {
 public:
  explicit ChipSwatch(QWidget* parent) : QWidget(parent) { setFixedSize(44, 44); }
  void SetValue(Currency value, ChipStyle style) {
    value_ = value;
    style_ = style;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    PaintChip(p, rect().center() + QPointF(0.5, 0.5), 20, value_, AmountLabel(value_), style_);
  }

 private:
  Currency value_;
  ChipStyle style_ = ChipStyle::Striped;
};

// A pair of dice as the table throws them.
class DiceSample : public QWidget {
 public:
  explicit DiceSample(QWidget* parent) : QWidget(parent) { setFixedSize(96, 48); }
  void SetStyle(DiceStyle style) {
    style_ = style;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    PaintDie(p, QRectF(4, 4, 40, 40), 5, style_);
    PaintDie(p, QRectF(52, 4, 40, 40), 2, style_);
  }

 private:
  DiceStyle style_ = DiceStyle::CasinoRed;
};

int32_t UpperSeedLimit(const Game& g) {
  return g.RngChoice == kRngModSeed ? kModSeedLimit : std::numeric_limits<int32_t>::max();
}

// A clock reading within the selected generator's limits: #3 takes a tenth
// of a second's count, wrapped so that a long-running machine still seeds.
int32_t ClockSeed(const Game& g) {
  const qint64 ms = QDateTime::currentMSecsSinceEpoch();
  if (g.RngChoice == kRngModSeed) return static_cast<int32_t>((ms / 100) % kModSeedLimit + 1);
  return static_cast<int32_t>(ms % std::numeric_limits<int32_t>::max() + 1);
}

QString Text(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

// In the order of ChipStyle and DiceStyle.
QStringList ChipStyleNames() { return {QObject::tr("Casino stripes"), QObject::tr("Plain")}; }
QStringList DiceStyleNames() { return {QObject::tr("Casino red"), QObject::tr("Ivory"), QObject::tr("Translucent")}; }

ChecksDicePage::ChecksDicePage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(BuildChecks());
  auto* lower = new QHBoxLayout;
  lower->addWidget(BuildGenerator(), 3);
  lower->addWidget(BuildLooks(), 2);
  layout->addLayout(lower);
  layout->addStretch();
  Refresh();
}

QWidget* ChecksDicePage::BuildChecks() {
  auto* box = new QGroupBox(tr("Check values"), this);
  auto* grid = new QGridLayout(box);
  for (int i = 0; i < 5; ++i) {
    auto* swatch = new ChipSwatch(box);
    swatch->setObjectName(QString("chipSwatch%1").arg(i));
    grid->addWidget(swatch, 0, i, Qt::AlignHCenter);
    auto* edit = new QLineEdit(box);
    edit->setObjectName(QString("txtDenomination%1").arg(i));
    edit->setAlignment(Qt::AlignRight);
    edit->setMaximumWidth(110);
    grid->addWidget(edit, 1, i, Qt::AlignHCenter);
    connect(edit, &QLineEdit::editingFinished, this, [this, i] { CommitCheck(i); });
    checks_[i] = edit;
  }
  auto* note = new QLabel(tr("Smallest check on the left; every check a whole multiple of it."), box);
  note->setStyleSheet("color: #555");
  grid->addWidget(note, 2, 0, 1, 5, Qt::AlignHCenter);
  return box;
}

QWidget* ChecksDicePage::BuildGenerator() {
  auto* box = new QGroupBox(tr("Random number generator"), this);
  auto* form = new QFormLayout(box);
  rng_ = new QComboBox(box);
  rng_->setObjectName("cmbRNG");
  for (int i = 0; i < kRngCount; ++i) rng_->addItem(QString::fromLatin1(RngListText(i)));
  // Choosing a generator does not seed it: it goes on with its own stream.
  connect(rng_, &QComboBox::activated, this, [this](int index) { SetAndRefresh("RngChoice", index); });
  form->addRow(tr("Generator:"), rng_);

  seedMode_ = new QButtonGroup(box);
  auto* modes = new QVBoxLayout;
  const QString captions[] = {tr(" Seed normally"), tr(" User seed")};
  for (int i = 0; i < 2; ++i) {
    auto* option = new QRadioButton(captions[i], box);
    option->setObjectName(QString("optSeedRNG%1").arg(i));
    seedMode_->addButton(option, i);
    modes->addWidget(option);
  }
  connect(seedMode_, &QButtonGroup::idClicked, this, [this](int id) { SetAndRefresh("UserSeedMode", id); });
  form->addRow(tr("Seeding:"), modes);

  reSeed_ = new QCheckBox(tr(" Re-seed new games"), box);
  reSeed_->setObjectName("chkReSeed");
  connect(reSeed_, &QCheckBox::clicked, this, [this](bool on) { SetAndRefresh("ReSeedNewGames", on ? 1 : 0); });
  form->addRow(QString(), reSeed_);

  lastSeed_ = new QLabel(box);
  lastSeed_->setObjectName("lblLastSeed");
  lastSeed_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  form->addRow(tr("Last entered seed:"), lastSeed_);

  auto* seed = new QPushButton(tr("Seed RNG now"), box);
  seed->setObjectName("cmdSeedRNG");
  seed->setMinimumWidth(150);
  connect(seed, &QPushButton::clicked, this, &ChecksDicePage::SeedNow);
  auto* seedRow = new QHBoxLayout;
  seedRow->addWidget(seed);
  seedRow->addStretch();
  form->addRow(QString(), seedRow);
  return box;
}

QWidget* ChecksDicePage::BuildLooks() {
  auto* box = new QGroupBox(tr("Chips and dice"), this);
  auto* form = new QFormLayout(box);
  chipStyle_ = new QComboBox(box);
  chipStyle_->setObjectName("cmbChipStyle");
  chipStyle_->addItems(ChipStyleNames());
  connect(chipStyle_, &QComboBox::activated, this, [this](int index) { SetAndRefresh("ChipStyle", index); });
  form->addRow(tr("Chip style:"), chipStyle_);
  diceStyle_ = new QComboBox(box);
  diceStyle_->setObjectName("cmbDiceStyle");
  diceStyle_->addItems(DiceStyleNames());
  connect(diceStyle_, &QComboBox::activated, this, [this](int index) { SetAndRefresh("DiceStyle", index); });
  form->addRow(tr("Dice style:"), diceStyle_);
  auto* sample = new DiceSample(box);
  sample->setObjectName(QStringLiteral("picDiceSample"));
  form->addRow(QString(), sample);
  return box;
}

void ChecksDicePage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (int i = 0; i < 5; ++i) {
    const Currency value = g.BetAmount[bet::kFirstChip + i];
    // An edit in progress is the player's: only a committed box is redrawn.
    if (!checks_[i]->hasFocus() || !checks_[i]->isModified()) {
      checks_[i]->setText(Text(FormatNumberWithCommas(value)));
      checks_[i]->setModified(false);
    }
    if (auto* swatch = findChild<ChipSwatch*>(QString("chipSwatch%1").arg(i)))
      swatch->SetValue(value, ChipStyleOf(g.ChipStyle));
  }
  rng_->setCurrentIndex(g.RngChoice >= 0 && g.RngChoice < kRngCount ? g.RngChoice : 0);
  seedMode_->button(g.UserSeedMode ? 1 : 0)->setChecked(true);
  reSeed_->setChecked(g.ReSeedNewGames);
  lastSeed_->setText(Text(FormatWithCommas(g.LastSeed)));
  // A file's style past the list shows the first, as the table draws it.
  chipStyle_->setCurrentIndex(g.ChipStyle < chipStyle_->count() ? g.ChipStyle : 0);
  diceStyle_->setCurrentIndex(g.DiceStyle < diceStyle_->count() ? g.DiceStyle : 0);
  if (auto* sample = findChild<DiceSample*>(QStringLiteral("picDiceSample"))) sample->SetStyle(DiceStyleOf(g.DiceStyle));
}

void ChecksDicePage::CommitPendingEdit() {
  for (int i = 0; i < 5; ++i)
    if (checks_[i]->isModified()) CommitCheck(i);
}

// Each check goes to the game as typed: order and divisibility are checked
// only when the window closes, so a player may pass through 1, 5, 4 on the
// way to 1, 5, 10.
void ChecksDicePage::CommitCheck(int index) {
  QLineEdit* edit = checks_[index];
  if (!edit->isModified()) return;
  edit->setModified(false);
  Currency value;
  if (!ParseCurrency(edit->text().trimmed().toStdString(), value)) {
    dialogs_.Message({"Check Values", "Please enter an amount, such as 25 or 0.50.", Buttons::Ok, false});
  } else if (value <= 0) {
    dialogs_.Message({"Check Values", "Check values must be greater than zero.", Buttons::Ok, false});
  } else if (value < kLeastCheck || value > kMostCheck) {
    dialogs_.Message({"Check Values", "Check values run from .01 to 100,000.", Buttons::Ok, false});
  } else if (value == table_.State().BetAmount[bet::kFirstChip + index]) {
    // "25.00" over 25 changes nothing, and the game stays saved.
  } else if (const TableResult r = table_.SetChip(index + 1, value); !r.Done()) {
    dialogs_.Message({r.title.empty() ? "Check Values" : r.title, r.text, Buttons::Ok, false});
  }
  Refresh();
}

void ChecksDicePage::SetAndRefresh(const char* name, int value) {
  table_.Set(name, value);
  Refresh();
}

void ChecksDicePage::SeedNow() {
  const Game& g = table_.State();
  Currency seed;
  if (g.UserSeedMode) {
    const int32_t upper = UpperSeedLimit(g);
    const std::string request = "Please enter a value between 1 and " + FormatWithCommas(upper) +
                                " to seed the random number generator:" + kBreak;
    std::string text = request;
    for (;;) {
      const std::optional<Currency> answer = dialogs_.Number("RNG Seed", text, Currency(g.LastSeed));
      if (!answer) return;  // cancelled: nothing seeded, nothing told
      if (*answer >= Currency(1) && *answer <= Currency(upper)) {
        seed = *answer;  // the table rounds a fraction as it rounds any seed
        break;
      }
      text = std::string("Your seed value is out of limits.") + kTwoBreaks + request;
    }
  } else {
    seed = Currency(ClockSeed(g));
  }
  if (const TableResult r = table_.Seed(seed); !r.Done()) {
    if (!r.text.empty()) dialogs_.Message({r.title.empty() ? "RNG Seed" : r.title, r.text, Buttons::Ok, false});
    Refresh();
    return;
  }
  Refresh();
  dialogs_.Message({"RNG Seeded", "The random number generator has now been seeded.", Buttons::Ok, false});
}
