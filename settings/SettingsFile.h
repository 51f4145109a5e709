#pragma once

#include "settings/SettingsRecord.h"

#include <optional>
#include <string>
#include <variant>

class Texts;

// The user's settings on disk: TORVANIX.set in the data folder.
class SettingsFile {
  public:
    // `folder` with its trailing backslash.
    explicit SettingsFile(const std::wstring& folder) : path(folder + L"TORVANIX.set") {}

    // The language alone, which the first window needs: English when there is no file or none that can be read.
    int32_t LoadLanguage() const;

    // Reads the file into the settings, all but the language. Without a file they become the DEFAULT preset without
    // names. What cannot be read stays as it is; the text, empty on success, says what was wrong. The file is never
    // touched.
    std::wstring Load(Settings& settings, const Texts& texts) const;

    // Replaces the file whole. Throws RunTimeError(Fault::OutOfRange) when the names are too long together, SystemError
    // when the file cannot be written; the old one then stays.
    void Save(const Settings& settings) const;

  private:
    std::wstring path;
};
