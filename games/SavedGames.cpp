#include "games/SavedGames.h"

#include "platform/Ansi.h"
#include "platform/Files.h"

#include <windows.h>

#include <algorithm>

namespace {

constexpr size_t ExtensionLength = ExtensionOf(ClockFile).size();

bool AreEqual(std::wstring_view first, std::wstring_view second) {
    return CompareStringOrdinal(first.data(), static_cast<int>(first.size()), second.data(),
                                static_cast<int>(second.size()), TRUE) == CSTR_EQUAL;
}

bool ComesBefore(const std::wstring& first, const std::wstring& second) {
    return CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_LESS_THAN;
}

}  // namespace

std::vector<std::wstring> SavedGames::Names() const {
    const std::wstring extension = FromAnsi(ExtensionOf(ClockFile));
    std::vector<std::wstring> names;
    // The system's pattern would find longer extensions too, by the short names of their files.
    for (std::wstring& name : FilesIn(folder)) {
        if (name.size() <= ExtensionLength) continue;
        const size_t length = name.size() - ExtensionLength;
        if (AreEqual(std::wstring_view(name).substr(length), extension)) names.push_back(name.substr(0, length));
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

bool SavedGames::Exists(const std::wstring& name) const { return FileExists(PathOf(name, ClockFile)); }

std::wstring SavedGames::PathOf(const std::wstring& name, GameFile file) const {
    return folder + name + FromAnsi(ExtensionOf(file));
}

void SavedGames::SaveGame(const std::wstring& name, const GameFiles& files) const {
    // It may have been removed since the program began. Where it cannot be made the first file says why.
    CreateDirectoryW(folder.c_str(), nullptr);
    std::vector<FileBeside> written;
    for (GameFile file : AllGameFiles) {
        if (!files[file]) continue;
        const std::wstring path = PathOf(name, file);
        std::string bytes = *files[file];
        if (file == ClockFile) {
            const auto older = ReadFileBytes(path, LongestKeptFile + 1);
            if (older && older->size() <= LongestKeptFile)
                bytes = WithOldTail(std::move(bytes), {reinterpret_cast<const char*>(older->data()), older->size()});
        }
        written.emplace_back(path, bytes);
    }
    for (FileBeside& file : written) file.TakePlace();
}

std::optional<GameFileError> SavedGames::LoadGame(const std::wstring& name, const Settings& present,
                                                  LoadedGame& game) const {
    return DecodeGame([&](GameFile file, size_t limit) { return ReadFileBytes(PathOf(name, file), limit); }, present,
                      game);
}

void SavedGames::DeleteGame(const std::wstring& name) const {
    for (GameFile file : {ClockFile, DiagramFile, MovesFile}) {
        const std::wstring path = PathOf(name, file);
        if (file == ClockFile || FileExists(path)) DeleteFileAt(path);
    }
}
