#pragma once

#include <windows.h>

#include <string>

// What a process holds. Where the system counts GDI objects, USER objects or handles for its programs, these are its
// figures. Wine 8 answers 0 to all three, and there they are counted where it keeps them: GDI objects in the table of
// the process, handles in the server's list, and USER objects by the numbers that new ones get, which counts those of
// all programs of the prefix together.
struct Resources {
    size_t Gdi = 0, User = 0, Handles = 0;
    size_t PrivateBytes = 0;
    size_t TemporaryFiles = 0;  // entries of the folder for temporary files, of whatever program

    std::string Text() const;
};

// `process` needs the rights to query it and to read its memory.
Resources CountResources(HANDLE process);
