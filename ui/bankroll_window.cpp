#include "ui/bankroll_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/run_snapshot.h"
#include "ui/status_panel.h"

BankrollWindow::BankrollWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName(QStringLiteral("frmBankroll"));
  setWindowTitle(tr("Bankroll / Hyper-Drive"));
  auto* form = new QFormLayout;
  auto figure = [&](const char* name, const QString& caption) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(caption, label);
    return label;
  };
  high_ = figure("lblHigh", tr("High:"));
  low_ = figure("lblLow", tr("Low:"));
  current_ = figure("lblCurrent", tr("Current:"));
  rolls_ = figure("lblTotalRolls", tr("Total rolls:"));
  speed_ = figure("lblRollsPerSecond", tr("Rolls / second:"));

  count_ = new QSpinBox(this);
  count_->setObjectName(QStringLiteral("txtNumAutoRolls"));
  count_->setRange(1, static_cast<int>(MaxRolls));
  count_->setGroupSeparatorShown(true);
  count_->setValue(1'000'000);
  form->addRow(tr("Rolls to run:"), count_);

  button_ = new QPushButton(this);
  button_->setObjectName(QStringLiteral("cmdHyperDrive"));
  button_->setDefault(true);
  connect(button_, &QPushButton::clicked, this, [this] {
    if (running_)
      emit StopRequested();
    else
      emit StartRequested(count_->value());
  });
  SetRunning(false);

  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addSpacing(8);
  column->addWidget(button_);
  setMinimumWidth(320);
}

void BankrollWindow::ShowFigures(const RunSnapshot& shot, double rollsPerSecond) {
  high_->setText(MoneyLabel(shot.HighBankroll));
  low_->setText(MoneyLabel(shot.LowBankroll));
  current_->setText(MoneyLabel(shot.Bankroll));
  rolls_->setText(QLocale().toString(static_cast<qlonglong>(shot.Rolls)));
  speed_->setText(rollsPerSecond > 0 ? QLocale().toString(rollsPerSecond, 'f', 0) : QStringLiteral("-"));
}

void BankrollWindow::SetRunning(bool running) {
  running_ = running;
  button_->setText(running ? tr("Stop Hyper-&Drive") : tr("Start Hyper-&Drive"));
  count_->setEnabled(!running);
}

void BankrollWindow::SetRolls(int rolls) {
  if (rolls > 0) count_->setValue(rolls);
}

int BankrollWindow::Rolls() const { return count_->value(); }
