#include "ui/statistics_screen.h"

#include <QMenuBar>
#include <QPrinter>
#include <QVBoxLayout>

#include "sim/table.h"
#include "ui/dialogs.h"

StatisticsScreen::StatisticsScreen(Table& table, Dialogs& dialogs, const QString& title, QWidget* parent)
    : QWidget(parent, Qt::Window), table_(table), dialogs_(dialogs) {
  setWindowTitle(title);
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  menuBar_ = new QMenuBar(this);
  outer->setMenuBar(menuBar_);
  QMenu* file = menuBar_->addMenu(tr("&File"));
  file->addAction(tr("&Print ..."), this, &StatisticsScreen::Print);
  file->addAction(tr("&Export CSV ..."), this, &StatisticsScreen::ExportCsv);
  file->addSeparator();
  file->addAction(tr("&Close"), this, &QWidget::close);
  body_ = new QVBoxLayout;
  body_->setContentsMargins(10, 8, 10, 10);
  outer->addLayout(body_);
  table_.Subscribe(this);
}

StatisticsScreen::~StatisticsScreen() { table_.Unsubscribe(this); }

void StatisticsScreen::RefreshIfIdle() {
  if (!table_.Busy() && isVisible()) Refresh();
}

void StatisticsScreen::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!table_.Busy()) Refresh();
}

void StatisticsScreen::RollFinished(std::span<const Settlement>) { RefreshIfIdle(); }
void StatisticsScreen::StatisticsRefreshed() { RefreshIfIdle(); }
void StatisticsScreen::RunStopped(StopReason) { RefreshIfIdle(); }
void StatisticsScreen::FlagsChanged() { RefreshIfIdle(); }
void StatisticsScreen::ChipStacksChanged() { RefreshIfIdle(); }

void StatisticsScreen::Print() {
  if (!ReadyToPrint()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle());
  if (!dialogs_.ChoosePrinter(printer, ("Print " + windowTitle()).toStdString())) return;
  if (!PrintReport(printer, Report()))
    dialogs_.Message({"Print " + windowTitle().toStdString(), "The report could not be printed.", {}, false});
}

void StatisticsScreen::ExportCsv() {
  const auto path = dialogs_.FileName(("Export " + windowTitle()).toStdString(), "*.csv", FileMode::Save);
  if (!path) return;
  QString error;
  if (!WriteReportCsv(QString::fromStdString(*path), Report(), &error))
    dialogs_.Message({"Export " + windowTitle().toStdString(),
                      *path + " could not be written: " + error.toStdString(), {}, false});
}
