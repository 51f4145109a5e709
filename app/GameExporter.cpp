#include "app/GameExporter.h"

#include "games/GameHead.h"
#include "platform/Ansi.h"
#include "platform/Clipboard.h"
#include "platform/CommonControls.h"
#include "platform/Files.h"
#include "platform/OtherWindowsDisabled.h"
#include "platform/SystemError.h"
#include "platform/Today.h"
#include "recorder/StandardNotation.h"
#include "settings/ShownName.h"

#include <commdlg.h>

#include <algorithm>

namespace {

constexpr size_t LongestPath = 32'768;

// The path of a file, which may be there already; empty where none has been named.
std::wstring AskForFile(HWND owner, const std::wstring& title) {
    const OtherWindowsDisabled modal(owner);
    std::wstring path(LongestPath, L'\0');
    OPENFILENAMEW request{};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner;
    request.lpstrFilter = L"*.pgn\0*.pgn\0";
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    request.lpstrTitle = title.c_str();
    request.lpstrDefExt = L"pgn";
    request.Flags = OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    const CommonControls controls;
    if (!GetSaveFileNameW(&request)) return L"";
    path.resize(path.find(L'\0'));
    return path;
}

}  // namespace

GameReading GameExporter::Read() const { return ReadGame(game.Record()->Lists(), game.Record()->Position()); }

std::wstring GameExporter::TextOf(const GameReading& reading) const {
    ExportHead head;
    head.Control = game.Options().Control;
    if (!game.BegunEarlier()) head.Date = Today();
    for (Side side : BothSides) head.Names[side] = ToUtf8(KnownName(game.Options(), texts, side));
    GameReading encoded = reading;
    for (std::string& entry : encoded.Written) entry = ToUtf8(FromAnsi(entry));
    const std::wstring lines =
        FromUtf8(ExportGame(head, encoded, ResultToken(game.Record()->Lists()), game.TimesAtPresses()));
    std::wstring text;
    for (const wchar_t character : lines) text += character == L'\n' ? L"\r\n" : std::wstring{character};
    return text;
}

std::wstring GameExporter::Unclear(const GameReading& reading) const {
    const auto move = [&](TextId row) {
        return texts.Compose(row, texts.SideName(reading.HalfMove % 2 == 0 ? White : Black),
                             std::to_wstring(reading.HalfMove / 2 + 1), FromAnsi(reading.Written[reading.HalfMove]));
    };
    switch (reading.Finding) {
        case GameFinding::NotUnderstood: return move(TextId::MoveNotUnderstood);
        case GameFinding::SeveralWays: return move(TextId::MoveNotClear);
        case GameFinding::OtherPosition: return texts(TextId::PositionDiffers);
        case GameFinding::Whole: break;
    }
    return L"";
}

void GameExporter::CopyGame(HWND owner) const {
    if (!game.Record()) return;
    const GameReading reading = Read();
    if (Copy(owner, TextOf(reading))) Tell(owner, Unclear(reading));
}

void GameExporter::CopyPosition(HWND owner) const {
    if (!game.Record()) return;
    const GameReading reading = Read();
    const LegalPosition position =
        reading.Understood() ? reading.Position() : PositionOf(game.Record()->Position(), game.Record()->SideToMove());
    if (!Copy(owner, FromAnsi(ForsythText(position))) || reading.Understood()) return;
    Tell(owner, Unclear(reading) + L"\n\n" + texts(TextId::BoardAlone));
}

void GameExporter::Export(HWND owner) const {
    if (!game.Record()) return;
    std::wstring title = texts(TextId::MenuExportPgn);
    std::erase_if(title, [](wchar_t character) { return character == L'&' || character == L'.'; });
    const std::wstring path = AskForFile(owner, title);
    if (path.empty() || !game.Record()) return;
    const GameReading reading = Read();
    try {
        ReplaceFileBytes(path, ToUtf8(TextOf(reading)));
    } catch (const SystemError& error) {
        return Tell(owner, texts.Compose(TextId::GameNotSaved, error.Thing(), texts.Reason(error.Code())));
    }
    Tell(owner, Unclear(reading));
}

bool GameExporter::Copy(HWND owner, const std::wstring& text) const {
    const DWORD code = PutOnClipboard(owner, text);
    if (code != 0) Tell(owner, texts.Compose(TextId::GameNotCopied, texts.Reason(code)));
    return code == 0;
}

void GameExporter::Tell(HWND owner, const std::wstring& message) const {
    if (!message.empty()) messageBoxes.Inform(owner, message);
}
