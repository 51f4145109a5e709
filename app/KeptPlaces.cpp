#include "app/KeptPlaces.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

// Further away is no screen, and sums of such lengths do not overflow.
constexpr int Furthest = 1'000'000;

std::string TextOf(const Box& box) {
    std::string text;
    for (const int length : {box.Left, box.Top, box.Width, box.Height}) text += " " + std::to_string(length);
    return text + "\r\n";
}

// The words of a text, one after the other. Streams would make the program half as large again.
class Words {
  public:
    explicit Words(std::string_view text) : rest(text) {}

    // Empty at the end.
    std::string_view Take() {
        constexpr std::string_view blanks = " \t\r\n";
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
        rest.remove_prefix(word.size());
        return word;
    }

    bool Take(int& number) {
        const std::string_view word = Take();
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
        return error == std::errc() && end == word.data() + word.size();
    }

    bool Take(Box& box) {
        for (int* length : {&box.Left, &box.Top, &box.Width, &box.Height}) {
            if (!Take(*length) || *length < -Furthest || *length > Furthest) return false;
        }
        return box.Width > 0 && box.Height > 0;
    }

  private:
    std::string_view rest;
};

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
    Words words(text);
    for (std::string_view word = words.Take(); !word.empty(); word = words.Take()) {
        const bool read = word == "dpi"       ? words.Take(places.Dpi)
                          : word == "clock"   ? words.Take(places.Alone)
                          : word == "beside"  ? words.Take(both.Clock)
                          : word == "scorlet" ? words.Take(both.Scorlet)
                                              : (places.Maximised = word == "maximised");
        if (!read) return std::nullopt;
    }
    if (places.Alone.Width == 0) return std::nullopt;
    if (both.Clock.Width > 0 && both.Scorlet.Width > 0) places.Both = both;
    return places;
}
