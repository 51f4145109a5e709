#include "games/GameKeeper.h"

#include "platform/Files.h"
#include "platform/SystemError.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

constexpr int MostPrograms = 98, NumberStep = 100;

std::wstring NameOf(int number, const wchar_t* ending) { return L"Game" + std::to_wstring(number) + ending; }

// Null where another program holds it. The system lets go of it when the program dies.
UniqueFile LockOf(const std::wstring& folder, int number) {
    const HANDLE file = CreateFileW(LongPath(folder + NameOf(number, L".lock")).c_str(), GENERIC_WRITE | DELETE, 0,
                                    nullptr, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

}  // namespace

GameKeeper::GameKeeper(std::wstring dataFolder, std::function<void(DWORD)> failed)
    : folder(std::move(dataFolder)), number(TakeNumber(folder)), kept(PathOf(number.Value), std::move(failed)) {
    // Of a program that ended while it wrote.
    FileBeside::RemoveLeft(PathOf(number.Value));
    FileBeside::RemoveLeft(NextLastPath());
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

void GameKeeper::MakeLast(const Orphan& orphan) const {
    MoveOver(orphan.Path, NextLastPath());
    ForgetOldest();
}

void GameKeeper::PutAside(std::string_view bytes) const {
    ReplaceFileBytes(NextLastPath(), bytes);
    ForgetOldest();
}

std::vector<int> GameKeeper::LastNumbers() const {
    std::vector<int> numbers;
    for (const auto& [name, changed] : FilesLike(folder + L"Game*.last")) {
        const int value = static_cast<int>(std::wcstol(name.c_str() + wcslen(L"Game"), nullptr, 10));
        if (name == NameOf(value, L".last")) numbers.push_back(value);
    }
    std::ranges::sort(numbers);
    return numbers;
}

std::wstring GameKeeper::LastPath() const {
    const std::vector<int> numbers = LastNumbers();
    return numbers.empty() ? L"" : folder + NameOf(numbers.back(), L".last");
}

// The last two digits are the program's number, so that no two programs take the same one.
std::wstring GameKeeper::NextLastPath() const {
    const std::vector<int> numbers = LastNumbers();
    const int highest = numbers.empty() ? 0 : numbers.back();
    return folder + NameOf((highest / NumberStep + 1) * NumberStep + number.Value, L".last");
}

void GameKeeper::ForgetOldest() const {
    const std::vector<int> numbers = LastNumbers();
    for (size_t i = 0; i + MostLast < numbers.size(); ++i) Forget(folder + NameOf(numbers[i], L".last"));
}

void GameKeeper::Forget(const std::wstring& path) { DeleteFileAt(path); }

std::wstring GameKeeper::MoveAway(const std::wstring& path) {
    for (int value = 1; value <= MostPrograms; ++value) {
        std::wstring name = path + L".damaged" + std::to_wstring(value);
        if (MoveFileExW(LongPath(path).c_str(), LongPath(name).c_str(), MOVEFILE_WRITE_THROUGH)) return name;
        if (GetLastError() != ERROR_ALREADY_EXISTS && GetLastError() != ERROR_FILE_EXISTS) break;
    }
    throw SystemError(GetLastError(), path);
}
