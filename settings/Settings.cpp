#include "settings/Settings.h"

#include "base/RunTimeError.h"

namespace {

template <size_t Count>
const char* NameAt(const std::array<const char*, Count>& names, int32_t index) {
    if (index < 0 || static_cast<size_t>(index) >= Count) throw RunTimeError(Fault::OutOfRange);
    return names[static_cast<size_t>(index)];
}

}  // namespace

Settings::Settings() { ApplyPreset(DefaultPreset, *this); }

void Settings::SetClockType(int32_t type) {
    ClockType = type;
    if (type == 1 || type == 2) SecondPeriodEnabled = true;
    if (type == 0 || type == 3) SecondPeriodEnabled = false;
}

void Settings::SetButtonSound(int32_t index) {
    ButtonSoundName = NameAt(ButtonSounds, index);
    ButtonSoundIndex = index;
}

void Settings::SetFlagSound(int32_t index) {
    FlagSoundName = NameAt(FlagSounds, index);
    FlagSoundIndex = index;
}

void ApplyPreset(const Preset& preset, Settings& settings) {
    settings.SetClockType(preset.clockType);
    settings.PeriodLimit.fill(preset.firstPeriodMinutes * 60);
    if (preset.secondPeriodMinutes) settings.SecondPeriodTime.fill(*preset.secondPeriodMinutes * 60);
    settings.MoveBonus.fill(preset.bonusSeconds);
    settings.ShowMoveNumber = preset.showMoveNumber;
    settings.TurnClock = preset.turnClock;
    settings.CountTimeDown = preset.countTimeDown;
    settings.SetButtonSound(preset.buttonSound);
    settings.SetFlagSound(preset.flagSound);
    settings.OpenScorletAtStart = preset.openScorlet;
    settings.MovesFirstPeriod = preset.movesFirstPeriod;
}
