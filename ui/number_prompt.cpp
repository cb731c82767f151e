#include "ui/number_prompt.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/message_dialog.h"

std::optional<Currency> ParseAmount(const QString& text) {
  QString plain = text.trimmed();
  // "$" may lead or follow a minus sign: "$-5", "-$5".
  plain.remove(QChar('$'));
  plain = plain.trimmed();
  Currency amount;
  if (plain.isEmpty() || !ParseCurrency(plain.toStdString(), amount)) return std::nullopt;
  return amount;
}

QString AmountText(Currency amount) { return QString::fromStdString(FormatNumberWithCommas(amount)); }

namespace prompt_parts {

void SetMargins(QVBoxLayout* layout) {
  layout->setContentsMargins(20, 18, 20, 14);
  layout->setSpacing(8);
}

QLineEdit* AmountEntry(const char* objectName, Currency offered, QWidget* parent) {
  auto* entry = new QLineEdit(AmountText(offered), parent);
  entry->setObjectName(objectName);
  entry->setAlignment(Qt::AlignRight);
  entry->setMinimumWidth(300);
  entry->selectAll();
  return entry;
}

QLabel* ErrorLabel(QWidget* parent) {
  auto* error = new QLabel(QObject::tr("Please enter an amount, such as 1,000 or 25.50."), parent);
  error->setObjectName("lblError");
  error->setStyleSheet("color: #b00020;");
  error->hide();
  return error;
}

void ShowError(QLabel* error, QLineEdit* entry) {
  error->show();
  entry->setFocus();
  entry->selectAll();
}

QDialogButtonBox* OkCancel(QDialog* dialog) {
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  box->button(QDialogButtonBox::Ok)->setObjectName("cmdOk");
  box->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  QObject::connect(box, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(box, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return box;
}

}  // namespace prompt_parts

NumberPrompt::NumberPrompt(const std::string& title, const std::string& text, Currency offered, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmMsg");
  setWindowTitle(QString::fromStdString(title));

  auto* layout = new QVBoxLayout(this);
  prompt_parts::SetMargins(layout);
  auto* label = new QLabel(DisplayLines(text), this);
  label->setObjectName("lblPrompt");
  label->setWordWrap(true);
  layout->addWidget(label);

  entry_ = prompt_parts::AmountEntry("txtAmount", offered, this);
  label->setBuddy(entry_);
  layout->addWidget(entry_);
  error_ = prompt_parts::ErrorLabel(this);
  layout->addWidget(error_);
  connect(entry_, &QLineEdit::textEdited, error_, &QLabel::hide);

  layout->addWidget(prompt_parts::OkCancel(this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void NumberPrompt::accept() {
  answer_ = ParseAmount(entry_->text());
  if (!answer_) {
    prompt_parts::ShowError(error_, entry_);
    return;
  }
  QDialog::accept();
}
