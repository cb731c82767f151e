#include "ui/modify_amount_row.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <optional>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "sim/table.h"
#include "ui/number_prompt.h"

namespace {

constexpr std::array<const char*, 4> kOperatorCaptions{"+", "-", "x", "/"};
// -1 dollars, 0 per cent of the bet, 2..6 the checks 1..5 (1 means nothing).
constexpr std::array<int32_t, 7> kUnitsCycle{-1, 0, 2, 3, 4, 5, 6};

const char* const kBadAmountStyle = "QLineEdit { border: 2px solid #b00020; }";

// An empty entry reads as no amount at all.
std::optional<Currency> ReadAmount(const QString& text) {
  return text.trimmed().isEmpty() ? std::optional<Currency>(Currency(0)) : ParseAmount(text);
}

QString Indexed(const char* name, int entry) { return QStringLiteral("%1%2").arg(QString::fromLatin1(name)).arg(entry); }

// A button that steps through its choices, as wide as `usual` needs and
// wider for a longer caption.
QPushButton* CycleButton(const QString& name, const QString& usual, const QString& tip, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(usual) + 24);
  button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  return button;
}

QString CheckValue(const Game& g, int32_t units) {
  if (units < 2) return {};
  return QString::fromStdString(MoneyText(g.BetAmount[bet::ChipSlot(units - 1)]));
}

}  // namespace

QString ModifyUnitsCaption(int32_t units, const QString& checkValue) {
  if (units < 0) return QStringLiteral("$");
  if (units == 0) return QStringLiteral("%");
  return checkValue + QStringLiteral(" Units");
}

ModifyAmountRow::ModifyAmountRow(Table& table, int entry, bool withOperator, QWidget* parent)
    : QWidget(parent), table_(table), entry_(entry) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(3);

  operator_ = CycleButton(Indexed("cmdMathOperator", entry), QStringLiteral("+"),
                          tr("Click to change: add, subtract, multiply or divide"), this);
  operator_->setFixedWidth(operator_->minimumWidth());
  connect(operator_, &QPushButton::clicked, this, &ModifyAmountRow::CycleOperator);
  if (!withOperator) {
    QSizePolicy keep = operator_->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    operator_->setSizePolicy(keep);
    operator_->hide();
  }
  row->addWidget(operator_);

  amount_ = new QLineEdit(QStringLiteral("0"), this);
  amount_->setObjectName(Indexed("txtModifyAmount", entry));
  amount_->setAlignment(Qt::AlignRight);
  amount_->setFixedWidth(amount_->fontMetrics().horizontalAdvance(QStringLiteral("100,000.00")) + 14);
  connect(amount_, &QLineEdit::textEdited, this, &ModifyAmountRow::AmountEdited);
  row->addWidget(amount_);

  units_ = CycleButton(Indexed("cmdUnits", entry), QStringLiteral("$100 Units"),
                       tr("Click to change: dollars, per cent of the bet, or checks of a colour"), this);
  connect(units_, &QPushButton::clicked, this, &ModifyAmountRow::CycleUnits);
  row->addWidget(units_);
  row->addStretch(1);
  Refresh();
}

void ModifyAmountRow::Refresh() {
  const Game& g = table_.State();
  const size_t e = static_cast<size_t>(entry_);
  operator_->setText(QString::fromLatin1(kOperatorCaptions[static_cast<size_t>(std::clamp(g.ModifyOperator[e], 0, 3))]));
  units_->setText(ModifyUnitsCaption(g.ModifyUnits[e], CheckValue(g, g.ModifyUnits[e])));
  const auto typed = ReadAmount(amount_->text());
  if (!typed || *typed != g.ModifyAmount[e]) {
    amount_->setText(AmountText(g.ModifyAmount[e]));
    amount_->setStyleSheet(QString());
  }
}

void ModifyAmountRow::CycleOperator() {
  const int32_t next = (table_.State().ModifyOperator[static_cast<size_t>(entry_)] + 1) % 4;
  table_.Set(Indexed("ModifyOperator.", entry_).toStdString(), next);
  Refresh();
}

void ModifyAmountRow::CycleUnits() {
  const int32_t now = table_.State().ModifyUnits[static_cast<size_t>(entry_)];
  const auto* at = std::find(kUnitsCycle.begin(), kUnitsCycle.end(), now);
  const int32_t next = at == kUnitsCycle.end() || at + 1 == kUnitsCycle.end() ? kUnitsCycle.front() : *(at + 1);
  table_.Set(Indexed("ModifyUnits.", entry_).toStdString(), next);
  Refresh();
}

// An amount the table takes goes in as it is typed; one it cannot take is
// marked and leaves the table's amount as it was.
void ModifyAmountRow::AmountEdited(const QString& text) {
  const auto amount = ReadAmount(text);
  const bool taken = amount && table_.Set(Indexed("ModifyAmount.", entry_).toStdString(), *amount).Done();
  amount_->setStyleSheet(taken ? QString() : QString::fromLatin1(kBadAmountStyle));
  amount_->setToolTip(taken ? QString() : tr("An amount from 0 to 100,000"));
}
