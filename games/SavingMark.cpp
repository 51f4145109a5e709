#include "games/SavingMark.h"

#include "platform/Files.h"
#include "platform/SystemError.h"

namespace {

// A save takes a fraction of a second; 2 seconds.
constexpr int Tries = 80;
constexpr DWORD Interval = 25;  // milliseconds

}  // namespace

SavingMark::SavingMark(const std::wstring& path, const std::wstring& shownPath) : path(path), shownPath(shownPath) {
    for (int tries = 1; !file; ++tries) {
        file = OpenAlone(path);
        const DWORD code = GetLastError();
        if (!file && (code != ERROR_SHARING_VIOLATION || tries == Tries)) throw SystemError(code, shownPath);
        if (!file) Sleep(Interval);
    }
}

SavingMark::~SavingMark() {
    file.reset();
    // Not when another program has taken it over meanwhile: that one removes it.
    DeleteFileW(LongPath(path).c_str());
}

// One byte, so that it cannot be half there.
bool SavingMark::IsComplete() const {
    LARGE_INTEGER size{};
    return GetFileSizeEx(file.get(), &size) && size.QuadPart > 0;
}

void SavingMark::SetComplete(bool complete) {
    DWORD written = 0;
    SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN);
    const bool done = (complete ? WriteFile(file.get(), "+", 1, &written, nullptr) : SetEndOfFile(file.get())) &&
                      FlushFileBuffers(file.get());
    if (!done) throw SystemError(GetLastError(), shownPath);
}
