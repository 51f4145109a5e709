#pragma once

#include "platform/Ansi.h"
#include "resources/Version.h"
#include "tests/desktop/Desktop.h"

// The installer in dist/, of the version that the tests are built with.
inline std::wstring SetupFile() {
    return BuildFolder() + L"..\\..\\dist\\TORVANIX-" + FromAnsi(TORVANIX_VERSION) + L"-setup.exe";
}
