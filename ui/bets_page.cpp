#include "ui/bets_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "config/settings_table.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/dialogs.h"

namespace {

constexpr std::array<const char*, 6> kOddsMethods = {
    "Auto select",          "X Flat - No Push",     "X Flat w/ Minor Push",
    "X Flat w/ Color Push", "X Flat - Single Odds", "Flat - Single Odds X",
};
constexpr std::array<const char*, 3> kRoundings = {"Rounded normally", "Rounded down", "Rounded up"};
constexpr int kPercent = 100;

QComboBox* Combo(const char* objectName, const auto& captions, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(QString::fromLatin1(objectName));
  for (const char* caption : captions) box->addItem(QString::fromLatin1(caption));
  return box;
}

QRadioButton* Option(const QString& objectName, const QString& caption, QButtonGroup* group, QWidget* parent) {
  auto* option = new QRadioButton(caption, parent);
  option->setObjectName(objectName);
  group->addButton(option);
  return option;
}

QString Shown(Currency value) { return QString::fromStdString(FormatNumberWithCommas(value)); }

}  // namespace

BetsPage::BetsPage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("pageBets"));

  auto* limits = new QGroupBox(tr("Table limits"), this);
  auto* limitForm = new QFormLayout(limits);
  limitForm->addRow(tr("Minimum bet"), AddAmount("txtMinPlacardBet", "TableMinimum"));
  limitForm->addRow(tr("Maximum bet"), AddAmount("txtMaxPlacardBet", "TableMaximum"));
  limitForm->addRow(tr("Max odds bet"), AddAmount("txtMaxOddsBet", "MaxOddsBet"));
  limitForm->addRow(tr("Max prop bet payoff"), AddAmount("txtMaxPropBetPayoff", "MaxPropBetPayoff"));

  auto* odds = new QGroupBox(tr("Odds allowed"), this);
  auto* oddsForm = new QFormLayout(odds);
  oddsForm->addRow(tr("4 and 10"), AddAmount("txtOddsAllowed410", "OddsAllowed410"));
  oddsForm->addRow(tr("5 and 9"), AddAmount("txtOddsAllowed59", "OddsAllowed59"));
  oddsForm->addRow(tr("6 and 8"), AddAmount("txtOddsAllowed68", "OddsAllowed68"));
  oddsMethod_ = Combo("cmbOddsCalcMethod", kOddsMethods, odds);
  oddsForm->addRow(new QLabel(tr("Odds calculation method:"), odds));
  oddsForm->addRow(oddsMethod_);
  connect(oddsMethod_, &QComboBox::activated, this, [this](int i) { Apply("OddsCalcMethod", i); });

  auto* dont = new QGroupBox(tr("Don't Pass and Don't Come"), this);
  auto* dontRow = new QHBoxLayout(dont);
  auto* barGroup = new QButtonGroup(dont);
  bar2_ = Option(QStringLiteral("optBarDont0"), tr(" Bar 2"), barGroup, dont);
  bar12_ = Option(QStringLiteral("optBarDont1"), tr(" Bar 12"), barGroup, dont);
  dontRow->addWidget(bar2_);
  dontRow->addWidget(bar12_);
  dontRow->addStretch();
  connect(bar2_, &QAbstractButton::clicked, this, [this] { Apply("BarNumber", 2); });
  connect(bar12_, &QAbstractButton::clicked, this, [this] { Apply("BarNumber", 12); });

  allowPut_ = new QCheckBox(tr(" Allow Put bets"), this);
  allowPut_->setObjectName(QStringLiteral("chkAllowPutBets"));
  connect(allowPut_, &QAbstractButton::clicked, this, [this](bool on) { Apply("AllowPutBets", on ? 1 : 0); });

  // The Lay and Buy boxes differ only in their names.
  auto vigBox = [this](const QString& title, const char* kind, const char* rate, const char* chargeAll,
                       const char* round, QAbstractButton*& all, QAbstractButton*& winning, QComboBox*& rounding) {
    auto* box = new QGroupBox(title, this);
    auto* form = new QFormLayout(box);
    auto* pct = new QHBoxLayout;
    pct->addWidget(AddAmount(qPrintable(QStringLiteral("txt%1VigPct").arg(QLatin1String(kind))), rate, true));
    pct->addWidget(new QLabel(QStringLiteral("%"), box));
    form->addRow(tr("Vig"), pct);
    auto* group = new QButtonGroup(box);
    const QString option = QStringLiteral("opt%1Vig").arg(QLatin1String(kind));
    all = Option(option + QLatin1Char('0'), tr(" Charge all %1 bets").arg(QLatin1String(kind)), group, box);
    winning =
        Option(option + QLatin1Char('1'), tr(" Charge winning %1 bets only").arg(QLatin1String(kind)), group, box);
    form->addRow(all);
    form->addRow(winning);
    rounding = Combo(round, kRoundings, box);
    form->addRow(rounding);
    const std::string chargeSetting = chargeAll, roundSetting = round + 3;  // "cmbRoundLayVig" -> "RoundLayVig"
    connect(all, &QAbstractButton::clicked, this, [this, chargeSetting] { Apply(chargeSetting, 1); });
    connect(winning, &QAbstractButton::clicked, this, [this, chargeSetting] { Apply(chargeSetting, 0); });
    connect(rounding, &QComboBox::activated, this, [this, roundSetting](int i) { Apply(roundSetting, i); });
    return box;
  };
  QGroupBox* lay = vigBox(tr("Lay vig"), "Lay", "LayVigRate", "ChargeAllLay", "cmbRoundLayVig", chargeAllLay_,
                          chargeWinLay_, roundLay_);
  QGroupBox* buy = vigBox(tr("Buy vig"), "Buy", "BuyVigRate", "ChargeAllBuy", "cmbRoundBuyVig", chargeAllBuy_,
                          chargeWinBuy_, roundBuy_);

  auto* left = new QVBoxLayout;
  left->addWidget(limits);
  left->addWidget(odds);
  left->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(dont);
  right->addWidget(allowPut_);
  right->addWidget(lay);
  right->addWidget(buy);
  right->addStretch();
  auto* columns = new QHBoxLayout(this);
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  Refresh();
}

QLineEdit* BetsPage::AddAmount(const char* objectName, const char* setting, bool percent) {
  auto* edit = new QLineEdit(this);
  edit->setObjectName(QString::fromLatin1(objectName));
  edit->setAlignment(Qt::AlignRight);
  edit->setMaximumWidth(110);
  amounts_.push_back({edit, setting, percent});
  const AmountField field = amounts_.back();
  connect(edit, &QLineEdit::editingFinished, this, [this, field] { CommitAmount(field); });
  return edit;
}

void BetsPage::CommitAmount(const AmountField& field) {
  if (!field.edit->isModified()) return;
  field.edit->setModified(false);
  Currency typed;
  if (!ParseCurrency(field.edit->text().trimmed().toStdString(), typed) || typed < 0) {
    dialogs_.Message({"Dicemill", "Please enter an amount of zero or more.", Buttons::Ok, false});
    Refresh();
    return;
  }
  Apply(field.setting, field.percent ? MulDiv(typed, 1, kPercent) : typed);
}

void BetsPage::CommitPendingEdit() {
  for (const AmountField& field : amounts_) CommitAmount(field);
}

void BetsPage::Apply(const std::string& setting, Currency value) {
  const TableResult r = table_.Set(setting, value);
  // A refused vig rule has told the player already; a value out of range has not.
  if (!r.Done() && r.code != TableCode::Refused && r.code != TableCode::Busy) {
    const SettingRow* row = FindSettingRow(setting);
    const int64_t scale = setting.ends_with("VigRate") ? kPercent : 1;  // as the field shows it
    dialogs_.Message({"Dicemill",
                      "Please enter an amount from " + FormatNumberWithCommas(row->least * scale) + " to " +
                          FormatNumberWithCommas(row->most * scale) + ".",
                      Buttons::Ok, false});
  }
  Refresh();
}

void BetsPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (const AmountField& field : amounts_) {
    if (field.edit->isModified()) continue;  // the player is still typing there
    const Currency value = FindSettingRow(field.setting)->get(g, 0);
    field.edit->setText(Shown(field.percent ? value * kPercent : value));
  }
  oddsMethod_->setCurrentIndex(g.OddsCalcMethod >= 0 && g.OddsCalcMethod < oddsMethod_->count() ? g.OddsCalcMethod : 0);
  (g.BarNumber == 2 ? bar2_ : bar12_)->setChecked(true);
  allowPut_->setChecked(g.AllowPutBets);
  (g.ChargeAllLay ? chargeAllLay_ : chargeWinLay_)->setChecked(true);
  (g.ChargeAllBuy ? chargeAllBuy_ : chargeWinBuy_)->setChecked(true);
  roundLay_->setCurrentIndex(g.RoundLayVig);
  roundBuy_->setCurrentIndex(g.RoundBuyVig);
}
