#include "recorder/EditedMove.h"

#include <string_view>

namespace {

constexpr std::wstring_view Allowed =
    L"abcdefghABCDEFGH"
    L"qrbnQRBN"
    L"123456789"
    L"oO-x=ep+#?!";
constexpr wchar_t Backspace = 8;
constexpr size_t LongestForKeys = 199;  // a guard of its own, apart from the length of a move
constexpr size_t LongestMove = 8;

}  // namespace

bool EditedMove::TakesKey(wchar_t character, const std::wstring& text) {
    const bool allowed = Allowed.find(character) != std::wstring_view::npos && text.size() < LongestForKeys;
    if (character != Backspace && !allowed) return false;
    lastGood = text;
    return true;
}

std::wstring EditedMove::Changed(const std::wstring& text) {
    if (text.find(L' ') != std::wstring::npos) {
        lastGood.clear();
        return {};
    }
    if (text.size() > LongestMove && text.size() >= lastGood.size()) return lastGood;
    lastGood = text;
    return text;
}
