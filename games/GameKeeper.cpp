#include "games/GameKeeper.h"

#include "platform/Files.h"
#include "platform/SystemError.h"

#include <utility>

namespace {

constexpr int MostPrograms = 99;

std::wstring NameOf(int number, const wchar_t* ending) { return L"Game" + std::to_wstring(number) + ending; }

// Null where another program holds it. The system lets go of it when the program dies.
UniqueFile LockOf(const std::wstring& folder, int number) {
    const HANDLE file = CreateFileW((folder + NameOf(number, L".lock")).c_str(), GENERIC_WRITE | DELETE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

}  // namespace

GameKeeper::GameKeeper(std::wstring dataFolder, std::function<void(DWORD)> failed)
    : folder(std::move(dataFolder)),
      number(TakeNumber(folder)),
      lastPath(folder + NameOf(number.Value, L".last")),
      kept(PathOf(number.Value), std::move(failed)) {
    // Of a program that ended while it wrote.
    for (const std::wstring& path : {PathOf(number.Value), lastPath}) FileBeside::RemoveLeft(path);
}

// The lowest that is free. In a folder that cannot be written to, none is locked.
GameKeeper::Number GameKeeper::TakeNumber(const std::wstring& folder) {
    for (int value = 1; value <= MostPrograms; ++value) {
        if (UniqueFile lock = LockOf(folder, value)) return {value, std::move(lock)};
    }
    return {MostPrograms + 1, nullptr};
}

std::wstring GameKeeper::PathOf(int value) const { return folder + NameOf(value, L".kept"); }

std::vector<GameKeeper::Orphan> GameKeeper::Orphans() const {
    std::vector<Orphan> orphans;
    for (int value = 1; value <= MostPrograms; ++value) {
        if (!FileExists(PathOf(value))) continue;
        UniqueFile lock = value == number.Value ? nullptr : LockOf(folder, value);
        if (lock || value == number.Value) orphans.push_back({PathOf(value), std::move(lock)});
    }
    return orphans;
}

void GameKeeper::Adopt(const Orphan& orphan) const {
    if (orphan.Lock) MoveOver(orphan.Path, PathOf(number.Value));
}

void GameKeeper::MakeLast(const Orphan& orphan) const { MoveOver(orphan.Path, lastPath); }

bool GameKeeper::HasLast() const { return FileExists(lastPath); }

void GameKeeper::PutAside(std::string_view bytes) const { ReplaceFileBytes(lastPath, bytes); }

void GameKeeper::ForgetLast() const { DeleteFileAt(lastPath); }

std::wstring GameKeeper::MoveAway(const std::wstring& path) {
    for (int value = 1; value <= MostPrograms; ++value) {
        std::wstring name = path + L".damaged" + std::to_wstring(value);
        if (MoveFileExW(path.c_str(), name.c_str(), MOVEFILE_WRITE_THROUGH)) return name;
        if (GetLastError() != ERROR_ALREADY_EXISTS && GetLastError() != ERROR_FILE_EXISTS) break;
    }
    throw SystemError(GetLastError(), path);
}
