#include "games/GameCodec.h"

#include "games/Cgn.h"
#include "games/Diagram.h"
#include "games/Pgn.h"
#include "settings/SlotRecord.h"

#include <algorithm>

namespace {

// Enough for the lists of the most moves that a clock counts.
constexpr size_t LongestText = 4 << 20;

// The text of a file; nothing when there is none. Throws GameFileError when it is longer than it may be.
std::optional<std::string> ReadText(const GameFileReader& read, GameFile file, size_t most) {
    const auto bytes = read(file, most + 1);
    if (!bytes) return std::nullopt;
    if (bytes->size() > most) throw GameFileError{file, Damage::TooLong, static_cast<int32_t>(most)};
    return std::string(bytes->begin(), bytes->end());
}

void ThrowIf(const std::optional<GameFileError>& error) {
    if (error) throw *error;
}

// The running text of the PGN; nothing without one, or with one that cannot be read.
std::optional<std::string> ReadRunningText(const GameFileReader& read, SavedGame& game) {
    std::string text;
    try {
        const auto bytes = ReadText(read, PgnFile, LongestText);
        if (!bytes) return std::nullopt;
        ThrowIf(DecodePgn(*bytes, text));
    } catch (const GameFileError&) {
        game.PgnUnreadable = true;
        return std::nullopt;
    }
    return text;
}

// A save fills the lists up to the clock's counts. They may be longer, and whose turn it is may differ, since players
// write before they press and after it, and correct what they have written.
bool AreBehind(const MoveLists& lists, const modClock::ClockState& clock) {
    return std::ranges::any_of(BothSides, [&](Side side) {
        return lists[side].Moves() < static_cast<size_t>(std::max(clock.MoveCount[side], 0));
    });
}

void ReadScorlet(const GameFileReader& read, Side sideToMove, SavedGame& game) {
    const auto diagram = ReadText(read, DiagramFile, DiagramBytes);
    const auto moves = ReadText(read, MovesFile, LongestText);
    if (!diagram && !moves) return;

    Board position;
    MoveLists lists;
    if (diagram) ThrowIf(DecodeDiagram(*diagram, position));
    if (moves) ThrowIf(DecodeCgn(*moves, sideToMove, lists));
    game.Scorlet.Restore(position, lists, sideToMove,
                         game.Options.WritePgn ? ReadRunningText(read, game) : std::nullopt);
    game.Mismatched = !diagram || !moves || AreBehind(lists, game.Clock);
}

}  // namespace

GameFiles EncodeGame(const Settings& settings, const modClock::ClockState& clock, const Recorder* scorlet,
                     const CalendarDate& today) {
    GameFiles files;
    files[ClockFile] =
        EncodeClockRecord({settings, clock, scorlet ? scorlet->SideToMove() : White, scorlet != nullptr});
    if (!scorlet) return files;
    const GameHead head{today, settings.PlayerNames};
    files[DiagramFile] = EncodeDiagram(scorlet->Position());
    files[MovesFile] = EncodeCgn(head, scorlet->Lists());
    if (settings.WritePgn) files[PgnFile] = EncodePgn(head, *scorlet);
    return files;
}

std::optional<GameFileError> DecodeGame(const GameFileReader& read, const Settings& present, SavedGame& game) {
    const auto record = read(ClockFile, LongestRecord).value_or(std::vector<uint8_t>());
    ClockRecord saved;
    if (const auto error = DecodeClockRecord(record, present, saved)) return error;
    SavedGame loaded{saved.Options, saved.Clock, {}, saved.ScorletLoaded};
    try {
        if (saved.ScorletLoaded) ReadScorlet(read, saved.SideToMove, loaded);
    } catch (const GameFileError& error) {
        return error;
    }
    game = std::move(loaded);
    return std::nullopt;
}

GameFileReader ReaderOf(const GameFiles& files) {
    return [&files](GameFile file, size_t limit) -> std::optional<std::vector<uint8_t>> {
        if (!files[file]) return std::nullopt;
        const std::string_view bytes = std::string_view(*files[file]).substr(0, limit);
        return std::vector<uint8_t>(bytes.begin(), bytes.end());
    };
}

std::optional<GameFileError> FaultOf(const GameFiles& files) {
    SavedGame game;
    return DecodeGame(ReaderOf(files), Settings(), game);
}
