#include "recorder/Notation.h"

#include "base/AsciiCase.h"
#include "recorder/Directions.h"

namespace {

bool AnotherKnight(const Board& before, const Move& move) {
    const int file = FileOf(move.Destination), rank = RankOf(move.Destination);
    for (size_t i = 0; i < KnightJumps.size(); ++i) {
        const auto [files, ranks] = KnightJumps[i];
        if (!OnBoard(file + files, rank + ranks)) continue;
        // The rank that is searched for the first jump is the destination's file number less one. This is deliberate:
        // earlier scores were written like this.
        const Square square = SquareAt(file + files, i == 0 ? file - 1 : rank + ranks);
        if (square != move.Origin && before.At(square) == move.Moving) return true;
    }
    return false;
}

bool AnotherSlider(const Board& before, const Move& move) {
    for (const auto& [files, ranks] : StepsOf(KindOf(move.Moving))) {
        int file = FileOf(move.Destination) + files, rank = RankOf(move.Destination) + ranks;
        for (; OnBoard(file, rank); file += files, rank += ranks) {
            const Square square = SquareAt(file, rank);
            if (before.At(square) == Piece::Empty) continue;
            if (square != move.Origin && before.At(square) == move.Moving) return true;
            break;
        }
    }
    return false;
}

std::string_view CastlingText(MoveKind kind) { return kind == MoveKind::CastlingKingSide ? "O-O" : "O-O-O"; }

bool IsCastling(MoveKind kind) { return kind == MoveKind::CastlingKingSide || kind == MoveKind::CastlingQueenSide; }

bool IsFile(char letter) { return letter >= 'a' && letter <= 'h'; }

std::string_view Trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// "b" can mean a file or a Bishop; the characters around it tell which.
char FileOrBishop(std::string_view text, size_t at) {
    if (at > 0) return text[at - 1] == '=' ? 'B' : 'b';
    const char next = text.size() > 1 ? AsciiLower(text[1]) : '\0';
    if (next >= '1' && next <= '8') return 'b';
    if (IsFile(next)) return 'B';
    return text[at];
}

}  // namespace

MoveText WriteMove(const Board& before, const Move& move) {
    MoveText text;
    if (IsCastling(move.Kind)) {
        text.Append(CastlingText(move.Kind));
        return text;
    }
    const PieceKind kind = KindOf(move.Moving);
    const bool captures = move.Kind != MoveKind::Ordinary;
    if (kind == PieceKind::Pawn) {
        if (captures) text.Append(FileLetter(move.Origin));
    } else {
        text.Append(PieceLetter(kind));
        if (const char file = Disambiguation(before, move)) text.Append(file);
    }
    if (captures) text.Append('x');
    text.Append(move.Destination);
    if (move.Kind == MoveKind::EnPassant) text.Append("ep");
    return text;
}

MoveText WriteLongForm(const Move& move) {
    MoveText text;
    if (IsCastling(move.Kind)) {
        text.Append(CastlingText(move.Kind));
        return text;
    }
    text.Append(move.Origin);
    text.Append(move.Kind == MoveKind::Ordinary ? '-' : 'x');
    text.Append(move.Destination);
    if (move.Kind == MoveKind::EnPassant) text.Append("ep");
    return text;
}

char Disambiguation(const Board& before, const Move& move) {
    const bool another = [&] {
        switch (KindOf(move.Moving)) {
            case PieceKind::Knight: return AnotherKnight(before, move);
            case PieceKind::Bishop:
            case PieceKind::Rook:
            case PieceKind::Queen: return AnotherSlider(before, move);
            default: return false;
        }
    }();
    return another ? FileLetter(move.Origin) : '\0';
}

void SetPromotion(std::string& moveText, PieceKind kind) {
    const size_t sign = moveText.find('=');
    if (sign == std::string::npos) {
        // Marks that were declared before the choice stay at the end.
        const size_t marks = moveText.find_last_not_of("+#?!") + 1;
        moveText.insert(marks, {'=', PieceLetter(kind)});
    } else if (sign + 1 < moveText.size()) {
        moveText[sign + 1] = PieceLetter(kind);
    } else {
        moveText.push_back(PieceLetter(kind));
    }
}

bool IsResult(std::string_view text) { return text == "1-0" || text == "0-1" || text == "1/2-1/2"; }

void RemoveResultMark(std::string& gameText) {
    for (const std::string_view mark : {"*", "1-0", "0-1", "1/2-1/2"}) {
        if (gameText.ends_with(mark)) {
            gameText.resize(gameText.size() - mark.size());
            return;
        }
    }
}

std::string NormaliseMove(std::string_view typed) {
    const std::string_view text = Trimmed(typed);
    if (text.empty()) return std::string(MissingMove);

    std::string castling;
    for (char character : text) castling += character == '0' || character == 'o' ? 'O' : character;
    for (const std::string_view form : {"O-O", "O-O+", "O-O-O", "O-O-O+"}) {
        if (castling == form) return castling;
    }

    std::string move;
    for (size_t at = 0; at < text.size(); ++at) {
        const char lower = AsciiLower(text[at]);
        if (lower == 'b')
            move += FileOrBishop(text, at);
        else if (lower == 'q' || lower == 'r' || lower == 'n')
            move += AsciiUpper(lower);
        else if (IsFile(lower))
            move += lower;
        else
            move += text[at];
    }
    return move;
}
