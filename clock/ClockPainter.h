#pragma once

#include "clock/ClockCommands.h"
#include "clock/ClockLayout.h"
#include "platform/Colours.h"
#include "platform/Handles.h"
#include "platform/Picture.h"

#include <windows.h>

#include <array>
#include <string>
#include <vector>

// How the clock window looks: its type and pictures, and the palette's colours for each state of a panel.
class ClockPainter {
  public:
    // `background` as 0xRRGGBB.
    explicit ClockPainter(uint32_t background);

    // Takes the places and sizes of a new layout.
    void SetLayout(const ClockLayout& newLayout);

    // Both names have one font, smaller where one of them is too long for its place.
    void FitNames(const std::array<std::wstring, 2>& names);
    HFONT NameFont() const { return nameFont.get(); }
    HFONT BlinkFont() const { return blinkFont.get(); }
    HFONT ButtonFont() const { return buttonFont.get(); }
    HFONT PauseFont() const { return pauseFont.get(); }
    HFONT TextFont() const { return textFont.get(); }

    // The width of a text below the keys, in pixels.
    int TextWidth(const std::wstring& text) const;

    HBRUSH BackgroundBrush() const { return backgroundBrush.get(); }
    HBRUSH CardBrush() const { return cardBrush.get(); }  // under the labels
    static COLORREF NameColour(PanelLook look);
    static COLORREF LabelColour();

    // The part of a face, in pixels of its control, that changes with its text.
    RECT ChangedPart(const std::wstring& before, const std::wstring& after);

    // Draws a panel without its controls, in the window. `word` is what its mark says.
    void DrawPanel(HDC dc, Side side, PanelLook look, const std::wstring& word) const;

    // These draw the controls. A face draws no more of itself than has to be.
    void DrawFace(const DRAWITEMSTRUCT& item, Side side, PanelLook look, FaceMark mark, const std::wstring& text);
    void DrawTurnMark(const DRAWITEMSTRUCT& item, Side side, size_t mark) const;
    void DrawMarkWord(const DRAWITEMSTRUCT& item, PanelLook look, const std::wstring& word) const;
    void DrawFlag(const DRAWITEMSTRUCT& item, const Picture& flag, bool fallen) const;
    void DrawHand(const DRAWITEMSTRUCT& item, Side side, const Picture& hand, bool enabled) const;
    void DrawClockButton(const DRAWITEMSTRUCT& item, Side side, const std::wstring& text) const;
    void DrawPauseButton(const DRAWITEMSTRUCT& item, const std::wstring& text) const;

  private:
    // How texts of a number of characters are drawn on a face.
    struct FaceType {
        size_t Characters = 0;
        UniqueFont Font;
        int Digit = 0, Colon = 0;  // widths
        int Left = 0;              // of the first character
        int Baseline = 0, Top = 0, Bottom = 0;
    };

    const FaceType& TypeFor(const std::wstring& text);
    // The places of a text's characters in its face.
    std::vector<RECT> Cells(const std::wstring& text);
    void WriteWord(HDC dc, const RECT& area, PanelLook look, const std::wstring& word) const;

    Brush backgroundBrush, cardBrush;
    ClockLayout layout{};
    UniqueFont nameFont;
    UniqueFont blinkFont, buttonFont, pauseFont, textFont;
    FaceType faceType;
};
