#include "settings/ShownName.h"

#include "platform/Ansi.h"

namespace {

constexpr TextId WordOf(Side side) { return side == White ? TextId::White : TextId::Black; }

}  // namespace

std::wstring ShownName(const Settings& settings, const Texts& texts, Side side) {
    const std::string& name = settings.PlayerNames[side];
    return name.empty() ? texts(WordOf(side)) : FromAnsi(name);
}

std::string KnownName(const Settings& settings, const Texts& texts, Side side) {
    const std::string& name = settings.PlayerNames[side];
    for (const Language language : {Turkish, English, French}) {
        if (name == ToAnsi(texts.LookUp(TextIdentifier(WordOf(side), language)))) return {};
    }
    return name;
}
