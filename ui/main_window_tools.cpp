// The table's tools as the main window works them: the click tools, the
// window's own remove tool and the Key-in box.
#include <QLineEdit>

#include "engine/game.h"
#include "engine/table_commands.h"
#include "sim/table.h"
#include "ui/dialogs.h"
#include "ui/layout_geometry.h"
#include "ui/main_window.h"
#include "ui/status_panel.h"
#include "ui/table_view.h"

void MainWindow::ChooseTool(int tool, const QString& prompt) {
  if (!table_.SetClickTool(tool).Done()) return;
  tool_ = WindowTool::TableTool;
  status_->ShowPrompt(prompt);
  UpdateStatus();
}

void MainWindow::PickTool(int tool) {
  if (table_.Busy()) return;
  switch (tool) {
    case kToolBuy: ChooseTool(tool, tr("Click on bet to buy")); return;
    case kToolCallOn: ChooseTool(tool, tr("Click on bet to call it \"ON\"")); return;
    case kToolCallOff: ChooseTool(tool, tr("Click on bet to call it \"OFF\"")); return;
    case layout::kToolRemove:
      tool_ = WindowTool::Remove;
      status_->ShowPrompt(tr("Click on bet to remove"));
      UpdateStatus();
      return;
    default: ChooseTool(tool, {});  // a chip or a Chip-Stack: every click adds it
  }
}

void MainWindow::ClickBet(int betId, bool shift) {
  if (table_.Busy()) return;
  if (tool_ == WindowTool::Remove && !shift) {
    table_.Remove(betId);
  } else if (Action(MenuCommand::KeyIn)->isChecked() && !shift) {
    OpenKeyIn(betId);
  } else {
    table_.Click(betId, shift);
  }
}

void MainWindow::OpenKeyIn(int betId) {
  CommitKeyIn();
  keyInBet_ = betId;
  keyIn_->setText(QString::fromStdString(FormatNumberWithCommas(table_.State().BetAmount[betId])));
  const QPointF centre = view_->BetCentre(betId);
  keyIn_->move(static_cast<int>(centre.x()) - keyIn_->width() / 2, static_cast<int>(centre.y()) - keyIn_->height() / 2);
  keyIn_->show();
  keyIn_->selectAll();
  keyIn_->setFocus();
}

bool MainWindow::CommitKeyIn() {
  if (!keyIn_->isVisible()) return true;
  keyIn_->hide();
  view_->setFocus();
  const TableResult r = table_.Enter(keyInBet_, keyIn_->text().toStdString());
  if (r.code == TableCode::WrongType)
    dialogs_.Message({table_.State().BetName[keyInBet_] + " Bet", r.text, Buttons::Ok, false});
  return r.Done();
}

void MainWindow::LeaveToolMode() {
  keyIn_->hide();
  table_.SetClickTool(kToolFirstChip);
  tool_ = WindowTool::TableTool;
  status_->ShowPrompt({});
  UpdateStatus();
}

