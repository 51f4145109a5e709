#include "games/KeptGame.h"

#include "tests/recorder/RecordText.h"

namespace {

// What is read of a kept game of two files after so many of its bytes from a place on have been replaced by a text
// ("place length text"): the files, or the damage.
std::string ReadKept(const std::string& given) {
    GameFiles files;
    files[ClockFile] = "record", files[MovesFile] = "1. e4\r\nend\r\n";
    std::string bytes = EncodeKeptGame(files);
    std::istringstream words(given);
    size_t place = 0, length = 0;
    std::string text;
    if (words >> place >> length) bytes.replace(place, length, words >> text ? text : "");
    GameFiles read;
    const auto error = DecodeKeptGame({reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}, read);
    if (error) return DamageText(error->What, error->Place);
    return read[ClockFile].value_or("-") + (read[DiagramFile] ? "?" : "") +
           (read[MovesFile] == files[MovesFile] ? "+" : "");
}

// Whether a game of moves and counts "on", or over, is one that players would go on with.
std::string UnderWay(const std::string& script) {
    SavedGame game;
    game.Clock.GameStarted = script.starts_with("on");
    game.Clock.MoveCount[White] = script.starts_with("fallen") ? 1 : 0;
    Do(game.Scorlet, script.substr(script.find(':') + 1));
    return IsUnderWay(game) ? "yes" : "no";
}

}  // namespace

TEST(KeptGameTest, FilesComeBackAndDamagesAreNamed) {
    ExpectRows(ReadKept, R"(
        => record+ | 27 1 7 => UnexpectedText 37 | 27 1 999 => EndsEarly 32 | 0 1 x => NoHead 0 | 26 1 _ => UnexpectedText 26 | 27 1 x => UnexpectedText 27
        28 1 x => UnexpectedText 28 | 30 7 recor => UnexpectedText 36 | 22 99 => EndsEarly 22 | 33 99 => EndsEarly 30
        38 4 .pgn => record | 61 9 => EndsEarly 61 | 62 1 x => UnexpectedText 61
    )");
    ExpectRows(UnderWay, R"(
        on: => yes | idle: => no | idle:e2e4 => yes | idle:e2e4 draw => no | fallen:e2e4 => no | on:e2e4 => yes | on:e2e4 draw => no
    )");
}
