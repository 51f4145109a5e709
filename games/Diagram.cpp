#include "games/Diagram.h"

namespace {

constexpr std::string_view EmptySquare = "--", Gap = "  ";

}  // namespace

std::string EncodeDiagram(const Board& board) {
    std::string text;
    text.reserve(DiagramBytes);
    for (int rank = 8; rank >= 1; --rank) {
        for (int file = 1; file <= 8; ++file) {
            const Piece piece = board.At(SquareAt(file, rank));
            text += piece == Piece::Empty ? EmptySquare : PieceCode(piece);
            text += Gap;
        }
        text += LineEnd;
    }
    return text;
}

std::optional<GameFileError> DecodeDiagram(std::string_view text, Board& board) {
    Board read;
    const auto take = [&](std::string_view wanted) {
        if (!text.starts_with(wanted)) return false;
        text.remove_prefix(wanted.size());
        return true;
    };
    for (int rank = 8; rank >= 1; --rank) {
        const int line = 9 - rank;
        for (int file = 1; file <= 8; ++file) {
            const int column = 4 * file - 3;
            if (text.size() < 2) return GameFileError{DiagramFile, Damage::BrokenLine, line, column};
            const std::string_view code = text.substr(0, 2);
            const auto piece = code == EmptySquare ? Piece::Empty : PieceOfCode(code);
            if (!piece) return GameFileError{DiagramFile, Damage::UnknownPiece, line, column};
            read.Put(SquareAt(file, rank), *piece);
            text.remove_prefix(2);
            if (!take(Gap)) return GameFileError{DiagramFile, Damage::BrokenLine, line, column + 2};
        }
        const bool lastEnd = rank == 1 && text.empty();
        if (!take(LineEnd) && !lastEnd) return GameFileError{DiagramFile, Damage::BrokenLine, line, 33};
    }
    if (!text.empty()) return GameFileError{DiagramFile, Damage::BrokenLine, 9, 1};
    board = read;
    return std::nullopt;
}
