#include "recorder/GameReading.h"

#include "recorder/Notation.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace {

std::vector<std::string> InOrderOfPlay(const MoveLists& lists) {
    std::vector<std::string> texts;
    size_t written = 0;
    for (size_t half = 0; half < 2 * std::max(lists[White].Moves(), lists[Black].Moves()); ++half) {
        const MoveList& list = lists[half % 2];
        const bool there = half / 2 < list.Moves();
        texts.push_back(there ? list.Entries()[half / 2].Text : std::string(MissingMove));
        if (there && list.Entries()[half / 2].IsWritten()) written = texts.size();
    }
    texts.resize(written);
    return texts;
}

// An entry in its parts.
struct Entry {
    std::string_view Base;  // without marks, promotion and "ep"
    PieceKind Promotion = PieceKind::None;

    explicit Entry(std::string_view text) : Base(text) {
        Base = Base.substr(0, Base.find_last_not_of("+#!?") + 1);
        if (Base.ends_with("ep")) Base.remove_suffix(2);
        // "e8=Q", or "e8Q".
        if (Base.size() < 3 || KindOfLetter(Base.back()) == PieceKind::None) return;
        Promotion = KindOfLetter(Base.back());
        Base.remove_suffix(1);
        if (Base.ends_with('=')) Base.remove_suffix(1);
    }

    bool Exactly(const Board& before, const LegalMove& move) const {
        const MoveText written = WriteMove(before, before.Classify(move.Origin, move.Destination));
        return Base == Entry(written.View()).Base;
    }
};

// A move described in one of the usual ways.
struct Description {
    PieceKind Kind = PieceKind::Pawn;
    Square Destination = NoSquare;  // none: the text describes no move
    char File = 0, Rank = 0;        // of the origin; 0: not told
    bool Captures = false;          // true: it must; false: it may

    Description(std::string_view text, Side side) {
        const char home = side == White ? '1' : '8';
        if (text == "O-O" || text == "O-O-O") {
            Kind = PieceKind::King;
            File = 'e';
            Rank = home;
            Destination = SquareAt(text == "O-O" ? 7 : 3, home - '0');
            return;
        }
        if (text.size() < 2) return;
        const Square destination = SquareNamed(text.substr(text.size() - 2));
        text.remove_suffix(2);
        if (!text.empty() && KindOfLetter(text.front()) != PieceKind::None) {
            Kind = KindOfLetter(text.front());
            text.remove_prefix(1);
        }
        if (text.ends_with('x') || text.ends_with('-')) {
            Captures = text.back() == 'x';
            text.remove_suffix(1);
        }
        if (!text.empty() && text.front() >= 'a' && text.front() <= 'h') {
            File = text.front();
            text.remove_prefix(1);
        }
        if (!text.empty() && text.front() >= '1' && text.front() <= '8') {
            Rank = text.front();
            text.remove_prefix(1);
        }
        if (!text.empty()) return;
        // A pawn of which no file is told stays on its own.
        if (Kind == PieceKind::Pawn && File == 0) File = FileLetter(destination);
        Destination = destination;
    }

    bool Fits(const Board& before, const LegalMove& move) const {
        return (File == 0 || File == FileLetter(move.Origin)) && (Rank == 0 || Rank == RankDigit(move.Origin)) &&
               (!Captures || before.Classify(move.Origin, move.Destination).Captured != Piece::Empty);
    }
};

enum class Wanted { Best, All };

// The moves that an entry can mean. The best are those that the Scorlet writes so; where there are none, all.
std::vector<LegalMove> WaysToRead(const std::string& text, const LegalPosition& before, Wanted wanted) {
    const Entry entry(text);
    const Description description(entry.Base, before.ToMove);
    if (description.Destination == NoSquare) return {};
    std::vector<LegalMove> ways = LegalMoves(before, description.Kind, description.Destination);
    std::erase_if(ways, [&](const LegalMove& move) {
        return !description.Fits(before.Pieces, move) ||
               (entry.Promotion != PieceKind::None && entry.Promotion != move.Promotion);
    });
    const auto others = std::stable_partition(
        ways.begin(), ways.end(), [&](const LegalMove& move) { return entry.Exactly(before.Pieces, move); });
    if (wanted == Wanted::Best && others != ways.begin()) ways.erase(others, ways.end());
    return ways;
}

// What decides how a game can go on from a position, as the key of a table.
std::string KeyOf(const LegalPosition& position, size_t halfMove) {
    std::string key = std::to_string(halfMove) + " ";
    for (const Piece piece : position.Pieces.Cells()) key += static_cast<char>(piece);
    for (const Side side : BothSides) {
        key += position.KingSide[side] ? 'K' : '-';
        key += position.QueenSide[side] ? 'Q' : '-';
    }
    return key += static_cast<char>(position.PassedOver);
}

// Goes through all games that the entries can mean, depth first. A position that comes back at the same half-move is
// not gone through again.
class Search {
  public:
    Search(const std::vector<std::string>& written, const Board& last, Wanted wanted)
        : written(written), last(last), wanted(wanted) {
        Enter(LegalPosition());
        while (!stack.empty() && !other) {
            Node& node = stack.back();
            if (node.Next == node.Ways.size()) {
                Leave();
            } else if (++tries > MostTries) {
                GiveUp();
                return;
            } else {
                path.resize(stack.size() - 1);
                path.push_back(node.Ways[node.Next++]);
                LegalPosition after = node.Position;
                Carry(after, path.back());
                Enter(after);
            }
        }
    }

    bool Found() const { return furthest > written.size(); }
    size_t Furthest() const { return furthest; }

    GameReading Result() const {
        GameReading reading{GameFinding::Whole, written, best, certain, other};
        if (Found()) {
            if (other) reading.Finding = GameFinding::SeveralWays;
            return reading;
        }
        const bool clear = certain == written.size();
        reading.Finding = clear ? GameFinding::OtherPosition : GameFinding::NotUnderstood;
        reading.Moves.resize(certain);
        if (furthest < written.size()) reading.HalfMove = furthest;
        return reading;
    }

  private:
    struct Node {
        LegalPosition Position;
        std::string Key;
        std::vector<LegalMove> Ways;
        size_t Next = 0;
        size_t Furthest = 0;  // the half-moves that a game from here comes to, one more for the right last position
    };

    void Enter(const LegalPosition& position) {
        const size_t depth = path.size();
        if (depth == written.size()) return Reach(depth + (position.Pieces.Cells() == last.Cells() ? 1 : 0));
        std::string key = KeyOf(position, depth);
        if (const auto before = known.find(key); before != known.end()) return Reach(before->second);
        stack.push_back({position, std::move(key), WaysToRead(written[depth], position, wanted)});
        if (stack.back().Ways.empty()) Reach(depth);
    }

    // The path, or a known one that goes on from its end, comes so far.
    void Reach(size_t reached) {
        if (!stack.empty()) stack.back().Furthest = std::max(stack.back().Furthest, reached);
        const auto differ = static_cast<size_t>(std::ranges::mismatch(path, best).in1 - path.begin());
        if (reached > furthest || best.empty()) {
            furthest = reached;
            best = path;
            certain = path.size();
        } else if (reached == furthest && differ < std::min(path.size(), best.size())) {
            if (Found()) other = path[differ];
            certain = std::min(certain, differ);
        }
    }

    void Leave() {
        const size_t reached = stack.back().Furthest;
        known.emplace(std::move(stack.back().Key), reached);
        stack.pop_back();
        if (!stack.empty()) stack.back().Furthest = std::max(stack.back().Furthest, reached);
    }

    // What has not been tried might come as far.
    void GiveUp() {
        Reach(path.size());
        for (size_t depth = 0; depth < stack.size(); ++depth) {
            if (stack[depth].Next < stack[depth].Ways.size()) certain = std::min(certain, depth);
        }
    }

    const std::vector<std::string>& written;
    const Board& last;
    const Wanted wanted;
    std::vector<Node> stack;
    std::vector<LegalMove> path, best;
    std::unordered_map<std::string, size_t> known;
    size_t tries = 0, furthest = 0, certain = 0;
    std::optional<LegalMove> other;
};

}  // namespace

LegalPosition GameReading::Position() const {
    LegalPosition position;
    for (const LegalMove& move : Moves) Carry(position, move);
    return position;
}

GameReading ReadGame(const MoveLists& lists, const Board& last) {
    const std::vector<std::string> written = InOrderOfPlay(lists);
    const Search best(written, last, Wanted::Best);
    if (best.Found()) return best.Result();
    const Search all(written, last, Wanted::All);
    return all.Furthest() > best.Furthest() ? all.Result() : best.Result();
}
