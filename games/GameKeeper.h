#pragma once

#include "platform/BackgroundFile.h"
#include "platform/Handles.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The game that this program keeps by itself, and the one that was last thrown away, as bytes in the data folder. Each
// program that runs over the folder has files of its own, by a number that a locked file holds for as long as the
// program lives, however it ends.
class GameKeeper {
  public:
    // `folder` with its trailing backslash. `failed` as for BackgroundFile.
    GameKeeper(std::wstring folder, std::function<void(DWORD code)> failed);

    // The most bytes of such a file that are read: more than the files of the longest game take.
    static constexpr size_t LongestKept = 16 << 20;

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

    // The last game. Throw SystemError.
    bool HasLast() const;
    void PutAside(std::string_view bytes) const;
    void ForgetLast() const;
    const std::wstring& LastPath() const { return lastPath; }

    // Gives a file that cannot be read a name of its own, which is returned: it is nobody's any more, and not deleted.
    static std::wstring MoveAway(const std::wstring& path);

  private:
    struct Number {
        int Value;
        UniqueFile Lock;
    };
    static Number TakeNumber(const std::wstring& folder);

    std::wstring PathOf(int value) const;

    const std::wstring folder;
    const Number number;
    const std::wstring lastPath;
    BackgroundFile kept;
};
