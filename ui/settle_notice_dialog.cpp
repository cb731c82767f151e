#include "ui/settle_notice_dialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "engine/settle_notice.h"
#include "ui/number_prompt.h"

namespace {

// The most an entry may hold; the table ignores anything beyond it.
constexpr Currency kMostEntryAmount = 100'000;
constexpr int kWonButtonCount = 7;

QString OperatorCaption(int32_t op) {
  switch (op) {
    case 1: return QStringLiteral("\u2212");
    case 2: return QStringLiteral("\u00d7");
    case 3: return QStringLiteral("\u00f7");
    default: return QStringLiteral("+");
  }
}

QString UnitsCaption(int32_t units) {
  if (units < 0) return QStringLiteral("$");
  if (units == 0) return QStringLiteral("%");
  return QObject::tr("Chip %1").arg(units - 1);
}

template <size_t N>
int32_t NextIn(const std::array<int32_t, N>& cycle, int32_t current) {
  const auto* at = std::find(cycle.begin(), cycle.end(), current);
  if (at == cycle.end() || ++at == cycle.end()) return cycle.front();
  return *at;
}

// The header's colours: felt green for a win, grey for a push or a return,
// a deep red for a loss.
QString HeaderStyle(const SettleNotice& notice) {
  const char* background = !notice.won ? "#7a1620" : notice.title.find("Winner") != std::string::npos ? "#0d5c2e" : "#4a5358";
  const char* text = notice.won && notice.title.find("Winner") != std::string::npos ? "#f5d76e" : "#ffffff";
  return QStringLiteral("QLabel { background: %1; color: %2; border-radius: 6px; padding: 10px 18px; }")
      .arg(QString::fromLatin1(background), QString::fromLatin1(text));
}

// A button that steps through its choices, wide enough for the widest.
QPushButton* CycleButton(const char* name, int button, const QString& widest, const QString& tip, QWidget* parent) {
  auto* cycle = new QPushButton(parent);
  cycle->setObjectName(QStringLiteral("%1%2").arg(QString::fromLatin1(name)).arg(button));
  cycle->setToolTip(tip);
  cycle->setAutoDefault(false);
  cycle->setFixedWidth(cycle->fontMetrics().horizontalAdvance(widest) + 28);
  return cycle;
}

}  // namespace

SettleNoticeDialog::SettleNoticeDialog(const SettleNotice& notice, QWidget* parent) : QDialog(parent) {
  setObjectName("frmSettleBet");
  setWindowTitle(QString::fromStdString(notice.title));
  sameBet_.rule = notice.sameBet;
  bet_.rule = notice.bet;

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(22, 20, 22, 18);
  layout->setSpacing(16);

  auto* title = new QLabel(QString::fromStdString(notice.title), this);
  title->setObjectName("lblTitle");
  title->setAlignment(Qt::AlignCenter);
  QFont big = title->font();
  big.setPointSizeF(big.pointSizeF() * 1.6);
  big.setBold(true);
  title->setFont(big);
  title->setStyleSheet(HeaderStyle(notice));
  title->setMinimumWidth(360);
  layout->addWidget(title);

  AddRows(notice, layout);
  AddButtons(notice, layout);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void SettleNoticeDialog::AddRows(const SettleNotice& notice, QVBoxLayout* layout) {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(12, 0, 12, 0);
  grid->setHorizontalSpacing(32);
  grid->setVerticalSpacing(6);
  grid->setColumnStretch(0, 1);
  int line = 0;
  for (size_t i = 0; i < notice.rows.size(); ++i) {
    // The last row is the sum of those above it, ruled off as on a slip; a
    // last row without an amount only goes on with the one above.
    const bool last = i + 1 == notice.rows.size() && !notice.rows[i].second.empty();
    if (last && i > 0) {
      auto* rule = new QFrame(this);
      rule->setObjectName("linTotal");
      rule->setFrameShape(QFrame::HLine);
      rule->setFrameShadow(QFrame::Sunken);
      grid->addWidget(rule, line++, 0, 1, 2);
    }
    auto* left = new QLabel(QString::fromStdString(notice.rows[i].first).trimmed(), this);
    left->setObjectName(QStringLiteral("lblWonBetType%1").arg(i));
    auto* right = new QLabel(QString::fromStdString(notice.rows[i].second), this);
    right->setObjectName(QStringLiteral("lblWonBet%1").arg(i));
    right->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (last) {
      QFont bold = right->font();
      bold.setBold(true);
      left->setFont(bold);
      right->setFont(bold);
    }
    grid->addWidget(left, line, 0);
    grid->addWidget(right, line++, 1);
  }
  layout->addLayout(grid);
}

void SettleNoticeDialog::AddButtons(const SettleNotice& notice, QVBoxLayout* layout) {
  const bool entries = notice.won && notice.buttons.size() == kWonButtonCount;
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(6);
  grid->setHorizontalSpacing(8);
  grid->setColumnStretch(0, 1);
  for (size_t i = 0; i < notice.buttons.size(); ++i) {
    const int index = static_cast<int>(i);
    auto* button = new QPushButton(QString::fromStdString(notice.buttons[i]), this);
    button->setObjectName(QStringLiteral("cmdHandle%1").arg(index));
    button->setMinimumHeight(button->sizeHint().height() + 6);
    connect(button, &QPushButton::clicked, this, [this, index] { Press(index); });
    if (i == 0) button->setDefault(true);
    grid->addWidget(button, index, 0);
    if (entries && index == kSameBetModified) grid->addWidget(EntryControls(sameBet_, index, true), index, 1);
    if (entries && index == kBetModified) grid->addWidget(EntryControls(bet_, index, false), index, 1);
  }
  layout->addLayout(grid);
  if (!entries) return;
  error_ = new QLabel(tr("Please enter an amount from 0 to 100,000 beside the button."), this);
  error_->setObjectName("lblModifyError");
  error_->setStyleSheet("color: #b00020;");
  error_->setAlignment(Qt::AlignRight);
  error_->hide();
  layout->addWidget(error_);
}

QWidget* SettleNoticeDialog::EntryControls(Entry& entry, int button, bool withOperator) {
  auto* box = new QWidget(this);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);

  entry.op = CycleButton("cmdMathOperator", button, QStringLiteral("+"), tr("Click to change: add, subtract, multiply or divide"), box);
  entry.op->setText(OperatorCaption(entry.rule.op));
  connect(entry.op, &QPushButton::clicked, this, [&entry] {
    entry.rule.op = NextIn(kAmountOperators, entry.rule.op);
    entry.op->setText(OperatorCaption(entry.rule.op));
  });
  // "&Bet:" sets the amount outright: its operator would do nothing, so it
  // keeps its place in the row, unseen, and the columns stay aligned.
  if (!withOperator) {
    QSizePolicy keep = entry.op->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    entry.op->setSizePolicy(keep);
    entry.op->hide();
  }
  row->addWidget(entry.op);

  entry.amount = new QLineEdit(AmountText(entry.rule.amount), box);
  entry.amount->setObjectName(QStringLiteral("txtModifyAmount%1").arg(button));
  entry.amount->setAlignment(Qt::AlignRight);
  entry.amount->setFixedWidth(entry.amount->fontMetrics().horizontalAdvance(QStringLiteral("100,000.00")) + 16);
  // Enter in an entry answers with the entry's own button.
  connect(entry.amount, &QLineEdit::returnPressed, this, [this, button] { Press(button); });
  row->addWidget(entry.amount);

  entry.units = CycleButton("cmdUnits", button, UnitsCaption(kAmountUnits.back()), tr("Click to change: dollars, per cent of the bet, or chips"), box);
  entry.units->setText(UnitsCaption(entry.rule.units));
  connect(entry.units, &QPushButton::clicked, this, [&entry] {
    entry.rule.units = NextIn(kAmountUnits, entry.rule.units);
    entry.units->setText(UnitsCaption(entry.rule.units));
  });
  row->addWidget(entry.units);

  connect(entry.amount, &QLineEdit::textEdited, this, [this, &entry] {
    entry.amount->setStyleSheet(QString());
    error_->hide();
  });
  return box;
}

void SettleNoticeDialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QWidget* focus = focusWidget();
  if (enter && focus != nullptr && (focus == sameBet_.amount || focus == bet_.amount)) {
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

bool SettleNoticeDialog::ReadEntry(Entry& entry) {
  if (entry.amount == nullptr) return true;
  const auto amount = ParseAmount(entry.amount->text());
  if (!amount || *amount < 0 || *amount > kMostEntryAmount) return false;
  entry.rule.amount = *amount;
  return true;
}

void SettleNoticeDialog::Press(int button) {
  // The pressed button's own entry must read; another entry that does not
  // read keeps the amount the notice offered.
  const bool sameOk = ReadEntry(sameBet_);
  const bool betOk = ReadEntry(bet_);
  if ((button == kSameBetModified && !sameOk) || (button == kBetModified && !betOk)) {
    Entry& wrong = button == kSameBetModified ? sameBet_ : bet_;
    wrong.amount->setStyleSheet("border: 2px solid #b00020;");
    error_->show();
    wrong.amount->setFocus();
    wrong.amount->selectAll();
    return;
  }
  answer_ = SettleReply{button, sameBet_.rule, bet_.rule};
  accept();
}
