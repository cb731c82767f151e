#include "ui/misc_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "engine/game.h"
#include "engine/notices.h"
#include "sim/hyper_drive.h"
#include "sim/table.h"

namespace {

struct NoticeRow {
  const char* caption;
  int bit;
};
constexpr std::array<NoticeRow, 5> kNoticeRows = {{
    {" Actions not allowed", kNoticeRefusals},
    {" Betting limits reached", kNoticeLimits},
    {" Charges and/or change", kNoticeCharges},
    {" Auto-Bet messages normal play", kNoticeScript},
    {" Auto-Bet messages Hyper-Drive", kNoticeScriptHyper},
}};

constexpr int kUnits = 6;

// Rolls per hour in one of `unit`: the rate units divide by their factor,
// the time units divide their factor by the rate.
double InUnit(double rollsPerHour, RateUnit unit) {
  constexpr double kFactors[kUnits] = {1, 60, 3600, 1, 60, 3600};
  const int u = static_cast<int>(unit);
  return u < 3 ? rollsPerHour / kFactors[u] : kFactors[u] / rollsPerHour;
}

// The rate as `unit` shows it ("<.0001" for what would show as 0).
QString RollRateText(Currency rollsPerHour, RateUnit unit) {
  if (rollsPerHour <= 0) return QStringLiteral("<.0001");
  const Currency shown = Currency::FromDouble(InUnit(rollsPerHour.ToDouble(), unit));
  return shown == 0 ? QStringLiteral("<.0001") : QString::fromStdString(FormatNumberWithCommas(shown));
}

}  // namespace

MiscPage::MiscPage(Table& table, Dialogs& /*dialogs*/, QWidget* parent) : ConfigPage(parent), table_(table) {
  auto* noticeBox = new QGroupBox(tr("Show these notices"), this);
  auto* noticeList = new QVBoxLayout(noticeBox);
  for (size_t i = 0; i < kNoticeRows.size(); ++i) {
    notices_[i] = new QCheckBox(QString::fromLatin1(kNoticeRows[i].caption), noticeBox);
    notices_[i]->setObjectName(QStringLiteral("chkNotify%1").arg(i));
    noticeList->addWidget(notices_[i]);
    const int bit = kNoticeRows[i].bit;
    connect(notices_[i], &QCheckBox::toggled, this, [this, bit](bool on) {
      const int32_t mask = table_.State().NoticeMask;
      table_.Set("NoticeMask", on ? (mask | bit) : (mask & ~bit));
      Refresh();
    });
  }

  auto* rateBox = new QGroupBox(tr("Simulated roll rate"), this);
  auto* rateForm = new QFormLayout(rateBox);
  auto* rateLine = new QHBoxLayout;
  rate_ = new QLineEdit(rateBox);
  rate_->setObjectName(QStringLiteral("txtRollsPerHour"));
  rate_->setAlignment(Qt::AlignRight);
  rate_->setMaximumWidth(140);
  unit_ = new QComboBox(rateBox);
  unit_->setObjectName(QStringLiteral("cmbRollsPerTime"));
  for (int u = 0; u < kUnits; ++u) unit_->addItem(QString::fromLatin1(RateUnitName(static_cast<RateUnit>(u))));
  rateLine->addWidget(rate_);
  rateLine->addWidget(unit_);
  rateLine->addStretch(1);
  rateForm->addRow(tr("Rate:"), rateLine);
  auto* rateNote = new QLabel(tr("The pace of a real table, for the simulated hours of the statistics."), rateBox);
  rateNote->setWordWrap(true);
  rateNote->setEnabled(false);
  rateForm->addRow(rateNote);
  connect(rate_, &QLineEdit::editingFinished, this, &MiscPage::CommitRate);
  // A unit only changes how the rate is shown.
  connect(unit_, &QComboBox::activated, this, [this] { Refresh(); });

  auto* otherBox = new QGroupBox(tr("Display"), this);
  auto* otherList = new QVBoxLayout(otherBox);
  cents_ = new QCheckBox(tr(" Show amounts under $1 with the cents symbol (\u00a2)"), otherBox);
  cents_->setObjectName(QStringLiteral("chkUseCentsSymbol"));
  snap_ = new QCheckBox(tr(" Snap the mouse pointer to the default button"), otherBox);
  snap_->setObjectName(QStringLiteral("chkSnapMouse"));
  otherList->addWidget(cents_);
  otherList->addWidget(snap_);
  connect(cents_, &QCheckBox::toggled, this, [this](bool on) { SetFlag("UseCentsSymbol", on); });
  connect(snap_, &QCheckBox::toggled, this, [this](bool on) { SetFlag("SnapMouse", on); });

  auto* page = new QVBoxLayout(this);
  page->addWidget(noticeBox);
  page->addWidget(rateBox);
  page->addWidget(otherBox);
  page->addStretch(1);
  Refresh();
}

void MiscPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (size_t i = 0; i < kNoticeRows.size(); ++i) {
    const QSignalBlocker quiet(notices_[i]);
    notices_[i]->setChecked((g.NoticeMask & kNoticeRows[i].bit) != 0);
  }
  rateShown_ = RollRateText(g.SimRollRate, static_cast<RateUnit>(unit_->currentIndex()));
  rate_->setText(rateShown_);
  const QSignalBlocker quietCents(cents_), quietSnap(snap_);
  cents_->setChecked(g.UseCentsSymbol);
  snap_->setChecked(g.SnapMouse);
}

void MiscPage::CommitPendingEdit() { CommitRate(); }

void MiscPage::CommitRate() {
  if (rate_->text() == rateShown_) return;
  // Text that is no number is no rate: the unit's "greater than zero" says so.
  Currency value;
  if (!ParseCurrency(rate_->text().trimmed().toStdString(), value)) value = Currency{};
  // A refusal has been shown by the table; Refresh puts the rate back.
  table_.SetRollRate(value, static_cast<RateUnit>(unit_->currentIndex()));
  Refresh();
}

void MiscPage::SetFlag(const char* name, bool on) {
  table_.Set(name, on ? 1 : 0);
  Refresh();
}
