#include "recorder/ListMenu.h"

#include "resources/resource.h"

void ShowListMenu(HWND owner, POINT point, const Texts& texts, const ScorletGame& game, bool lineChosen) {
    const HMENU menu = CreatePopupMenu();
    const auto append = [&](int entry, const std::wstring& text, bool enabled) {
        AppendMenuW(menu, MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED), static_cast<UINT_PTR>(entry), text.c_str());
    };
    append(mnuEditMove, texts(TextId::EditMove), lineChosen);
    append(mnuPrintMoveList, texts(TextId::PrintMoveList), true);
    append(mnuDeleteLastMove, texts(TextId::DeleteLastMove), lineChosen);
    append(mnuTakeBack, texts.WithKey(TextId::MenuTakeBack, TextId::MenuTakeBackKey), game.CanTakeBack());
    append(mnuRedo, texts.WithKey(TextId::MenuRedo, TextId::MenuRedoKey), game.CanRedo());
    TrackPopupMenu(menu, TPM_RIGHTBUTTON, point.x, point.y, 0, owner, nullptr);
    DestroyMenu(menu);
}
