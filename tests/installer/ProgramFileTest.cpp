#include "tests/installer/Packages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <regex>
#include <set>

// What the system reads in the program file and the installer before either runs.

namespace {

// The libraries that Windows keeps loaded from 7 on (the list KnownDLLs in the registry): the
// loader takes these, and what they bind, from the system folder whatever lies beside the program.
const std::set<std::string> KeptLoaded{"advapi32.dll", "comdlg32.dll", "gdi32.dll",   "imm32.dll",
                                       "kernel32.dll", "msvcrt.dll",   "ole32.dll",   "oleaut32.dll",
                                       "rpcrt4.dll",   "shell32.dll",  "shlwapi.dll", "user32.dll"};
// On every Windows from 7 on, but looked for in the program's folder first. platform/CMakeLists.txt says how they are
// bound at the first call instead.
const std::set<std::string> BoundLater{"comctl32.dll", "oleacc.dll", "version.dll", "winmm.dll", "winspool.drv"};

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

// A program file laid out in memory as it runs, without being run.
class Image {
  public:
    explicit Image(const std::wstring& path)
        : module(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE)) {
        if (!module) throw std::runtime_error("no program file at the path");
    }
    ~Image() { FreeLibrary(module); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    template <typename T>
    const T& At(DWORD offset) const {
        // The low bits of such a handle are flags.
        return *reinterpret_cast<const T*>((reinterpret_cast<ULONG_PTR>(module) & ~ULONG_PTR{3}) + offset);
    }
    const IMAGE_NT_HEADERS64& Headers() const {
        return At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0).e_lfanew));
    }
    const IMAGE_DATA_DIRECTORY& Directory(int entry) const { return Headers().OptionalHeader.DataDirectory[entry]; }

    std::set<std::string> Imports() const {
        std::set<std::string> names;
        for (DWORD at = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress; at != 0;
             at += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
            const auto& entry = At<IMAGE_IMPORT_DESCRIPTOR>(at);
            if (entry.Name == 0) break;
            names.insert(Lower(&At<char>(entry.Name)));
        }
        return names;
    }

    std::string Manifest() const {
        const HRSRC resource = FindResourceW(module, CREATEPROCESS_MANIFEST_RESOURCE_ID, RT_MANIFEST);
        if (!resource) return {};
        return {static_cast<const char*>(LockResource(LoadResource(module, resource))),
                SizeofResource(module, resource)};
    }

  private:
    HMODULE module;
};

const std::wstring& Program() {
    static const std::wstring path = BuildFolder() + L"torvanix.exe";
    return path;
}

// File and product version of a program file, as numbers and then as texts, joined by blanks; empty where it has none.
std::wstring VersionsOf(const std::wstring& file) {
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(file.c_str(), nullptr));
    if (!GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) return {};
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(resource.data(), L"\\", &value, &length)) return {};
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
    const auto numbers = [](DWORD high, DWORD low) {
        return std::to_wstring(HIWORD(high)) + L"." + std::to_wstring(LOWORD(high)) + L"." +
               std::to_wstring(HIWORD(low));
    };
    std::wstring versions = numbers(fixed.dwFileVersionMS, fixed.dwFileVersionLS) + L" " +
                            numbers(fixed.dwProductVersionMS, fixed.dwProductVersionLS);
    if (!VerQueryValueW(resource.data(), L"\\VarFileInfo\\Translation", &value, &length)) return versions;
    const auto* translation = static_cast<const WORD*>(value);
    wchar_t block[40];
    swprintf(block, 40, L"\\StringFileInfo\\%04x%04x\\", translation[0], translation[1]);
    for (const wchar_t* name : {L"FileVersion", L"ProductVersion"}) {
        if (VerQueryValueW(resource.data(), (std::wstring(block) + name).c_str(), &value, &length))
            versions += std::wstring(L" ") + static_cast<const wchar_t*>(value);
    }
    return versions;
}

void ExpectInManifest(const std::string& manifest, std::initializer_list<const char*> wanted) {
    for (const char* text : wanted) EXPECT_NE(manifest.find(text), std::string::npos) << text << " in\n" << manifest;
}

}  // namespace

TEST(ProgramFileTest, BindsAtStartOnlyWhatEveryWindowsKeepsLoaded) {
    const std::set<std::string> imports = Image(Program()).Imports();
    EXPECT_TRUE(imports.contains("user32.dll")) << "the import table was not read";
    for (const std::string& name : imports) EXPECT_TRUE(KeptLoaded.contains(name)) << name;
}

TEST(ProgramFileTest, NamesNoLibraryThatSomeWindowsLacks) {
    const std::string bytes = ReadFileText(Program());
    const std::regex libraryName(R"([A-Za-z0-9_.-]+\.(dll|drv|ocx))", std::regex::icase);
    std::set<std::string> names;
    for (std::sregex_iterator it(bytes.begin(), bytes.end(), libraryName), end; it != end; ++it)
        names.insert(Lower(it->str()));
    EXPECT_TRUE(names.contains("winmm.dll")) << "libraries bound later were not seen";
    for (const std::string& name : names) EXPECT_TRUE(KeptLoaded.contains(name) || BoundLater.contains(name)) << name;
}

TEST(ProgramFileTest, LiesAtRandomAddressesAndRunsNoData) {
    const Image image(Program());
    constexpr WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA |
                            IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    EXPECT_EQ(image.Headers().OptionalHeader.DllCharacteristics & wanted, wanted);
    // Without relocations the flags would be empty words.
    EXPECT_FALSE(image.Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED);
    EXPECT_GT(image.Directory(IMAGE_DIRECTORY_ENTRY_BASERELOC).Size, 0u);
    EXPECT_EQ(image.Headers().FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
}

TEST(ProgramFileTest, ManifestsAreInTheFiles) {
    constexpr const char *windows7 = "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}",
                         *windows8 = "{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}",
                         *windows81 = "{1f676c76-80e1-4239-95bb-83d0f6d0da78}",
                         *windows10 = "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}";
    ExpectInManifest(Image(Program()).Manifest(),
                     {"version=\"" TORVANIX_VERSION ".0\"", "Microsoft.Windows.Common-Controls", "level=\"asInvoker\"",
                      "PerMonitorV2", windows7, windows8, windows81, windows10});
    ExpectInManifest(Image(SetupFile()).Manifest(),
                     {"level=\"asInvoker\"", "dpiAware", windows7, windows8, windows81, windows10});
}

TEST(ProgramFileTest, VersionIsTheSameEverywhere) {
    const std::wstring version = FromAnsi(TORVANIX_VERSION);
    const std::wstring wanted = version + L" " + version + L" " + version + L" " + version;
    EXPECT_EQ(VersionsOf(Program()), wanted);
    EXPECT_EQ(VersionsOf(SetupFile()), wanted);
}

// uxtheme.dll is bound by the system's comctl32.dll. The script that runs the tests has Wine prefer what lies beside a
// program, as Windows does.
TEST(ProgramFileTest, LibrariesBesideItAreNotLoaded) {
    const TestFolder folder;
    for (const wchar_t* name : {L"winmm.dll", L"uxtheme.dll"})
        ASSERT_TRUE(CopyFileW((BuildFolder() + L"planted.dll").c_str(), (folder.Path() + name).c_str(), FALSE));
    // The planted library works: from another program's own folder it is loaded and leaves its mark.
    const HMODULE planted = LoadLibraryW((folder.Path() + L"uxtheme.dll").c_str());
    ASSERT_TRUE(planted);
    FreeLibrary(planted);
    ASSERT_TRUE(DeleteFileW((folder.Path() + L"uxtheme.dll.loaded").c_str()));

    Settings settings = QuietSettings();
    settings.SetButtonSound(1);
    ProgramRun run(folder, settings);
    run.Click(ControlOf(cmdClock, Black));
    EXPECT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1."; })) << "after the button sound";
    EXPECT_TRUE(run.Close());
    EXPECT_FALSE(Exists(folder.Path() + L"winmm.dll.loaded"));
    EXPECT_FALSE(Exists(folder.Path() + L"uxtheme.dll.loaded"));
}
