#include "clock/ClockLayout.h"

#include <algorithm>
#include <cmath>

namespace {

int Round(double length) { return static_cast<int>(std::lround(length)); }

// Widths of the texts below the keys in the three languages, as multiples of the height of their type.
constexpr double MoveNumberWidth = 6.55, MoveCountWidth = 2.6, CaptionWidth = 11.7, TimeWidth = 3.17;
constexpr double RowHeight = 1.3;
// What these texts need beside each other.
constexpr double RowWidth = MoveNumberWidth + MoveCountWidth + CaptionWidth + TimeWidth;

// A face is at least so wide, and at most, for its height: the first is as far as digits can be narrowed.
constexpr double LeastFaceShape = 1.9, GreatestFaceShape = 4.8;

// The widths of a panel's insides.
struct Insides {
    int Frame, Left, Width, Right;
};

// The texts below the keys. Returns their top.
int LayOutTexts(PanelLayout& layout, const Insides& in, int bottom, int type, bool inTwoRows) {
    const int row = Round(RowHeight * type), number = Round(MoveNumberWidth * type);
    const int count = Round(MoveCountWidth * type), field = Round(TimeWidth * type);
    const int bonusTop = bottom - row, periodTop = bonusTop - row, top = inTwoRows ? periodTop : periodTop - row;
    layout.MoveNumber = {in.Left, top, number, row};
    layout.MoveCount = {layout.MoveNumber.Right(), top, count, row};
    const int captionLeft = inTwoRows ? layout.MoveCount.Right() : in.Left;
    const int fieldLeft = in.Right - field;
    layout.Period = {captionLeft, periodTop, fieldLeft - captionLeft, row};
    layout.PeriodTime = {fieldLeft, periodTop, field, row};
    layout.Bonus = {captionLeft, bonusTop, fieldLeft - captionLeft, row};
    const int stageLeft = inTwoRows ? in.Left : layout.MoveCount.Right();
    layout.Stage = {stageLeft, inTwoRows ? bonusTop : top, (inTwoRows ? captionLeft : in.Right) - stageLeft, row};
    layout.StageAtRight = !inTwoRows;
    layout.BonusTime = {fieldLeft, bonusTop, field, row};
    return top;
}

void LayOutKeys(PanelLayout& layout, const Insides& in, int top, int height, int gap) {
    const int pause = Round(in.Width * 0.27), hand = std::min(height, Round(in.Width * 0.16));
    layout.PauseButton = {in.Right - pause, top, pause, height};
    layout.Key = {in.Left, top, layout.PauseButton.Left - gap - in.Left, height};
    layout.Hand = {in.Left, top, hand, height};
    layout.ClockButton = {layout.Hand.Right(), top, layout.Key.Width - hand, height};
}

// The line of the name, with a mark that is `mark` high.
void LayOutHeader(PanelLayout& layout, const Insides& in, int top, int height, int mark, int gap) {
    const int width = Round(mark * 4.5);
    layout.Flag = {in.Left, top - gap / 2, height + gap, height + gap};
    layout.Mark = {in.Right - width, top + (height - mark) / 2, width, mark};
    const int sign = Round(mark * 0.62), word = Round(mark * 0.72);
    layout.Sign = {layout.Mark.Left + Round(mark * 0.35), layout.Mark.Top + (mark - sign) / 2, sign, sign};
    const int wordLeft = layout.Sign.Right() + Round(mark * 0.2);
    layout.Blink = {wordLeft, layout.Mark.Top + (mark - word) / 2, layout.Mark.Right() - Round(mark * 0.28) - wordLeft,
                    word};
    const int nameLeft = layout.Flag.Right() + gap;
    layout.Name = {nameLeft, top, layout.Mark.Left - 2 * gap - nameLeft, height};
}

PanelLayout LayOutPanel(const Box& panel, bool column, ClockLayout& all) {
    PanelLayout layout;
    layout.Panel = panel;
    layout.Frame = Round(panel.Width * 0.028);
    const int padding = Round(panel.Width * (column ? 0.014 : 0.028)), border = layout.Frame + padding;
    const Insides in{layout.Frame, panel.Left + border, panel.Width - 2 * border, panel.Right() - border};

    // Only a panel that is narrow for its height needs a row more for its texts.
    const bool inTwoRows = panel.Width * 10 >= panel.Height * 9;
    const double type =
        inTwoRows ? std::min(in.Width / RowWidth, panel.Height / 15.5) : std::min(in.Width / 20.0, panel.Height / 18.0);
    all.TextType = static_cast<int>(type);

    const int gap = std::max(Round(panel.Height * 0.022), 2);
    const int header = Round(std::min(std::max(panel.Height * 0.115, all.TextType * 1.9), panel.Width * 0.105));
    const int bottom = panel.Bottom() - layout.Frame - std::max(padding / 2, 1);
    const int headerTop = panel.Top + layout.Frame + std::max(padding * 2 / 3, 2);
    const int faceTop = headerTop + header + gap;
    const int textTop = LayOutTexts(layout, in, bottom, all.TextType, inTwoRows);

    // Digits cannot fill a face that is higher than this: the keys and the space between take the rest.
    int key = Round(panel.Height * 0.17);
    const int room = textTop - gap / 2 - faceTop - gap - key;
    const int face = std::min(room, Round(in.Width / LeastFaceShape)), spare = room - face;
    key += Round(spare * 0.6);
    const int space = (spare - Round(spare * 0.6)) / 3;

    // Small marks take all the height, so that their word is readable.
    const int mark = Round(std::clamp(all.TextType * 1.8, header * 0.8, header * 0.95));
    LayOutHeader(layout, in, headerTop + space / 2, header, mark, std::max(gap * 2 / 3, 4));
    all.BlinkType = Round(mark * 0.56);
    const int faceWidth = std::min(in.Width, Round(face * GreatestFaceShape));
    layout.Face = {in.Left + (in.Width - faceWidth) / 2, faceTop + space, faceWidth, face};
    LayOutKeys(layout, in, layout.Face.Bottom() + gap + space, key, gap);

    all.NameType = Round(header * 0.62);
    all.ButtonType = Round(key * 0.5);
    all.PauseType = Round(std::min(layout.PauseButton.Width / 5.9, key * 0.36));
    all.CardCorner = layout.Frame;
    all.FaceCorner = Round(panel.Width * 0.015);
    all.KeyCorner = Round(panel.Width * 0.018);
    return layout;
}

}  // namespace

ClockLayout LayOutClock(int width, int height) {
    const bool column = IsColumn(width, height);
    const int margin = std::max(Round(column ? width * 0.0133 : height * 0.018), 1);
    const int panelWidth = column ? width - 2 * margin : (width - 3 * margin) / 2;
    const int panelHeight = column ? (height - 3 * margin) / 2 : height - 2 * margin;

    ClockLayout layout;
    for (Side side : BothSides) {
        const int left = margin + (column ? 0 : side * (panelWidth + margin));
        const int top = margin + (column ? side * (panelHeight + margin) : 0);
        layout.Panels[side] = LayOutPanel({left, top, panelWidth, panelHeight}, column, layout);
    }
    return layout;
}

DigitSize FitDigits(int faceWidth, int faceHeight, double widthPerHeight) {
    const double width = faceWidth * FaceDigits::Width;
    // Narrowed as far as the height of the face asks for; where that is too low for the width, the digits grow.
    const double highest = width / (widthPerHeight * FaceDigits::Narrowest), own = width / widthPerHeight;
    const double height =
        std::min({highest, std::max(faceHeight * FaceDigits::Height, own), faceHeight * FaceDigits::GreatestHeight});
    return {height, std::min(width, height * widthPerHeight)};
}
