#include "games/Pgn.h"

namespace {

constexpr int HeadLines = 8;

GameFileError PgnErrorAt(Damage damage, size_t offset) { return {PgnFile, damage, static_cast<int32_t>(offset)}; }

}  // namespace

std::string EncodePgn(const GameHead& head, const Recorder& recorder) {
    const std::string_view result = ResultToken(recorder.Lists());
    std::string text = recorder.RunningText();
    RemoveResultMark(text);
    text += recorder.PendingText();
    text += result;
    return EncodeHead(head, result).append(LineEnd).append(text).append(LineEnd);
}

std::optional<GameFileError> DecodePgn(std::string_view bytes, std::string& text) {
    std::string_view rest = bytes;
    for (int line = 0; line < HeadLines; ++line) {
        const size_t end = rest.find(LineEnd);
        if (end == std::string_view::npos) return PgnErrorAt(Damage::NoHead, bytes.size());
        rest.remove_prefix(end + LineEnd.size());
    }
    if (!rest.ends_with(LineEnd)) return PgnErrorAt(Damage::EndsEarly, bytes.size());
    rest.remove_suffix(LineEnd.size());
    text = rest;
    return std::nullopt;
}
