#include "ui/sound_board.h"

#include <QDir>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include "store/sound_sets.h"

EffectSink::EffectSink() = default;

EffectSink::~EffectSink() { qDeleteAll(effects_); }

void EffectSink::Play(const QString& file, double volume) {
  QSoundEffect*& effect = effects_[file];
  if (!effect) {
    effect = new QSoundEffect;
    effect->setSource(QUrl::fromLocalFile(file));
  }
  effect->setVolume(static_cast<float>(volume));
  // A call cuts off the one before it, as the stickman's next word would.
  effect->stop();
  effect->play();
}

void SoundBoard::UseFolder(const QString& folder) {
  folder_ = folder;
  sets_ = ListSoundSets(folder.toStdString());
  PickFiles();
}

void SoundBoard::Choose(const SoundChoice& choice) {
  // Asked after every change of the window's status: the paths are built
  // again only when the sets chosen differ.
  const bool sameSets = choice.stickman == choice_.stickman && choice.dice == choice_.dice &&
                        choice.chips == choice_.chips && choice.win == choice_.win;
  choice_ = choice;
  if (!sameSets) PickFiles();
}

void SoundBoard::PickFiles() {
  auto pick = [&](const std::vector<std::string>& names, int index, const char* extension) {
    if (names.empty()) return QString();
    const size_t at = index >= 0 && static_cast<size_t>(index) < names.size() ? static_cast<size_t>(index) : 0;
    return QDir(folder_).filePath(QString::fromStdString(names[at]) + QLatin1String(extension));
  };
  stickman_ = pick(sets_.Stickman, choice_.stickman, "");
  diceFile_ = pick(sets_.Dice, choice_.dice, ".dce");
  chipsFile_ = pick(sets_.Chips, choice_.chips, ".chp");
  winFile_ = pick(sets_.Win, choice_.win, ".win");
}

void SoundBoard::PlaySlot(int slot) {
  if (stickman_.isEmpty() || slot < 1 || slot > 18) return;
  PlayNamed(stickman_ + QStringLiteral("%1.stk").arg(slot, 2, 10, QLatin1Char('0')));
}

void SoundBoard::PlayFile(const QString& name) {
  if (choice_.muteScriptSounds && name.compare(QLatin1String(kTableChipsFile), Qt::CaseInsensitive) != 0) return;
  PlayNamed(QFileInfo(name).isAbsolute() ? name : QDir(folder_).filePath(name));
}

void SoundBoard::PlayNamed(const QString& path) {
  if (silenced_ || volume_ <= 0 || path.isEmpty() || !QFileInfo::exists(path)) return;
  sink_.Play(path, volume_ / 100.0);
}
