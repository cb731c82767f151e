#include "ui/help_window.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QTextStream>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kDocumentRole = Qt::UserRole;
constexpr int kHeadingRole = Qt::UserRole + 1;
// Enough lines to see where a word is used, not so many that the list drowns.
constexpr int kLinesPerDocument = 12;
constexpr int kSnippetLength = 90;
const QString kKeyboardTitle = QStringLiteral("Keyboard");

// A heading or line as it reads once rendered: no marks of the Markdown.
QString Plain(QString line) {
  static const QRegularExpression marks(QStringLiteral("^#+\\s*|[`*]|^\\s*[->]\\s"));
  line.remove(marks);
  // Table rows read as their cells side by side.
  line.replace(QChar('|'), QChar(' '));
  return line.simplified();
}

QString ReadText(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
  return QTextStream(&file).readAll();
}

QString TitleOf(const QString& markdown, const QString& fallback) {
  for (const QString& line : markdown.split(QChar('\n'))) {
    if (line.startsWith(QStringLiteral("# "))) return Plain(line);
  }
  return fallback;
}

QString Snippet(const QString& line) {
  QString text = Plain(line);
  if (text.size() > kSnippetLength) text = text.left(kSnippetLength - 1) + QChar(0x2026);
  return text;
}

// Markdown tables come out with their cells touching; give them room to read.
void PadTables(QTextFrame* frame) {
  for (QTextFrame* child : frame->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(child)) {
      QTextTableFormat format = table->format();
      format.setCellPadding(5);
      format.setCellSpacing(0);
      format.setBorder(1);
      format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setBorderCollapse(true);
      format.setBorderBrush(QColor(0xc8, 0xc8, 0xc8));
      table->setFormat(format);
    }
    PadTables(child);
  }
}

QString EscapeCell(QString text) { return text.replace(QChar('|'), QStringLiteral("\\|")); }

}  // namespace

HelpWindow::HelpWindow(const QString& docsFolder, const QString& readme, QWidget* parent)
    : QWidget(parent, Qt::Window), folder_(docsFolder) {
  setObjectName("frmHelp");
  setWindowTitle(tr("Dicemill Help"));
  resize(960, 640);

  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabHelp");
  contents_ = new QListWidget(tabs_);
  contents_->setObjectName("lstContents");
  contents_->setSpacing(2);
  tabs_->addTab(contents_, tr("&Contents"));

  auto* searchPage = new QWidget(tabs_);
  auto* searchLayout = new QVBoxLayout(searchPage);
  searchLayout->setContentsMargins(6, 6, 6, 6);
  search_ = new QLineEdit(searchPage);
  search_->setObjectName("txtSearch");
  search_->setPlaceholderText(tr("Type a word to find"));
  search_->setClearButtonEnabled(true);
  results_ = new QTreeWidget(searchPage);
  results_->setObjectName("lstSearchResults");
  results_->setHeaderHidden(true);
  results_->setUniformRowHeights(true);
  searchLayout->addWidget(search_);
  searchLayout->addWidget(results_, 1);
  tabs_->addTab(searchPage, tr("&Search"));

  browser_ = new QTextBrowser(this);
  browser_->setObjectName("txtHelp");
  browser_->setOpenLinks(false);
  browser_->document()->setDocumentMargin(16);

  auto* splitter = new QSplitter(this);
  splitter->addWidget(tabs_);
  splitter->addWidget(browser_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({320, 640});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(splitter);

  connect(contents_, &QListWidget::currentRowChanged, this, &HelpWindow::ShowDocument);
  connect(search_, &QLineEdit::textChanged, this, &HelpWindow::ListMatches);
  connect(results_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { ShowResult(item); });
  connect(results_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { ShowResult(item); });
  connect(browser_, &QTextBrowser::anchorClicked, this, &HelpWindow::FollowLink);

  LoadFolder(docsFolder, readme);
  RefreshContents();
}

void HelpWindow::LoadFolder(const QString& folder, const QString& readme) {
  if (!readme.isEmpty() && QFileInfo::exists(readme))
    documents_.push_back({tr("Getting started"), QFileInfo(readme).fileName(), ReadText(readme)});
  std::vector<Document> guide;
  const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
  for (const QFileInfo& file : files) {
    // The start page may live in the folder too: it is listed once.
    if (!documents_.empty() && file.canonicalFilePath() == QFileInfo(readme).canonicalFilePath()) continue;
    const QString markdown = ReadText(file.filePath());
    guide.push_back({TitleOf(markdown, file.completeBaseName()), file.fileName(), markdown});
  }
  std::sort(guide.begin(), guide.end(),
            [](const Document& a, const Document& b) { return a.title.localeAwareCompare(b.title) < 0; });
  documents_.insert(documents_.end(), guide.begin(), guide.end());
}

void HelpWindow::SetShortcuts(const std::vector<HelpShortcut>& shortcuts) {
  QString markdown = QStringLiteral("# %1\n\n| %2 | %3 |\n|---|---|\n").arg(kKeyboardTitle, tr("Keys"), tr("What"));
  for (const HelpShortcut& shortcut : shortcuts)
    markdown += QStringLiteral("| %1 | %2 |\n").arg(EscapeCell(shortcut.keys), EscapeCell(shortcut.what));
  const auto page = std::find_if(documents_.begin(), documents_.end(),
                                 [](const Document& d) { return d.title == kKeyboardTitle && d.fileName.isEmpty(); });
  if (page != documents_.end())
    page->markdown = markdown;
  else
    documents_.push_back({kKeyboardTitle, QString(), markdown});
  RefreshContents();
}

void HelpWindow::RefreshContents() {
  const int shown = std::max(contents_->currentRow(), 0);
  contents_->clear();
  for (const Document& document : documents_) contents_->addItem(document.title);
  if (!documents_.empty()) contents_->setCurrentRow(std::min(shown, contents_->count() - 1));
}

void HelpWindow::ShowContents() {
  tabs_->setCurrentIndex(0);
  contents_->setFocus();
}

void HelpWindow::ShowSearch() {
  tabs_->setCurrentIndex(1);
  search_->setFocus();
  search_->selectAll();
}

void HelpWindow::ShowDocument(int index) {
  if (index < 0 || index >= static_cast<int>(documents_.size())) return;
  // Pictures and links in a document are relative to its folder.
  browser_->document()->setBaseUrl(QUrl::fromLocalFile(folder_ + QStringLiteral("/")));
  browser_->setMarkdown(documents_[index].markdown);
  PadTables(browser_->document()->rootFrame());
  browser_->setExtraSelections({});
  if (contents_->currentRow() != index) {
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentRow(index);
  }
}

void HelpWindow::Search(const QString& word) {
  if (search_->text() == word)
    ListMatches(word);
  else
    search_->setText(word);
}

void HelpWindow::ListMatches(const QString& word) {
  results_->clear();
  const QString wanted = word.trimmed();
  if (wanted.size() < 2) return;
  for (size_t d = 0; d < documents_.size(); ++d) {
    const Document& document = documents_[d];
    QTreeWidgetItem* top = nullptr;
    int hits = 0;
    QString heading;
    for (const QString& line : document.markdown.split(QChar('\n'))) {
      if (line.startsWith(QChar('#'))) heading = Plain(line);
      if (!line.contains(wanted, Qt::CaseInsensitive)) continue;
      if (top == nullptr) {
        top = new QTreeWidgetItem(results_);
        top->setData(0, kDocumentRole, static_cast<int>(d));
      }
      if (++hits > kLinesPerDocument) continue;
      auto* child = new QTreeWidgetItem(top);
      const QString snippet = Snippet(line);
      child->setText(0, heading.isEmpty() || heading == snippet ? snippet : heading + QStringLiteral(": ") + snippet);
      child->setToolTip(0, Plain(line));
      child->setData(0, kDocumentRole, static_cast<int>(d));
      child->setData(0, kHeadingRole, heading);
    }
    if (top != nullptr) top->setText(0, QStringLiteral("%1 (%2)").arg(document.title).arg(hits));
  }
  results_->expandAll();
}

void HelpWindow::ShowResult(QTreeWidgetItem* item) {
  if (item == nullptr) return;
  ShowDocument(item->data(0, kDocumentRole).toInt());
  FindInShown(search_->text().trimmed(), item->data(0, kHeadingRole).toString());
}

void HelpWindow::FindInShown(const QString& word, const QString& heading) {
  if (word.isEmpty()) return;
  QTextDocument* document = browser_->document();
  QList<QTextEdit::ExtraSelection> marks;
  QTextCharFormat highlight;
  highlight.setBackground(QColor(0xff, 0xe0, 0x66));
  for (QTextCursor at = document->find(word); !at.isNull(); at = document->find(word, at))
    marks.push_back({at, highlight});
  browser_->setExtraSelections(marks);

  QTextCursor from = heading.isEmpty() ? QTextCursor(document) : document->find(heading);
  if (from.isNull()) from = QTextCursor(document);
  QTextCursor target = document->find(word, from);
  if (target.isNull()) target = document->find(word);
  if (target.isNull()) return;
  browser_->setTextCursor(target);
  browser_->ensureCursorVisible();
}

void HelpWindow::FollowLink(const QUrl& url) {
  const QString name = QFileInfo(url.path()).fileName();
  if (url.isRelative() || url.isLocalFile()) {
    for (size_t d = 0; d < documents_.size(); ++d) {
      if (!name.isEmpty() && documents_[d].fileName == name) {
        ShowDocument(static_cast<int>(d));
        if (url.hasFragment()) browser_->scrollToAnchor(url.fragment());
        return;
      }
    }
    if (url.isRelative() && url.hasFragment() && url.path().isEmpty()) {
      browser_->scrollToAnchor(url.fragment());
      return;
    }
  }
  QDesktopServices::openUrl(url.isRelative() ? QUrl::fromLocalFile(QDir(folder_).filePath(url.path())) : url);
}
