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
  const SoundSets sets = ListSoundSets(folder.toStdString());
  auto first = [&](const std::vector<std::string>& names, const char* extension) {
    return names.empty() ? QString() : QDir(folder).filePath(QString::fromStdString(names.front()) + extension);
  };
  stickman_ = sets.Stickman.empty() ? QString() : QDir(folder).filePath(QString::fromStdString(sets.Stickman.front()));
  diceFile_ = first(sets.Dice, ".dce");
  chipsFile_ = first(sets.Chips, ".chp");
  winFile_ = first(sets.Win, ".win");
}

void SoundBoard::PlaySlot(int slot) {
  if (stickman_.isEmpty() || slot < 1 || slot > 18) return;
  PlayNamed(stickman_ + QStringLiteral("%1.stk").arg(slot, 2, 10, QLatin1Char('0')));
}

void SoundBoard::PlayFile(const QString& name) {
  PlayNamed(QFileInfo(name).isAbsolute() ? name : QDir(folder_).filePath(name));
}

void SoundBoard::PlayNamed(const QString& path) {
  if (silenced_ || volume_ <= 0 || path.isEmpty() || !QFileInfo::exists(path)) return;
  sink_.Play(path, volume_ / 100.0);
}
