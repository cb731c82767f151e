#pragma once
// The user guide: the Markdown documents of the docs folder, with a contents
// list, a search over every line, and a page of the program's keyboard
// shortcuts.

#include <QString>
#include <QWidget>
#include <vector>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

struct HelpShortcut {
  QString keys;  // "Ctrl+Shift+S"
  QString what;  // "Save the game"
};

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  // Every *.md of `docsFolder`; `readme`, when given and present, comes
  // first as "Getting started".
  explicit HelpWindow(const QString& docsFolder, const QString& readme = {}, QWidget* parent = nullptr);

  // Adds (or replaces) the "Keyboard" page.
  void SetShortcuts(const std::vector<HelpShortcut>& shortcuts);

  void ShowContents();
  // Opens the search page with its box focused.
  void ShowSearch();
  // Types `word` into the search box, which lists the documents and lines
  // that contain it.
  void Search(const QString& word);
  void ShowDocument(int index);

 private:
  struct Document {
    QString title;
    QString fileName;
    QString markdown;
  };

  void LoadFolder(const QString& folder, const QString& readme);
  void RefreshContents();
  void ListMatches(const QString& word);
  void ShowResult(QTreeWidgetItem* item);
  // Highlights every `word` in the shown document and selects the first one
  // after `heading` (or the first of all).
  void FindInShown(const QString& word, const QString& heading);
  void FollowLink(const class QUrl& url);

  std::vector<Document> documents_;
  QString folder_;
  QTabWidget* tabs_;
  QListWidget* contents_;
  QLineEdit* search_;
  QTreeWidget* results_;
  QTextBrowser* browser_;
};
