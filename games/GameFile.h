#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The files of a saved game, in the order in which they are read. They share its name.
enum GameFile : int { ClockFile, DiagramFile, MovesFile, PgnFile };

inline constexpr std::array AllGameFiles{ClockFile, DiagramFile, MovesFile, PgnFile};

constexpr std::string_view ExtensionOf(GameFile file) {
    constexpr std::array<std::string_view, 4> extensions{".bin", ".txt", ".cgn", ".pgn"};
    return extensions[file];
}

// The bytes of each file, indexed by GameFile; nothing for one that there is not.
using GameFiles = std::array<std::optional<std::string>, AllGameFiles.size()>;

// What makes a file of a saved game unreadable, and where.
struct GameFileError {
    enum class Rule {
        // Of the clock's record; the place is the slot, from 0.
        UnknownTag,         // a type tag that is none of the four
        ShortRecord,        // the bytes end before or in the slot
        OutOfRange,         // a value outside its range
        Overflow,           // a number that does not fit 32 signed bits, as it stands or in seconds
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
        UnexpectedText,  // neither a move number nor a result, or something behind the result
        // Of any; the place is the most bytes that the file may have.
        TooLong,
    };
    GameFile file;
    Rule rule;
    int32_t place;
    int32_t column = 0;  // from 1; of the diagram only

    bool operator==(const GameFileError&) const = default;
};
