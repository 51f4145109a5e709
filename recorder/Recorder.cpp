#include "recorder/Recorder.h"

#include <algorithm>

namespace {

constexpr std::string_view WinOf(Side side) { return side == White ? "1-0" : "0-1"; }

// A move of the movetext with the blank after it. A move of Black's has a number only if White's move is missing.
std::string MoveOfText(const MoveEntry& entry, Side side, bool numbered) {
    std::string text;
    if (numbered) text = std::to_string(entry.Number) + (side == White ? ". " : "... ");
    return text + entry.Text + " ";
}

}  // namespace

void Recorder::Reset() { *this = Recorder(); }

void Recorder::Restore(const Board& position, const MoveLists& moves, Side toMove,
                       const std::optional<std::string>& text) {
    Reset();
    board = position;
    board.ShowMissingAsCaptured();
    lists = moves;
    sideToMove = toMove;
    if (text)
        runningText = *text;
    else
        RebuildText();
    AwaitPromotionAgain();
}

// A pawn that the last move left on its last rank has not been promoted yet.
void Recorder::AwaitPromotionAgain() {
    const Side mover = Other(sideToMove);
    const auto last = lists[mover].LastWritten();
    if (!last) return;
    const std::string_view text = lists[mover].Entries()[*last].Text;
    for (size_t at = 0; at < text.size(); ++at) {
        const Square square = SquareNamed(text.substr(at, 2));
        if (Board::ReachesLastRank(board.At(square), square)) promotion = Promotion{square, ChosenLine{mover, *last}};
    }
}

ChosenLine Recorder::Play(Square origin, Square destination) {
    const Move move = board.Classify(origin, destination);
    const MoveText text = WriteMove(board, move);
    board.Carry(move);

    TakeResultAway();
    const size_t before = HalfMovesWritten();
    const ChosenLine line{sideToMove, lists[sideToMove].Write(text.View())};
    runningText += pendingText;
    pendingText = MoveOfText(lists[line.List].Entries()[line.Index], line.List, line.List == White);
    // After a deletion, or in a line that is not the last in the order of play, the move is not simply appended.
    if (line.Index * 2 + static_cast<size_t>(line.List) != before) RebuildText();
    promotion.reset();
    if (Board::ReachesLastRank(move.Moving, destination)) promotion = Promotion{destination, line};
    sideToMove = Other(sideToMove);
    lastMove = move;
    lastMoveLongForm = WriteLongForm(move).View();
    return line;
}

void Recorder::Promote(PieceKind kind) {
    if (!promotion) return;
    board.Put(promotion->On, PieceOf(SideOf(board.At(promotion->On)), kind));
    if (!promotion->Line) return;
    const auto [side, index] = *promotion->Line;
    const MoveEntry& entry = lists[side].Entries()[index];
    // An edit may have turned the entry into something else.
    if (!entry.IsWritten()) return;
    std::string text = entry.Text;
    SetPromotion(text, kind);
    lists[side].SetText(index, text);
    RebuildText();
}

ChosenLines Recorder::Declare(Declaration declaration, const std::array<int32_t, 2>& clockCounts) {
    ChosenLines added;
    const Side mover = Other(sideToMove);
    const auto last = lists[mover].LastWritten();
    switch (declaration) {
        case Declaration::Check:
            if (last) SetMark(*last, mover, "+");
            break;
        case Declaration::Mate:
            if (!last) break;
            SetMark(*last, mover, "#");
            AddResult(mover, WinOf(mover));
            break;
        case Declaration::Resign:
            added = TopUpMoveLists(clockCounts);
            AddResult(sideToMove, WinOf(mover));
            break;
        case Declaration::Draw:
            added = TopUpMoveLists(clockCounts);
            AddResult(sideToMove, "1/2-1/2");
            break;
    }
    return added;
}

void Recorder::SetMark(size_t index, Side side, std::string_view mark) {
    std::string text = lists[side].Entries()[index].Text;
    if (text.ends_with('#')) return;
    if (text.ends_with('+')) {
        if (mark == "+") return;
        // The check turns out to be mate.
        text.pop_back();
    }
    lists[side].SetText(index, text + std::string(mark));
    RebuildText();
}

void Recorder::FlagFell(Side side) { AddResult(sideToMove, WinOf(Other(side))); }

void Recorder::AddResult(Side list, std::string_view result) {
    if (HasResult()) return;
    lists[list].AddResult(result);
    RebuildText();
}

void Recorder::TakeResultAway() {
    for (MoveList& list : lists) {
        if (list.EndsWithResult()) list.RemoveLast();
    }
    RemoveResultMark(runningText);
}

ChosenLines Recorder::TopUpMoveLists(const std::array<int32_t, 2>& clockCounts) {
    ChosenLines added;
    for (Side side : {Black, White}) {
        size_t wanted = static_cast<size_t>(std::max(clockCounts[side], 0));
        if (side == White) wanted = std::max(wanted, lists[Black].Moves());
        while (lists[side].Moves() < wanted) added[side] = lists[side].AddWaiting();
    }
    return added;
}

std::optional<ChosenLine> Recorder::AddLineForPress(bool firstPress, Side running) {
    if (HasResult()) return std::nullopt;
    if (firstPress) {
        if (!lists[White].Empty()) return std::nullopt;
        return ChosenLine{White, lists[White].AddWaiting()};
    }
    if (!lists[Other(running)].EndsWithWritten() || lists[running].EndsWithWaiting()) return std::nullopt;
    return ChosenLine{running, lists[running].AddWaiting()};
}

void Recorder::Edit(Side side, size_t index, std::string_view typed) {
    MoveList& list = lists[side];
    if (index >= list.Entries().size()) return;
    const std::string text = NormaliseMove(typed);
    const MoveEntry before = list.Entries()[index];
    const bool last = index + 1 == list.Entries().size();
    if (IsResult(text) && last && (before.IsResult() || !HasResult())) {
        list.SetResult(index, text);
    } else {
        list.SetText(index, text);
        if (before.IsWaiting() && text != MissingMove && side == sideToMove) sideToMove = Other(sideToMove);
    }
    RebuildText();
}

void Recorder::DeleteLast(Side side) {
    MoveList& list = lists[side];
    if (list.Empty()) return;
    list.RemoveLast();
    if (promotion && promotion->Line && promotion->Line->List == side &&
        promotion->Line->Index >= list.Entries().size())
        promotion->Line.reset();
    RebuildText();
}

void Recorder::PutBack(Piece piece, int slot, Square square) {
    board.HideCaptured(piece, slot);
    board.Put(square, piece);
}

// Counts in the order of play, up to the last written move.
size_t Recorder::HalfMovesWritten() const {
    size_t end = 0;
    for (Side side : BothSides) {
        if (const auto last = lists[side].LastWritten()) end = std::max(end, *last * 2 + static_cast<size_t>(side) + 1);
    }
    return end;
}

void Recorder::RebuildText() {
    runningText.clear();
    pendingText.clear();
    // Waiting lines after the last move are not part of the game yet.
    const size_t end = HalfMovesWritten();
    for (size_t half = 0; half < end; ++half) {
        const Side side = half % 2 == 0 ? White : Black;
        const size_t row = half / 2;
        if (row >= lists[side].Moves()) continue;
        const bool numbered = side == White || row >= lists[White].Moves();
        runningText += pendingText;
        pendingText = MoveOfText(lists[side].Entries()[row], side, numbered);
    }
    for (const MoveList& list : lists) {
        if (!list.EndsWithResult()) continue;
        runningText += pendingText + list.Entries().back().Text;
        pendingText.clear();
        return;
    }
}
