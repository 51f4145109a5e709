#include "recorder/BoardMouse.h"

#include <cstdlib>

void BoardMouse::Press(POINT point) {
    pressed = point;
    SetCapture(form.Window());
}

void BoardMouse::Move(POINT point) {
    if (!pressed) return;
    POINT onScreen = point;
    ClientToScreen(form.Window(), &onScreen);
    if (!input.Lifted()) {
        const bool stays = std::abs(point.x - pressed->x) <= GetSystemMetrics(SM_CXDRAG) &&
                           std::abs(point.y - pressed->y) <= GetSystemMetrics(SM_CYDRAG);
        if (stays || !input.Lift()) return;
        dragging = true;
        picture.Show(form.Window(), painter.PictureOf(input.PickedPiece()), layout.CellSize, onScreen);
    } else {
        picture.MoveTo(onScreen);
    }
    input.PointAt(SquareAt(point));
}

std::optional<ChosenLine> BoardMouse::Release(POINT point) {
    if (!pressed) return std::nullopt;
    const auto line = input.Lifted() ? input.Drop(SquareAt(point)) : std::nullopt;
    ReleaseCapture();
    return line;
}

void BoardMouse::CaptureLost() {
    pressed.reset();
    if (input.Lifted()) input.Cancel();
}

void BoardMouse::Follow() {
    if (dragging && !input.Lifted()) {
        dragging = false;
        // First the piece on the board: between the two pictures none must be missing.
        RedrawWindow(form.Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        picture.Hide();
        ReleaseCapture();
    }
}
