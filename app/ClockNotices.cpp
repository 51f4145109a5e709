#include "app/ClockNotices.h"

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
