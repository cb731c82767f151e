#pragma once
// Configure's "Sound" tab: which of the data folder's sound sets play, how
// loud, and the switches that silence them.

#include <QString>
#include <array>

#include "ui/config_page.h"

class Dialogs;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSlider;
class SoundBoard;
class Table;
struct Game;
struct SoundChoice;

// The sets and switches a game chose, as the sound board plays them.
SoundChoice SoundChoiceOf(const Game& g);

class SoundPage : public ConfigPage {
  Q_OBJECT
 public:
  SoundPage(Table& table, Dialogs& dialogs, SoundBoard& sounds, QWidget* parent = nullptr);

  QString Caption() const override { return tr("Sound"); }
  void Refresh() override;

 signals:
  // The player moved the volume; the main window keeps it for next time.
  void VolumeChanged(int percent);

 private:
  // The four kinds of set, in the order the page lists them.
  enum Kind { kStickman, kDice, kChips, kWin, kKinds };

  void Choose(Kind kind, int index);
  void PlaySample(Kind kind);
  void SetSwitch(const char* name, bool on);

  Table& table_;
  SoundBoard& sounds_;
  std::array<QComboBox*, kKinds> sets_{};
  std::array<QPushButton*, kKinds> plays_{};
  QSlider* volume_ = nullptr;
  QLabel* volumeShown_ = nullptr;
  QCheckBox* autoBetSounds_ = nullptr;
  QCheckBox* allSound_ = nullptr;
};
