#include "ui/colors_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/layout_geometry.h"
#include "ui/table_schemes.h"

namespace {

constexpr int kSwatchWidth = 330;
constexpr const char* kPrintLabels[] = {"Text:", "Won amounts:", "Lost amounts:"};

QIcon ColourIcon(const QColor& colour) {
  QPixmap chip(28, 14);
  chip.fill(colour);
  QPainter p(&chip);
  p.setPen(QColor(0x60, 0x60, 0x60));
  p.drawRect(chip.rect().adjusted(0, 0, -1, -1));
  return QIcon(chip);
}

// The scheme on a small table, with the Field printed as the defaults print it.
QPixmap SchemeSwatch(int scheme) {
  LayoutPrint print;
  print.colours = SchemeColours(scheme);
  for (int total : {2, 3, 4, 9, 10, 11, 12}) print.field.numbers << QString::number(total);
  print.field.notes << QStringLiteral("2 PAYS DOUBLE") << QStringLiteral("12 PAYS DOUBLE");
  const QSize size(kSwatchWidth, qRound(kSwatchWidth * layout::kHeight / layout::kWidth));
  return PaintLayout(size, 1.0, print);
}

}  // namespace

ColorsPage::ColorsPage(Table& table, Dialogs& /*dialogs*/, QWidget* parent) : ConfigPage(parent), table_(table) {
  auto* tableBox = new QGroupBox(tr("Table"), this);
  auto* tableLine = new QHBoxLayout(tableBox);
  auto* tableForm = new QFormLayout;
  scheme_ = new QComboBox(tableBox);
  scheme_->setObjectName(QStringLiteral("cmbTableScheme"));
  for (const TableScheme& s : TableSchemes()) scheme_->addItem(ColourIcon(s.colours.felt), tr(s.name));
  tableForm->addRow(tr("Colour scheme:"), scheme_);
  auto* schemeNote = new QLabel(tr("Felt, rail and printing of the layout on the main table."), tableBox);
  schemeNote->setWordWrap(true);
  schemeNote->setEnabled(false);
  tableForm->addRow(schemeNote);
  swatch_ = new QLabel(tableBox);
  swatch_->setObjectName(QStringLiteral("picSchemeSwatch"));
  swatch_->setFrameShape(QFrame::StyledPanel);
  tableLine->addLayout(tableForm, 1);
  tableLine->addWidget(swatch_, 0, Qt::AlignTop);
  connect(scheme_, &QComboBox::activated, this, [this](int index) {
    table_.Set("TableScheme", index);
    Refresh();
  });

  auto* printBox = new QGroupBox(tr("Printed reports"), this);
  auto* printForm = new QFormLayout(printBox);
  for (int i = 0; i < 3; ++i) {
    prints_[i] = new QComboBox(printBox);
    prints_[i]->setObjectName(QStringLiteral("cmbPrintColors%1").arg(i));
    for (const NamedColour& c : PaletteColours()) prints_[i]->addItem(ColourIcon(c.colour), tr(c.name));
    printForm->addRow(tr(kPrintLabels[i]), prints_[i]);
    connect(prints_[i], &QComboBox::activated, this, [this, i](int index) {
      table_.Set("PrintColors." + std::to_string(i), index);
      Refresh();
    });
  }
  printSample_ = new QLabel(printBox);
  printSample_->setObjectName(QStringLiteral("lblPrintSample"));
  printSample_->setAutoFillBackground(true);
  printSample_->setMargin(6);
  QPalette paper = printSample_->palette();
  paper.setColor(QPalette::Window, Qt::white);
  printSample_->setPalette(paper);
  printForm->addRow(tr("Sample:"), printSample_);

  auto* page = new QVBoxLayout(this);
  page->addWidget(tableBox);
  page->addWidget(printBox);
  page->addStretch(1);
  Refresh();
}

void ColorsPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  {
    const QSignalBlocker quiet(scheme_);
    scheme_->setCurrentIndex(g.TableScheme);
  }
  for (int i = 0; i < 3; ++i) {
    const QSignalBlocker quiet(prints_[i]);
    prints_[i]->setCurrentIndex(g.PrintColors[static_cast<size_t>(i)]);
  }
  ShowSwatches();
}

void ColorsPage::ShowSwatches() {
  const Game& g = table_.State();
  swatch_->setPixmap(SchemeSwatch(g.TableScheme));
  auto ink = [&](int i) { return PaletteColour(g.PrintColors[static_cast<size_t>(i)]).name(); };
  printSample_->setText(tr("<span style='color:%1'>Pass Line decided: 12 &nbsp; </span>"
                           "<span style='color:%2'>Won: $60 &nbsp; </span>"
                           "<span style='color:%3'>Lost: $45</span>")
                            .arg(ink(0), ink(1), ink(2)));
}
