#include "clock/ClockLayout.h"

#include <algorithm>
#include <cmath>

namespace {

// Lengths of the design in pixels of a window.
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
    const int left = panel.left + padding, width = panel.width - 2 * padding, right = left + width;

    PanelLayout layout;
    layout.panel = panel;

    const int headerTop = panel.top + unit(10), header = unit(42), arrow = unit(28), blink = unit(166);
    layout.turnMarks[0] = {left, headerTop + (header - arrow) / 2, arrow, arrow};
    layout.side = {left + arrow + gap, headerTop, width - arrow - blink - 2 * gap, header};
    layout.blink = {right - blink, headerTop, blink, header};

    const int text = unit(26);
    const int bonusTop = panel.Bottom() - unit(10) - text, textTop = bonusTop - text;
    const int field = unit(62), number = unit(130);
    layout.moveNumber = {left, textTop, number, text};
    layout.moveCount = {left + number, textTop, unit(70), text};
    const int captionLeft = layout.moveCount.Right() + gap;
    layout.period = {captionLeft, textTop, right - field - captionLeft, text};
    layout.periodTime = {right - field, textTop, field, text};
    layout.bonus = {captionLeft, bonusTop, right - field - captionLeft, text};
    layout.bonusTime = {right - field, bonusTop, field, text};

    const int controls = unit(96), picture = unit(84), pause = unit(112);
    const int controlsTop = textTop - unit(8) - controls, pictureTop = controlsTop + (controls - picture) / 2;
    layout.flag = {left, pictureTop, picture, picture};
    layout.hand = {layout.flag.Right() + gap, pictureTop, picture, picture};
    layout.pauseButton = {right - pause, controlsTop, pause, controls};
    layout.clockButton = {layout.hand.Right() + gap, controlsTop,
                          layout.pauseButton.left - layout.hand.Right() - 2 * gap, controls};

    const int faceTop = headerTop + header + unit(6), faceBottom = controlsTop - unit(14);
    layout.turnMarks[1] = {left, faceTop, width, bar};
    layout.turnMarks[2] = {left, faceBottom - bar, width, bar};
    layout.face = {left, faceTop + bar, width, faceBottom - faceTop - 2 * bar};
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
        layout.panels[side] = LayOutPanel({left, margin, panelWidth, height - 2 * margin}, unit);
    }
    layout.nameType = unit(30);
    layout.blinkType = unit(20);
    layout.buttonType = unit(44);
    layout.pauseType = unit(18);
    layout.textType = unit(19);
    return layout;
}
