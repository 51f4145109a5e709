#include "app/ClockNotices.h"

#include "platform/modSound.h"

std::wstring NoticeOf(ClockEvent event, const Texts& texts) {
    const std::wstring waysToBegin = texts(TextId::HelpPushButton) + texts(TextId::HelpSelectStart) +
                                     texts(TextId::HelpSpace) + texts(TextId::HelpMouse);
    switch (event) {
        case ClockEvent::TimerNotKilled: return texts(TextId::TimerNotKilled);
        case ClockEvent::TimerNotCreated: return texts(TextId::TimerNotCreated);
        case ClockEvent::TimerNotResumed: return texts(TextId::TimerNotCreatedEnding);
        case ClockEvent::Overflow: return texts(TextId::ClockOverflow);
        case ClockEvent::GameNotBegun: return texts(TextId::HelpToBegin) + waysToBegin;
        default: return texts(TextId::HelpResetFirst) + L"\n" + texts(TextId::HelpThenBegin) + waysToBegin;
    }
}

void PlaySoundOf(ClockSound sound, const Settings& settings) {
    // Beside the clock, which goes on. Players who have chosen silence for the flag want none of these either.
    const auto playNotice = [&](const char* name) {
        if (settings.FlagSoundIndex != 0) modSound::PlayBeside(name);
    };
    switch (sound) {
        case ClockSound::Button: return modSound::Play(settings.ButtonSoundName);
        case ClockSound::Flag: return modSound::Play(settings.FlagSoundName);
        case ClockSound::PeriodBegan: return playNotice("PERIODBEGINS");
        case ClockSound::TimeLow: return playNotice("TIMELOW");
    }
}
