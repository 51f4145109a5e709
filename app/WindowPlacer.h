#pragma once

#include "app/KeptPlaces.h"

#include <windows.h>

#include <optional>
#include <string>

// Places the clock window and the Scorlet, so that neither covers the other, and keeps where the user has left them.
class WindowPlacer {
  public:
    // `file` is that of the kept places. Places that cannot be read or written are none: there is nothing to be lost.
    explicit WindowPlacer(const std::wstring& file) : file(file) {}

    // At the start: where it was left, if that is still on a screen. True: it is to be shown maximised.
    bool PlaceClock(HWND clock, bool besideScorlet);

    // For a Scorlet that is to open: the clock makes room, and the place is returned.
    Box MakeRoom(HWND clock);
    // The Scorlet is about to close: a clock that has made room for it, and has not been moved since, goes back.
    void TakeRoomBack(HWND clock, HWND scorlet);

    // The screen or its task bar has changed. `scorlet` is null while it is closed.
    static void OnScreenChanged(HWND clock, HWND scorlet);

    static void LimitClock(HWND clock, MINMAXINFO& info);

    // The program ends.
    void Keep(HWND clock, HWND scorlet);

  private:
    std::optional<WindowPlaces> LeftBeside(const Box& clock, const Box& workArea) const;

    const std::wstring file;
    std::optional<KeptPlaces> left;
    std::optional<WindowPlaces> planned;  // at the start, for the Scorlet that opens next
    // Before the clock made room, and after it.
    struct Room {
        Box Before, After;
        bool Maximised;
    };
    std::optional<Room> room;
};
