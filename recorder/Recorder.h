#pragma once

#include "recorder/Board.h"
#include "recorder/MoveList.h"

#include <array>
#include <optional>
#include <string>

enum class Declaration { Check, Mate, Resign, Draw };

// The entry of a list that is to be shown as chosen after an operation.
struct ChosenLine {
    Side List;
    size_t Index;
    bool operator==(const ChosenLine&) const = default;
};

// The same for both lists, by side.
using ChosenLines = std::array<std::optional<size_t>, 2>;

// What presses and a fallen flag have added to a record.
struct ClockAdditions {
    std::array<size_t, 2> Lines{};  // how long presses have made the lists, by side
    std::optional<Side> Fallen;     // the side whose flag has fallen

    ClockAdditions With(const ClockAdditions& more) const;
};

// The Scorlet without its window: the board, the two move lists, the running text of the game and whose move it is.
class Recorder {
  public:
    bool operator==(const Recorder&) const = default;
    const Board& Position() const { return board; }
    const MoveList& List(Side side) const { return lists[side]; }
    const MoveLists& Lists() const { return lists; }
    Side SideToMove() const { return sideToMove; }
    // The move last carried out, so that it can be shown.
    const std::optional<Move>& LastMove() const { return lastMove; }
    // The line that it was written into, or the last one of a game that was restored; none once that line is deleted.
    const std::optional<ChosenLine>& LastLine() const { return lastLine; }
    // That move in long form, "e2-e4"; empty without one.
    const std::string& LastMoveLongForm() const { return lastMoveLongForm; }
    // Whether the piece of the last move was of the side that was not to move.
    bool OtherColourMoved() const { return otherColourMoved; }
    // The line of the side to move into which its next move goes.
    size_t NextLine() const { return LineForMove(sideToMove); }
    bool MovesWritten() const { return !lists[White].Empty() || !lists[Black].Empty(); }

    // The game's movetext without the last move, and that move, which promotions and marks can still change. A result
    // mark ends the running text, and then no move is pending.
    const std::string& RunningText() const { return runningText; }
    const std::string& PendingText() const { return pendingText; }

    bool HasResult() const { return lists[White].EndsWithResult() || lists[Black].EndsWithResult(); }

    // Back to the initial position, empty lists and White to move.
    void Reset();

    // Takes a game that was kept, from which play goes on. The captured pieces follow from the position, and the
    // running text from the lists if none was kept.
    void Restore(const Board& position, const MoveLists& moves, Side toMove, const std::optional<std::string>& text);

    // Carries out and writes the move between two squares, for the side to move whatever the piece's colour. The origin
    // must hold a piece. It goes into the first of the lines that wait for it, or into a new line. A result that has
    // been written is taken away, since play goes on; it stays while lines wait, and after KeepResult.
    ChosenLine Play(Square origin, Square destination);

    // Whether the last move brought a pawn to its last rank. True until the next move is entered.
    bool AwaitsPromotion() const { return promotion.has_value(); }
    // That pawn, or the piece that has been chosen for it; no value once the next move is entered.
    std::optional<Piece> Promoting() const { return promotion ? std::optional(board.At(promotion->On)) : std::nullopt; }
    // Where it is.
    std::optional<Square> PromotionSquare() const { return promotion ? std::optional(promotion->On) : std::nullopt; }
    // Makes the pawn that piece and writes so in its entry. The choice can be made again.
    void Promote(PieceKind kind);

    // What the players declare. `clockCounts` are the moves that the clock has counted: resignation and draw fill the
    // lists up to them. Returns the last line added to each list.
    ChosenLines Declare(Declaration declaration, const std::array<int32_t, 2>& clockCounts);

    // Writes the result when the flag of a side has fallen, and keeps it.
    void FlagFell(Side side);
    // The clock has ended the game: until the next Reset or Restore, moves that are still entered leave a result alone.
    void KeepResult() { resultKept = true; }

    // Adds waiting lines where a list is shorter than the clock's count, or White's list shorter than Black's. Returns
    // the last line added to each list.
    ChosenLines TopUpMoveLists(const std::array<int32_t, 2>& clockCounts);

    // Goes on with the move that the clock has come to: fills the lists up to its counts, and passes over the lines
    // that wait before the move of the side whose clock runs. Returns the last line added to each list.
    ChosenLines GoOn(const std::array<int32_t, 2>& clockCounts, Side running);

    // Adds the line for the next move after a press that has started a side's clock; no value if no line is due.
    std::optional<ChosenLine> AddLineForPress(bool firstPress, Side running);

    // Has what the clock added to another state of the game: waiting lines where a list is shorter, and the result of
    // the flag.
    void Take(const ClockAdditions& added);

    // Corrects a typed text and writes it into an entry. The position does not change: the moves after it
    // might no longer be possible.
    void Edit(Side side, size_t index, std::string_view typed);

    // Removes the last entry of a list, which must not be empty. Nothing else changes except the game's text.
    void DeleteLast(Side side);

    // Puts a captured piece back on an empty square and hides its slot again. No move is written.
    void PutBack(Piece piece, int slot, Square square);

  private:
    friend class RecordHistory;  // keeps lists and text of a state in parts

    struct Promotion {
        Square On;
        std::optional<ChosenLine> Line;  // none: the line has been deleted
        bool operator==(const Promotion&) const = default;
    };

    void FindLastMove();
    std::optional<size_t> AddLines(Side side, size_t wanted);
    void AddResult(Side list, std::string_view result);
    void TakeResultAway();
    size_t LineForMove(Side side) const;
    bool MoveAwaited(Side side) const { return LineForMove(side) < lists[side].Moves(); }
    void SetMark(size_t index, Side side, std::string_view mark);
    size_t HalfMovesWritten() const;
    void TakeIntoText(const ChosenLine& added);
    void RebuildText();

    Board board;
    MoveLists lists;
    Side sideToMove = White;
    std::string runningText;
    std::string pendingText;
    std::optional<Promotion> promotion;
    std::optional<Move> lastMove;
    std::optional<ChosenLine> lastLine;
    std::string lastMoveLongForm;
    bool otherColourMoved = false;
    std::array<size_t, 2> passed{};  // how many lines of each list GoOn has passed over
    bool resultKept = false;
};
