// The Sound tab: the set chosen is the one heard, and the switches reach
// the sound board.

#include "ui/sound_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/desktop_front_end.h"
#include "ui/dialogs_for_test.h"
#include "ui/sound_board.h"

namespace {

class RecordingSink : public SoundSink {
 public:
  QStringList played;  // file names only
  void Play(const QString& file, double) override { played << QFileInfo(file).fileName(); }
};

// A data folder holding two dice sets, one of each other kind and the
// files a script may name, listed as the table starts.
struct SoundDesk {
  QTemporaryDir folder;
  RecordingSink sink;
  SoundBoard sounds{sink};
  QueuedDialogs dialogs;
  DesktopFrontEnd frontEnd{dialogs, sounds};
  Table table{frontEnd};

  SoundDesk() {
    for (const char* name :
         {"bones.dce", "cubes.dce", "vegas17.stk", "stack.chp", "bells.win", "hoot.wav", "Chips.wav"})
      QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    frontEnd.SetPauses(false);
    table.StartUp(folder.path().toStdString(), true);
    sounds.UseFolder(folder.path());
  }
  template <class W>
  W* Find(const SoundPage& page, const char* name) {
    W* w = page.findChild<W*>(QLatin1String(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
};

TEST(SoundPage, TheChosenSetIsTheOneHeard) {
  SoundDesk d;
  SoundPage page(d.table, d.dialogs, d.sounds);
  auto* dice = d.Find<QComboBox>(page, "cmbDiceSound");
  ASSERT_EQ(dice->count(), 2);
  EXPECT_EQ(dice->itemText(1), QStringLiteral("cubes"));
  const struct {
    const char* step;
    std::function<void()> act;
    QStringList heard;
  } steps[] = {
      {"first set by default", [&] { d.Find<QPushButton>(page, "cmbDiceSoundPlay")->click(); }, {"bones.dce"}},
      {"second chosen", [&] { emit dice->activated(1); d.Find<QPushButton>(page, "cmbDiceSoundPlay")->click(); },
       {"cubes.dce"}},
      {"a throw plays it", [&] { d.frontEnd.ShowThrow(3, 4, 0); }, {"cubes.dce"}},
      {"an index past the list plays the first",
       [&] { d.table.Set("DiceSound", 5); d.sounds.Choose(SoundChoiceOf(d.table.State())); d.sounds.PlayDice(); },
       {"bones.dce"}},
      {"stickman, chips and win", [&] {
         for (const char* play : {"cmbStickPersonSoundPlay", "cmbChipSoundPlay", "cmbWinSoundPlay"})
           d.Find<QPushButton>(page, play)->click();
       }, {"vegas17.stk", "stack.chp", "bells.win"}},
      {"a script's sound", [&] { d.frontEnd.PlaySoundFile("hoot.wav"); }, {"hoot.wav"}},
      // Script sounds muted: the bank's chips still sound.
      {"script sounds off", [&] {
         d.Find<QCheckBox>(page, "chkDisableAutoBetSounds")->click();
         d.frontEnd.PlaySoundFile("hoot.wav");
         d.frontEnd.PlaySoundFile("Chips.wav");
       }, {"Chips.wav"}},
      {"all sound off", [&] {
         d.Find<QCheckBox>(page, "chkDisableAllSound")->click();
         d.frontEnd.ShowThrow(3, 4, 0);
       }, {}},
  };
  for (const auto& s : steps) {
    d.sink.played.clear();
    s.act();
    EXPECT_EQ(d.sink.played, s.heard) << s.step;
  }
  const Game& g = d.table.State();
  EXPECT_TRUE(g.DisableAutoBetSounds);
  EXPECT_TRUE(g.DisableAllSound);
  EXPECT_FALSE(d.Find<QPushButton>(page, "cmbDiceSoundPlay")->isEnabled());
}

TEST(SoundPage, VolumeReachesTheBoardAndIsAnnounced) {
  SoundDesk d;
  SoundPage page(d.table, d.dialogs, d.sounds);
  QSignalSpy announced(&page, &SoundPage::VolumeChanged);
  d.Find<QSlider>(page, "sldVolume")->setValue(35);
  EXPECT_EQ(d.sounds.Volume(), 35);
  ASSERT_EQ(announced.count(), 1);
  EXPECT_EQ(announced[0][0].toInt(), 35);
}

}  // namespace
