#include "ui/axis_panel.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "sim/table.h"
#include "ui/probability_grid.h"

namespace {

constexpr double kFullEffect = 100;

QGroupBox* DiePanel(int die, QLineEdit*& effectiveness, QButtonGroup*& axes, QWidget* parent) {
  const QString n = QString::number(die + 1);
  auto* box = new QGroupBox(QObject::tr("Die %1").arg(n), parent);
  box->setObjectName(QStringLiteral("picAxisDie") + n);
  auto* layout = new QVBoxLayout(box);

  auto* line = new QHBoxLayout;
  line->addWidget(new QLabel(QObject::tr("Shooter's effectiveness:"), box));
  effectiveness = new QLineEdit(QStringLiteral("0"), box);
  effectiveness->setObjectName(QStringLiteral("txtDie%1SE").arg(n));
  effectiveness->setAlignment(Qt::AlignRight);
  effectiveness->setMaximumWidth(60);
  line->addWidget(effectiveness);
  line->addWidget(new QLabel(QStringLiteral("%"), box));
  line->addStretch();
  layout->addLayout(line);

  axes = new QButtonGroup(box);
  const char* texts[] = {" About the 1-6 axis", " About the 2-5 axis", " About the 3-4 axis"};
  for (int a = kAxis16; a <= kAxis34; ++a) {
    auto* option = new QRadioButton(QString::fromLatin1(texts[a]), box);
    option->setObjectName(QStringLiteral("optDie%1Axis%2").arg(n).arg(a));
    option->setChecked(a == kAxis16);
    axes->addButton(option, a);
    layout->addWidget(option);
  }
  return box;
}

}  // namespace

AxisPanel::AxisPanel(Table& table, QWidget* parent) : QDialog(parent), table_(table) {
  setWindowTitle(tr("Percentage Dice About an Axis"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(tr("How well does the shooter keep each die on its axis?\n"
                                  "At 0% the dice are fair; at 100% the axis faces never show."),
                               this));
  auto* dice = new QHBoxLayout;
  for (int die = 0; die < 2; ++die) dice->addWidget(DiePanel(die, effectiveness_[die], axis_[die], this));
  layout->addLayout(dice);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
  ok->setObjectName(QStringLiteral("cmdAxisOK"));
  QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setObjectName(QStringLiteral("cmdAxisCancel"));
  connect(ok, &QPushButton::clicked, this, &AxisPanel::Apply);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  layout->addWidget(buttons);
}

void AxisPanel::Apply() {
  double se[2];
  for (int die = 0; die < 2; ++die) {
    se[die] = LeadingNumber(effectiveness_[die]->text());
    if (se[die] > kFullEffect) {
      se[die] = kFullEffect;
      effectiveness_[die]->setText(QString::number(kFullEffect));
    }
  }
  table_.ComputeProbabilityAxis(static_cast<DieAxis>(axis_[0]->checkedId()), se[0],
                                static_cast<DieAxis>(axis_[1]->checkedId()), se[1]);
  accept();
}
