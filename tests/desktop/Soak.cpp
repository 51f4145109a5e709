#include "tests/desktop/Steps.h"

#include <gtest/gtest.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <vector>

// Uses the real program for as long as TORVANIX_SOAK_SECONDS says, 60 without it. What it holds must be at the end what
// it was once everything had been used.

namespace {

// Fewer cycles than the least would not tell a leak.
constexpr int WarmUpCycles = 2, LeastCycles = 5, HelpEvery = 20;

// The system makes some objects once and late: the font of the first tool tip that is shown, for example.
constexpr size_t LateObjects = 3;
// How the heap lies is not the same twice.
constexpr size_t HeapSlack = 256 << 10;
// Wine keeps 24 bytes of every static control that was given a font, some 250 of them in a cycle; and of every name
// that the steps ask for as a screen reader would, what it sent it with to another process. The program has released
// its own part by then.
constexpr size_t KeptOfCycle = 16 << 10, KeptOfName = 2304;

// Structures and classes of the native system calls that no header of the compiler has.
struct SystemHandle {
    uintptr_t Object, ProcessId, Value;
    uint32_t Access;
    uint16_t CreatorIndex, Type;
    uint32_t Attributes, Reserved;
};
struct GdiEntry {
    uint64_t Object;
    uint32_t Owner;
    uint16_t Unique;
    uint8_t Type, Flags;
    uint64_t UserPointer;
};
constexpr ULONG ProcessBasicInformation = 0, SystemExtendedHandleInformation = 64;
constexpr LONG InfoLengthMismatch = static_cast<LONG>(0xC0000004);
constexpr size_t GdiTableOffset = 0xF8;  // in the environment block of a 64-bit process
constexpr size_t GdiTableEntries = 0x10000;

template <typename Function>
Function* NativeCall(const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

size_t GdiObjects(HANDLE process) {
    if (const DWORD counted = GetGuiResources(process, GR_GDIOBJECTS)) return counted;
    static const auto query = NativeCall<LONG WINAPI(HANDLE, ULONG, void*, ULONG, ULONG*)>("NtQueryInformationProcess");
    std::array<uintptr_t, 6> information{};  // the second is the place of the environment block
    uintptr_t table = 0;
    std::vector<GdiEntry> entries(GdiTableEntries);
    const bool read = query(process, ProcessBasicInformation, information.data(), sizeof(information), nullptr) >= 0 &&
                      ReadProcessMemory(process, reinterpret_cast<void*>(information[1] + GdiTableOffset), &table,
                                        sizeof(table), nullptr) &&
                      ReadProcessMemory(process, reinterpret_cast<void*>(table), entries.data(),
                                        entries.size() * sizeof(GdiEntry), nullptr);
    EXPECT_TRUE(read) << "the table of GDI objects cannot be read";
    return static_cast<size_t>(
        std::count_if(entries.begin(), entries.end(), [](const GdiEntry& entry) { return entry.Type != 0; }));
}

// New objects fill the gaps of the table before one lands after all others, which its generation tells: the high word,
// 1 at first and more in an entry that has been used before.
size_t UserObjects(HANDLE process) {
    if (const DWORD counted = GetGuiResources(process, GR_USEROBJECTS)) return counted;
    constexpr size_t first = 0x20, most = 0x8000;  // numbers are even and begin at this one
    std::vector<HMENU> menus;
    size_t entry = 0;
    do {
        menus.push_back(CreateMenu());
        entry = reinterpret_cast<size_t>(menus.back());
    } while (entry >> 16 != 1 && menus.size() < most);
    EXPECT_EQ(entry >> 16, 1u) << "the USER objects cannot be counted";
    for (HMENU menu : menus) DestroyMenu(menu);
    return ((entry & 0xFFFF) - first) / 2 + 1 - menus.size();
}

size_t Handles(HANDLE process) {
    DWORD counted = 0;
    if (GetProcessHandleCount(process, &counted) && counted != 0) return counted;
    static const auto query = NativeCall<LONG WINAPI(ULONG, void*, ULONG, ULONG*)>("NtQuerySystemInformation");
    std::vector<uintptr_t> buffer(1 << 13);
    LONG status = 0;
    while ((status = query(SystemExtendedHandleInformation, buffer.data(),
                           static_cast<ULONG>(buffer.size() * sizeof(uintptr_t)), nullptr)) == InfoLengthMismatch)
        buffer.resize(buffer.size() * 2);
    EXPECT_GE(status, 0) << "the handles cannot be listed";
    // The number of handles and a reserved word come before them.
    const auto* list = reinterpret_cast<const SystemHandle*>(buffer.data() + 2);
    const DWORD id = GetProcessId(process);
    return static_cast<size_t>(
        std::count_if(list, list + buffer[0], [&](const SystemHandle& handle) { return handle.ProcessId == id; }));
}

size_t PrivateBytes(HANDLE process) {
    PROCESS_MEMORY_COUNTERS_EX memory{};
    memory.cb = sizeof(memory);
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
    // Two names of one figure; Wine gives it the older one only.
    return std::max(memory.PrivateUsage, memory.PagefileUsage);
}

// What a process holds. Where the system counts GDI objects, USER objects or handles for its programs, these are its
// figures. Wine 8 answers 0 to all three, and there they are counted where it keeps them: GDI objects in the table of
// the process, handles in the server's list, and USER objects by the numbers that new ones get, which counts those of
// all programs of the prefix together.
struct Resources {
    size_t Gdi, User, Handles, PrivateBytes;
    size_t TemporaryFiles;  // entries of the folder for temporary files, of whatever program
};

Resources Count(Steps& steps) {
    // Messages that windows have sent to themselves are through, and programs that were started have ended.
    steps.Do("settle");
    Sleep(500);
    const HANDLE process = steps.Program().Process();
    const std::filesystem::directory_iterator files(std::filesystem::temp_directory_path());
    return {GdiObjects(process), UserObjects(process), Handles(process), PrivateBytes(process),
            static_cast<size_t>(std::distance(begin(files), end(files)))};
}

std::ostream& operator<<(std::ostream& stream, const Resources& held) {
    return stream << held.Gdi << " GDI, " << held.User << " USER, " << held.Handles << " handles, "
                  << held.PrivateBytes / 1024 << " KiB, " << held.TemporaryFiles << " temporary files";
}

}  // namespace

TEST(SoakTest, HoldsAtTheEndWhatItHeldOnceAllWasUsed) {
    const char* wanted = std::getenv("TORVANIX_SOAK_SECONDS");
    const int seconds = wanted ? std::atoi(wanted) : 60;
    const ULONGLONG start = GetTickCount64();
    const auto elapsed = [&] { return static_cast<int>((GetTickCount64() - start) / 1000); };
    Steps steps;
    steps.Do("soak-start / soak-help");
    for (int i = 0; i < WarmUpCycles; ++i) steps.Do("soak-cycle");
    const Resources before = Count(steps);
    const size_t namesBefore = SpokenNamesAsked();
    std::cout << elapsed() << " s: " << before << std::endl;
    int cycles = 0;
    while (elapsed() < seconds || cycles < LeastCycles) {
        steps.Do("soak-cycle");
        if (++cycles % HelpEvery != 0) continue;
        steps.Do("soak-help");
        std::cout << elapsed() << " s: " << Count(steps) << std::endl;
    }
    const Resources after = Count(steps);
    std::cout << elapsed() << " s, " << cycles << " cycles, " << SpokenNamesAsked() - namesBefore << " names: " << after
              << std::endl;
    const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_LE(after.Gdi, before.Gdi + LateObjects);
    EXPECT_LE(after.User, before.User + LateObjects);
    EXPECT_LE(after.Handles, before.Handles + LateObjects);
    const size_t keptByWine =
        static_cast<size_t>(cycles) * KeptOfCycle + (SpokenNamesAsked() - namesBefore) * KeptOfName;
    EXPECT_LE(after.PrivateBytes, before.PrivateBytes + HeapSlack + (wine ? keptByWine : 0));
    EXPECT_LE(after.TemporaryFiles, before.TemporaryFiles);
    steps.Do("soak-end");
}
