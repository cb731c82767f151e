#pragma once
// Colours the text form of a script: Start lines, labels, comments and
// notes, quoted names, amounts and the fields in braces, each its own way,
// so a line's parts can be told apart at a glance.

#include <QSyntaxHighlighter>

class ScriptTextColours : public QSyntaxHighlighter {
 public:
  explicit ScriptTextColours(QTextDocument* document);

 protected:
  void highlightBlock(const QString& text) override;
};
