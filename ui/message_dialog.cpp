#include "ui/message_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

Reply EscapeReply(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok: return Reply::Ok;
    case Buttons::YesNo: return Reply::No;
    case Buttons::YesNoCancel: return Reply::Cancel;
  }
  return Reply::Ok;
}

struct ButtonChoice {
  Reply reply;
  const char* caption;
  const char* objectName;
  QDialogButtonBox::ButtonRole role;
};

std::vector<ButtonChoice> ChoicesOf(Buttons buttons) {
  const ButtonChoice ok{Reply::Ok, "OK", "cmdOk", QDialogButtonBox::AcceptRole};
  const ButtonChoice yes{Reply::Yes, "&Yes", "cmdYes", QDialogButtonBox::YesRole};
  const ButtonChoice no{Reply::No, "&No", "cmdNo", QDialogButtonBox::NoRole};
  const ButtonChoice cancel{Reply::Cancel, "Cancel", "cmdCancel", QDialogButtonBox::RejectRole};
  switch (buttons) {
    case Buttons::Ok: return {ok};
    case Buttons::YesNo: return {yes, no};
    case Buttons::YesNoCancel: return {yes, no, cancel};
  }
  return {ok};
}

}  // namespace

QString DisplayLines(const std::string& text) {
  QString lines = QString::fromStdString(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  lines.replace(QChar('\r'), QChar('\n'));
  return lines;
}

MessageDialog::MessageDialog(const MessageRequest& request, QWidget* parent)
    : QDialog(parent), buttons_(request.buttons), reply_(EscapeReply(request.buttons)) {
  setObjectName("frmMsg");
  setWindowTitle(QString::fromStdString(request.title));

  auto* icon = new QLabel(this);
  icon->setObjectName("picIcon");
  const auto pixmap = request.buttons == Buttons::Ok ? QStyle::SP_MessageBoxInformation
                                                     : QStyle::SP_MessageBoxQuestion;
  const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  icon->setPixmap(style()->standardIcon(pixmap, nullptr, this).pixmap(side, side));
  icon->setAlignment(Qt::AlignTop);

  auto* text = new QLabel(DisplayLines(request.text), this);
  text->setObjectName("lblMessage");
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Short notices should not wrap into a narrow column.
  text->setMinimumWidth(320);

  auto* body = new QHBoxLayout;
  body->setSpacing(16);
  body->addWidget(icon);
  body->addWidget(text, 1);

  auto* box = new QDialogButtonBox(this);
  for (const ButtonChoice& choice : ChoicesOf(request.buttons)) {
    QPushButton* button = box->addButton(QString::fromLatin1(choice.caption), choice.role);
    button->setObjectName(choice.objectName);
    const Reply reply = choice.reply;
    connect(button, &QPushButton::clicked, this, [this, reply] { Finish(reply); });
    // Yes is the default when asked; OK when it is the only answer.
    if (choice.reply == Reply::Yes || choice.reply == Reply::Ok) button->setDefault(true);
  }

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 18, 20, 14);
  layout->setSpacing(14);
  layout->addLayout(body);
  if (request.offerDontShow) {
    dontShow_ = new QCheckBox(tr("&Don't show this again"), this);
    dontShow_->setObjectName("chkDontShowAgain");
    layout->addWidget(dontShow_);
  }
  layout->addWidget(box);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

MessageAnswer MessageDialog::Answer() const {
  return {reply_, dontShow_ != nullptr && dontShow_->isChecked()};
}

void MessageDialog::reject() {
  reply_ = EscapeReply(buttons_);
  QDialog::reject();
}

void MessageDialog::Finish(Reply reply) {
  reply_ = reply;
  done(reply == EscapeReply(buttons_) && buttons_ != Buttons::Ok ? Rejected : Accepted);
}
