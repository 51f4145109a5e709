#include "fuzz/Fuzz.h"
#include "games/ExportedGame.h"
#include "games/GameCodec.h"
#include "games/GameHead.h"

#include <array>

namespace {

constexpr CalendarDate Today{2024, 3, 9};

// Splits an input that holds the files of a game one after the other, with a mark between them.
GameFiles Split(std::string_view input) {
    constexpr std::string_view mark = "<<>>";
    GameFiles files;
    for (const GameFile file : AllGameFiles) {
        const size_t end = input.find(mark);
        files[file] = input.substr(0, end);
        if (end == std::string_view::npos) break;
        input.remove_prefix(end + mark.size());
    }
    return files;
}

bool Load(const GameFiles& files, SavedGame& game) { return !DecodeGame(ReaderOf(files), Settings(), game); }

// Uses a loaded game as the program does: moves, a promotion, declarations, and a missing line.
void PlayOn(Recorder& recorder) {
    const std::array<int32_t, 2> counts{3, 3};
    for (int index = 11; index < 88; ++index) {
        const auto square = static_cast<Square>(index);
        if (IsSquare(index) && recorder.Position().At(square) != Piece::Empty) recorder.Play(square, Square{88});
    }
    recorder.Promote(PieceKind::Rook);
    recorder.Declare(Declaration::Check, counts);
    recorder.DeleteLast(White);
    recorder.Declare(Declaration::Mate, counts);
    recorder.TopUpMoveLists(counts);
}

// In lines of less than 80 characters.
void Export(const Recorder& recorder) {
    const GameReading reading = ReadGame(recorder.Lists(), recorder.Position());
    const std::string exported = ExportGame({}, reading, ResultToken(recorder.Lists()));
    std::string_view text = exported;
    for (size_t end; (end = text.find('\n')) != std::string_view::npos; text.remove_prefix(end + 1)) Require(end < 80);
    Require(text.empty());
}

}  // namespace

// A game that can be loaded is saved and loaded as the same, can be exported, and can be played on.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    SavedGame game, again;
    if (!Load(Split(TextOf(data, size)), game)) return 0;
    const GameFiles saved = EncodeGame(game.Options, game.Clock, &game.Scorlet, Today);
    Require(Load(saved, again));
    Require(EncodeGame(again.Options, again.Clock, &again.Scorlet, Today) == saved);
    Export(again.Scorlet);
    PlayOn(again.Scorlet);
    return 0;
}
