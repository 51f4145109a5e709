#pragma once

#include "recorder/Board.h"
#include "recorder/MoveList.h"

#include <array>
#include <optional>
#include <string>

enum class Declaration { Check, Mate, Resign, Draw };

// The entry of a list that an operation wants to be shown as chosen.
struct ChosenLine {
    Side List;
    size_t Index;
};

// The Scorlet without its window: the board, the two move lists, the running text of the game and whose move it is.
class Recorder {
  public:
    const Board& Position() const { return board; }
    const MoveList& List(Side side) const { return lists[side]; }
    const MoveLists& Lists() const { return lists; }
    Side SideToMove() const { return sideToMove; }
    // The move last carried out, for showing it.
    const std::optional<Move>& LastMove() const { return lastMove; }
    // That move in long form, "e2-e4"; empty without one.
    const std::string& LastMoveLongForm() const { return lastMoveLongForm; }
    bool MovesWritten() const { return !lists[White].Empty() || !lists[Black].Empty(); }

    // The game so far in movetext, and the last move, which promotions and marks still reach. A result mark stands at
    // the end of the running text, and then no move is pending.
    const std::string& RunningText() const { return runningText; }
    const std::string& PendingText() const { return pendingText; }

    bool HasResult() const { return lists[White].EndsWithResult() || lists[Black].EndsWithResult(); }

    // The initial position, empty lists, White to move.
    void Reset();

    // A game that was kept: play goes on from there. The captured pieces follow from the position, the running text
    // from the lists where none was kept.
    void Restore(const Board& position, const MoveLists& moves, Side toMove, const std::optional<std::string>& text);

    // Carries out and writes the move between two squares, for the side to move whatever the piece's colour. The origin
    // must hold a piece. A result that stood is taken away: play goes on.
    ChosenLine Play(Square origin, Square destination);

    // The pawn that reached its last rank with the last move, until the next one is entered.
    bool AwaitsPromotion() const { return promotion.has_value(); }
    // Makes it that piece and says so in its entry; again, if it has been chosen before.
    void Promote(PieceKind kind);

    // What the players declare. `clockCounts` are the moves that the clock has counted, for resigning and drawing,
    // which fill the lists up to them; the last line added to each.
    std::array<std::optional<size_t>, 2> Declare(Declaration declaration, const std::array<int32_t, 2>& clockCounts);

    // The result of a fallen flag of a side.
    void FlagFell(Side side);

    // Waiting lines where a list is shorter than the clock's count, or White's than Black's; the last one added to
    // each.
    std::array<std::optional<size_t>, 2> TopUpMoveLists(const std::array<int32_t, 2>& clockCounts);

    // The line for the next move, after a press of the clock that made a side run; nothing when none is due.
    std::optional<ChosenLine> AddLineForPress(bool firstPress, Side running);

    // Writes a typed text into an entry, put right. The position stays: the board keeps no history.
    void Edit(Side side, size_t index, std::string_view typed);

    // Removes the last entry of a list that is not empty. Nothing else changes but the running text.
    void DeleteLast(Side side);

    // A captured piece goes back to an empty square and its slot is hidden again; no move is written.
    void PutBack(Piece piece, int slot, Square square);

  private:
    struct Promotion {
        Square On;
        std::optional<ChosenLine> Line;  // none: it has been deleted
    };

    void AwaitPromotionAgain();
    void AddResult(Side list, std::string_view result);
    void TakeResultAway();
    void SetMark(size_t index, Side side, std::string_view mark);
    size_t HalfMovesWritten() const;
    void RebuildText();

    Board board;
    MoveLists lists;
    Side sideToMove = White;
    std::string runningText;
    std::string pendingText;
    std::optional<Promotion> promotion;
    std::optional<Move> lastMove;
    std::string lastMoveLongForm;
};
