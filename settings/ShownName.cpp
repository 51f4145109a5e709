#include "settings/ShownName.h"

#include "platform/Ansi.h"

namespace {

constexpr TextId WordOf(Side side) { return side == White ? TextId::White : TextId::Black; }

}  // namespace

std::wstring NameOf(const Settings& settings, Side side) {
    const std::wstring& name = settings.FullNames[side];
    return name.empty() ? FromAnsi(settings.PlayerNames[side]) : name;
}

void SetName(Settings& settings, Side side, const std::wstring& name) {
    settings.PlayerNames[side] = ToAnsi(name);
    settings.FullNames[side].clear();
    if (NameOf(settings, side) != name) settings.FullNames[side] = name;
}

std::wstring ShownName(const Settings& settings, const Texts& texts, Side side) {
    const std::wstring name = NameOf(settings, side);
    return name.empty() ? texts(WordOf(side)) : name;
}

std::wstring KnownName(const Settings& settings, const Texts& texts, Side side) {
    std::wstring name = NameOf(settings, side);
    for (const Language language : {Turkish, English, French}) {
        // A game of an earlier version has the word in the code page's letters only.
        const std::wstring word = texts.LookUp(TextIdentifier(WordOf(side), language));
        if (name == word || name == FromAnsi(ToAnsi(word))) return {};
    }
    return name;
}
