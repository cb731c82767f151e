#include "ui/comps_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "stats/comps.h"
#include "ui/dialogs.h"

namespace {

constexpr const char* kRateTitle = "Comp Rate";
constexpr int kMostPercent = 100;

QRadioButton* Option(const QString& caption, const char* name, QWidget* parent) {
  auto* option = new QRadioButton(caption, parent);
  option->setObjectName(QLatin1String(name));
  return option;
}

}  // namespace

CompsPage::CompsPage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  auto* familyBox = new QGroupBox(tr("Bets that earn comps"), this);
  auto* familyList = new QVBoxLayout(familyBox);
  for (int i = 0; i < comps::kFamilies; ++i) {
    families_[i] = new QCheckBox(QLatin1Char(' ') + tr(comps::kFamilyCaptions[static_cast<size_t>(i)]), familyBox);
    families_[i]->setObjectName(QStringLiteral("chkCompBetsMask%1").arg(i + 1));
    familyList->addWidget(families_[i]);
    const std::string setting = "CompBetsMask." + std::to_string(i + 1);
    connect(families_[i], &QCheckBox::toggled, this, [this, setting](bool on) { Set(setting, on ? 1 : 0); });
  }

  auto* rateBox = new QGroupBox(tr("Comp rate"), this);
  auto* rateForm = new QFormLayout(rateBox);
  auto* rateLine = new QHBoxLayout;
  rate_ = new QLineEdit(rateBox);
  rate_->setObjectName(QStringLiteral("txtCompRate"));
  rate_->setAlignment(Qt::AlignRight);
  rate_->setMaximumWidth(80);
  rateLine->addWidget(rate_);
  rateLine->addWidget(new QLabel(tr("% of the theoretical loss"), rateBox));
  rateLine->addStretch(1);
  rateForm->addRow(tr("Rate:"), rateLine);
  connect(rate_, &QLineEdit::editingFinished, this, &CompsPage::CommitRate);

  auto* lossBox = new QGroupBox(tr("Theoretical loss"), this);
  auto* lossForm = new QFormLayout(lossBox);
  perDecision_ = Option(tr(" Per decision"), "optCompBase0", lossBox);
  perRoll_ = Option(tr(" Per roll"), "optCompBase1", lossBox);
  trueProbs_ = Option(tr(" True probabilities"), "optCompsUseTrueProbs1", lossBox);
  currentProbs_ = Option(tr(" Current probabilities (the Probability tab)"), "optCompsUseTrueProbs0", lossBox);
  auto pair = [&](QRadioButton* a, QRadioButton* b) {
    auto* group = new QButtonGroup(lossBox);
    group->addButton(a);
    group->addButton(b);
    auto* line = new QHBoxLayout;
    line->addWidget(a);
    line->addWidget(b);
    line->addStretch(1);
    return line;
  };
  lossForm->addRow(tr("House edge:"), pair(perDecision_, perRoll_));
  lossForm->addRow(tr("Dice:"), pair(trueProbs_, currentProbs_));
  auto* formula = new QLabel(tr("Comp value = rate x the sum, over the bets decided, of the amount wagered x the "
                                "bet's house edge. An edge in the player's favour counts as no loss. The "
                                "Summary shows the total."),
                             lossBox);
  formula->setWordWrap(true);
  formula->setEnabled(false);
  lossForm->addRow(formula);
  connect(perRoll_, &QRadioButton::toggled, this, [this](bool on) { Set("CompBase", on ? 1 : 0); });
  connect(trueProbs_, &QRadioButton::toggled, this, [this](bool on) { Set("CompsUseTrueProbs", on ? 1 : 0); });

  auto* page = new QVBoxLayout(this);
  page->addWidget(familyBox);
  page->addWidget(rateBox);
  page->addWidget(lossBox);
  page->addStretch(1);
  Refresh();
}

void CompsPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (int i = 0; i < comps::kFamilies; ++i) {
    const QSignalBlocker quiet(families_[i]);
    families_[i]->setChecked(g.CompBetsMask[static_cast<size_t>(i + 1)] != 0);
  }
  rateShown_ = QString::fromStdString(FormatNumberWithCommas(g.CompRate * kMostPercent));
  rate_->setText(rateShown_);
  // One of each pair goes on, which puts the other off: all four are quiet meanwhile.
  const QSignalBlocker q1(perDecision_), q2(perRoll_), q3(trueProbs_), q4(currentProbs_);
  (g.CompBase == 1 ? perRoll_ : perDecision_)->setChecked(true);
  (g.CompsUseTrueProbs ? trueProbs_ : currentProbs_)->setChecked(true);
}

void CompsPage::CommitPendingEdit() { CommitRate(); }

void CompsPage::CommitRate() {
  if (rate_->text() == rateShown_) return;
  Currency percent;
  const bool number = ParseCurrency(rate_->text().trimmed().toStdString(), percent);
  if (!number || percent < 0 || percent > kMostPercent) {
    dialogs_.Message({kRateTitle, "The comp rate must be a percentage from 0 to 100.", Buttons::Ok, false});
  } else {
    table_.Set("CompRate", Currency::FromRaw(percent.raw / kMostPercent));
  }
  Refresh();
}

void CompsPage::Set(const std::string& name, int value) {
  table_.Set(name, value);
  Refresh();
}
