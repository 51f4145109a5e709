#include "recorder/SpokenBoard.h"

std::wstring SpokenPiece(const Texts& texts, Piece piece) {
    return texts(RowAfter(TextId::EmptySquare, static_cast<int32_t>(piece)));
}

std::wstring SpokenSquare(const Texts& texts, const BoardInput& input, Square square) {
    std::wstring text{static_cast<wchar_t>(FileLetter(square)), static_cast<wchar_t>(RankDigit(square))};
    text += L", " + SpokenPiece(texts, input.Shown().At(square));
    if (input.Origin() == square) text += L", " + texts(TextId::PickedPiece);
    if (input.OfLastMove(square)) text += L", " + texts(TextId::LastMove);
    return text;
}

std::wstring SpokenCaptured(const Texts& texts, const BoardInput& input, Piece piece, int slot) {
    const std::wstring name = SpokenPiece(texts, piece);
    return input.IsPicked(piece, slot) ? name + L", " + texts(TextId::PickedPiece) : name;
}

std::wstring SpokenBoard(const Texts& texts, const BoardInput& input) {
    std::wstring text = texts(TextId::ChessBoard) + L", ";
    if (const auto& captured = input.Captured())
        text += SpokenCaptured(texts, input, captured->Captured, captured->Slot) + L", ";
    return text + SpokenSquare(texts, input, input.Cursor());
}
