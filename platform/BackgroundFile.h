#pragma once

#include <windows.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

// A file that is replaced on a thread of its own, which begins with the first order: nobody waits for the disk. Where
// new content comes before the last has been written, only the newest is.
class BackgroundFile {
  public:
    // `failed` is called on the file's own thread with the code of GetLastError when the file could not be replaced.
    BackgroundFile(std::wstring path, std::function<void(DWORD code)> failed);
    ~BackgroundFile();
    BackgroundFile(const BackgroundFile&) = delete;
    BackgroundFile& operator=(const BackgroundFile&) = delete;

    void Replace(std::string bytes) { Order(std::move(bytes)); }
    void Remove();

    // Returns when nothing is left to be written; false where the last that was to be could not.
    bool Finish();

  private:
    using Content = std::optional<std::string>;  // none: there is to be no file

    void Order(Content content);
    void Run();
    bool Write(const Content& content) const;

    const std::wstring path;
    const std::function<void(DWORD)> failed;
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Content> ordered;
    bool busy = false, ending = false, done = true;
    std::thread thread;
};
