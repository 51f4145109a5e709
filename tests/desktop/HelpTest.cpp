#include "tests/desktop/Desktop.h"

#include <commctrl.h>
#include <gtest/gtest.h>

// The help file in the system's viewer.

namespace {

constexpr wchar_t ViewerClass[] = L"HH Parent";

HWND Viewer() { return FindWindowW(ViewerClass, nullptr); }

// Whether the viewer shows its contents tree and is done with opening: until then it takes the foreground again.
bool IsOpen(HWND viewer) {
    int books = 0;
    EnumChildWindows(
        viewer,
        [](HWND child, LPARAM count) -> BOOL {
            wchar_t name[32];
            GetClassNameW(child, name, 32);
            if (std::wstring(name) == WC_TREEVIEWW)
                *reinterpret_cast<int*>(count) = static_cast<int>(SendMessageW(child, TVM_GETCOUNT, 0, 0));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&books));
    DWORD processId = 0;
    GetWindowThreadProcessId(viewer, &processId);
    const UniqueFile process(OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, processId));
    return books > 0 && WaitForInputIdle(process.get(), 0) == 0 && GetForegroundWindow() == viewer;
}

}  // namespace

TEST(HelpTest, OpensPagesInOneViewerThatEndsWithTheProgram) {
    const TestFolder folder;
    CopyFileW((BuildFolder() + L"TORVANIX.chm").c_str(), (folder.Path() + L"TORVANIX.chm").c_str(), FALSE);
    ProgramRun run(folder, QuietSettings());
    ASSERT_TRUE(run.FocusComes(cmdClock));
    run.Choose(3, 0);
    HWND contents = nullptr;
    ASSERT_TRUE(Eventually([&] { return (contents = Viewer()) != nullptr && IsOpen(contents); }));

    SetForegroundWindow(run.Clock());
    ASSERT_TRUE(ComesToFront(run.Clock()));
    run.Choose(3, 0);
    EXPECT_TRUE(ComesToFront(contents)) << "the viewer that is open";

    SetForegroundWindow(run.Clock());
    ASSERT_TRUE(run.FocusComes(cmdClock));
    run.Key('S', true);
    run.Click(GetDlgItem(run.WaitWindow(L"frmSetup"), cmdHelp));
    HWND page = nullptr;
    EXPECT_TRUE(Eventually([&] { return (page = Viewer()) != nullptr && page != contents && IsOpen(page); }))
        << "another page";
    EXPECT_TRUE(Eventually([&] { return !IsWindow(contents); }));
    SendMessageW(run.WaitWindow(L"frmSetup"), WM_CLOSE, 0, 0);
    ASSERT_TRUE(Eventually([&] { return IsWindowEnabled(run.Clock()); }));
    EXPECT_TRUE(run.Close());
    EXPECT_TRUE(Eventually([&] { return !IsWindow(page); })) << "closed at the program's exit";
}

TEST(HelpTest, MissingViewerIsNamed) {
    wchar_t windows[MAX_PATH], system[MAX_PATH];
    GetWindowsDirectoryW(windows, MAX_PATH);
    GetSystemDirectoryW(system, MAX_PATH);
    const HiddenFile first(std::wstring(windows) + L"\\hh.exe"), second(std::wstring(system) + L"\\hh.exe");
    const TestFolder folder;
    ProgramRun run(folder, QuietSettings());
    ASSERT_TRUE(run.FocusComes(cmdClock));
    run.Choose(3, 0);
    EXPECT_EQ(run.MessageText(), L"The help viewer hh.exe was not found on this computer.");
    run.Answer(IDOK);
}
