#pragma once

#include <cstdint>
#include <string>

// What the running program file says of itself in its version resource; empty where it says nothing.
struct VersionInformation {
    std::wstring Comments;
    std::wstring ProductName;
    std::wstring Version;  // major.minor.revision
    std::wstring LegalCopyright;
};

// In a language of the program; an unknown one is answered in English.
VersionInformation ReadVersionInformation(int32_t language);
