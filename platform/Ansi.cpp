#include "platform/Ansi.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <optional>

namespace {

std::string InCodePage(UINT page, std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<size_t>(needed), '\0');
    WideCharToMultiByte(page, 0, text.data(), length, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

std::wstring OfCodePage(UINT page, std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int written = MultiByteToWideChar(page, 0, text.data(), length, wide.data(), length);
    wide.resize(static_cast<size_t>(written));
    return wide;
}

// No value if the code page cannot give every character back.
std::optional<std::string> ToAnsiExactly(std::wstring_view text) {
    std::string narrow = InCodePage(CP_ACP, text);
    if (FromAnsi(narrow) != text) return std::nullopt;
    return narrow;
}

// Letters that cannot be taken apart into another one and its accents.
struct NearestLetters {
    wchar_t Letter;
    const char* Nearest;
};
constexpr std::array<NearestLetters, 24> OtherLetters{{
    {L'ı', "i"}, {L'ł', "l"},  {L'Ł', "L"},  {L'ø', "o"},  {L'Ø', "O"},  {L'đ', "d"},  {L'Đ', "D"},  {L'ð', "d"},
    {L'Ð', "D"}, {L'ħ', "h"},  {L'Ħ', "H"},  {L'ŧ', "t"},  {L'Ŧ', "T"},  {L'ŋ', "n"},  {L'Ŋ', "N"},  {L'ə', "e"},
    {L'Ə', "E"}, {L'æ', "ae"}, {L'Æ', "AE"}, {L'œ', "oe"}, {L'Œ', "OE"}, {L'ß', "ss"}, {L'þ', "th"}, {L'Þ', "Th"},
}};

bool IsAccent(wchar_t character) { return character >= 0x300 && character < 0x370; }

std::string Nearest(wchar_t character) {
    const std::wstring_view text(&character, 1);
    if (const auto exactly = ToAnsiExactly(text)) return *exactly;
    if (IsAccent(character) || IS_LOW_SURROGATE(character)) return {};
    const auto other = std::ranges::find(OtherLetters, character, &NearestLetters::Letter);
    if (other != OtherLetters.end()) return other->Nearest;
    std::array<wchar_t, 16> parts{};
    if (FoldStringW(MAP_COMPOSITE, &character, 1, parts.data(), static_cast<int>(parts.size())) > 1)
        return Nearest(parts[0]);
    return InCodePage(CP_ACP, text);
}

}  // namespace

std::wstring FromAnsi(std::string_view text) { return OfCodePage(CP_ACP, text); }

std::wstring FromUtf8(std::string_view text) { return OfCodePage(CP_UTF8, text); }

std::string ToAnsi(std::wstring_view text) {
    if (auto exactly = ToAnsiExactly(text)) return *exactly;
    std::string narrow;
    for (const wchar_t character : text) narrow += Nearest(character);
    return narrow;
}

std::string ToUtf8(std::wstring_view text) { return InCodePage(CP_UTF8, text); }
