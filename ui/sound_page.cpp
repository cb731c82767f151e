#include "ui/sound_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/sound_board.h"

namespace {

struct KindRow {
  const char* label;
  const char* control;  // object name of the choice; its Play button adds "Play"
  const char* setting;
  std::vector<std::string> SoundSets::*sets;
  int32_t Game::*chosen;
};
// In the order of SoundPage's kinds.
const KindRow kKindRows[] = {
    {"Stickman:", "cmbStickPersonSound", "StickPersonSound", &SoundSets::Stickman, &Game::StickPersonSound},
    {"Dice:", "cmbDiceSound", "DiceSound", &SoundSets::Dice, &Game::DiceSound},
    {"Chips:", "cmbChipSound", "ChipSound", &SoundSets::Chips, &Game::ChipSound},
    {"Winning bets:", "cmbWinSound", "WinSound", &SoundSets::Win, &Game::WinSound},
};

}  // namespace

SoundChoice SoundChoiceOf(const Game& g) {
  return {g.StickPersonSound, g.DiceSound, g.ChipSound, g.WinSound, g.DisableAutoBetSounds};
}

SoundPage::SoundPage(Table& table, Dialogs& /*dialogs*/, SoundBoard& sounds, QWidget* parent)
    : ConfigPage(parent), table_(table), sounds_(sounds) {
  auto* setsBox = new QGroupBox(tr("Sound sets"), this);
  auto* setsForm = new QFormLayout(setsBox);
  for (int kind = 0; kind < kKinds; ++kind) {
    const KindRow& row = kKindRows[kind];
    auto* line = new QHBoxLayout;
    sets_[kind] = new QComboBox(setsBox);
    sets_[kind]->setObjectName(QLatin1String(row.control));
    sets_[kind]->setMinimumWidth(260);
    plays_[kind] = new QPushButton(tr("Play"), setsBox);
    plays_[kind]->setObjectName(QLatin1String(row.control) + QLatin1String("Play"));
    line->addWidget(sets_[kind], 1);
    line->addWidget(plays_[kind]);
    setsForm->addRow(tr(row.label), line);
    const auto k = static_cast<Kind>(kind);
    connect(sets_[kind], &QComboBox::activated, this, [this, k](int index) { Choose(k, index); });
    connect(plays_[kind], &QPushButton::clicked, this, [this, k] { PlaySample(k); });
  }
  auto* note = new QLabel(tr("Sets are read from the data folder: stickman calls (*.stk), dice (*.dce), "
                             "chips (*.chp) and winning bets (*.win)."),
                          setsBox);
  note->setWordWrap(true);
  note->setEnabled(false);
  setsForm->addRow(note);

  auto* volumeBox = new QGroupBox(tr("Volume"), this);
  auto* volumeLine = new QHBoxLayout(volumeBox);
  volume_ = new QSlider(Qt::Horizontal, volumeBox);
  volume_->setObjectName(QStringLiteral("sldVolume"));
  volume_->setRange(0, 100);
  volume_->setPageStep(10);
  volumeShown_ = new QLabel(volumeBox);
  volumeShown_->setMinimumWidth(40);
  volumeShown_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  volumeLine->addWidget(new QLabel(tr("Quiet"), volumeBox));
  volumeLine->addWidget(volume_, 1);
  volumeLine->addWidget(new QLabel(tr("Loud"), volumeBox));
  volumeLine->addWidget(volumeShown_);
  connect(volume_, &QSlider::valueChanged, this, [this](int percent) {
    sounds_.SetVolume(percent);
    volumeShown_->setText(tr("%1%").arg(percent));
    emit VolumeChanged(percent);
  });

  auto* silenceBox = new QGroupBox(tr("Silence"), this);
  auto* silence = new QVBoxLayout(silenceBox);
  autoBetSounds_ = new QCheckBox(tr(" Disable Auto-Bet sounds (\"Play sound:\" lines of scripts)"), silenceBox);
  autoBetSounds_->setObjectName(QStringLiteral("chkDisableAutoBetSounds"));
  allSound_ = new QCheckBox(tr(" Disable all sound"), silenceBox);
  allSound_->setObjectName(QStringLiteral("chkDisableAllSound"));
  silence->addWidget(autoBetSounds_);
  silence->addWidget(allSound_);
  connect(autoBetSounds_, &QCheckBox::toggled, this, [this](bool on) { SetSwitch("DisableAutoBetSounds", on); });
  connect(allSound_, &QCheckBox::toggled, this, [this](bool on) { SetSwitch("DisableAllSound", on); });

  auto* page = new QVBoxLayout(this);
  page->addWidget(setsBox);
  page->addWidget(volumeBox);
  page->addWidget(silenceBox);
  page->addStretch(1);
  Refresh();
}

void SoundPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  for (int kind = 0; kind < kKinds; ++kind) {
    QComboBox* box = sets_[kind];
    const QSignalBlocker quiet(box);
    box->clear();
    const KindRow& row = kKindRows[kind];
    const std::vector<std::string>& names = g.Sounds.*row.sets;
    for (const std::string& name : names) box->addItem(QString::fromStdString(name));
    if (names.empty()) box->addItem(tr("(none in the data folder)"));
    // A choice past the list plays the first set, so the first is shown.
    const int chosen = g.*row.chosen;
    box->setCurrentIndex(chosen >= 0 && static_cast<size_t>(chosen) < names.size() ? chosen : 0);
    box->setEnabled(!names.empty());
    plays_[kind]->setEnabled(!names.empty() && !g.DisableAllSound);
  }
  {
    const QSignalBlocker quiet(volume_);
    volume_->setValue(sounds_.Volume());
  }
  volumeShown_->setText(tr("%1%").arg(sounds_.Volume()));
  volume_->setEnabled(!g.DisableAllSound);
  const QSignalBlocker quietAutoBet(autoBetSounds_), quietAll(allSound_);
  autoBetSounds_->setChecked(g.DisableAutoBetSounds);
  allSound_->setChecked(g.DisableAllSound);
}

void SoundPage::Choose(Kind kind, int index) {
  table_.Set(kKindRows[kind].setting, index);
  sounds_.Choose(SoundChoiceOf(table_.State()));
  Refresh();
}

void SoundPage::PlaySample(Kind kind) {
  switch (kind) {
    case kStickman: sounds_.PlaySlot(kComeOutSlot); break;
    case kDice: sounds_.PlayDice(); break;
    case kChips: sounds_.PlayChips(); break;
    default: sounds_.PlayWin(); break;
  }
}

void SoundPage::SetSwitch(const char* name, bool on) {
  table_.Set(name, on ? 1 : 0);
  const Game& g = table_.State();
  sounds_.Choose(SoundChoiceOf(g));
  sounds_.SetSilenced(g.DisableAllSound);
  Refresh();
}
