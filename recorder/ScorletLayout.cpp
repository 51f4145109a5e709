#include "recorder/ScorletLayout.h"

#include "recorder/Board.h"

#include <algorithm>

namespace {

// Sizes of the window at 96 dpi, for the lists beside the board and below it: from the one on the lengths grow, and
// under the other they shrink.
struct Size {
    int Width, Height;
    // How many of it go into a window, in 96ths.
    constexpr int In(int width, int height) const { return std::min(width * 96 / Width, height * 96 / Height); }
};
constexpr Size BesideGrows{ScorletWidth, ScorletHeight}, BelowGrows{400, 720};
constexpr Size BesideShrinks{560, 460}, BelowShrinks{360, 620};

constexpr int ScaleOf(int width, int height, int dpi, const Size& grows, const Size& shrinks) {
    const int grown = std::max(dpi, grows.In(width, height));
    return std::min(grown, std::max(shrinks.In(width, height), dpi * 3 / 4));
}

// Lays out a window of one of the two forms.
class Arrangement {
  public:
    Arrangement(int width, int height, int dpi, bool below)
        : width(width),
          height(height),
          below(below),
          dpi(dpi),
          scale(below ? ScaleOf(width, height, dpi, BelowGrows, BelowShrinks)
                      : ScaleOf(width, height, dpi, BesideGrows, BesideShrinks)) {
        layout.Edge = Unit(18);
        layout.Type = Unit(13);
        layout.CoordinateType = Unit(12);
        PlaceBoard();
        PlaceLists();
    }

    const ScorletLayout& Layout() const { return layout; }

  private:
    int Unit(int length) const { return (length * scale + 48) / 96; }
    // Shrinks twice as fast, to half.
    int Yielding(int length) const { return (length * std::min(scale, 2 * scale - dpi) + 48) / 96; }

    // What the lists and all that belongs to them need at least.
    int ColumnWidth() const { return std::max(Unit(216), width * 30 / 100); }
    int ListsHeight() const { return field + whoseMove + 3 * gap + leastSheet + line + picture; }

    void PlaceBoard() {
        const int roomWidth = width - 2 * margin - layout.Edge - (below ? 0 : ColumnWidth() + margin);
        const int roomHeight = height - 3 * margin - layout.Edge - line - (below ? ListsHeight() + margin : 0);
        // Two rows of captured pieces, each of half a square, take the height of a ninth rank.
        layout.CellSize = std::max(std::min(roomWidth / 8, (roomHeight - 1) / 9), 1);
        const int boardSize = 8 * layout.CellSize + layout.Edge;
        const int left = below ? (width - boardSize) / 2 : margin;
        layout.Board = {left, margin, boardSize, boardSize};
        // What is wrong with a move must be readable over the smallest board too.
        const int typedWidth = std::min(std::max(8 * layout.CellSize, Unit(300)), width - 2 * margin);
        const int typedLeft = std::min(left + layout.Edge, width - margin - typedWidth);
        layout.TypedMove = {typedLeft, margin, typedWidth / 2, field};
        layout.TypedReason = {typedLeft, layout.TypedMove.Bottom(), typedWidth, Unit(32)};
        // As wide as the squares above them.
        const int trayLeft = left + layout.Edge, trayWidth = 8 * layout.CellSize;
        layout.CapturedTitle = {trayLeft, layout.Board.Bottom() + margin, trayWidth, line};
        layout.Slot = std::clamp((roomHeight - 8 * layout.CellSize) / 2, 1, trayWidth / SlotsPerSide);
        for (Side side : BothSides)
            layout.CapturedRows[side] = {trayLeft, layout.CapturedTitle.Bottom() + side * layout.Slot, trayWidth,
                                         layout.Slot};
    }

    void PlaceLists() {
        const int left = below ? margin : layout.Board.Right() + margin, right = width - margin, wide = right - left;
        const int top = below ? layout.CapturedRows[Black].Bottom() + margin : margin, label = Unit(70);
        layout.SayLabel = {left, top, label, field};
        layout.Say = {left + label + gap, top, wide - label - gap, field};
        layout.WhoseMove = {left, layout.Say.Bottom() + gap, wide, whoseMove};

        const int okWidth = Unit(60), column = (wide - margin) / 2;
        // Both columns end on one line where that leaves little room empty.
        const int trayBottom = layout.CapturedRows[Black].Bottom();
        const bool aligned = !below && height - margin - trayBottom < 2 * field;
        const int promotionLeft = below ? right - column : left;
        const int promotionTop = (aligned ? trayBottom : height - margin) - picture;
        for (int i = 0; i < 4; ++i)
            layout.Promotion[static_cast<size_t>(i)] = {promotionLeft + i * (picture + gap), promotionTop, picture,
                                                        picture};
        layout.PromotionTitle = {promotionLeft, promotionTop - line, right - promotionLeft, line};
        const int editTop = below ? height - margin - field : layout.PromotionTitle.Top - gap - field;
        const int editWidth = below ? column : wide;
        layout.Edit = {left, editTop, editWidth - okWidth - gap, field};
        layout.EditOk = {layout.Edit.Right() + gap, editTop, okWidth, field};

        const int sheetTop = layout.WhoseMove.Bottom() + gap;
        int sheetBottom = std::min(layout.Edit.Top, layout.PromotionTitle.Top) - gap;
        if (aligned) sheetBottom = std::min(sheetBottom, layout.Board.Bottom());
        layout.Sheet = {left, sheetTop, wide, sheetBottom - sheetTop};
        const int edge = Unit(1), listTop = sheetTop + edge + line, half = (wide - 3 * edge) / 2;
        for (Side side : BothSides) {
            const int listLeft = side == White ? left + edge : right - edge - half;
            layout.ListHeads[side] = {listLeft + gap, sheetTop + edge, half - gap, line};
            layout.Lists[side] = {listLeft, listTop, half, layout.Sheet.Bottom() - edge - listTop};
        }
    }

    const int width, height;
    const bool below;
    const int dpi, scale;  // dots per inch: of the screen, and those that the lengths are drawn for
    const int margin = Unit(8), gap = Unit(4), line = Unit(18), field = Unit(24), whoseMove = Unit(below ? 34 : 46);
    const int picture = Yielding(36), leastSheet = line + Yielding(80);
    ScorletLayout layout{};
};

}  // namespace

Square ScorletLayout::SquareAt(int x, int y) const {
    const int left = x - Board.Left - Edge, top = y - Board.Top;
    if (left < 0 || top < 0) return NoSquare;
    const int column = left / CellSize, row = top / CellSize;
    const int file = Turned ? 8 - column : column + 1, rank = Turned ? row + 1 : 8 - row;
    return OnBoard(file, rank) ? ::SquareAt(file, rank) : NoSquare;
}

ScorletLayout LayOutScorlet(int width, int height, int dpi, bool turned) {
    const ScorletLayout beside = Arrangement(width, height, dpi, false).Layout();
    const ScorletLayout below = Arrangement(width, height, dpi, true).Layout();
    ScorletLayout layout = 9 * below.CellSize > 10 * beside.CellSize ? below : beside;
    layout.Turned = turned;
    return layout;
}
