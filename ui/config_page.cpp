#include "ui/config_page.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

void ConfigPage::SelectFault(const QString& control, int index) {
  const QString name = index >= 0 ? control + QString::number(index) : control;
  auto* widget = findChild<QWidget*>(name);
  if (!widget) return;
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
  if (auto* spin = qobject_cast<QAbstractSpinBox*>(widget)) spin->selectAll();
}
