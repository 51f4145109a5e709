#include "games/GameName.h"

#include "base/AsciiCase.h"

#include <algorithm>
#include <array>

namespace {

// No file name may hold these.
constexpr std::wstring_view Forbidden = L"\\/:*?\"<>|";

constexpr std::wstring_view Signs = L"+-_&%#!$()[]{}@'.,;~^";

constexpr wchar_t Backspace = 8;

bool IsLetterOrDigit(wchar_t character) {
    const wchar_t upper = AsciiUpper(character);
    return (upper >= L'A' && upper <= L'Z') || (character >= L'0' && character <= L'9');
}

// The digits that number serial and parallel ports; the raised ones count too.
constexpr std::wstring_view PortDigits = L"0123456789\u00B9\u00B2\u00B3";

// NUL, COM1, CONIN$ ...
bool IsDeviceName(std::wstring_view name) {
    std::wstring base;
    for (wchar_t character : name.substr(0, name.find(L'.'))) base.push_back(AsciiUpper(character));
    // Blanks at the end do not count.
    base.erase(base.find_last_not_of(L' ') + 1);
    constexpr std::array<std::wstring_view, 6> devices{L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
    for (std::wstring_view device : devices) {
        if (base == device) return true;
    }
    const bool port = base.rfind(L"COM", 0) == 0 || base.rfind(L"LPT", 0) == 0;
    return port && base.size() == 4 && PortDigits.find(base[3]) != std::wstring_view::npos;
}

}  // namespace

bool GameName::MayHold(wchar_t character) {
    return character >= L' ' && Forbidden.find(character) == std::wstring_view::npos;
}

bool GameName::TakesKey(wchar_t character, std::wstring_view text) const {
    if (character == Backspace) return true;
    if (text.size() >= Longest) return false;
    return IsLetterOrDigit(character) || Signs.find(character) != std::wstring_view::npos;
}

std::wstring GameName::Changed(const std::wstring& text) {
    if (std::ranges::all_of(text, MayHold)) lastGood = text;
    return lastGood;
}

std::optional<TextId> FaultOfName(std::wstring_view name) {
    if (name.size() > GameName::Longest) return TextId::NameTooLong;
    if (name.ends_with(L'.') || name.ends_with(L' ')) return TextId::NameEndsInDot;
    if (IsDeviceName(name)) return TextId::DeviceName;
    return std::nullopt;
}
