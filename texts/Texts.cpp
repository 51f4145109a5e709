#include "texts/Texts.h"

#include <cwchar>
#include <utility>

namespace {

// The text that explains an error code. A code without a row of its own gets ReasonSystemError, which takes the number
// as %1.
TextId ReasonRow(DWORD code) {
    switch (code) {
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT: return TextId::ReasonAccessDenied;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_BUSY: return TextId::ReasonInUse;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return TextId::ReasonDiskFull;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND: return TextId::ReasonNotFound;
        case ERROR_INVALID_NAME:
        case ERROR_FILENAME_EXCED_RANGE: return TextId::ReasonInvalidName;
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS: return TextId::ReasonNameTaken;
        default: return TextId::ReasonSystemError;
    }
}

TextId ReasonRow(Damage damage) {
    switch (damage) {
        case Damage::UnknownTag: return TextId::ReasonUnknownTag;
        case Damage::ShortFile: return TextId::ReasonShortFile;
        case Damage::OutOfRange: return TextId::ReasonSlotOutOfRange;
        case Damage::Overflow: return TextId::ReasonSlotOverflow;
        case Damage::TooManyMoves: return TextId::ReasonTooManyMoves;
        case Damage::CountsOutOfStep: return TextId::ReasonCountsOutOfStep;
        case Damage::TurnAgainstCounts: return TextId::ReasonTurnAgainstCounts;
        case Damage::NoTimeLeft: return TextId::ReasonNoTimeLeft;
        case Damage::UnknownPiece: return TextId::ReasonUnknownPiece;
        case Damage::BrokenLine: return TextId::ReasonBrokenLine;
        case Damage::NoHead: return TextId::ReasonNoHead;
        case Damage::EndsEarly: return TextId::ReasonEndsEarly;
        case Damage::WrongNumber: return TextId::ReasonWrongNumber;
        case Damage::UnexpectedText: return TextId::ReasonUnexpectedText;
        case Damage::TooLong: break;
    }
    return TextId::ReasonTooLong;
}

}  // namespace

std::wstring Texts::LookUp(int64_t identifier) const {
    // String resources have 16-bit numbers.
    if (identifier < 1 || identifier > 0xFFFF) return {};
    // With a length of 0 the function gives a pointer to the resource itself, which has no terminating NUL.
    const wchar_t* text = nullptr;
    const int length =
        LoadStringW(GetModuleHandleW(nullptr), static_cast<UINT>(identifier), reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

std::wstring Texts::ComposeOf(TextId row, std::initializer_list<std::wstring> parts) const {
    const std::wstring pattern = (*this)(row);
    std::wstring text;
    for (size_t i = 0; i < pattern.size(); ++i) {
        const wchar_t next = i + 1 < pattern.size() ? pattern[i + 1] : L'\0';
        if (pattern[i] == L'%' && next >= L'1' && next <= L'9') {
            const auto part = static_cast<size_t>(next - L'1');
            if (part < parts.size()) text += parts.begin()[part];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

std::wstring Texts::SideName(Side side) const {
    return (*this)(side == White ? TextId::PrintedWhite : TextId::PrintedBlack);
}

std::wstring Texts::Duration(int32_t seconds) const {
    const std::pair<TextId, int32_t> parts[] = {{TextId::SpokenHour, seconds / 3600},
                                                {TextId::SpokenMinute, seconds / 60 % 60},
                                                {TextId::SpokenSecond, seconds % 60}};
    std::wstring text;
    for (const auto& [unit, count] : parts) {
        // No time at all is spoken as "0 seconds".
        if (count == 0 && (seconds != 0 || unit != TextId::SpokenSecond)) continue;
        if (!text.empty()) text += L' ';
        text += Compose(CountRow(unit, count, LanguageIndex()), std::to_wstring(count));
    }
    return text;
}

std::wstring Texts::Reason(DWORD code) const {
    // COM's codes are known by their hexadecimal form.
    wchar_t number[16];
    swprintf(number, 16, code > 0x7FFFFFFF ? L"0x%08lX" : L"%lu", code);
    return Compose(ReasonRow(code), number);
}

std::wstring Texts::Reason(Damage damage, int32_t place, int32_t column) const {
    return Compose(ReasonRow(damage), std::to_wstring(place), std::to_wstring(column));
}
