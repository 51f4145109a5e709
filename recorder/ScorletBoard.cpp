#include "recorder/ScorletBoard.h"

#include "platform/Ansi.h"
#include "platform/Painting.h"
#include "platform/Subclass.h"
#include "recorder/EndingKeys.h"

#include <commctrl.h>

static_assert(CapturedSlots == SlotsPerSide);

namespace {

template <typename Action>
void ForEachSquare(Action action) {
    for (int rank = 8; rank >= 1; --rank) {
        for (int file = 1; file <= 8; ++file) action(SquareAt(file, rank));
    }
}

void MoveTo(HWND control, const Box& box) {
    SetWindowPos(control, nullptr, box.Left, box.Top, box.Width, box.Height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void ScorletBoard::Create() {
    constexpr DWORD drawn = WS_VISIBLE | SS_OWNERDRAW | WS_CLIPSIBLINGS;
    // The cells lie above the board, so they come before it.
    ForEachSquare([&](Square square) { form.AddControl(WC_STATICW, CellOf(square), drawn); });
    Subclass<Procedure>(form.AddControl(WC_STATICW, picBoard, drawn | WS_TABSTOP), this);
}

void ScorletBoard::CreateCaptured() const {
    for (int i = 0; i < 2 * CapturedSlots; ++i) form.AddControl(WC_STATICW, imgCapturedWQ + i, SS_OWNERDRAW);
}

void ScorletBoard::Place(const ScorletLayout& newLayout) {
    if (newLayout.Turned != layout.Turned) {
        // So that reading begins at the top left again: what is put on top last comes first.
        ForEachSquare([&](Square square) {
            const Square next = newLayout.Turned ? square : SquareAt(9 - FileOf(square), 9 - RankOf(square));
            SetWindowPos(form.Control(CellOf(next)), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        });
    }
    layout = newLayout;
    ForEachSquare(
        [&](Square square) { MoveTo(form.Control(CellOf(square)), layout.Cell(FileOf(square), RankOf(square))); });
    MoveTo(form.Control(picBoard), layout.Board);
    ShowCaptured();
}

void ScorletBoard::Show() {
    ForEachSquare([&](Square square) {
        std::optional<CellLook>& shown = shownCells[static_cast<size_t>(square)];
        const CellLook look = input.LookOf(square);
        if (look == shown) return;
        shown = look;
        form.SetText(CellOf(square), FromAnsi(PieceCode(look.Shown)));
        InvalidateRect(form.Control(CellOf(square)), nullptr, FALSE);
    });
    ShowCaptured();
    if (shownEarlier == input.ShowsEarlier()) return;
    shownEarlier = !shownEarlier;
    InvalidateRect(form.Control(picBoard), nullptr, FALSE);
}

// The pieces of a side lie side by side from the left, without room for those that are not captured.
void ScorletBoard::ShowCaptured() {
    std::array<int, 2> places{};
    for (int i = 0; i < 2 * CapturedSlots; ++i) {
        const auto [piece, slot] = SlotOf(i);
        std::optional<SlotLook> look;
        if (input.Shown().CapturedShown(piece, slot)) {
            const bool picked = input.IsPicked(piece, slot);
            look = SlotLook{layout.Captured(SideOf(piece), places[SideOf(piece)]++), picked, picked && input.Lifted()};
        }
        std::optional<SlotLook>& shown = shownSlots[static_cast<size_t>(i)];
        if (look == shown) continue;
        shown = look;
        if (look) {
            MoveTo(form.Control(imgCapturedWQ + i), look->Place);
            InvalidateRect(form.Control(imgCapturedWQ + i), nullptr, FALSE);
        }
        form.SetVisible(imgCapturedWQ + i, look.has_value());
    }
}

void ScorletBoard::DrawNow() const {
    // The system would ask for one control after the other, which takes it longer than drawing does.
    const HWND window = form.Window();
    const RECT area = RectOf(layout.Board);
    const WindowDc dc = WindowDc::OverChildren(window);
    if (!dc.Dc()) return;
    const auto draw = [&](int id, const Box& place) {
        Draw({ODT_STATIC, static_cast<UINT>(id), 0, ODA_DRAWENTIRE, 0, form.Control(id), dc.Dc(), RectOf(place), 0});
    };
    draw(picBoard, layout.Board);
    ForEachSquare([&](Square square) { draw(CellOf(square), layout.Cell(FileOf(square), RankOf(square))); });
    RedrawWindow(window, &area, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
}

void ScorletBoard::Draw(const DRAWITEMSTRUCT& item) const {
    const int id = static_cast<int>(item.CtlID);
    if (id == picBoard) {
        painter.DrawBoardEdge(item, layout, input.ShowsEarlier());
    } else if (IsCaptured(id)) {
        const auto [piece, slot] = SlotOf(id - imgCapturedWQ);
        const bool picked = input.IsPicked(piece, slot);
        painter.DrawCaptured(item, picked && input.Lifted() ? Piece::Empty : piece, picked);
    } else if (IsCell(id)) {
        const auto square = static_cast<Square>(id - picBoard);
        CellLook look = input.LookOf(square);
        look.Cursor = look.Cursor && GetFocus() == form.Control(picBoard);
        painter.DrawCell(item, square, look);
    }
}

LRESULT CALLBACK ScorletBoard::Procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR self) {
    const auto& board = *reinterpret_cast<const ScorletBoard*>(self);
    switch (message) {
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS | WantsEndingKeys(lParam);
        case WM_KEYDOWN:
            // A held arrow moves on; a held Enter must not pick and drop in turns.
            if (HIWORD(lParam) & KF_REPEAT && IsEndingKey(wParam)) return 0;
            if (SendMessageW(board.form.Window(), WM_BOARDKEY, wParam, 0)) return 0;
            break;
        case WM_CHAR:
            if (SendMessageW(board.form.Window(), WM_BOARDCHARACTER, wParam, 0)) return 0;
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            // The cursor is shown only while its keys work.
            InvalidateRect(board.form.Control(CellOf(board.input.Cursor())), nullptr, FALSE);
            break;
        default: break;
    }
    return DefSubclassProc(control, message, wParam, lParam);
}
