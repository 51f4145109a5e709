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

Recorder ReadScorlet(const GameFileReader& read, const ClockRecord& saved) {
    Recorder recorder;
    const auto diagram = ReadText(read, DiagramFile, DiagramBytes);
    const auto moves = ReadText(read, MovesFile, LongestText);
    if (!diagram && !moves) return recorder;

    Board position;
    MoveLists lists;
    std::optional<std::string> pgn;
    std::string text;
    if (diagram) ThrowIf(DecodeDiagram(*diagram, position));
    if (moves) ThrowIf(DecodeCgn(*moves, saved.SideToMove, lists));
    if (saved.Options.WritePgn) pgn = ReadText(read, PgnFile, LongestText);
    if (pgn) ThrowIf(DecodePgn(*pgn, text));
    recorder.Restore(position, lists, saved.SideToMove, pgn ? std::optional(text) : std::nullopt);
    return recorder;
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
    try {
        game = {saved.Options, saved.Clock, saved.ScorletLoaded ? ReadScorlet(read, saved) : Recorder(),
                saved.ScorletLoaded};
    } catch (const GameFileError& error) {
        return error;
    }
    return std::nullopt;
}
