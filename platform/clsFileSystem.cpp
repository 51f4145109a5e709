#include "platform/clsFileSystem.h"

#include "platform/Ansi.h"
#include "platform/Automation.h"
#include "platform/Today.h"
#include "resources/Version.h"

#include <objbase.h>

namespace {

constexpr wchar_t LogFileName[] = L"TORVANIX.log";
constexpr long ForAppending = 8;

const wchar_t* DateMember(clsFileSystem::DateKind kind) {
    switch (kind) {
        case clsFileSystem::DateKind::Created: return L"DateCreated";
        case clsFileSystem::DateKind::LastModified: return L"DateLastModified";
        case clsFileSystem::DateKind::LastAccessed: break;
    }
    return L"DateLastAccessed";
}

std::wstring Now() {
    SYSTEMTIME time;
    GetLocalTime(&time);
    return DateAndTime(time);
}

}  // namespace

clsFileSystem::clsFileSystem() {
    CLSID identifier;
    created = CLSIDFromProgID(L"Scripting.FileSystemObject", &identifier);
    if (FAILED(created)) return;
    void* object = nullptr;
    created = CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object);
    if (SUCCEEDED(created)) fileSystem.reset(static_cast<IDispatch*>(object));
}

Outcome<std::vector<std::wstring>> clsFileSystem::SubfolderNames(const std::wstring& folder) const {
    return Names(folder, L"SubFolders");
}

Outcome<std::vector<std::wstring>> clsFileSystem::FileNames(const std::wstring& folder) const {
    return Names(folder, L"Files");
}

Outcome<bool> clsFileSystem::FileExists(const std::wstring& file) const { return Exists(L"FileExists", file); }
Outcome<bool> clsFileSystem::DriveExists(const std::wstring& drive) const { return Exists(L"DriveExists", drive); }
Outcome<bool> clsFileSystem::FolderExists(const std::wstring& folder) const { return Exists(L"FolderExists", folder); }

HRESULT clsFileSystem::CreateFolder(const std::wstring& folder) const {
    Variant result;
    return fileSystem ? Call(*fileSystem, L"CreateFolder", result, folder) : created;
}

HRESULT clsFileSystem::DeleteFolder(const std::wstring& folder) const {
    // Unlike the others, this member wants the path without a backslash at its end.
    const bool slashed = folder.size() > 1 && folder.back() == L'\\';
    Variant result;
    return fileSystem
               ? Call(*fileSystem, L"DeleteFolder", result, slashed ? folder.substr(0, folder.size() - 1) : folder)
               : created;
}

Outcome<DATE> clsFileSystem::FileDate(const std::wstring& file, DateKind kind) const {
    return Date(L"GetFile", file, kind);
}

Outcome<DATE> clsFileSystem::FolderDate(const std::wstring& folder, DateKind kind) const {
    return Date(L"GetFolder", folder, kind);
}

HRESULT clsFileSystem::WriteLog(int32_t code, int32_t status, const std::wstring& text) {
    if (!FolderExists(logFolder).Result) return S_OK;
    lastMessage = std::to_wstring(code) + L"-" + std::to_wstring(status) + L"-" + text;

    const std::wstring file = logFolder + LogFileName;
    const bool exists = FileExists(file).Result;
    Variant opened;
    HRESULT result = exists ? Call(*fileSystem, L"OpenTextFile", opened, file, ForAppending)
                            : Call(*fileSystem, L"CreateTextFile", opened, file, true);
    if (FAILED(result)) return result;
    const auto stream = opened.Object();
    if (!stream) return DISP_E_TYPEMISMATCH;

    std::vector<std::wstring> lines{L"#Version: " TORVANIX_VERSION, L"#Date: " + Now(), L"#Message: " + lastMessage,
                                    L"#"};
    if (!exists) lines.insert(lines.begin(), L"#Software: TORVANIX");
    Variant nothing;
    for (const std::wstring& line : lines) {
        // The stream is ANSI and refuses a line with any other character.
        const HRESULT written = Call(*stream, L"WriteLine", nothing, FromAnsi(ToAnsi(line)));
        if (FAILED(written)) result = written;
    }
    const HRESULT closed = Call(*stream, L"Close", nothing);
    return FAILED(result) ? result : closed;
}

Outcome<bool> clsFileSystem::Exists(const wchar_t* member, const std::wstring& path) const {
    Variant result;
    const HRESULT status = fileSystem ? Call(*fileSystem, member, result, path) : created;
    return {status, SUCCEEDED(status) && result.Boolean()};
}

Outcome<std::vector<std::wstring>> clsFileSystem::Names(const std::wstring& folder, const wchar_t* collection) const {
    Outcome<std::vector<std::wstring>> names{created, {}};
    if (!fileSystem) return names;
    Variant value;
    names.Status = Call(*fileSystem, L"GetFolder", value, folder);
    const auto object = value.Object();
    if (!object) return names;
    names.Status = Call(*object, collection, value);
    const auto members = value.Object();
    if (!members) return names;
    std::vector<UniqueCom<IDispatch>> items;
    names.Status = Items(*members, items);
    for (const auto& item : items) {
        const HRESULT named = Call(*item, L"Name", value);
        if (FAILED(named))
            names.Status = named;
        else
            names.Result.push_back(value.Text());
    }
    return names;
}

Outcome<DATE> clsFileSystem::Date(const wchar_t* getter, const std::wstring& path, DateKind kind) const {
    Outcome<DATE> date{created, 0};
    if (!fileSystem) return date;
    Variant value;
    date.Status = Call(*fileSystem, getter, value, path);
    const auto object = value.Object();
    if (!object) return date;
    date.Status = Call(*object, DateMember(kind), value);
    if (SUCCEEDED(date.Status)) date.Result = value.Date();
    return date;
}
