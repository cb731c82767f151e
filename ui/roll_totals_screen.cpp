#include "ui/roll_totals_screen.h"

#include <QAction>
#include <QActionGroup>
#include <QButtonGroup>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/percent_text.h"
#include "ui/roll_totals_bars.h"

namespace {

const char* const kViewKey = "rollTotals/view";
const char* const kBackgroundKey = "rollTotals/backgroundColor";
const char* const kBarKey = "rollTotals/barColor";
const QColor kDefaultBackground(0xfb, 0xfa, 0xf5);
const QColor kDefaultBar(0x2e, 0x7d, 0x4f);

QString Count(int64_t n) { return QString::fromStdString(FormatWithCommas(n)); }

QColor AskForColour(const QColor& current, QWidget* parent) {
  return QColorDialog::getColor(current, parent, QObject::tr("Choose a Color"));
}

QColor StoredColour(const char* key, const QColor& fallback) {
  const QColor c(QSettings().value(QLatin1String(key)).toString());
  return c.isValid() ? c : fallback;
}

}  // namespace

RollTotalsScreen::RollTotalsScreen(Table& table, Dialogs& dialogs, QWidget* parent)
    : StatisticsScreen(table, dialogs, tr("Roll Totals"), parent), chooseColor_(AskForColour) {
  setObjectName(QStringLiteral("frmRollTotals"));
  const int stored = QSettings().value(QLatin1String(kViewKey), 0).toInt();
  view_ = static_cast<TotalsView>(stored >= 0 && stored < kTotalsViews ? stored : 0);
  background_ = StoredColour(kBackgroundKey, kDefaultBackground);
  bar_ = StoredColour(kBarKey, kDefaultBar);

  auto* top = new QHBoxLayout;
  viewCaption_ = new QLabel(this);
  QFont bold = viewCaption_->font();
  bold.setBold(true);
  viewCaption_->setFont(bold);
  skewedCaption_ = new QLabel(tr("(skewed)"), this);
  skewedCaption_->setObjectName(QStringLiteral("lblSkewed"));
  totalRolls_ = new QLabel(this);
  totalRolls_->setObjectName(QStringLiteral("lblTotalRolls"));
  top->addWidget(viewCaption_);
  top->addWidget(skewedCaption_);
  top->addStretch(1);
  top->addWidget(new QLabel(tr("Total rolls"), this));
  top->addWidget(totalRolls_);
  Body()->addLayout(top);

  bars_ = new RollTotalsBars(this);
  scroll_ = new QScrollArea(this);
  scroll_->setWidget(bars_);
  scroll_->setWidgetResizable(true);
  scroll_->horizontalScrollBar()->setObjectName(QStringLiteral("hscr"));
  scroll_->verticalScrollBar()->setObjectName(QStringLiteral("vscr"));
  Body()->addWidget(scroll_, 1);

  auto* probabilities = new QButtonGroup(this);
  auto* choices = new QHBoxLayout;
  const char* captions[2] = {"  Show % vs. true probability", "  Show % vs. current skewed probability"};
  for (int i = 0; i < 2; ++i) {
    showProb_[i] = new QRadioButton(tr(captions[i]), this);
    showProb_[i]->setObjectName(QStringLiteral("optShowProb%1").arg(i));
    probabilities->addButton(showProb_[i], i);
    choices->addWidget(showProb_[i]);
  }
  choices->addStretch(1);
  showProb_[0]->setChecked(true);
  connect(probabilities, &QButtonGroup::idClicked, this, [this](int id) { SetSkewed(id == 1); });
  Body()->addLayout(choices);

  BuildMenus();
  ApplyColours();
  viewActions_[static_cast<int>(view_)]->setChecked(true);
  // Room for the scroll area's frame and its vertical bar beside the bars.
  resize(bars_->sizeHint().width() + 60, 480);
}

void RollTotalsScreen::BuildMenus() {
  QMenu* display = MenuBar()->addMenu(tr("&Display"));
  display->setObjectName(QStringLiteral("mnuDisplay"));
  auto* views = new QActionGroup(this);
  for (int v = 0; v < kTotalsViews; ++v) {
    QAction* a = display->addAction(QString::fromLatin1(TotalsViewName(static_cast<TotalsView>(v))));
    a->setObjectName(QStringLiteral("mnuDisplayTotals%1").arg(v));
    a->setCheckable(true);
    views->addAction(a);
    connect(a, &QAction::triggered, this, [this, v] { SetView(static_cast<TotalsView>(v)); });
    viewActions_ << a;
  }
  QMenu* colours = MenuBar()->addMenu(tr("&Colors"));
  QAction* background = colours->addAction(tr("&Background Color ..."));
  background->setObjectName(QStringLiteral("mnuBackgroundColor"));
  connect(background, &QAction::triggered, this, [this] { ChooseColour(true); });
  QAction* bar = colours->addAction(tr("Bar &Color ..."));
  bar->setObjectName(QStringLiteral("mnuGraphColor"));
  connect(bar, &QAction::triggered, this, [this] { ChooseColour(false); });
}

void RollTotalsScreen::SetView(TotalsView view) {
  view_ = view;
  viewActions_[static_cast<int>(view)]->setChecked(true);
  QSettings().setValue(QLatin1String(kViewKey), static_cast<int>(view));
  RefreshIfIdle();
}

void RollTotalsScreen::SetSkewed(bool skewed) {
  skewed_ = skewed;
  showProb_[skewed ? 1 : 0]->setChecked(true);
  RefreshIfIdle();
}

void RollTotalsScreen::ChooseColour(bool background) {
  QColor& colour = background ? background_ : bar_;
  const QColor chosen = chooseColor_(colour, this);
  if (!chosen.isValid()) return;
  colour = chosen;
  QSettings().setValue(QLatin1String(background ? kBackgroundKey : kBarKey), chosen.name());
  ApplyColours();
}

void RollTotalsScreen::ApplyColours() { bars_->SetColours(background_, bar_); }

void RollTotalsScreen::SettingChanged(const std::string& name) {
  if (name == "UseSkewedProbability") RefreshIfIdle();
}

void RollTotalsScreen::Refresh() {
  const Game& g = table_.State();
  viewCaption_->setText(QString::fromLatin1(TotalsViewName(view_)));
  skewedCaption_->setVisible(g.UseSkewedProbability);
  totalRolls_->setText(Count(g.RollCounts[0]));
  bars_->SetRows(TotalsRows(g, view_, skewed_), g.RollCounts[0]);
}

ReportTable RollTotalsScreen::Report() const {
  ReportTable report;
  report.heading = tr("Roll Totals: ") + QString::fromLatin1(TotalsViewName(view_));
  if (table_.State().UseSkewedProbability) report.heading += tr(" (skewed)");
  report.preamble << tr("Total rolls ") + totalRolls_->text()
                  << (skewed_ ? tr("Percentages vs. current skewed probability")
                              : tr("Percentages vs. true probability"));
  report.columns << QString() << tr("# of rolls") << tr("# of rolls since last appeared") << tr("Actual %")
                 << tr("Prob %");
  for (const TotalsRow& r : bars_->Rows())
    report.rows.push_back(PlainRow({QString::fromStdString(r.Label), Count(r.Rolls), Count(r.RollsSinceLast),
                                    PercentText(r.ActualPercent), PercentText(r.ProbablePercent)}));
  return report;
}
