#include "settings/ShownName.h"

#include "platform/Ansi.h"

std::wstring ShownName(const Settings& settings, const Texts& texts, Side side) {
    const std::string& name = settings.PlayerNames[side];
    return name.empty() ? texts(side == White ? TextId::White : TextId::Black) : FromAnsi(name);
}
