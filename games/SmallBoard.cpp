#include "games/SmallBoard.h"

#include "platform/Ansi.h"
#include "platform/Colours.h"
#include "platform/Look.h"
#include "platform/Painting.h"
#include "recorder/BoardSquare.h"
#include "recorder/SpokenBoard.h"

#include <algorithm>

namespace {

constexpr Colour Edge{ColourOf(Look::CardEdge), COLOR_WINDOWTEXT}, Ground{ColourOf(Look::Card), COLOR_BTNFACE};

constexpr int IconSize = 48;  // the largest image of the pieces' icons

}  // namespace

void SmallBoard::Show(const Board& shown, bool turned) {
    for (const Side side : BothSides) {
        for (int kind = 1; kind <= 6; ++kind) {
            const Piece piece = PieceOf(side, static_cast<PieceKind>(kind));
            Picture& picture = pieces[static_cast<size_t>(piece)];
            if (picture.Empty()) picture = Picture::OfIcon(FromAnsi(PieceCode(piece)).c_str(), IconSize);
        }
    }
    position = shown;
    blackBelow = turned;
}

void SmallBoard::Draw(const DRAWITEMSTRUCT& item) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    const int room = static_cast<int>(std::min(area.right, area.bottom)), size = (room - 2) / 8;
    // Eight squares may leave a little of the room over.
    const int whole = 8 * size + 2, origin = (room - whole) / 2;
    Fill(buffer.Dc(), area, Ground);
    Fill(buffer.Dc(), {origin, origin, origin + whole, origin + whole}, Edge);
    for (int index = 0; index < SquareIndexes; ++index) {
        if (!IsSquare(index)) continue;
        const Square square{index};
        const int column = blackBelow ? 8 - FileOf(square) : FileOf(square) - 1;
        const int row = blackBelow ? RankOf(square) - 1 : 8 - RankOf(square);
        const int left = origin + 1 + column * size, top = origin + 1 + row * size;
        DrawSquare(buffer.Dc(), {left, top, left + size, top + size}, IsLight(square));
        pieces[static_cast<size_t>(position.At(square))].Draw(buffer.Dc(), left, top, size);
    }
}

std::wstring SmallBoard::Spoken(const Texts& texts) const {
    std::wstring text = texts(TextId::ChessBoard);
    for (int rank = 8; rank >= 1; --rank) {
        for (int file = 1; file <= 8; ++file) {
            const Square square = SquareAt(file, rank);
            const Piece piece = position.At(square);
            if (piece == Piece::Empty) continue;
            text += L", ";
            text += static_cast<wchar_t>(FileLetter(square));
            text += static_cast<wchar_t>(RankDigit(square));
            text += L" " + SpokenPiece(texts, piece);
        }
    }
    return text;
}
