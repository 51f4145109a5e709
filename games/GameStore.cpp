#include "games/GameStore.h"

#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/SystemError.h"

#include <windows.h>

#include <array>
#include <utility>

namespace {

constexpr size_t ExtensionLength = ExtensionOf(ClockFile).size();

bool AreEqual(std::wstring_view first, std::wstring_view second) {
    return CompareStringOrdinal(first.data(), static_cast<int>(first.size()), second.data(),
                                static_cast<int>(second.size()), TRUE) == CSTR_EQUAL;
}

std::string_view TextOf(const std::vector<uint8_t>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Whether a file name ends so, whatever the letter case.
bool EndsWith(std::wstring_view name, std::wstring_view ending) {
    return name.size() > ending.size() && AreEqual(name.substr(name.size() - ending.size()), ending);
}

constexpr std::wstring_view MarkEnding = L".saving";

// Restores a file, or that there was none. Where that fails, the others are still to be restored.
void PutBack(const std::wstring& path, const std::optional<std::vector<uint8_t>>& bytes) try {
    if (bytes)
        ReplaceFileBytes(path, TextOf(*bytes));
    else
        DeleteFileAt(path);
} catch (const SystemError&) {
}

}  // namespace

std::vector<ListedGame> GameStore::Games() const {
    const std::wstring extension = FromAnsi(ExtensionOf(ClockFile));
    std::vector<ListedGame> games;
    // The system's pattern finds longer extensions too, by the short names of their files.
    for (FoundFile& file : FilesLike(folder + L"*" + extension)) {
        if (!EndsWith(file.Name, extension)) continue;
        file.Name.resize(file.Name.size() - extension.size());
        std::wstring key = file.Name;
        CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
        games.push_back({std::move(file.Name), std::move(key), file.Changed});
    }
    return games;
}

bool GameStore::Exists(const std::wstring& name) const { return FileExists(PathOf(name, ClockFile)); }

std::wstring GameStore::PathOf(const std::wstring& name, GameFile file) const {
    return folder + name + FromAnsi(ExtensionOf(file));
}

std::wstring GameStore::MarkOf(const std::wstring& name) const { return folder + name + std::wstring(MarkEnding); }

void GameStore::SaveGame(const std::wstring& name, const GameFiles& files) const {
    // It may have been removed since the program began. Where it cannot be made the first file says why.
    MakeFolder(folder);
    SavingMark mark(MarkOf(name), PathOf(name, DiagramFile));
    Settle(name, mark);
    // A mark that was left says so of an earlier save.
    mark.SetComplete(false);
    std::vector<FileBeside> written;
    std::vector<std::pair<std::wstring, std::optional<std::vector<uint8_t>>>> replaced;
    for (GameFile file : {DiagramFile, MovesFile, PgnFile, ClockFile}) {
        if (!files[file]) continue;
        const std::wstring path = PathOf(name, file);
        std::string bytes = *files[file];
        auto older = ReadFileBytes(path);
        if (file == ClockFile && older && older->size() <= LongestKeptFile)
            bytes = WithOldTail(std::move(bytes), TextOf(*older));
        written.emplace_back(path, bytes);
        replaced.emplace_back(path, std::move(older));
    }
    mark.SetComplete(true);
    size_t done = 0;
    try {
        for (; done < written.size(); ++done) written[done].TakePlace();
    } catch (const SystemError&) {
        // One game is not made of old and new files: what has been replaced comes back.
        mark.SetComplete(false);
        for (size_t i = 0; i < done; ++i) PutBack(replaced[i].first, replaced[i].second);
        throw;
    }
}

// A program that ended while it saved has left files beside those of the game. When all were there, they take their
// places now, else they are removed.
void GameStore::Settle(const std::wstring& name, const SavingMark& mark) const {
    for (GameFile file : AllGameFiles) {
        const std::wstring path = PathOf(name, file);
        if (mark.IsComplete())
            FileBeside::TakePlaceLeft(path);
        else
            FileBeside::RemoveLeft(path);
    }
}

void GameStore::SettleAll() const {
    // The marks, and what versions without marks have left.
    for (const auto& [file, changed] : FilesLike(folder + L"*")) {
        std::wstring name;
        if (EndsWith(file, MarkEnding)) name = file.substr(0, file.size() - MarkEnding.size());
        if (EndsWith(file, L".new") && file.size() > 2 * ExtensionLength)
            name = file.substr(0, file.size() - 2 * ExtensionLength);
        if (!name.empty()) SettleIfLeft(name);
    }
}

// What cannot be settled now is so at the next chance.
void GameStore::SettleIfLeft(const std::wstring& name) const try {
    bool left = FileExists(MarkOf(name));
    for (GameFile file : AllGameFiles) left = left || FileBeside::IsLeft(PathOf(name, file));
    if (!left) return;
    const SavingMark mark(MarkOf(name), PathOf(name, ClockFile));
    Settle(name, mark);
} catch (const SystemError&) {
}

std::optional<GameFileError> GameStore::LoadGame(const std::wstring& name, const Settings& present,
                                                 SavedGame& game) const {
    SettleIfLeft(name);
    const auto read = [&](GameFile file, size_t limit) {
        try {
            return ReadFileBytes(PathOf(name, file), limit);
        } catch (const SystemError&) {
            if (file != PgnFile) throw;
            // Loading does without it, as without a damaged one.
            return std::optional(std::vector<uint8_t>());
        }
    };
    return DecodeGame(read, present, game);
}

void GameStore::DeleteGame(const std::wstring& name) const {
    constexpr std::array removed{ClockFile, DiagramFile, MovesFile};
    SettleIfLeft(name);
    // Before the clock file goes: the game would not be listed any more.
    for (GameFile file : removed) ExpectReplaceable(PathOf(name, file));
    for (GameFile file : removed) DeleteFileAt(PathOf(name, file));
}
