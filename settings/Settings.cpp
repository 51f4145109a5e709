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
    if (type == 1 || type == 2) Control.SecondPeriodEnabled = true;
    if (type == 0 || type == 3) Control.SecondPeriodEnabled = false;
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
    settings.SetClockType(preset.ClockType);
    settings.Control.PeriodLimit.fill(preset.FirstPeriodMinutes * 60);
    if (preset.SecondPeriodMinutes) settings.Control.SecondPeriodTime.fill(*preset.SecondPeriodMinutes * 60);
    settings.Control.MoveBonus.fill(preset.BonusSeconds);
    settings.ShowMoveNumber = preset.ShowMoveNumber;
    settings.TurnClock = preset.TurnClock;
    settings.Control.CountTimeDown = preset.CountTimeDown;
    settings.SetButtonSound(preset.ButtonSound);
    settings.SetFlagSound(preset.FlagSound);
    settings.OpenScorletAtStart = preset.OpenScorlet;
    settings.Control.MovesFirstPeriod = preset.MovesFirstPeriod;
}
