#pragma once

#include <windows.h>

#include <exception>
#include <string>

// A call of the system that failed on a file, a folder, a picture or a program.
class SystemError : public std::exception {
  public:
    // `code` is one of GetLastError's; `thing` is what the message names, a path for example.
    SystemError(DWORD code, std::wstring thing) : code(code), thing(std::move(thing)) {}
    DWORD Code() const { return code; }
    const std::wstring& Thing() const { return thing; }
    const char* what() const noexcept override { return "system error"; }

  private:
    DWORD code;
    std::wstring thing;
};

// The code of GetLastError that a status of COM or of the scripting runtime amounts to.
DWORD CodeOf(HRESULT status);
