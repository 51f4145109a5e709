#include "settings/VersionInformation.h"

#include <windows.h>

#include <vector>

namespace {

std::wstring StringOf(const std::vector<std::byte>& resource, const wchar_t* name) {
    // The block of texts that belong to no language, in Unicode.
    const std::wstring block = std::wstring(L"\\StringFileInfo\\000004b0\\") + name;
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

VersionInformation ReadVersionInformation() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) return {};
    return {
        .Comments = StringOf(resource, L"Comments"),
        .ProductName = StringOf(resource, L"ProductName"),
        .Version = VersionOf(resource),
        .LegalCopyright = StringOf(resource, L"LegalCopyright"),
    };
}
