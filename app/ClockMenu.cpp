#include "app/ClockMenu.h"

#include "platform/Form.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <array>
#include <span>

namespace {

constexpr TextId NoKey{0};

struct Entry {
    int Command;  // 0: a separator line
    TextId Text{};
    TextId Key = NoKey;
    bool Available = true;  // false: not at the start
};

constexpr Entry Separator{0};

constexpr std::array GameEntries{
    Entry{mnuStart, TextId::MenuStart, TextId::MenuStartKey},
    Separator,
    Entry{mnuLoad, TextId::MenuLoad},
    Entry{mnuSave, TextId::MenuSave},
    Entry{mnuDelete, TextId::MenuDelete},
    Separator,
    Entry{mnuBringBack, TextId::MenuBringBack, NoKey, false},
    Separator,
    Entry{mnuExit, TextId::MenuExit},
};

constexpr std::array ClockEntries{
    Entry{mnuReset, TextId::MenuReset, TextId::MenuResetKey},
    Entry{mnuPause, TextId::MenuPause},
    Entry{mnuCorrect, TextId::MenuCorrect, NoKey, false},
    Separator,
    Entry{mnuSetup, TextId::MenuSetup, TextId::MenuSetupKey},
    Separator,
    Entry{mnuFullScreen, TextId::MenuFullScreen, TextId::MenuFullScreenKey},
};

constexpr std::array ScorletEntries{
    Entry{mnuShowScorlet, TextId::MenuShow},
    Entry{mnuCloseScorlet, TextId::MenuClose, NoKey, false},
    Separator,
    Entry{mnuPrint, TextId::MenuPrint, NoKey, false},
    Separator,
    Entry{mnuTakeBack, TextId::MenuTakeBack, TextId::MenuTakeBackKey, false},
    Entry{mnuRedo, TextId::MenuRedo, TextId::MenuRedoKey, false},
    Separator,
    Entry{mnuGoOn, TextId::MenuGoOn, NoKey, false},
    Separator,
    Entry{mnuCopyGame, TextId::MenuCopyGame, NoKey, false},
    Entry{mnuCopyPosition, TextId::MenuCopyPosition, NoKey, false},
    Entry{mnuExportPgn, TextId::MenuExportPgn, NoKey, false},
    Separator,
    Entry{mnuTurnBoard, TextId::MenuTurnBoard},
};

constexpr std::array HelpEntries{
    Entry{mnuContents, TextId::MenuContents, TextId::MenuContentsKey},
    Separator,
    Entry{mnuAbout, TextId::MenuAbout},
};

void AppendPopup(HMENU bar, const Texts& texts, TextId caption, std::span<const Entry> entries) {
    const HMENU popup = CreatePopupMenu();
    for (const Entry& entry : entries) {
        if (entry.Command == 0) {
            AppendMenuW(popup, MF_SEPARATOR, 0, nullptr);
            continue;
        }
        const UINT state = entry.Available ? MF_ENABLED : MF_GRAYED;
        AppendMenuW(popup, MF_STRING | state, static_cast<UINT_PTR>(entry.Command),
                    (entry.Key == NoKey ? texts(entry.Text) : texts.WithKey(entry.Text, entry.Key)).c_str());
    }
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), texts(caption).c_str());
}

}  // namespace

HMENU MakeClockMenu(const Texts& texts) {
    const HMENU bar = CreateMenu();
    AppendPopup(bar, texts, TextId::MenuGame, GameEntries);
    AppendPopup(bar, texts, TextId::MenuClock, ClockEntries);
    AppendPopup(bar, texts, TextId::MenuScorlet, ScorletEntries);
    AppendPopup(bar, texts, TextId::MenuHelp, HelpEntries);
    return bar;
}

void NamePauseEntry(HMENU menu, const Texts& texts, bool paused) {
    std::wstring text = texts(paused ? TextId::MenuResume : TextId::MenuPause);
    // The text alone: an entry of an open menu keeps its highlight.
    MENUITEMINFOW entry{};
    entry.cbSize = sizeof(entry);
    entry.fMask = MIIM_STRING;
    entry.dwTypeData = text.data();
    SetMenuItemInfoW(menu, mnuPause, FALSE, &entry);
}

void EnableEntry(HMENU menu, int entry, bool enabled) {
    EnableMenuItem(menu, static_cast<UINT>(entry), MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

UniqueAccelerators MakeClockAccelerators() {
    std::array keys{
        ACCEL{FCONTROL | FVIRTKEY, 'T', mnuStart},
        ACCEL{FCONTROL | FVIRTKEY, 'R', mnuReset},
        ACCEL{FCONTROL | FVIRTKEY, 'Z', mnuTakeBack},
        ACCEL{FCONTROL | FVIRTKEY, 'Y', mnuRedo},
        // Not the entry's own command: the system sends none for a disabled entry, and the player would get no answer.
        ACCEL{FCONTROL | FVIRTKEY, 'S', mnuSetupByKey},
        ACCEL{FVIRTKEY, VK_F6, mnuNextWindow},
        ACCEL{FVIRTKEY, VK_F11, mnuFullScreen},
    };
    return UniqueAccelerators(CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
}

std::optional<bool> PlayerKey(const MSG& message) {
    // By scan codes, which belong to places; see "Keyboard Input Overview" of the Win32 documentation.
    constexpr int PlaceOfA = 0x1E, PlaceOfApostrophe = 0x28;
    const int code = HIWORD(message.lParam) & 0xFF;
    const bool down = message.message == WM_KEYDOWN && !(HIWORD(message.lParam) & (KF_REPEAT | KF_EXTENDED));
    if (!down || (code != PlaceOfA && code != PlaceOfApostrophe)) return std::nullopt;
    // Asked last: every message comes by here, and the state of a key is dear under Wine.
    const bool alone = GetKeyState(VK_CONTROL) >= 0 && GetKeyState(VK_MENU) >= 0;
    return alone ? std::optional(code == PlaceOfApostrophe) : std::nullopt;
}

bool IsForField(const MSG& message) {
    return message.message == WM_KEYDOWN && (message.wParam == 'Z' || message.wParam == 'Y') &&
           IsOfKind(message.hwnd, WC_EDITW);
}
