#include "games/frmFiles.h"

#include "games/ProposedName.h"
#include "platform/Ansi.h"
#include "platform/DialogSizes.h"
#include "platform/SystemError.h"
#include "platform/Today.h"
#include "settings/ShownName.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

// The names of the games, what is known of one, and the buttons.
constexpr int Left = 16, LeftWidth = 350, Summary = 382, SummaryWidth = 228, Right = 626, RightWidth = 126;
constexpr int InSummary = Summary + 17, InSummaryWidth = SummaryWidth - 34;

constexpr DialogItem Panel(int id, int left, int width) {
    return {id, WC_BUTTONW, BS_GROUPBOX | BS_FLAT, {left, 12, width, 372}};
}
constexpr DialogItem Label(int id, Box box, std::optional<TextId> text = std::nullopt) {
    return {id, WC_STATICW, SS_NOPREFIX, box, text};
}
constexpr DialogItem Button(int id, int top, TextId text, DWORD style = BS_PUSHBUTTON) {
    return {id, WC_BUTTONW, WS_TABSTOP | style, {Right, top, RightWidth, 30}, text};
}

constexpr DialogItem SortButton(int id, int left, TextId text, DWORD style = 0) {
    return {id, WC_BUTTONW, WS_TABSTOP | BS_AUTORADIOBUTTON | style, {left, 362, 170, 22}, text};
}
// The players come first, and what is known of the game is quieter.
constexpr DialogItem SummaryLine(int line) {
    const bool player = line < 2;
    return {lblSummary + line,
            WC_STATICW,
            SS_NOPREFIX | SS_ENDELLIPSIS,
            {InSummary, 236 + 22 * line + (player ? 0 : 6), InSummaryWidth, 18},
            std::nullopt,
            player ? Look::Text : Look::QuietText};
}

// The three actions share a place: the mode shows one of them.
constexpr int ActionTop = 12;

// The texts over the field and the list begin with a blank.
constexpr std::array Items{
    Panel(fraGames, Left, LeftWidth),
    Label(lblHint, {Left, 14, LeftWidth, 36}),
    Label(lblGameName, {Left - 4, 58, LeftWidth + 4, 18}, TextId::SelectedGame),
    DialogItem{
        txtGameName, WC_EDITW, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {Left, 77, LeftWidth, DialogItem::FieldHeight}},
    Label(lblGames, {Left - 4, 114, LeftWidth + 4, 18}, TextId::SavedGameList),
    DialogItem{lstGames,
               WC_LISTBOXW,
               WS_TABSTOP | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
               {Left, 133, LeftWidth, 221}},
    SortButton(optByName, Left, TextId::SortByName, WS_GROUP),
    SortButton(optByDate, Left + 180, TextId::SortByDate),
    DialogItem{fraSummary, WC_BUTTONW, BS_GROUPBOX, {Summary, 12, SummaryWidth, 372}},
    Label(lblSummaryNote, {InSummary, 29, InSummaryWidth, 196}),
    DialogItem{picPosition, WC_STATICW, SS_OWNERDRAW, {InSummary, 29, InSummaryWidth, InSummaryWidth}},
    SummaryLine(0),
    SummaryLine(1),
    SummaryLine(2),
    SummaryLine(3),
    SummaryLine(4),
    SummaryLine(5),
    Panel(fraActions, Right, RightWidth),
    Button(cmdLoad, ActionTop, TextId::ButtonLoad, BS_DEFPUSHBUTTON),
    Button(cmdSave, ActionTop, TextId::ButtonSave, BS_DEFPUSHBUTTON),
    Button(cmdDelete, ActionTop, TextId::ButtonDelete, BS_DEFPUSHBUTTON),
    Button(cmdCancel, 52, TextId::ButtonClose),
    Button(cmdHelp, 354, TextId::ButtonGamesHelp),
};

// What differs between the modes.
struct ModeTexts {
    int Button;
    TextId Hint, Title, NameMissing;
};
constexpr std::array Modes{
    ModeTexts{cmdLoad, TextId::HintLoad, TextId::LoadTitle, TextId::SelectGameToLoad},
    ModeTexts{cmdSave, TextId::HintSave, TextId::SaveTitle, TextId::EnterNameToSave},
    ModeTexts{cmdDelete, TextId::HintDelete, TextId::DeleteTitle, TextId::SelectGameToDelete},
};
constexpr const ModeTexts& Of(FilesMode mode) { return Modes[static_cast<size_t>(mode)]; }

}  // namespace

void frmFiles::Open(HWND owner) {
    Create(owner, L"frmFiles", Of(mode).Title, L"DISKETTE.ICO", DialogSize::Files, Items);
    for (const ModeTexts& texts : Modes) SetVisible(texts.Button, texts.Button == Of(mode).Button);
    SetText(lblHint, captions(Of(mode).Hint));
    nameField.Attach();
    toolTips.Create();
    SendMessageW(Control(optByName), BM_SETCHECK, BST_CHECKED, 0);
    games = store.Games();
    Sort(games, order);
    FillGameList();
    summary.ShowNote(captions(TextId::SummaryOfNone));
    if (mode != FilesMode::Save) return;
    SetText(txtGameName, NameToPropose());
    // What is typed takes its place.
    SendMessageW(Control(txtGameName), EM_SETSEL, 0, -1);
}

std::wstring frmFiles::NameToPropose() const {
    if (!game.Name().empty()) return game.Name();
    std::array<std::wstring, 2> players, sides;
    for (const Side side : BothSides) {
        players[side] = KnownName(game.Options(), captions, side);
        sides[side] = captions.SideName(side);
    }
    return ProposedName(players, sides, Today(), [this](const std::wstring& name) { return store.Exists(name); });
}

LRESULT frmFiles::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return 0;
    }
    if (message == WM_HELP) {
        openHelp(Window());
        return TRUE;
    }
    if (message == WM_DRAWITEM) {
        summary.DrawBoard(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return Dialog::Handle(message, wParam, lParam);
}

std::wstring frmFiles::SpokenName(int id) const {
    switch (id) {
        case fraGames: return captions(TextId::GameGroup);
        case fraSummary: return captions(TextId::SummaryGroup);
        case fraActions: return captions(TextId::ActionGroup);
        case lstGames: return captions(TextId::SavedGameList);
        case picPosition: return summary.SpokenBoard();
        default: return {};
    }
}

// With the game that is chosen its summary is said.
std::wstring frmFiles::SpokenPart(int, int part) const {
    if (part > static_cast<int>(games.size())) return {};
    const ListedGame& listed = games[static_cast<size_t>(part) - 1];
    return &listed == Picked() ? listed.Name + L", " + summary.Spoken() : listed.Name;
}

int frmFiles::DefaultButton() const { return Of(mode).Button; }

// The running clock waits meanwhile: without drawing, the list takes thousands of names in no time.
void frmFiles::FillGameList() {
    const HWND list = Control(lstGames);
    size_t characters = 0;
    for (const ListedGame& listed : games) characters += listed.Name.size() + 1;
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SendMessageW(list, LB_INITSTORAGE, games.size(), static_cast<LPARAM>(characters * sizeof(wchar_t)));
    for (const ListedGame& listed : games)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(listed.Name.c_str()));
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void frmFiles::RemoveFromList(const std::wstring& name) {
    const HWND list = Control(lstGames);
    const LRESULT index =
        SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name.c_str()));
    if (index < 0) return;
    SendMessageW(list, LB_DELETESTRING, static_cast<WPARAM>(index), 0);
    games.erase(games.begin() + index);
    if (!Picked()) summary.ShowNote(captions(TextId::SummaryOfNone));
}

// Null while none is.
const ListedGame* frmFiles::Picked() const {
    const LRESULT index = SendMessageW(Control(lstGames), LB_GETCURSEL, 0, 0);
    return index < 0 ? nullptr : &games[static_cast<size_t>(index)];
}

void frmFiles::ShowSummary(const ListedGame& picked) {
    SavedGame saved;
    try {
        if (const auto error = store.LoadGame(picked.Name, game.Options(), saved)) {
            if (!store.Exists(picked.Name))
                return summary.ShowNote(captions(TextId::GameBefore) + picked.Name + captions(TextId::NotFound));
            const std::wstring reason = captions.Reason(error->What, error->Place, error->Column);
            return summary.ShowNote(
                captions.Compose(TextId::SummaryOfDamaged, FromAnsi(ExtensionOf(error->File)), reason));
        }
    } catch (const SystemError& error) {
        const std::wstring& path = error.Thing();
        const std::wstring ending = path.substr(std::min(path.rfind(L'.'), path.size()));
        return summary.ShowNote(captions.Compose(TextId::SummaryOfUnreadable, ending, captions.Reason(error.Code())));
    }
    summary.ShowGame(saved, picked.Changed, game.BoardTurned());
}

void frmFiles::OnCommand(int id, int notification) {
    switch (id) {
        case lstGames:
            if (notification == LBN_SELCHANGE || notification == LBN_DBLCLK) OnPick();
            if (notification == LBN_DBLCLK) Act();
            return;
        case txtGameName:
            if (notification == EN_CHANGE) OnNameChange();
            return;
        case optByName: return OnSort(GameOrder::ByName);
        case optByDate: return OnSort(GameOrder::LatestFirst);
        case cmdLoad:
        case cmdSave:
        case cmdDelete: return Act();
        case cmdCancel: return Close();
        case cmdHelp: return openHelp(Window());
        default: return;
    }
}

void frmFiles::OnPick() {
    const ListedGame* const picked = Picked();
    if (!picked) return;
    SetText(txtGameName, picked->Name);
    toolTips.Set(lstGames, picked->Name);
    ShowSummary(*picked);
}

void frmFiles::OnSort(GameOrder wanted) {
    // A button that comes to have the focus says that it is chosen, too.
    if (std::exchange(order, wanted) == wanted) return;
    const ListedGame* const picked = Picked();
    const std::wstring name = picked ? picked->Name : std::wstring();
    Sort(games, order);
    FillGameList();
    if (!picked) return;
    const auto place = std::ranges::find(games, name, &ListedGame::Name) - games.begin();
    SendMessageW(Control(lstGames), LB_SETCURSEL, static_cast<WPARAM>(place), 0);
}

void frmFiles::OnNameChange() {
    nameField.OnChange();
    toolTips.Set(txtGameName, typed.LastGood());
}

void frmFiles::Act() {
    const std::wstring name = Text(txtGameName);
    if (name.empty()) return Tell(texts(Of(mode).NameMissing));
    // A game that has such a name all the same can be loaded, replaced and deleted.
    const auto fault = FaultOfName(name);
    if (fault && !store.Exists(name)) return Tell(texts.Compose(*fault, name, std::to_wstring(GameName::Longest)));
    switch (mode) {
        case FilesMode::Load: return OnLoad(name);
        case FilesMode::Save: return OnSave(name);
        case FilesMode::Delete: return OnDelete(name);
    }
}

void frmFiles::OnLoad(const std::wstring& name) {
    const std::wstring notFound = texts(TextId::GameBefore) + name + texts(TextId::NotFound);
    if (!store.Exists(name)) return Tell(notFound);
    if (!Ask(texts(TextId::GameBefore) + name + texts(TextId::WillBeLoaded), !game.SomethingToLose())) return;
    Chosen chosen{name, {}};
    try {
        if (const auto error = store.LoadGame(name, game.Options(), chosen.Saved)) {
            // It may have been removed while the question was open.
            if (!store.Exists(name)) return Tell(notFound);
            const std::wstring reason = texts.Reason(error->What, error->Place, error->Column);
            return Tell(texts.Compose(TextId::GameDamaged, store.PathOf(name, error->File), reason));
        }
    } catch (const SystemError& error) {
        return Tell(texts.Compose(TextId::GameNotRead, error.Thing(), texts.Reason(error.Code())));
    }
    if (chosen.Saved.PgnUnreadable) Tell(texts.Compose(TextId::TextMadeAnew, store.PathOf(name, PgnFile)));
    loaded = std::move(chosen);
    Close();
}

// Overwriting preselects No, a new name Yes: deliberately.
void frmFiles::OnSave(const std::wstring& name) {
    const bool exists = store.Exists(name);
    const bool wanted = exists ? Ask(texts(TextId::OverwriteBefore) + name + texts(TextId::OverwriteAfter), false)
                               : Ask(texts(TextId::SaveAs) + name);
    if (!wanted) return;
    try {
        Settings shown = game.Options();
        for (Side side : BothSides) SetName(shown, side, ShownName(shown, texts, side));
        const GameFiles files = game.Encode(shown, Today());
        if (const auto fault = FaultOf(files)) {
            const std::wstring reason = texts.Reason(fault->What, fault->Place, fault->Column);
            return Tell(texts.Compose(TextId::GameNotSaved, store.PathOf(name, fault->File), reason));
        }
        store.SaveGame(name, files);
    } catch (const SystemError& error) {
        return Tell(texts.Compose(TextId::GameNotSaved, error.Thing(), texts.Reason(error.Code())));
    }
    game.SavedAs(name);
    Close();
}

void frmFiles::OnDelete(const std::wstring& name) {
    if (!store.Exists(name)) return Tell(texts(TextId::SavedGameBefore) + name + texts(TextId::SavedGameNotFound));
    if (!Ask(texts(TextId::SavedGameBefore) + name + texts(TextId::WillBeDeleted), false)) return;
    try {
        store.DeleteGame(name);
        SetText(txtGameName, L"");
        toolTips.Set(lstGames, L"");
    } catch (const SystemError& error) {
        Tell(texts.Compose(TextId::GameNotDeleted, error.Thing(), texts.Reason(error.Code())));
    }
    if (!store.Exists(name)) RemoveFromList(name);
}

void frmFiles::Tell(const std::wstring& text) const { messageBoxes.Inform(Window(), text, Of(mode).Title); }

bool frmFiles::Ask(const std::wstring& text, bool yesIsDefault) const {
    return messageBoxes.Ask(Window(), text, yesIsDefault, Of(mode).Title);
}
