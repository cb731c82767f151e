#include "ui/modal_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include "ui/message_dialog.h"
#include "ui/number_prompt.h"
#include "ui/settle_notice_dialog.h"
#include "ui/two_number_prompt.h"

namespace {

struct FileKind {
  const char* extension;
  const char* name;
};
constexpr FileKind kFileKinds[] = {
    {"crp", "Game files"},      {"bet", "Auto-Bet files"},     {"prb", "Probability files"},
    {"rol", "Dice Roll files"}, {"log", "Games log files"},
};

QString ExtensionOf(const std::string& pattern) {
  const QString text = QString::fromStdString(pattern);
  const qsizetype dot = text.lastIndexOf(QChar('.'));
  return dot < 0 || text.mid(dot + 1).contains(QChar('*')) ? QString() : text.mid(dot + 1);
}

}  // namespace

QString FileFilter(const std::string& pattern) {
  const QString all = QObject::tr("All files (*)");
  const QString extension = ExtensionOf(pattern);
  if (extension.isEmpty()) return all;
  QString name = QObject::tr("%1 files").arg(extension.toUpper());
  for (const FileKind& kind : kFileKinds) {
    if (extension.compare(QLatin1String(kind.extension), Qt::CaseInsensitive) == 0) name = QObject::tr(kind.name);
  }
  return QStringLiteral("%1 (%2);;%3").arg(name, QString::fromStdString(pattern), all);
}

QString WithExtension(const QString& path, const std::string& pattern) {
  const QString extension = ExtensionOf(pattern);
  if (path.isEmpty() || extension.isEmpty() || !QFileInfo(path).suffix().isEmpty()) return path;
  return path + QChar('.') + extension;
}

ModalDialogs::ModalDialogs(QString startFolder, QWidget* parent) : parent_(parent), folder_(std::move(startFolder)) {}

MessageAnswer ModalDialogs::Message(const MessageRequest& request) {
  MessageDialog dialog(request, parent_);
  dialog.exec();
  return dialog.Answer();
}

std::optional<Currency> ModalDialogs::Number(const std::string& title, const std::string& text, Currency offered) {
  NumberPrompt dialog(title, text, offered, parent_);
  dialog.exec();
  return dialog.Answer();
}

std::optional<std::pair<Currency, Currency>> ModalDialogs::TwoNumbers(const TwoNumberRequest& request) {
  TwoNumberPrompt dialog(request, parent_);
  dialog.exec();
  return dialog.Answer();
}

std::optional<SettleReply> ModalDialogs::Settle(const SettleNotice& notice) {
  SettleNoticeDialog dialog(notice, parent_);
  dialog.exec();
  return dialog.Answer();
}

StepReply ModalDialogs::Step(const StepRequest& step) {
  StepsViewer viewer(stepScreens_, parent_);
  viewer.Show(step.line, step.text, step.status);
  viewer.exec();
  return viewer.Reply();
}

std::optional<std::string> ModalDialogs::FileName(const std::string& title, const std::string& pattern,
                                                  FileMode mode) {
  const bool save = mode == FileMode::Save;
  // A new name may be typed unless the file must exist already.
  const bool anyName = mode != FileMode::Open;
  QFileDialog dialog(parent_, QString::fromStdString(title), folder_, FileFilter(pattern));
  // Open-or-create accepts as Open does, so that an existing file is taken
  // without the "replace?" question.
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(anyName ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The dialog adds the extension before it asks about overwriting.
  if (anyName) dialog.setDefaultSuffix(ExtensionOf(pattern));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString chosen = dialog.selectedFiles().front();
  const QString path = anyName ? WithExtension(chosen, pattern) : chosen;
  folder_ = QFileInfo(path).absolutePath();
  return path.toStdString();
}

bool ModalDialogs::ChoosePrinter(QPrinter& printer, const std::string& title) {
  QPrintDialog dialog(&printer, parent_);
  dialog.setWindowTitle(QString::fromStdString(title));
  return dialog.exec() == QDialog::Accepted;
}
