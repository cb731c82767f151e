#include "ui/script_text_view.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>

#include "engine/script.h"
#include "script/checker.h"
#include "script/text_form.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"
#include "ui/script_text_colours.h"

namespace {

constexpr int kTypingPauseMs = 400;

// Every phrase of the vocabulary once, for completion.
QStringList Vocabulary() {
  QStringList words;
  const ChoiceList* lists[] = {&text_form::StartWords(),          &script_list::ConditionSubjects(),
                               &script_list::DiceEvents(),        &script_list::DiceEventTargets(),
                               &text_form::ComparisonPhrases(),   &script_list::CompareTargets(),
                               &script_list::PointChoices(),      &script_list::DecidedChoices(),
                               &script_list::ActionVerbs(),       &script_list::ActionSources(),
                               &script_list::ActionTargets(),     &script_list::RoundChoices(),
                               &script_list::AutoHandleWinning(), &script_list::AutoHandleLosing()};
  for (const ChoiceList* list : lists)
    for (const ListEntry& e : *list)
      if (e.Code != 0 || list == &script_list::AutoHandleWinning() || list == &script_list::AutoHandleLosing())
        words << QString::fromStdString(TrimmedWords(e.Words));
  words << QString::fromLatin1(text_form::kLabelWord) << QString::fromLatin1(text_form::kCommentWord)
        << QStringLiteral("on") << QStringLiteral("for") << QStringLiteral("from") << QStringLiteral("is True")
        << QStringLiteral("is False") << QStringLiteral("to True") << QStringLiteral("to False");
  words.removeDuplicates();
  words.sort(Qt::CaseInsensitive);
  return words;
}

// The text line (1-based) of each script line: notes and blank lines are skipped.
std::vector<int> TextLinesOfScriptLines(const std::string& text) {
  std::vector<int> at;
  int number = 0;
  size_t from = 0;
  while (from < text.size()) {
    size_t end = text.find('\n', from);
    if (end == std::string::npos) end = text.size();
    const std::string line = text.substr(from, end - from);
    ++number;
    const size_t first = line.find_first_not_of(" \t\r");
    if (first != std::string::npos && line[first] != '#') at.push_back(number);
    from = end + 1;
  }
  return at;
}

}  // namespace

std::optional<TextFault> FaultOfText(const std::string& text, std::vector<ScriptLine>* out) {
  Script script;
  std::string error;
  if (!ReadScriptText(text, script.Lines, error)) {
    static const QRegularExpression where(QStringLiteral("^line (\\d+)(?:, column (\\d+))?"));
    const QRegularExpressionMatch m = where.match(QString::fromStdString(error));
    TextFault fault{1, 0, error};
    if (m.hasMatch()) {
      fault.line = m.captured(1).toInt();
      fault.column = m.captured(2).isEmpty() ? 0 : m.captured(2).toInt() - 1;
    }
    return fault;
  }
  if (out) *out = script.Lines;
  const std::optional<ScriptFault> check = CheckScript(script);
  if (!check) return std::nullopt;
  const std::vector<int> lines = TextLinesOfScriptLines(text);
  const int textLine = check->Line >= 1 && check->Line <= static_cast<int>(lines.size()) ? lines[check->Line - 1] : 1;
  return TextFault{textLine, 0, check->Title + ": " + check->Text};
}

ScriptTextView::ScriptTextView(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  edit_ = new QPlainTextEdit(this);
  edit_->setObjectName(QStringLiteral("txtScript"));
  edit_->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont mono(QStringLiteral("Monospace"));
  mono.setStyleHint(QFont::TypeWriter);
  edit_->setFont(mono);
  new ScriptTextColours(edit_->document());
  status_ = new QLabel(this);
  status_->setObjectName(QStringLiteral("lblTextFault"));
  status_->setWordWrap(true);
  status_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(edit_, 1);
  layout->addWidget(status_);

  pause_ = new QTimer(this);
  pause_->setSingleShot(true);
  pause_->setInterval(kTypingPauseMs);
  connect(pause_, &QTimer::timeout, this, &ScriptTextView::CheckNow);
  connect(edit_, &QPlainTextEdit::textChanged, this, [this] {
    if (filling_) return;
    edited_ = true;
    pause_->start();
  });

  completer_ = new QCompleter(new QStringListModel(Vocabulary(), this), this);
  completer_->setCaseSensitivity(Qt::CaseInsensitive);
  completer_->setCompletionMode(QCompleter::PopupCompletion);
  completer_->setWidget(edit_);
  connect(completer_, qOverload<const QString&>(&QCompleter::activated), this, &ScriptTextView::InsertCompletion);
  edit_->installEventFilter(this);
}

void ScriptTextView::SetLines(const std::vector<ScriptLine>& lines) {
  Script script;
  script.Lines = lines;
  filling_ = true;
  edit_->setPlainText(QString::fromStdString(ScriptToText(script)));
  filling_ = false;
  edited_ = false;
  CheckNow();
}

bool ScriptTextView::ReadLines(std::vector<ScriptLine>& lines) {
  std::string error;
  std::vector<ScriptLine> read;
  if (!ReadScriptText(edit_->toPlainText().toStdString(), read, error)) {
    CheckNow();
    return false;
  }
  lines = std::move(read);
  return true;
}

QString ScriptTextView::FaultText() const { return status_->text(); }

void ScriptTextView::CheckNow() {
  pause_->stop();
  Mark(FaultOfText(edit_->toPlainText().toStdString()));
}

// A wavy line under the fault, from its column to the end of its word.
void ScriptTextView::Mark(const std::optional<TextFault>& fault) {
  QList<QTextEdit::ExtraSelection> marks;
  if (fault) {
    const QTextBlock block = edit_->document()->findBlockByNumber(fault->line - 1);
    if (block.isValid()) {
      const QString text = block.text();
      int start = std::min(fault->column, static_cast<int>(text.size()));
      int end = text.indexOf(QLatin1Char(' '), start);
      if (end < 0 || fault->column == 0) end = static_cast<int>(text.size());
      if (end == start) start = std::max(0, start - 1);  // the line ends too soon: mark its last letter
      QTextEdit::ExtraSelection mark;
      mark.cursor = QTextCursor(block);
      mark.cursor.setPosition(block.position() + start);
      mark.cursor.setPosition(block.position() + std::max(end, start + 1), QTextCursor::KeepAnchor);
      mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
      mark.format.setUnderlineColor(Qt::red);
      marks << mark;
    }
    status_->setText(QString::fromStdString(fault->message));
    status_->setStyleSheet(QStringLiteral("color: #a00000"));
  } else {
    status_->setText(tr("The script reads and checks without a fault."));
    status_->setStyleSheet(QString());
  }
  edit_->setExtraSelections(marks);
}

bool ScriptTextView::Complete() {
  QTextCursor cursor = edit_->textCursor();
  const QString before = cursor.block().text().left(cursor.positionInBlock());
  // The longest tail of the line, from a word's start, that some phrase begins with.
  static const QRegularExpression nonBlank(QStringLiteral("\\S"));
  const int from = static_cast<int>(before.indexOf(nonBlank));
  if (from < 0) return false;
  for (int at = from; at < before.size(); ++at) {
    if (at > from && before[at - 1] != QLatin1Char(' ')) continue;
    const QString tail = before.mid(at);
    if (tail.trimmed().isEmpty()) break;
    completer_->setCompletionPrefix(tail);
    if (completer_->completionCount() == 0) continue;
    prefixLength_ = static_cast<int>(tail.size());
    QRect place = edit_->cursorRect();
    place.setWidth(completer_->popup()->sizeHintForColumn(0) + completer_->popup()->verticalScrollBar()->sizeHint().width());
    completer_->complete(place);
    return true;
  }
  return false;
}

void ScriptTextView::InsertCompletion(const QString& completion) {
  QTextCursor cursor = edit_->textCursor();
  cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, prefixLength_);
  cursor.insertText(completion);
  edit_->setTextCursor(cursor);
}

bool ScriptTextView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Space && (key->modifiers() & Qt::ControlModifier)) {
      Complete();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}
