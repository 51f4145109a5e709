#pragma once

// Why one of the program's files cannot be read. The error of each decoder says where.
enum class Damage {
    // In a record; the place is the slot, from 0.
    UnknownTag,  // a type tag that is none of the four
    ShortFile,   // the bytes end before or in the slot
    OutOfRange,  // a slot past the record, or a value outside its range
    Overflow,    // a number that does not fit in 32 signed bits, as it is or in seconds
    // In the record of a saved game's clock.
    TooManyMoves,       // more than a saved game may have counted
    CountsOutOfStep,    // White has neither as many moves as Black nor one more
    TurnAgainstCounts,  // the turn is that of the side that the counts say is waiting
    NoTimeLeft,         // the game is under way and the running side has no time
    // In the diagram; the place is the line, from 1, and the column.
    UnknownPiece,  // a cell that is neither a piece's code nor empty
    BrokenLine,    // a line of the wrong form, a missing line or one too many
    // In the move lists and the PGN; the place is the offset in bytes, from 0.
    NoHead,          // the lines of the head do not end where they should
    EndsEarly,       // a move or the end mark is missing
    WrongNumber,     // a move's number is not the next one of its side
    UnexpectedText,  // neither a move number nor a result, or something after the result
    // In any text file; the place is the most bytes that it may have.
    TooLong,
};
