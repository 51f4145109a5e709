#include "app/KeptPlaces.h"

#include <sstream>

namespace {

// Further away is no screen, and sums of such lengths do not overflow.
constexpr int Furthest = 1'000'000;

std::string TextOf(const Box& box) {
    std::ostringstream text;
    text << ' ' << box.Left << ' ' << box.Top << ' ' << box.Width << ' ' << box.Height << "\r\n";
    return text.str();
}

bool ReadBox(std::istream& line, Box& box) {
    const auto near = [](int length) { return -Furthest <= length && length <= Furthest; };
    return line >> box.Left >> box.Top >> box.Width >> box.Height && near(box.Left) && near(box.Top) &&
           near(box.Width) && near(box.Height) && box.Width > 0 && box.Height > 0;
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
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const bool read = word == "dpi"       ? static_cast<bool>(words >> places.Dpi)
                          : word == "clock"   ? ReadBox(words, places.Alone)
                          : word == "beside"  ? ReadBox(words, both.Clock)
                          : word == "scorlet" ? ReadBox(words, both.Scorlet)
                                              : (places.Maximised = word == "maximised");
        if (!read) return std::nullopt;
    }
    if (places.Alone.Width == 0) return std::nullopt;
    if (both.Clock.Width > 0 && both.Scorlet.Width > 0) places.Both = both;
    return places;
}
