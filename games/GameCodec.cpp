#include "games/GameCodec.h"

#include "games/Cgn.h"
#include "games/Diagram.h"
#include "games/Pgn.h"
#include "settings/SlotRecord.h"

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

std::optional<GameFileError> FaultOf(const GameFiles& files) {
    const auto read = [&](GameFile file, size_t) -> std::optional<std::vector<uint8_t>> {
        if (!files[file]) return std::nullopt;
        return std::vector<uint8_t>(files[file]->begin(), files[file]->end());
    };
    SavedGame game;
    return DecodeGame(read, Settings(), game);
}
