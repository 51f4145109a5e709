#pragma once

#include "games/GameName.h"
#include "games/GameStore.h"
#include "platform/Dialog.h"
#include "platform/FilteredEdit.h"
#include "platform/ToolTips.h"
#include "resources/resource.h"

// What the file dialog needs from the game on the clock and the Scorlet.
class GameHost {
  public:
    virtual GameFiles FilesOfGame() = 0;  // as it stands
    virtual void GameSaved() = 0;         // what FilesOfGame gave
    virtual const Settings& PresentSettings() const = 0;
    virtual void TakeGame(const std::wstring& name, SavedGame& game) = 0;
    virtual void OpenHelp(HWND owner) = 0;

  protected:
    ~GameHost() = default;
};

enum class FilesMode { Load, Save, Delete };

// The dialog through which games are loaded, saved and deleted: the saved games, a name, and the one action of its
// mode.
class frmFiles : public Dialog {
  public:
    // All of them must outlive the dialog.
    frmFiles(const Texts& texts, const MessageBoxes& messageBoxes, uint32_t background, const GameStore& games,
             GameHost& host, FilesMode mode)
        : Dialog(texts, messageBoxes, background), games(games), host(host), mode(mode) {}

    // Throws SystemError.
    void Open(HWND owner);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override;
    int DefaultButton() const override;

    void FillGameList();
    void ClearGameList() const;

    void OnCommand(int id, int notification);
    void OnPick();
    void OnNameChange();
    void OnLoad(const std::wstring& name);
    void OnSave(const std::wstring& name);
    void OnDelete(const std::wstring& name);

    void Act();
    void Tell(const std::wstring& text) const;
    bool Ask(const std::wstring& text, bool yesIsDefault = true) const;

    const GameStore& games;
    GameHost& host;
    FilesMode mode;
    GameName typed;
    FilteredEdit nameField{*this, txtGameName, [this](const std::wstring& text) { return typed.Changed(text); },
                           [this](wchar_t character, const std::wstring& text) {
                               return typed.TakesKey(character, text);
                           }};
    ToolTips toolTips{*this};
};
