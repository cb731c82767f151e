#pragma once
// The table's sounds: the stickman's calls by slot, dice, chips and a win,
// from the sound sets in the data folder. Playing goes through a sink, so
// tests record what would have been heard.

#include <QHash>
#include <QString>
#include <memory>

#include "engine/sound_sets.h"

class QSoundEffect;

class SoundSink {
 public:
  virtual ~SoundSink() = default;
  // `volume` 0..1. A file that is missing or unreadable is skipped quietly:
  // a table without its sounds still plays.
  virtual void Play(const QString& file, double volume) = 0;
};

// Qt Multimedia's low-latency effects, one per file, loaded on first use.
class EffectSink : public SoundSink {
 public:
  EffectSink();
  ~EffectSink() override;
  void Play(const QString& file, double volume) override;

 private:
  QHash<QString, QSoundEffect*> effects_;
};

// The sets a game chose: indexes of the folder's sorted lists (an index past
// its list takes the first set, as a game moved to another folder would).
struct SoundChoice {
  int stickman = 0, dice = 0, chips = 0, win = 0;
  // Scripts' "Play sound:" files are silenced; the table's own sounds are not.
  bool muteScriptSounds = false;
};

// The stickman's slot the Configure window plays to let a set be heard.
constexpr int kComeOutSlot = 17;
// The one named file the table itself plays (the bank broken); any other
// named file comes from a script.
constexpr const char* kTableChipsFile = "Chips.wav";

// The sounds of one game's data folder.
class SoundBoard {
 public:
  explicit SoundBoard(SoundSink& sink) : sink_(sink) {}

  // Reads which sets the folder holds and plays the ones chosen.
  void UseFolder(const QString& folder);
  void Choose(const SoundChoice& choice);
  const SoundChoice& Chosen() const { return choice_; }
  void SetVolume(int percent) { volume_ = percent; }
  int Volume() const { return volume_; }
  // The table's own switch and the window's: a run in Hyper-Drive is silent.
  void SetSilenced(bool silenced) { silenced_ = silenced; }

  // Stickman slots 1..18: totals 2..12, line win 13, line losses 14 and 15,
  // a hard way 16, come-out 17, new shooter 18.
  void PlaySlot(int slot);
  void PlayDice() { PlayNamed(diceFile_); }
  void PlayChips() { PlayNamed(chipsFile_); }
  void PlayWin() { PlayNamed(winFile_); }
  // A file the script names, found in the data folder when not a full path.
  void PlayFile(const QString& name);

 private:
  void PlayNamed(const QString& path);
  void PickFiles();

  SoundSink& sink_;
  SoundSets sets_;
  SoundChoice choice_;
  QString folder_, stickman_, diceFile_, chipsFile_, winFile_;
  int volume_ = 80;
  bool silenced_ = false;
};
