#include "games/GameStore.h"

#include "platform/Ansi.h"
#include "platform/Files.h"
#include "platform/SystemError.h"

#include <windows.h>

#include <algorithm>
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

bool ComesBefore(const std::wstring& first, const std::wstring& second) {
    return CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_LESS_THAN;
}

}  // namespace

std::vector<std::wstring> GameStore::Names() const {
    const std::wstring extension = FromAnsi(ExtensionOf(ClockFile));
    std::vector<std::wstring> names;
    // The system's pattern finds longer extensions too, by the short names of their files.
    for (std::wstring& name : FilesLike(folder + L"*" + extension)) {
        if (name.size() <= ExtensionLength) continue;
        const size_t length = name.size() - ExtensionLength;
        if (AreEqual(std::wstring_view(name).substr(length), extension)) names.push_back(name.substr(0, length));
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

bool GameStore::Exists(const std::wstring& name) const { return FileExists(PathOf(name, ClockFile)); }

std::wstring GameStore::PathOf(const std::wstring& name, GameFile file) const {
    return folder + name + FromAnsi(ExtensionOf(file));
}

void GameStore::SaveGame(const std::wstring& name, const GameFiles& files) const {
    // It may have been removed since the program began. Where it cannot be made the first file says why.
    MakeFolder(folder);
    std::vector<FileBeside> written;
    std::vector<std::pair<std::wstring, std::optional<std::vector<uint8_t>>>> replaced;
    // The clock file last: when the program is killed in between, a new game is not there yet.
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
    size_t done = 0;
    try {
        for (; done < written.size(); ++done) written[done].TakePlace();
    } catch (const SystemError&) {
        // One game is not made of old and new files: what has been replaced comes back.
        for (size_t i = 0; i < done; ++i) {
            if (replaced[i].second)
                ReplaceFileBytes(replaced[i].first, TextOf(*replaced[i].second));
            else
                DeleteFileAt(replaced[i].first);
        }
        throw;
    }
}

std::optional<GameFileError> GameStore::LoadGame(const std::wstring& name, const Settings& present,
                                                 SavedGame& game) const {
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
    // Before the clock file goes: the game would not be listed any more.
    for (GameFile file : removed) ExpectReplaceable(PathOf(name, file));
    for (GameFile file : removed) DeleteFileAt(PathOf(name, file));
}
