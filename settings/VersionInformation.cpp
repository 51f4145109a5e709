#include "settings/VersionInformation.h"

#include "texts/TextIds.h"

#include <windows.h>

#include <vector>

namespace {

// The blocks are named after the system's numbers of a language and of Unicode.
const wchar_t* BlockOf(int32_t language) {
    switch (language) {
        case Turkish: return L"041f04b0";
        case French: return L"040c04b0";
        default: return L"040904b0";
    }
}

std::wstring StringOf(const std::vector<std::byte>& resource, int32_t language, const wchar_t* name) {
    const std::wstring block = std::wstring(L"\\StringFileInfo\\") + BlockOf(language) + L"\\" + name;
    void* text = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(resource.data(), block.c_str(), &text, &length) || length == 0) return {};
    return static_cast<const wchar_t*>(text);
}

std::wstring VersionOf(const std::vector<std::byte>& resource) {
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(resource.data(), L"\\", &value, &length) || length < sizeof(VS_FIXEDFILEINFO)) return {};
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
    return std::to_wstring(HIWORD(fixed.dwFileVersionMS)) + L"." + std::to_wstring(LOWORD(fixed.dwFileVersionMS)) +
           L"." + std::to_wstring(HIWORD(fixed.dwFileVersionLS));
}

}  // namespace

VersionInformation ReadVersionInformation(int32_t language) {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) return {};
    return {
        .Comments = StringOf(resource, language, L"Comments"),
        .ProductName = StringOf(resource, language, L"ProductName"),
        .Version = VersionOf(resource),
        .LegalCopyright = StringOf(resource, language, L"LegalCopyright"),
    };
}
