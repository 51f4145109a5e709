#include "recorder/TypedMoveField.h"

#include "platform/Ansi.h"
#include "resources/resource.h"

#include <commctrl.h>

namespace {

constexpr WPARAM LongestTyped = 16;

}  // namespace

TypedMoveField::TypedMoveField(Form& form) : form(form), entry(form, txtTypedMove) {}

void TypedMoveField::Create(UINT endMessage) {
    entry.Create(endMessage);
    SendMessageW(form.Control(txtTypedMove), EM_LIMITTEXT, LongestTyped, 0);
    form.AddControl(WC_STATICW, lblTypedMove, SS_NOPREFIX);
}

bool TypedMoveField::Open() const { return IsWindowVisible(form.Control(txtTypedMove)) != 0; }

void TypedMoveField::Show(wchar_t first) const {
    Explain({});
    // Turning the board puts its squares on top.
    for (const int id : {lblTypedMove, txtTypedMove})
        SetWindowPos(form.Control(id), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SendMessageW(entry.Show(std::wstring(1, first)), EM_SETSEL, 1, 1);
}

void TypedMoveField::Hide() const {
    Explain({});
    form.SetVisible(txtTypedMove, false);
}

std::optional<MatchedMove> TypedMoveField::Match(const Recorder& record, const Texts& texts) const {
    const auto matches = MatchMoves(record.Position(), record.SideToMove(), ToAnsi(form.Text(txtTypedMove)));
    if (matches.size() == 1) return matches.front();
    std::wstring moves;
    for (const MatchedMove& match : matches) moves += (moves.empty() ? L"" : L", ") + FromAnsi(FullText(match.Played));
    Explain(moves.empty() ? texts(TextId::NoMoveMatches) : texts.Compose(TextId::SeveralMovesMatch, moves));
    return std::nullopt;
}

void TypedMoveField::Explain(const std::wstring& why) const {
    form.SetText(lblTypedMove, why);
    form.SetVisible(lblTypedMove, !why.empty());
}

std::wstring TypedMoveField::SpokenText(const Texts& texts) const {
    const std::wstring reason = form.Text(lblTypedMove);
    return texts(TextId::TypedMove) + (reason.empty() ? L"" : L", " + reason);
}
