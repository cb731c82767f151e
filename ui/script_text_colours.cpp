#include "ui/script_text_colours.h"

#include <QRegularExpression>

#include "script/text_form_grammar.h"

namespace {

QTextCharFormat Format(const char* colour, bool bold = false, bool italic = false) {
  QTextCharFormat f;
  f.setForeground(QColor(QString::fromLatin1(colour)));
  if (bold) f.setFontWeight(QFont::Bold);
  f.setFontItalic(italic);
  return f;
}

// The Start words, longest first so "and when" wins over "when".
QRegularExpression StartLine() {
  QStringList words;
  for (const ListEntry& e : text_form::StartWords()) words << QRegularExpression::escape(QString::fromStdString(e.Words));
  std::sort(words.begin(), words.end(), [](const QString& a, const QString& b) { return a.size() > b.size(); });
  return QRegularExpression(QStringLiteral("^\\s*(%1)(\\s*(\\. \\. \\.|\\.\\.\\.))?\\s*$").arg(words.join(QLatin1Char('|'))),
                            QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

ScriptTextColours::ScriptTextColours(QTextDocument* document) : QSyntaxHighlighter(document) {}

void ScriptTextColours::highlightBlock(const QString& text) {
  static const QRegularExpression start = StartLine();
  static const QRegularExpression label(QStringLiteral("^\\s*(Label|Comment)\\b"), QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression quoted(QStringLiteral("\"(?:[^\"\\\\]|\\\\.)*\"?"));
  // Money and percentages only: the numbers of bet names ("Place 6") are words.
  static const QRegularExpression amount(QStringLiteral("\\$-?[\\d,]*\\.?\\d+|-?[\\d,]*\\.?\\d+%"));
  static const QRegularExpression braces(QStringLiteral("\\{[^}]*\\}?"));
  const QString trimmed = text.trimmed();
  if (trimmed.startsWith(QLatin1Char('#'))) {
    setFormat(0, static_cast<int>(text.size()), Format("#7a7a7a", false, true));
    return;
  }
  if (trimmed.startsWith(QLatin1Char('\''))) {
    setFormat(0, static_cast<int>(text.size()), Format("#2e7d32", false, true));
    return;
  }
  if (start.match(text).hasMatch()) {
    setFormat(0, static_cast<int>(text.size()), Format("#1a4fa0", true));
    return;
  }
  if (const QRegularExpressionMatch m = label.match(text); m.hasMatch())
    setFormat(static_cast<int>(m.capturedStart(1)), static_cast<int>(m.capturedLength(1)), Format("#8a4b00", true));
  for (auto it = amount.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch m = it.next();
    setFormat(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()), Format("#00707a", true));
  }
  for (auto it = quoted.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch m = it.next();
    setFormat(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()), Format("#a0285a"));
  }
  for (auto it = braces.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch m = it.next();
    setFormat(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()), Format("#6a3d9a", false, true));
  }
}
