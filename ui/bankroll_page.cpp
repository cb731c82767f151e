#include "ui/bankroll_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "autoplay/atm.h"
#include "config/settings_table.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "sim/table.h"
#include "ui/dialogs.h"
#include "ui/sign_colour.h"

namespace {

QString Text(const std::string& s) { return QString::fromStdString(s); }

// An amount drawn in its sign's colour.
void ShowMoney(QLabel* label, Currency amount) {
  label->setText(Text(MoneyText(amount)));
  const QColor colour = SignColour16(amount.ToDouble());
  label->setStyleSheet(QString("color: %1; font-weight: bold").arg(colour.name()));
}

QLineEdit* AmountBox(const char* name, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setAlignment(Qt::AlignRight);
  edit->setMaximumWidth(120);
  return edit;
}

}  // namespace

BankrollPage::BankrollPage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  auto* columns = new QHBoxLayout(this);
  auto* left = new QVBoxLayout;
  left->addWidget(BuildNewGame());
  left->addWidget(BuildLimits());
  left->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(BuildAtm());
  right->addWidget(BuildStanding());
  right->addStretch();
  columns->addLayout(left, 3);
  columns->addLayout(right, 2);
  Refresh();
}

QWidget* BankrollPage::BuildNewGame() {
  auto* box = new QGroupBox(tr("Each new game"), this);
  auto* layout = new QVBoxLayout(box);
  initType_ = new QButtonGroup(box);
  const QString captions[] = {tr(" Start bankroll with:"), tr(" Prompt for starting bankroll"),
                              tr(" Carry forward bankroll from previous game"),
                              tr(" Carry forward bankroll and net from previous game")};
  for (int i = 0; i < 4; ++i) {
    auto* option = new QRadioButton(captions[i], box);
    option->setObjectName(QString("optBankrollInitType%1").arg(i));
    initType_->addButton(option, i);
    if (i > 0) {
      layout->addWidget(option);
      continue;
    }
    // The amount belongs to the first choice and stands beside it.
    auto* row = new QHBoxLayout;
    row->addWidget(option);
    initAmount_ = AmountBox("txtBankrollInitAmount", box);
    row->addWidget(initAmount_);
    row->addStretch();
    layout->addLayout(row);
  }
  connect(initType_, &QButtonGroup::idClicked, this, [this](int id) {
    table_.Set("BankrollInitType", id);
    Refresh();
  });
  connect(initAmount_, &QLineEdit::editingFinished, this,
          [this] { CommitAmount(initAmount_, "BankrollInitAmount", "Set Beginning Bankroll"); });
  return box;
}

QWidget* BankrollPage::BuildLimits() {
  auto* box = new QGroupBox(tr("Below zero"), this);
  auto* layout = new QVBoxLayout(box);
  allowNegative_ = new QCheckBox(tr("Allow negative bankroll amounts"), box);
  allowNegative_->setObjectName("chkAllowNegBankroll");
  // The table may refuse, with its own message; Refresh then puts the box back.
  connect(allowNegative_, &QCheckBox::clicked, this, [this](bool on) {
    table_.Set("AllowNegativeBankroll", on ? 1 : 0);
    Refresh();
  });
  layout->addWidget(allowNegative_);
  auto* note = new QLabel(tr("Unchecked, the bankroll may not drop below zero nor below the bets on the table: "
                             "a deposit into the ATM is cut to what they leave."),
                          box);
  note->setWordWrap(true);
  note->setStyleSheet("color: #555");
  layout->addWidget(note);
  return box;
}

QWidget* BankrollPage::BuildAtm() {
  auto* box = new QGroupBox(tr("ATM"), this);
  auto* layout = new QVBoxLayout(box);
  auto* form = new QFormLayout;
  atmAmount_ = AmountBox("txtAddSub", box);
  connect(atmAmount_, &QLineEdit::editingFinished, this, [this] { CommitAmount(atmAmount_, "AtmAmount", "ATM"); });
  form->addRow(tr("Amount:"), atmAmount_);
  layout->addLayout(form);
  auto* buttons = new QHBoxLayout;
  const QString captions[] = {tr("Withdraw"), tr("Deposit")};
  for (int action : {kAtmWithdraw, kAtmDeposit}) {
    auto* button = new QPushButton(captions[action], box);
    button->setObjectName(QString("cmdAddSub%1").arg(action));
    connect(button, &QPushButton::clicked, this, [this, action] { UseAtm(action); });
    buttons->addWidget(button);
  }
  layout->addLayout(buttons);
  auto* note = new QLabel(tr("Withdraw brings money to the table; Deposit takes it away."), box);
  note->setWordWrap(true);
  note->setStyleSheet("color: #555");
  layout->addWidget(note);
  return box;
}

QWidget* BankrollPage::BuildStanding() {
  auto* box = new QGroupBox(tr("This game"), this);
  auto* form = new QFormLayout(box);
  invested_ = new QLabel(box);
  invested_->setObjectName("lblInvestedBankroll");
  current_ = new QLabel(box);
  current_->setObjectName("lblCurrentBankroll");
  wonLost_ = new QLabel(box);
  wonLost_->setObjectName("lblWonLost");
  net_ = new QLabel(box);
  net_->setObjectName("lblNet");
  onTable_ = new QLabel(box);
  onTable_->setObjectName("lblTotalOnTable");
  for (QLabel* amount : {invested_, current_, net_, onTable_}) amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  form->addRow(tr("Amount Invested:"), invested_);
  form->addRow(tr("Current Bankroll:"), current_);
  form->addRow(wonLost_, net_);
  form->addRow(tr("Bets on the table:"), onTable_);
  return box;
}

void BankrollPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  initType_->button(g.BankrollInitType >= 0 && g.BankrollInitType < 4 ? g.BankrollInitType : 0)->setChecked(true);
  // An edit in progress is the player's: only a committed box is redrawn.
  const std::pair<QLineEdit*, Currency> amounts[] = {{initAmount_, g.BankrollInitAmount}, {atmAmount_, g.AtmAmount}};
  for (const auto& [edit, value] : amounts) {
    if (edit->hasFocus() && edit->isModified()) continue;
    edit->setText(Text(FormatNumberWithCommas(value)));
    edit->setModified(false);
  }
  allowNegative_->setChecked(g.AllowNegativeBankroll);
  ShowMoney(invested_, g.AmountInvested);
  ShowMoney(current_, g.Bankroll());
  const Currency net = NetResult(g);
  wonLost_->setText(net > 0 ? tr("Won:") : net < 0 ? tr("Lost:") : tr("Won/Lost:"));
  ShowMoney(net_, net);
  onTable_->setText(Text(MoneyText(g.TotalOnTable)));
}

void BankrollPage::CommitPendingEdit() {
  if (initAmount_->isModified()) CommitAmount(initAmount_, "BankrollInitAmount", "Set Beginning Bankroll");
  if (atmAmount_->isModified()) CommitAmount(atmAmount_, "AtmAmount", "ATM");
}

bool BankrollPage::CommitAmount(QLineEdit* edit, const char* setting, const char* title) {
  if (!edit->isModified()) return true;
  edit->setModified(false);
  Currency value;
  const SettingRow* row = FindSettingRow(setting);
  const bool parsed = ParseCurrency(edit->text().trimmed().toStdString(), value);
  if (!parsed || !table_.Set(setting, value).Done()) {
    const std::string range = "Please enter an amount from " + FormatNumberWithCommas(row->least) + " to " +
                              FormatNumberWithCommas(row->most) + ".";
    dialogs_.Message({title, range, Buttons::Ok, false});
    Refresh();
    return false;
  }
  Refresh();
  return true;
}

void BankrollPage::UseAtm(int action) {
  if (!CommitAmount(atmAmount_, "AtmAmount", "ATM")) return;  // the amount as last typed, or nothing
  // A cut is told by the table itself while the Configure window is open.
  table_.Atm(static_cast<AtmAction>(action), table_.State().AtmAmount);
  Refresh();
}

void FillSampleBankroll(Table& table) {
  table.Set("AtmAmount", 250);
  table.Atm(kAtmWithdraw, 500);
  table.Bet(bet::kPassLine, 25);
  table.Roll(1, 2);  // craps: the line bet lost
  table.Bet(bet::kPassLine, 25);
  table.Roll(2, 2);
  table.Bet(bet::Place(6), 18);
}
