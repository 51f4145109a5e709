#pragma once

#include "settings/SettingsRecord.h"

#include <string>

class Texts;

// The user's settings on disk: TORVANIX.set in the data folder.
class SettingsFile {
  public:
    // `folder` with its trailing backslash.
    explicit SettingsFile(const std::wstring& folder) : folder(folder), path(folder + L"TORVANIX.set") {}

    // The language alone, which the first window needs. That of the system, or else English, if there is no file or it
    // cannot be read.
    int32_t LoadLanguage() const;

    // Reads the file into the settings, except for the language. Without a file they become the DEFAULT preset, without
    // names. What cannot be read stays as it is. The text says what is wrong with the file; it is empty on success. The
    // file is never changed.
    std::wstring Load(Settings& settings, const Texts& texts) const;

    // Replaces the whole file, in a folder that is made again where it has been removed. Throws
    // RunTimeError(Fault::OutOfRange) if the names together are too long, and SystemError if the file cannot be
    // written; the old file then stays.
    void Save(const Settings& settings) const;

    // Writes down in the file whether the board is turned, and leaves all else in it as it is: the settings in use may
    // be those of a loaded game. Without a file it makes one of the DEFAULT preset, in the language of LoadLanguage.
    // The text says why it could not; it is empty on success.
    std::wstring SaveBoardTurned(bool turned, const Texts& texts) const;

  private:
    std::wstring folder, path;
};
