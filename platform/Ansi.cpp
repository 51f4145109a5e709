#include "platform/Ansi.h"

#include <windows.h>

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

}  // namespace

std::wstring FromAnsi(std::string_view text) { return OfCodePage(CP_ACP, text); }

std::wstring FromUtf8(std::string_view text) { return OfCodePage(CP_UTF8, text); }

std::string ToAnsi(std::wstring_view text) { return InCodePage(CP_ACP, text); }

std::string ToUtf8(std::wstring_view text) { return InCodePage(CP_UTF8, text); }

std::optional<std::string> ToAnsiExactly(std::wstring_view text) {
    std::string narrow = ToAnsi(text);
    if (FromAnsi(narrow) != text) return std::nullopt;
    return narrow;
}
