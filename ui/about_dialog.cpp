#include "ui/about_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtGlobal>

namespace {

QLabel* Line(const QString& text, const char* name, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

}  // namespace

AboutDialog::AboutDialog(const QString& version, QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(tr("About Dicemill"));

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 18);
  layout->setSpacing(10);

  auto* name = Line(QStringLiteral("Dicemill"), "lblName", this);
  QFont big = name->font();
  big.setPointSizeF(big.pointSizeF() * 2.2);
  big.setBold(true);
  name->setFont(big);
  layout->addWidget(name);
  layout->addWidget(Line(tr("Version %1").arg(version), "lblVersion", this));
  layout->addSpacing(6);
  layout->addWidget(Line(tr("A craps table simulator: play at the table, script your betting, "
                            "and measure a strategy over millions of rolls."),
                         "lblDescription", this));
  layout->addSpacing(6);
  // The desktop program's own libraries; the command line's are not in it.
  layout->addWidget(Line(tr("Built with Qt %1 and the C++ standard library.").arg(QString::fromLatin1(qVersion())),
                         "lblLibraries", this));
  auto* copyright = Line(tr("Copyright \u00a9 The Dicemill developers"), "lblCopyright", this);
  QFont small = copyright->font();
  small.setPointSizeF(small.pointSizeF() * 0.9);
  copyright->setFont(small);
  layout->addWidget(copyright);

  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  box->button(QDialogButtonBox::Ok)->setObjectName("cmdOk");
  box->setCenterButtons(true);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addSpacing(4);
  layout->addWidget(box);
  setFixedWidth(420);
}
