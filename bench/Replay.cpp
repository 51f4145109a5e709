#include "bench/Replay.h"

#include "recorder/Notation.h"

namespace {

// Takes the next word from a line; empty at the end of the line.
std::string_view TakeWord(std::string_view& line) {
    size_t start = 0;
    while (start < line.size() && (line[start] == ' ' || line[start] == '\r')) ++start;
    size_t end = start;
    while (end < line.size() && line[end] != ' ' && line[end] != '\r') ++end;
    const std::string_view word = line.substr(start, end - start);
    line.remove_prefix(end);
    return word;
}

PieceKind ReadPromotion(char letter) {
    switch (letter) {
        case 'q': return PieceKind::Queen;
        case 'r': return PieceKind::Rook;
        case 'b': return PieceKind::Bishop;
        case 'n': return PieceKind::Knight;
        default: return PieceKind::None;
    }
}

bool ReplayMove(Board& board, std::string_view word, std::string& written) {
    if (word.size() != 4 && word.size() != 5) return false;
    const Square origin = SquareNamed(word.substr(0, 2)), destination = SquareNamed(word.substr(2, 2));
    if (origin == NoSquare || destination == NoSquare || origin == destination) return false;
    if (board.At(origin) == Piece::Empty) return false;

    const Move move = board.Classify(origin, destination);
    written += WriteMove(board, move).View();
    board.Carry(move);
    if (word.size() == 5) {
        const PieceKind kind = ReadPromotion(word[4]);
        if (kind == PieceKind::None || !Board::ReachesLastRank(move.Moving, destination)) return false;
        board.Put(destination, PieceOf(SideOf(move.Moving), kind));
        written += '=';
        written += PieceLetter(kind);
    }
    written += ' ';
    return true;
}

}  // namespace

bool ReplayLine(std::string_view line, std::string& written) {
    const size_t before = written.size();
    Board board;
    for (std::string_view word = TakeWord(line); !word.empty(); word = TakeWord(line)) {
        if (IsResult(word) || word == "*") {
            written += word;
            if (TakeWord(line).empty()) return true;
            break;
        }
        if (!ReplayMove(board, word, written)) break;
    }
    written.resize(before);
    return false;
}
