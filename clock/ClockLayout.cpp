#include "clock/ClockLayout.h"

#include <algorithm>
#include <cmath>

namespace {

// Converts lengths of the design to pixels of a window.
class Unit {
  public:
    Unit(int width, int height)
        : scale(std::min(static_cast<double>(width) / DesignWidth, static_cast<double>(height) / DesignHeight)) {}
    int operator()(int length) const { return static_cast<int>(std::lround(length * scale)); }

  private:
    double scale;
};

PanelLayout LayOutPanel(const Box& panel, const Unit& unit) {
    const int padding = unit(16), gap = unit(10), bar = unit(9);
    const int left = panel.Left + padding, width = panel.Width - 2 * padding, right = left + width;

    PanelLayout layout;
    layout.Panel = panel;

    const int headerTop = panel.Top + unit(10), header = unit(42), arrow = unit(28), blink = unit(166);
    layout.TurnMarks[0] = {left, headerTop + (header - arrow) / 2, arrow, arrow};
    layout.Name = {left + arrow + gap, headerTop, width - arrow - blink - 2 * gap, header};
    layout.Blink = {right - blink, headerTop, blink, header};

    const int text = unit(26);
    const int bonusTop = panel.Bottom() - unit(10) - text, textTop = bonusTop - text;
    const int field = unit(62), number = unit(130);
    layout.MoveNumber = {left, textTop, number, text};
    layout.MoveCount = {left + number, textTop, unit(70), text};
    const int captionLeft = layout.MoveCount.Right() + gap;
    layout.Period = {captionLeft, textTop, right - field - captionLeft, text};
    layout.PeriodTime = {right - field, textTop, field, text};
    layout.Bonus = {captionLeft, bonusTop, right - field - captionLeft, text};
    layout.BonusTime = {right - field, bonusTop, field, text};

    const int controls = unit(96), picture = unit(84), pause = unit(112);
    const int controlsTop = textTop - unit(8) - controls, pictureTop = controlsTop + (controls - picture) / 2;
    layout.Flag = {left, pictureTop, picture, picture};
    layout.Hand = {layout.Flag.Right() + gap, pictureTop, picture, picture};
    layout.PauseButton = {right - pause, controlsTop, pause, controls};
    layout.ClockButton = {layout.Hand.Right() + gap, controlsTop,
                          layout.PauseButton.Left - layout.Hand.Right() - 2 * gap, controls};

    const int faceTop = headerTop + header + unit(6), faceBottom = controlsTop - unit(14);
    layout.TurnMarks[1] = {left, faceTop, width, bar};
    layout.TurnMarks[2] = {left, faceBottom - bar, width, bar};
    layout.Face = {left, faceTop + bar, width, faceBottom - faceTop - 2 * bar};
    return layout;
}

}  // namespace

ClockLayout LayOutClock(int width, int height) {
    const Unit unit(width, height);
    const int margin = unit(14);
    const int panelWidth = (width - 3 * margin) / 2;

    ClockLayout layout;
    for (Side side : BothSides) {
        const int left = margin + side * (panelWidth + margin);
        layout.Panels[side] = LayOutPanel({left, margin, panelWidth, height - 2 * margin}, unit);
    }
    layout.NameType = unit(30);
    layout.BlinkType = unit(20);
    layout.ButtonType = unit(44);
    layout.PauseType = unit(18);
    layout.TextType = unit(19);
    return layout;
}
