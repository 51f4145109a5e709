#include "bench/Replay.h"

#include "games/ExportedGame.h"
#include "games/GameHead.h"
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

struct GivenMove {
    Square Origin, Destination;
    PieceKind Promotion = PieceKind::None;
};

std::optional<GivenMove> ReadMove(const Board& board, std::string_view word) {
    if (word.size() != 4 && word.size() != 5) return std::nullopt;
    GivenMove move{SquareNamed(word.substr(0, 2)), SquareNamed(word.substr(2, 2))};
    if (move.Origin == NoSquare || move.Destination == NoSquare || move.Origin == move.Destination) return std::nullopt;
    if (board.At(move.Origin) == Piece::Empty) return std::nullopt;
    if (word.size() == 5) {
        move.Promotion = ReadPromotion(word[4]);
        const bool promotes = Board::ReachesLastRank(board.At(move.Origin), move.Destination);
        if (move.Promotion == PieceKind::None || !promotes) return std::nullopt;
    }
    return move;
}

// Reads the moves of a line one after the other, each for the board as it is after those before. Returns the result,
// empty if the line is malformed.
template <typename Play>
std::string_view ReadLine(std::string_view line, const Board& board, Play play) {
    for (std::string_view word = TakeWord(line); !word.empty(); word = TakeWord(line)) {
        if (IsResult(word) || word == "*") return TakeWord(line).empty() ? word : std::string_view();
        const auto move = ReadMove(board, word);
        if (!move) break;
        play(*move);
    }
    return {};
}

std::string WhatIsUnclear(const GameReading& game) {
    const std::string move =
        (game.HalfMove % 2 == 0 ? "White's move " : "Black's move ") + std::to_string(game.HalfMove / 2 + 1) + ", ";
    switch (game.Finding) {
        case GameFinding::NotUnderstood: return move + game.Written[game.HalfMove] + ", cannot be understood";
        case GameFinding::SeveralWays: return move + game.Written[game.HalfMove] + ", can be read in several ways";
        case GameFinding::OtherPosition: return "the moves lead to another position";
        case GameFinding::Whole: break;
    }
    return "";
}

}  // namespace

bool ReplayLine(std::string_view line, std::string& written) {
    const size_t before = written.size();
    Board board;
    const std::string_view result = ReadLine(line, board, [&](const GivenMove& given) {
        const Move move = board.Classify(given.Origin, given.Destination);
        written += WriteMove(board, move).View();
        board.Carry(move);
        if (given.Promotion != PieceKind::None) {
            board.Put(given.Destination, PieceOf(SideOf(move.Moving), given.Promotion));
            written += '=';
            written += PieceLetter(given.Promotion);
        }
        written += ' ';
    });
    if (result.empty())
        written.resize(before);
    else
        written += result;
    return !result.empty();
}

std::optional<Recorder> RecordLine(std::string_view line) {
    Recorder recorder;
    const std::string_view result = ReadLine(line, recorder.Position(), [&](const GivenMove& given) {
        recorder.Play(given.Origin, given.Destination);
        if (given.Promotion != PieceKind::None) recorder.Promote(given.Promotion);
    });
    if (result.empty()) return std::nullopt;
    if (result == "1/2-1/2") recorder.Declare(Declaration::Draw, {});
    if (result == "1-0") recorder.FlagFell(Black);
    if (result == "0-1") recorder.FlagFell(White);
    return recorder;
}

std::string ExportRecord(const Recorder& recorder, std::string& exported) {
    const GameReading game = ReadGame(recorder.Lists(), recorder.Position());
    exported += ExportGame({}, game, ResultToken(recorder.Lists()));
    return WhatIsUnclear(game);
}
