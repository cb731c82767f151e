#pragma once
// A table in a fresh data folder of its own, with every question answered
// from a queue and every sound dropped: what a screen under test talks to.

#include <QTemporaryDir>
#include <string>

#include "sim/table.h"
#include "ui/desktop_front_end.h"
#include "ui/dialogs_for_test.h"
#include "ui/sound_board.h"

class DroppingSink : public SoundSink {
 public:
  void Play(const QString&, double) override {}
};

struct ScreenDesk {
  QTemporaryDir folder;
  DroppingSink sink;
  SoundBoard sounds{sink};
  QueuedDialogs dialogs;
  DesktopFrontEnd frontEnd{dialogs, sounds};
  Table table{frontEnd};

  ScreenDesk() {
    frontEnd.SetPauses(false);
    table.StartUp(Folder(), true);
  }
  std::string Folder() const { return folder.path().toStdString(); }
  std::string PathOf(const char* name) const { return folder.filePath(QString::fromLatin1(name)).toStdString(); }
};
