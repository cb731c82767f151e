#include "ui/configure_window.h"

#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/config_page.h"

ConfigureWindow::ConfigureWindow(Table& table, const QList<ConfigPage*>& pages, QWidget* parent)
    : QDialog(parent), table_(table), pages_(pages) {
  setObjectName(QStringLiteral("frmConfigure"));
  setWindowTitle(tr("Configure"));
  auto* layout = new QVBoxLayout(this);
  auto* menuBar = new QMenuBar(this);
  layout->setMenuBar(menuBar);
  tabs_ = new QTabWidget(this);
  tabs_->setDocumentMode(false);
  for (ConfigPage* page : pages_) {
    tabs_->addTab(page, page->Caption());
    QMenu* menu = page->PageMenu();
    if (menu) menuBar->addMenu(menu);
    menus_ << menu;
  }
  layout->addWidget(tabs_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  resize(800, 620);

  table_.SetConfigScreenOpen(true);
  table_.Subscribe(this);
  const int last = table_.State().ConfigTab;
  tabs_->setCurrentIndex(last >= 0 && last < tabs_->count() ? last : 0);
  ShowTab(tabs_->currentIndex());
  connect(tabs_, &QTabWidget::currentChanged, this, &ConfigureWindow::ShowTab);
}

ConfigureWindow::~ConfigureWindow() {
  table_.Unsubscribe(this);
  table_.SetConfigScreenOpen(false);
}

int ConfigureWindow::TabOf(const QString& caption) const {
  for (int i = 0; i < pages_.size(); ++i)
    if (pages_[i]->Caption() == caption) return i;
  return -1;
}

void ConfigureWindow::ShowTab(int index) {
  for (int i = 0; i < menus_.size(); ++i)
    if (menus_[i]) menus_[i]->menuAction()->setEnabled(i == index);
  if (ConfigPage* page = Page(index)) page->Refresh();
}

void ConfigureWindow::done(int result) {
  for (ConfigPage* page : pages_) page->CommitPendingEdit();
  const ConfigCheck check = table_.ValidateConfiguration();
  if (!check.ok) {
    const int tab = TabOf(QString::fromStdString(check.tab));
    if (tab >= 0) {
      tabs_->setCurrentIndex(tab);
      pages_[tab]->SelectFault(QString::fromStdString(check.control), check.controlIndex);
    }
    return;
  }
  // The tab is the game's, kept for the next time the window opens.
  table_.Set("ConfigTab", tabs_->currentIndex());
  table_.SetConfigScreenOpen(false);
  QDialog::done(result);
}

void ConfigureWindow::RefreshSoon() {
  // Coalesced and deferred: a page's own command reports its change while
  // the page is still in the middle of its signal.
  if (refreshPending_) return;
  refreshPending_ = true;
  QTimer::singleShot(0, this, [this] {
    refreshPending_ = false;
    if (ConfigPage* page = Page(tabs_->currentIndex()); page && !table_.Busy()) page->Refresh();
  });
}

void ConfigureWindow::BetChanged(int, Currency, Currency) { RefreshSoon(); }
void ConfigureWindow::BankrollChanged(Currency, Currency) { RefreshSoon(); }
void ConfigureWindow::SettingChanged(const std::string&) { RefreshSoon(); }
