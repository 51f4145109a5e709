#pragma once

#include "clock/ClockCommands.h"
#include "clock/ClockPainter.h"
#include "platform/Form.h"
#include "platform/Handles.h"
#include "platform/Picture.h"
#include "platform/ToolTips.h"
#include "settings/Settings.h"

#include <array>
#include <optional>
#include <utility>

// The pair of controls that a number belongs to, and its side; pair 0 is none.
struct Place {
    int Pair = 0;
    Side Panel = White;
};
Place PlaceOf(int id);

// The controls of the two panels: made, laid out, filled and drawn. It shows what the commands and the settings say
// and decides nothing.
class ClockPanels {
  public:
    // All of them must outlive the panels.
    ClockPanels(Form& form, const ClockCommands& commands, const Settings& settings, const Texts& texts,
                uint32_t backgroundColour)
        : form(form), commands(commands), settings(settings), texts(texts), painter(backgroundColour), toolTips(form) {}

    // Makes the controls in the form's window, which must exist. Throws SystemError.
    void Create();

    // Throws SystemError; what could be loaded is shown nevertheless.
    void LoadPictures();

    void ApplyTexts();

    // Lays everything out anew for the size of the window.
    void Arrange();

    // The window has a size, perhaps another one than it had.
    void TakeSize();

    void ShowSettings();
    void ShowFace(Side side);
    void ShowPhase();

    // What screen readers say of a control, where it is not its text.
    std::wstring SpokenName(int id) const;

    // To be called first when the clock has changed. While a word blinks it has a timer of the form, set right after
    // the clock's own where that begins: the program is woken once for a tick and the blink that goes with it.
    void TimeBlinks();
    // One blink of the word of the side whose turn it is.
    void Blink();

    // The visible control at a point of the window, enabled or not.
    Place PlaceAt(POINT point) const;

    // Where the pointer is over a picture that can be clicked, gives it its form. False: it keeps the usual one.
    bool ShowCursorOfPicture() const;

    // A message on its way to the window, which tool tips may want to see.
    void Relay(const MSG& message) { toolTips.Relay(message); }

    // Messages of the window.
    void Draw(const DRAWITEMSTRUCT& item);
    HBRUSH Colour(HDC dc, HWND control) const;
    void PaintBackground() const;

  private:
    void ArrangePanel(Side side);
    void ShowWord();
    void ShowMark(Side side);
    // Draws that part of a drawn control at once. What else of it has to be drawn still waits for its turn.
    void DrawNow(int id, const RECT& part) const;
    std::wstring Stage(Side side) const;
    bool HasSecondPeriod(Side side) const;
    int32_t PeriodTime(Side side) const;  // that is shown under the face
    TextId BlinkRow() const;
    // What the mark of a panel says besides the label in it.
    std::wstring MarkWord(Side side) const;

    Form& form;
    const ClockCommands& commands;
    const Settings& settings;
    const Texts& texts;
    ClockPainter painter;
    ClockLayout layout{};
    std::array<PanelLook, 2> shown{};  // by the panels
    std::array<FaceMark, 2> shownMarks{};
    Phase timed = Phase::Idle;                        // by the timer of the blinks
    std::optional<std::pair<Side, TextId>> blinking;  // the word that blinks, and where
    RECT arranged{};                                  // the client area that the layout is for
    Picture flagUp, flagDown, hand;
    UniqueCursor handHit, handPointBlue;
    ToolTips toolTips;
};
