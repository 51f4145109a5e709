#pragma once

#include "platform/BackgroundFile.h"
#include "platform/Handles.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The game that this program keeps by itself, and the last ones that were thrown away, as bytes in the data folder.
// Each program that runs over the folder keeps a game of its own, by a number that a locked file holds for as long as
// the program lives, however it ends. The last games are common to all: what one program has thrown away, another one,
// or the next, can bring back.
class GameKeeper {
  public:
    // `folder` with its trailing backslash. `failed` as for BackgroundFile.
    GameKeeper(std::wstring folder, std::function<void(DWORD code)> failed);

    // The most bytes of such a file that are read: more than the files of the longest game take.
    static constexpr size_t LongestKept = 16 << 20;
    static constexpr size_t MostLast = 20;

    // A game that no running program keeps any more.
    struct Orphan {
        std::wstring Path;
        UniqueFile
            Lock;  // keeps other programs from offering it meanwhile; none where the number is this program's own
    };
    std::vector<Orphan> Orphans() const;
    // In one step it becomes the game that this program keeps, or the last one. Throw SystemError.
    void Adopt(const Orphan& orphan) const;
    void MakeLast(const Orphan& orphan) const;

    // On the disk a moment later.
    void Keep(std::string bytes) { kept.Replace(std::move(bytes)); }
    void KeepNothing() { kept.Remove(); }
    // Returns when what was kept is on the disk; false where it could not be written.
    bool Finish() { return kept.Finish(); }

    // Makes a game the last one; those before it are kept too, up to MostLast. Throws SystemError.
    void PutAside(std::string_view bytes) const;
    // The file of the last game; empty where there is none.
    std::wstring LastPath() const;
    // Deletes one of these files: the game before it is the last one then. Throws SystemError.
    static void Forget(const std::wstring& path);

    // Gives a file that cannot be read a name of its own, which is returned: it is nobody's any more, and not deleted.
    static std::wstring MoveAway(const std::wstring& path);

  private:
    struct Number {
        int Value;
        UniqueFile Lock;
    };
    static Number TakeNumber(const std::wstring& folder);

    std::wstring PathOf(int value) const;
    std::vector<int> LastNumbers() const;  // of the last games, the oldest first
    std::wstring NextLastPath() const;
    void ForgetOldest() const;

    const std::wstring folder;
    const Number number;
    BackgroundFile kept;
};
