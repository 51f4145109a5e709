#include "app/KeptPlaces.h"

#include "base/WordReader.h"

#include <charconv>

namespace {

// Further away is no screen, and sums of such lengths do not overflow.
constexpr int Furthest = 1'000'000;

std::string TextOf(const Box& box) {
    std::string text;
    for (const int length : {box.Left, box.Top, box.Width, box.Height}) text += " " + std::to_string(length);
    return text + "\r\n";
}

bool Take(WordReader& words, int& number) {
    const std::string_view word = words.Take();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size();
}

bool Take(WordReader& words, Box& box) {
    for (int* length : {&box.Left, &box.Top, &box.Width, &box.Height}) {
        if (!Take(words, *length) || *length < -Furthest || *length > Furthest) return false;
    }
    return box.Width > 0 && box.Height > 0;
}

}  // namespace

std::string WritePlaces(const KeptPlaces& places) {
    std::string text = "dpi " + std::to_string(places.Dpi) + "\r\nclock" + TextOf(places.Alone);
    if (places.Maximised) text += "maximised\r\n";
    if (places.Both) text += "beside" + TextOf(places.Both->Clock) + "scorlet" + TextOf(places.Both->Scorlet);
    return text;
}

std::optional<KeptPlaces> ReadPlaces(const std::string& text) {
    KeptPlaces places{};
    WindowPlaces both;
    WordReader words(text);
    for (std::string_view word = words.Take(); !word.empty(); word = words.Take()) {
        const bool read = word == "dpi"       ? Take(words, places.Dpi)
                          : word == "clock"   ? Take(words, places.Alone)
                          : word == "beside"  ? Take(words, both.Clock)
                          : word == "scorlet" ? Take(words, both.Scorlet)
                                              : (places.Maximised = word == "maximised");
        if (!read) return std::nullopt;
    }
    if (places.Alone.Width == 0) return std::nullopt;
    if (both.Clock.Width > 0 && both.Scorlet.Width > 0) places.Both = both;
    return places;
}
