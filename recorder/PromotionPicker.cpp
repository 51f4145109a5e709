#include "recorder/PromotionPicker.h"

#include "base/AsciiCase.h"

#include <commctrl.h>

#include <array>
#include <utility>

namespace {

constexpr std::array Kinds{PieceKind::Queen, PieceKind::Rook, PieceKind::Bishop, PieceKind::Knight};
constexpr std::array Names{TextId::PromotionQueen, TextId::PromotionRook, TextId::PromotionBishop,
                           TextId::PromotionKnight};

constexpr size_t ChoiceOf(int id) { return static_cast<size_t>(id - imgPromotionQ); }

}  // namespace

PieceKind PromotionPicker::KindOf(int id) { return Kinds[ChoiceOf(id)]; }

void PromotionPicker::Create() const {
    form.AddControl(WC_STATICW, lblPromotion, SS_CENTERIMAGE);
    for (int id = imgPromotionQ; id <= imgPromotionN; ++id) form.AddControl(WC_BUTTONW, id, WS_TABSTOP | BS_OWNERDRAW);
}

void PromotionPicker::ApplyTexts(const Texts& texts) const {
    form.SetText(lblPromotion, texts(TextId::PromoteTo));
    for (int id = imgPromotionQ; id <= imgPromotionN; ++id) form.SetText(id, texts(Names[ChoiceOf(id)]));
}

void PromotionPicker::Show() {
    const auto piece = recorder.Promoting();
    const bool waits = piece && ::KindOf(*piece) == PieceKind::Pawn;
    const Square before = std::exchange(pawn, waits ? *recorder.PromotionSquare() : NoSquare);
    if (pawn != before) {
        left = false;
        marked = 0;
    }
    for (int id = lblPromotion; id <= imgPromotionN; ++id) form.SetVisible(id, piece.has_value());
    if (piece) Redraw();
}

void PromotionPicker::ShowMark() {
    if (TakesKeys() != markShown) Redraw();
}

void PromotionPicker::Redraw() {
    markShown = TakesKeys();
    for (int id = imgPromotionQ; id <= imgPromotionN; ++id) InvalidateRect(form.Control(id), nullptr, FALSE);
}

void PromotionPicker::Draw(const DRAWITEMSTRUCT& item) const {
    const size_t choice = ChoiceOf(static_cast<int>(item.CtlID));
    const Side side = recorder.Promoting() ? SideOf(*recorder.Promoting()) : White;
    painter.DrawPromotion(item, PieceOf(side, Kinds[choice]), pawn != NoSquare, TakesKeys() && choice == marked);
}

void PromotionPicker::Mark(size_t choice) {
    marked = choice % Kinds.size();
    Redraw();
}

bool PromotionPicker::OnKey(WPARAM key, std::optional<PieceKind>& chosen) {
    if (!TakesKeys()) return false;
    switch (key) {
        case VK_RIGHT:
        case VK_DOWN: Mark(marked + 1); return true;
        case VK_LEFT:
        case VK_UP: Mark(marked + Kinds.size() - 1); return true;
        case VK_RETURN: chosen = Kinds[marked]; return true;
        case VK_ESCAPE:
            left = true;
            Redraw();
            return true;
        default: return false;
    }
}

std::optional<PieceKind> PromotionPicker::OnCharacter(wchar_t character) const {
    if (!TakesKeys()) return std::nullopt;
    for (const PieceKind kind : Kinds) {
        if (AsciiUpper(character) == static_cast<wchar_t>(PieceLetter(kind))) return kind;
    }
    return std::nullopt;
}

std::wstring PromotionPicker::SpokenText(const Texts& texts) const {
    return texts(TextId::PromoteTo) + L", " + texts(Names[marked]);
}
