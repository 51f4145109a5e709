#include "tests/desktop/Resources.h"

#include <gtest/gtest.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace {

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

// New objects fill the gaps of the table before one lands behind all others, which its generation tells: the high word,
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
    // The number of handles and a reserved word stand before them.
    const auto* list = reinterpret_cast<const SystemHandle*>(buffer.data() + 2);
    const DWORD id = GetProcessId(process);
    return static_cast<size_t>(
        std::count_if(list, list + buffer[0], [&](const SystemHandle& handle) { return handle.ProcessId == id; }));
}

size_t PrivateBytes(HANDLE process) {
    PROCESS_MEMORY_COUNTERS_EX memory{};
    memory.cb = sizeof(memory);
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
    return std::max(memory.PrivateUsage, memory.PagefileUsage);  // two names of one figure, of which Wine knows one
}

}  // namespace

std::string Resources::Text() const {
    return std::to_string(Gdi) + " GDI, " + std::to_string(User) + " USER, " + std::to_string(Handles) + " handles, " +
           std::to_string(PrivateBytes / 1024) + " KiB, " + std::to_string(TemporaryFiles) + " temporary files";
}

Resources CountResources(HANDLE process) {
    const std::filesystem::directory_iterator files(std::filesystem::temp_directory_path());
    return {GdiObjects(process), UserObjects(process), Handles(process), PrivateBytes(process),
            static_cast<size_t>(std::distance(begin(files), end(files)))};
}
