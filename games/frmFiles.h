#pragma once

#include "games/Game.h"
#include "games/GameName.h"
#include "games/GameStore.h"
#include "games/SummaryPane.h"
#include "platform/Dialog.h"
#include "platform/FilteredEdit.h"
#include "platform/ToolTips.h"
#include "resources/resource.h"

#include <functional>
#include <optional>

enum class FilesMode { Load, Save, Delete };

// The dialog through which games are loaded, saved and deleted: the saved games, a summary of the one that is chosen, a
// name, and the one action of its mode. No game is read before it is chosen.
class frmFiles : public Dialog {
  public:
    // `store` and `game` must outlive the dialog. `openHelp` opens the help page of saved games over a window.
    frmFiles(const Surroundings& around, const GameStore& store, Game& game, FilesMode mode,
             std::function<void(HWND)> openHelp)
        : Dialog(around, {around.System.Look.BackgroundColour, Look::Card}),
          store(store),
          game(game),
          mode(mode),
          openHelp(std::move(openHelp)) {}

    // Throws SystemError.
    void Open(HWND owner);

    // A game that has been chosen for loading, read and checked, with its name. The running game is untouched.
    struct Chosen {
        std::wstring Name;
        SavedGame Saved;
    };
    const std::optional<Chosen>& Loaded() const { return loaded; }

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override;
    std::wstring SpokenPart(int id, int part) const override;
    int DefaultButton() const override;

    std::wstring NameToPropose() const;
    void FillGameList();
    void RemoveFromList(const std::wstring& name);
    const ListedGame* Picked() const;
    void ShowSummary(const ListedGame& picked);

    void OnCommand(int id, int notification);
    void OnPick();
    void OnSort(GameOrder wanted);
    void OnNameChange();
    void OnLoad(const std::wstring& name);
    void OnSave(const std::wstring& name);
    void OnDelete(const std::wstring& name);

    void Act();
    void Tell(const std::wstring& text) const;
    bool Ask(const std::wstring& text, bool yesIsDefault = true) const;

    const GameStore& store;
    Game& game;
    FilesMode mode;
    std::function<void(HWND)> openHelp;
    std::optional<Chosen> loaded;
    std::vector<ListedGame> games;  // as the list shows them
    GameOrder order = GameOrder::ByName;
    SummaryPane summary{*this, captions};
    GameName typed;
    FilteredEdit nameField{
        *this, txtGameName, [this](const std::wstring& text) { return typed.Changed(text); },
        [this](wchar_t character, const std::wstring& text) { return typed.TakesKey(character, text); }};
    ToolTips toolTips{*this};
};
