#include "recorder/Recorder.h"

#include <algorithm>

namespace {

constexpr std::string_view WinOf(Side side) { return side == White ? "1-0" : "0-1"; }

// The place of a line in the order of play, from 0.
constexpr size_t HalfMoveOf(const ChosenLine& line) { return line.Index * 2 + static_cast<size_t>(line.List); }

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
    RebuildText();
    // A text of ours is made anew all the same, so that its last move is pending as it was.
    if (text && *text != runningText + pendingText + (HasResult() ? "" : "*")) {
        runningText = *text;
        pendingText.clear();
    }
    FindLastMove();
}

// The last move, of which nothing but its entry is known, may have left a pawn on its last rank, or a piece that was
// chosen for it and can be chosen again.
void Recorder::FindLastMove() {
    const Side mover = Other(sideToMove);
    const auto last = lists[mover].LastWritten();
    if (!last) return;
    lastLine = ChosenLine{mover, *last};
    const std::string_view text = lists[mover].Entries()[*last].Text;
    for (size_t at = 0; at < text.size(); ++at) {
        const Square square = SquareNamed(text.substr(at, 2));
        Piece piece = board.At(square);
        const bool chosen = piece != Piece::Empty && text.substr(at + 2).starts_with('=');
        if (chosen) piece = PieceOf(SideOf(piece), PieceKind::Pawn);
        if (Board::ReachesLastRank(piece, square)) promotion = Promotion{square, lastLine};
    }
}

ChosenLine Recorder::Play(Square origin, Square destination) {
    const Move move = board.Classify(origin, destination);
    const MoveText text = WriteMove(board, move);
    board.Carry(move);

    if (!resultKept && !MoveAwaited(White) && !MoveAwaited(Black)) TakeResultAway();
    const size_t before = HalfMovesWritten();
    const ChosenLine line{sideToMove, LineForMove(sideToMove)};
    lists[line.List].Write(line.Index, text.View());
    runningText += pendingText;
    pendingText = MoveOfText(lists[line.List].Entries()[line.Index], line.List, line.List == White);
    // Before a result, after a deletion, or in a line that is not the last in the order of play, the move is not simply
    // appended.
    if (HasResult() || HalfMoveOf(line) != before) RebuildText();
    promotion.reset();
    if (Board::ReachesLastRank(move.Moving, destination)) promotion = Promotion{destination, line};
    otherColourMoved = SideOf(move.Moving) != line.List;
    sideToMove = Other(sideToMove);
    lastMove = move;
    lastLine = line;
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

void Recorder::FlagFell(Side side) {
    AddResult(sideToMove, WinOf(Other(side)));
    KeepResult();
}

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
        added[side] = AddLines(side, wanted);
    }
    return added;
}

// Waiting lines, until the list has as many as wanted. Returns the last one.
std::optional<size_t> Recorder::AddLines(Side side, size_t wanted) {
    std::optional<size_t> added;
    const size_t first = lists[side].Moves();
    while (lists[side].Moves() < wanted) added = lists[side].AddWaiting();
    if (added) TakeIntoText({side, first});
    return added;
}

ClockAdditions ClockAdditions::With(const ClockAdditions& more) const {
    return {.Lines = {std::max(Lines[White], more.Lines[White]), std::max(Lines[Black], more.Lines[Black])},
            .Fallen = more.Fallen ? more.Fallen : Fallen};
}

void Recorder::Take(const ClockAdditions& added) {
    for (Side side : BothSides) AddLines(side, added.Lines[side]);
    if (added.Fallen) FlagFell(*added.Fallen);
}

ChosenLines Recorder::GoOn(const std::array<int32_t, 2>& clockCounts, Side running) {
    const ChosenLines added = TopUpMoveLists(clockCounts);
    for (Side side : BothSides) passed[side] = static_cast<size_t>(clockCounts[side] - (side == running ? 1 : 0));
    sideToMove = running;
    otherColourMoved = false;
    return added;
}

std::optional<ChosenLine> Recorder::AddLineForPress(bool firstPress, Side running) {
    if (HasResult()) return std::nullopt;
    if (firstPress) {
        if (!lists[White].Empty()) return std::nullopt;
        return ChosenLine{White, lists[White].AddWaiting()};
    }
    if (!lists[Other(running)].EndsWithWritten() || MoveAwaited(running)) return std::nullopt;
    const ChosenLine line{running, lists[running].AddWaiting()};
    TakeIntoText(line);
    return line;
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
    const ChosenLine deleted{side, list.Entries().size()};
    if (promotion && promotion->Line == deleted) promotion->Line.reset();
    if (lastLine == deleted) lastLine.reset();
    RebuildText();
}

void Recorder::PutBack(Piece piece, int slot, Square square) {
    board.HideCaptured(piece, slot);
    board.Put(square, piece);
}

// The first of the waiting lines at the end of a list whose reply is not written and that GoOn has not passed over;
// where there is none, a new line.
size_t Recorder::LineForMove(Side side) const {
    const MoveList &list = lists[side], &replies = lists[Other(side)];
    const auto last = list.LastWritten();
    size_t index = last ? *last + 1 : 0;
    const auto replied = [&] {
        const size_t reply = index + static_cast<size_t>(side);
        return reply < replies.Moves() && replies.Entries()[reply].IsWritten();
    };
    while (index < list.Moves() && replied()) ++index;
    return std::min(std::max(index, passed[side]), list.Moves());
}

// Counts in the order of play, up to the last written move.
size_t Recorder::HalfMovesWritten() const {
    size_t end = 0;
    for (Side side : BothSides) {
        if (const auto last = lists[side].LastWritten()) end = std::max(end, HalfMoveOf({side, *last}) + 1);
    }
    return end;
}

// A line that is added before the last move belongs to the text; after it, it does not yet.
void Recorder::TakeIntoText(const ChosenLine& added) {
    if (HalfMoveOf(added) < HalfMovesWritten()) RebuildText();
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
