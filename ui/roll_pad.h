#pragma once
// The roll-your-own pad ("Dice Rolls"): the player picks the next roll by a
// total, a pair or two faces. Like the bankroll screen it acts only through
// the signals it sends; the window that owns the table rolls. Its view, its
// switches and its colour are the player's settings and outlive the window.

#include <QColor>
#include <QList>
#include <QWidget>
#include <cstdint>
#include <functional>

class DiceButton;
class QAction;
class QLabel;
class QPushButton;
class QStackedWidget;

// The four views, in the order of the view menu.
enum class PadView { Totals = 0, Triangle = 1, Box = 2, Faces = 3 };
inline constexpr int kPadViewCount = 4;

// Asks the player for a colour; an invalid colour means cancelled. Tests put
// in one that answers at once.
using ColorChooser = std::function<QColor(const QColor& current, QWidget* parent)>;

class RollPad : public QWidget {
  Q_OBJECT
 public:
  explicit RollPad(QWidget* parent = nullptr);

  void SetView(int view);
  int View() const;
  void SetRollCount(int64_t rolls);
  // A Hyper-Drive run is on: the button stops it.
  void SetRunning(bool running);
  // False while a run owns the table: no roll can be chosen, only stopped.
  void SetEnabledForRun(bool enabled);
  void SetColorChooser(ColorChooser chooser) { chooseColor_ = std::move(chooser); }
  QColor ButtonColor() const { return color_; }

 signals:
  void PairChosen(int die1, int die2);
  // The 11-numbers view: the table draws which pair makes the total.
  void TotalChosen(int total);
  void RandomRollRequested();
  void HyperDriveRequested();
  void StopRequested();

 private:
  void BuildMenus();
  QWidget* BuildTotals();
  QWidget* BuildTriangle();
  QWidget* BuildBox();
  QWidget* BuildFaces();
  DiceButton* PairButton(int die1, int die2, bool across, QWidget* page);
  void FaceClicked(int row, int face);
  void ShowFacePrompt();
  void ApplyColor(const QColor& color);
  void ChooseColor();
  void ShowSwitches();

  QStackedWidget* pages_ = nullptr;
  QList<QAction*> viewActions_;
  QAction *counterSwitch_ = nullptr, *hyperSwitch_ = nullptr, *randomSwitch_ = nullptr;
  QLabel* counter_ = nullptr;
  QPushButton *hyperDrive_ = nullptr, *randomRoll_ = nullptr;
  // The faces view: both rows of faces, their row captions, and die 1 once chosen.
  QList<DiceButton*> faces_[2];
  QLabel* faceRowCaption_[2] = {};
  QLabel* facePrompt_ = nullptr;
  int chosenDie1_ = 0;
  bool running_ = false;
  QColor color_;
  ColorChooser chooseColor_;
};
