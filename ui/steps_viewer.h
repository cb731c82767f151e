#pragma once
// The steps viewer: while a script shows its steps, each line that ran is
// shown with its number and status, and the pass waits here for the player.
// Its menus open the statistics screens meanwhile, as the main menu would.

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "engine/frontend.h"
#include "ui/menu_tree.h"

class QLabel;

// The screens the viewer's menus open, each with its menu caption and
// control name, in menu order; the main window opens them.
struct StatsScreenEntry {
  MenuCommand id;  // the main menu's entry of the same meaning
  const char* caption;
  const char* name;
};
const std::vector<StatsScreenEntry>& StepsViewerScreens();

using OpenStatsScreen = std::function<void(MenuCommand)>;

class StepsViewer : public QDialog {
  Q_OBJECT
 public:
  StepsViewer(OpenStatsScreen openScreen, QWidget* parent = nullptr);

  void Show(int lineNumber, const std::string& text, const std::string& status);
  StepReply Reply() const { return reply_; }

 private:
  void Answer(StepReply reply);

  OpenStatsScreen open_;
  QLabel *lineNum_, *step_, *status_;
  StepReply reply_ = StepReply::Next;  // closing the window goes on, as Next does
};

// A step as a player would meet it, for the screen's picture.
void ShowSampleStep(StepsViewer& viewer);
