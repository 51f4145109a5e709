#pragma once

#include "games/GameCodec.h"

#include <string>
#include <vector>

// The saved games on disk: all lie in one folder, each as up to four files of its name. A game exists when its clock
// file does.
class GameStore {
  public:
    // `folder` with its trailing backslash.
    explicit GameStore(std::wstring folder) : folder(std::move(folder)) {}

    // In alphabetical order, whatever the letter case.
    std::vector<std::wstring> Names() const;

    bool Exists(const std::wstring& name) const;

    std::wstring PathOf(const std::wstring& name, GameFile file) const;

    // Writes the files of a game. All are written beside before the first takes its place, and what has taken it is put
    // back when another cannot; files that are not given stay as they are. Throws SystemError that names the file.
    void SaveGame(const std::wstring& name, const GameFiles& files) const;

    // Reads and checks a game; the error says which file is damaged and how. Throws SystemError for one that cannot be
    // read, other than the PGN.
    std::optional<GameFileError> LoadGame(const std::wstring& name, const Settings& present, SavedGame& game) const;

    // Removes the clock file, the diagram and the moves, as far as they exist; the PGN deliberately stays. Throws
    // SystemError that names the file, when one cannot be removed with all still there.
    void DeleteGame(const std::wstring& name) const;

  private:
    std::wstring folder;
};
