#include "ui/two_number_prompt.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/message_dialog.h"
#include "ui/number_prompt.h"

TwoNumberPrompt::TwoNumberPrompt(const TwoNumberRequest& request, QWidget* parent) : QDialog(parent) {
  setObjectName("frmMsg");
  setWindowTitle(QString::fromStdString(request.title));

  auto* layout = new QVBoxLayout(this);
  prompt_parts::SetMargins(layout);
  if (!request.text.empty()) layout->addWidget(new QLabel(DisplayLines(request.text), this));
  first_ = prompt_parts::AmountEntry("txtFirstAmount", request.first, this);
  second_ = prompt_parts::AmountEntry("txtSecondAmount", request.second, this);
  if (request.firstLabel.empty() && request.secondLabel.empty()) {
    // The text above says what the two are: the fields stand under it, flush.
    layout->addWidget(first_);
    layout->addWidget(second_);
  } else {
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(12);
    form->addRow(DisplayLines(request.firstLabel), first_);
    form->addRow(DisplayLines(request.secondLabel), second_);
    layout->addLayout(form);
  }

  error_ = prompt_parts::ErrorLabel(this);
  layout->addWidget(error_);
  connect(first_, &QLineEdit::textEdited, error_, &QLabel::hide);
  connect(second_, &QLineEdit::textEdited, error_, &QLabel::hide);

  layout->addWidget(prompt_parts::OkCancel(this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void TwoNumberPrompt::accept() {
  const auto first = ParseAmount(first_->text());
  const auto second = ParseAmount(second_->text());
  if (!first || !second) {
    prompt_parts::ShowError(error_, first ? second_ : first_);
    return;
  }
  answer_ = std::make_pair(*first, *second);
  QDialog::accept();
}
