#pragma once

#include "games/GameCodec.h"
#include "games/GameList.h"
#include "games/SavingMark.h"

#include <string>
#include <vector>

// The saved games on disk: all lie in one folder, each as up to four files of its name. A game exists when its clock
// file does.
class GameStore {
  public:
    // `folder` with its trailing backslash.
    explicit GameStore(std::wstring folder) : folder(std::move(folder)) {}

    // As the folder lists them; no file of a game is opened.
    std::vector<ListedGame> Games() const;

    bool Exists(const std::wstring& name) const;

    std::wstring PathOf(const std::wstring& name, GameFile file) const;

    // Writes the files of a game in one step: at whatever moment the program ends, the game is the old one or the new
    // one as soon as it is settled. Programs that save the same game come one after the other. Files that are not given
    // stay as they are. Throws SystemError that names the file; the old game is then there.
    void SaveGame(const std::wstring& name, const GameFiles& files) const;

    // Reads and checks a game; the error says which file is damaged and how. Throws SystemError for one that cannot be
    // read, other than the PGN.
    std::optional<GameFileError> LoadGame(const std::wstring& name, const Settings& present, SavedGame& game) const;

    // Removes the clock file, the diagram and the moves, as far as they exist; the PGN deliberately stays. Throws
    // SystemError that names the file, when one cannot be removed with all still there.
    void DeleteGame(const std::wstring& name) const;

    // Settles what programs that ended while they saved have left; loading, saving and deleting do so for their game.
    void SettleAll() const;

  private:
    std::wstring MarkOf(const std::wstring& name) const;
    void Settle(const std::wstring& name, const SavingMark& mark) const;
    void SettleIfLeft(const std::wstring& name) const;

    std::wstring folder;
};
