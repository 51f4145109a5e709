#pragma once

#include "clock/ClockLayout.h"
#include "platform/Colours.h"
#include "platform/Handles.h"
#include "platform/Picture.h"

#include <windows.h>

#include <array>
#include <string>

// The colours of a key, which differ while it can be pressed and while it cannot.
struct KeyColours {
    Colour Face, Rim, Text, Edge;
};

// How the clock window looks: its colours, type and pictures.
class ClockPainter {
  public:
    static constexpr Colour Ink{RGB(0x14, 0x14, 0x14), COLOR_WINDOWTEXT};  // of texts on the panels

    // `background` as 0xRRGGBB.
    explicit ClockPainter(uint32_t background);

    // Takes the sizes of a new layout.
    void SetLayout(const ClockLayout& layout);

    // The font of a name, smaller for a name that is too long for the width.
    HFONT NameFont(Side side, const std::wstring& name, int width);
    HFONT BlinkFont() const { return blinkFont.get(); }
    HFONT ButtonFont() const { return buttonFont.get(); }
    HFONT PauseFont() const { return pauseFont.get(); }
    HFONT TextFont() const { return textFont.get(); }

    HBRUSH BackgroundBrush() const { return backgroundBrush.get(); }
    HBRUSH PanelBrush(bool running) const { return running ? runningBrush.get() : panelBrush.get(); }

    void DrawPanel(HDC dc, const Box& panel, bool running) const;

    // Each of these fills the whole rectangle of its control.
    void DrawFace(const DRAWITEMSTRUCT& item, Side side, const std::wstring& text, bool fallen) const;
    void DrawTurnMark(const DRAWITEMSTRUCT& item, bool arrow) const;
    void DrawPicture(const DRAWITEMSTRUCT& item, const Picture& picture, bool running) const;
    void DrawClockButton(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running) const;
    void DrawPauseButton(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running) const;

  private:
    void DrawKey(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running, const KeyColours& live,
                 HFONT font) const;
    HFONT FaceFont(HDC dc, const std::wstring& text, int width, int height) const;

    Brush backgroundBrush, panelBrush, runningBrush;
    std::array<UniqueFont, 2> nameFonts;
    int nameType = 0;
    UniqueFont blinkFont, buttonFont, pauseFont, textFont;
    // The face's font is made for a number of characters, a width and a height.
    mutable UniqueFont faceFont;
    mutable std::array<int, 3> faceFontFor{};
};
