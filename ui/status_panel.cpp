#include "ui/status_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>

#include "dice/rng.h"
#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "sim/run_snapshot.h"

namespace {

constexpr std::array<const char*, 9> kCaptions = {"Rack", "On table", "Invested", "Net", "Point",
                                                  "Last roll", "Rolls", "Dice", "Playing"};

QString DiceInUse(const Game& g) {
  if (g.DiceFileMode != kRecorderOff && !g.DiceFile.RollFileName.empty()) {
    const QString mode = g.DiceFileMode == kRecorderRecord ? QObject::tr("recording") : QObject::tr("playing");
    return QString::fromStdString(g.DiceFile.RollFileName).section('/', -1) + " (" + mode + ")";
  }
  return QString::fromLatin1(RngListText(g.RngChoice));
}

QString AutoState(const Game& g) {
  QStringList on;
  if (g.AutoBetActivated) on << QObject::tr("Auto-Bet");
  if (g.AutoRollOn) on << QObject::tr("Auto-Roll");
  if (g.WonBetAction != 0 || g.AutoTakeFullOdds || g.AutoLayFullOdds) on << QObject::tr("Auto-Play");
  return on.isEmpty() ? QObject::tr("by hand") : on.join(QStringLiteral(", "));
}

}  // namespace

QString MoneyLabel(Currency amount) { return QString::fromStdString(MoneyText(amount)); }

StatusFigures FiguresOf(const Game& g) {
  return {g.Bankroll(), g.TotalOnTable, g.AmountInvested, g.Point, g.Die1, g.Die2,
          g.RollCounts[event::kAllRolls], DiceInUse(g), AutoState(g)};
}

StatusFigures FiguresOf(const RunSnapshot& shot, const StatusFigures& idle) {
  StatusFigures f = idle;
  f.Bankroll = shot.Bankroll;
  f.OnTable = shot.TotalOnTable;
  f.Point = shot.Point;
  f.Die1 = shot.Die1;
  f.Die2 = shot.Die2;
  f.Rolls = shot.Rolls;
  return f;
}

StatusPanel::StatusPanel(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("fraStatus"));
  setFrameShape(QFrame::StyledPanel);
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(2);
  constexpr int kPerRow = 5;
  for (int i = 0; i < kFieldCount; ++i) {
    auto* caption = new QLabel(tr(kCaptions[i]) + ':', this);
    caption->setStyleSheet(QStringLiteral("color: #5a5a5a;"));
    values_[i] = new QLabel(this);
    values_[i]->setObjectName(QStringLiteral("lblStatus%1").arg(i));
    values_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = values_[i]->font();
    bold.setBold(true);
    values_[i]->setFont(bold);
    const int row = i / kPerRow, column = (i % kPerRow) * 2;
    grid->addWidget(caption, row, column, Qt::AlignRight);
    grid->addWidget(values_[i], row, column + 1, Qt::AlignLeft);
  }
  prompt_ = new QLabel(this);
  prompt_->setObjectName(QStringLiteral("lblPrompt"));
  grid->addWidget(prompt_, 1, 8, 1, 2, Qt::AlignRight);
  quickStats_ = new QLabel(this);
  quickStats_->setObjectName(QStringLiteral("lblQuickStats"));
  grid->addWidget(quickStats_, 2, 0, 1, 2 * kPerRow, Qt::AlignLeft);
}

void StatusPanel::ShowQuickStats(const QString& line) { quickStats_->setText(line); }

void StatusPanel::Show(const StatusFigures& f) {
  const Currency rack = f.Bankroll - f.OnTable;
  const Currency net = f.Bankroll - f.Invested;
  values_[kRack]->setText(MoneyLabel(rack));
  values_[kOnTable]->setText(MoneyLabel(f.OnTable));
  values_[kInvested]->setText(MoneyLabel(f.Invested));
  values_[kNet]->setText(MoneyLabel(net));
  values_[kNet]->setStyleSheet(net < 0 ? QStringLiteral("color: #b01818;") : net > 0 ? QStringLiteral("color: #16702e;") : QString());
  values_[kPoint]->setText(f.Point == 0 ? tr("off (come-out)") : QString::number(f.Point));
  values_[kLastRoll]->setText(f.Die1 == 0 || f.Rolls == 0 ? tr("none yet")
                                          : QStringLiteral("%1-%2 (%3)").arg(f.Die1).arg(f.Die2).arg(f.Die1 + f.Die2));
  values_[kRolls]->setText(QLocale().toString(static_cast<qlonglong>(f.Rolls)));
  values_[kDice]->setText(f.Dice);
  values_[kAuto]->setText(f.Auto);
}

void StatusPanel::ShowPrompt(const QString& prompt) { prompt_->setText(prompt); }
