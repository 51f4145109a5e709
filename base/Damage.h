#pragma once

// What makes a file of the program unreadable. Where it is, the error of each decoder says.
enum class Damage {
    // Of a record; the place is the slot, from 0.
    UnknownTag,  // a type tag that is none of the four
    ShortFile,   // the bytes end before or in the slot
    OutOfRange,  // a slot past the record, or a value outside its range
    Overflow,    // a number that does not fit 32 signed bits, as it is or in seconds
    // Of the record of a saved game's clock.
    CountsOutOfStep,    // White has neither as many moves as Black nor one more
    TurnAgainstCounts,  // the turn is that of the side that the counts say is waiting
    NoTimeLeft,         // the game is under way and the running side has no time
    // Of the diagram; the place is the line, from 1, with the column.
    UnknownPiece,  // a cell that is neither a piece's code nor empty
    BrokenLine,    // a line of another form, or one too few or too many
    // Of the moves and the PGN; the place is the offset in bytes, from 0.
    NoHead,          // the lines of the head do not end where they should
    EndsEarly,       // a move or the end mark is missing
    WrongNumber,     // a move's number is not the next one of its side
    UnexpectedText,  // neither a move number nor a result, or something after the result
    // Of any text file; the place is the most bytes that it may have.
    TooLong,
};
