#include "platform/BackgroundFile.h"

#include "platform/Files.h"
#include "platform/SystemError.h"

#include <utility>

BackgroundFile::BackgroundFile(std::wstring path, std::function<void(DWORD)> failed)
    : path(std::move(path)), failed(std::move(failed)) {}

BackgroundFile::~BackgroundFile() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    changed.notify_all();
    if (thread.joinable()) thread.join();
}

void BackgroundFile::Remove() {
    // Before the first order there may be nothing to remove, and a thread takes memory.
    if (thread.joinable() || FileExists(path)) Order(std::nullopt);
}

void BackgroundFile::Order(Content content) {
    // First what can fail: Finish would wait for ever for an order that no thread takes.
    if (!thread.joinable()) thread = std::thread([this] { Run(); });
    {
        const std::lock_guard lock(mutex);
        ordered = std::move(content);
    }
    changed.notify_all();
}

bool BackgroundFile::Finish() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return !ordered && !busy; });
    return done;
}

void BackgroundFile::Run() {
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return ordered || ending; });
        if (!ordered) return;
        const Content content = *std::exchange(ordered, std::nullopt);
        busy = true;
        lock.unlock();
        const bool written = Write(content);
        lock.lock();
        done = written;
        busy = false;
        changed.notify_all();
    }
}

bool BackgroundFile::Write(const Content& content) const {
    try {
        if (content)
            ReplaceFileBytes(path, *content);
        else if (FileExists(path))
            DeleteFileAt(path);
        return true;
    } catch (const SystemError& error) {
        failed(error.Code());
        return false;
    }
}
