#include "games/KeptGame.h"

#include <charconv>

namespace {

constexpr std::string_view Head = "TORVANIX kept game 1\r\n", End = "end\r\n";

}  // namespace

// After the head each file follows with its ending and its length in bytes on a line of their own. What cannot be whole
// has no end line.
std::string EncodeKeptGame(const GameFiles& files) {
    std::string bytes(Head);
    for (GameFile file : AllGameFiles) {
        if (!files[file]) continue;
        bytes += ExtensionOf(file);
        bytes += " " + std::to_string(files[file]->size());
        bytes += LineEnd;
        bytes += *files[file];
        bytes += LineEnd;
    }
    bytes += End;
    return bytes;
}

std::optional<KeptGameError> DecodeKeptGame(std::span<const uint8_t> bytes, GameFiles& files) {
    const std::string_view whole(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    std::string_view rest = whole;
    const auto take = [&](std::string_view wanted) {
        const bool there = rest.starts_with(wanted);
        if (there) rest.remove_prefix(wanted.size());
        return there;
    };
    const auto error = [&](Damage damage) {
        return KeptGameError{damage, static_cast<int32_t>(whole.size() - rest.size())};
    };
    if (!take(Head)) return error(Damage::NoHead);
    GameFiles read;
    for (GameFile file : AllGameFiles) {
        if (!take(ExtensionOf(file))) continue;
        if (!take(" ")) return error(Damage::UnexpectedText);
        size_t length = 0;
        const auto [end, failed] = std::from_chars(rest.data(), rest.data() + rest.size(), length);
        if (failed != std::errc()) return error(Damage::UnexpectedText);
        rest.remove_prefix(static_cast<size_t>(end - rest.data()));
        if (!take(LineEnd)) return error(Damage::UnexpectedText);
        if (rest.size() < length) return error(Damage::EndsEarly);
        read[file] = rest.substr(0, length);
        rest.remove_prefix(length);
        if (!take(LineEnd)) return error(Damage::UnexpectedText);
    }
    if (rest != End) return error(End.starts_with(rest) ? Damage::EndsEarly : Damage::UnexpectedText);
    files = std::move(read);
    return std::nullopt;
}

bool IsUnderWay(const SavedGame& game) {
    if (game.Scorlet.HasResult()) return false;
    if (game.Clock.GameStarted) return true;
    const bool fallen = game.Clock.MoveCount[White] > 0;
    return !fallen && game.Scorlet.MovesWritten();
}
