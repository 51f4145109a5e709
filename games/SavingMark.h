#pragma once

#include "platform/Handles.h"

#include <string>

// The file that is there while a game is being saved. A program that saves holds it, so that no other one saves or
// settles the same game meanwhile; it says whether all new files are beside the old ones. It is removed at the end; a
// program that dies leaves it to the next one.
class SavingMark {
  public:
    // Waits a while for a program that holds it. Throws SystemError that names `shownPath`.
    SavingMark(const std::wstring& path, const std::wstring& shownPath);
    ~SavingMark();
    SavingMark(const SavingMark&) = delete;
    SavingMark& operator=(const SavingMark&) = delete;

    bool IsComplete() const;
    // On the disk when it returns. Throws SystemError.
    void SetComplete(bool complete);

  private:
    const std::wstring path, shownPath;
    UniqueFile file;
};
