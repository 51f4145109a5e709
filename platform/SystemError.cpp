#include "platform/SystemError.h"

namespace {

// The scripting runtime's objects report run-time error numbers, which have a facility of their own.
constexpr HRESULT FileNotFound = static_cast<HRESULT>(0x800A0035);
constexpr HRESULT FileAlreadyExists = static_cast<HRESULT>(0x800A003A);
constexpr HRESULT DiskFull = static_cast<HRESULT>(0x800A003D);
constexpr HRESULT PermissionDenied = static_cast<HRESULT>(0x800A0046);
constexpr HRESULT PathAccessError = static_cast<HRESULT>(0x800A004B);
constexpr HRESULT PathNotFound = static_cast<HRESULT>(0x800A004C);

}  // namespace

DWORD CodeOf(HRESULT status) {
    switch (status) {
        case FileNotFound: return ERROR_FILE_NOT_FOUND;
        case FileAlreadyExists: return ERROR_FILE_EXISTS;
        case DiskFull: return ERROR_DISK_FULL;
        case PermissionDenied:
        case PathAccessError: return ERROR_ACCESS_DENIED;
        case PathNotFound: return ERROR_PATH_NOT_FOUND;
        default: break;
    }
    if (HRESULT_FACILITY(status) == FACILITY_WIN32) return static_cast<DWORD>(HRESULT_CODE(status));
    return static_cast<DWORD>(status);
}
