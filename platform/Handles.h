#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

// Owners of Win32 handles; each closes its handle once.
template <typename Handle, auto Close>
struct HandleCloser {
    using pointer = Handle;
    void operator()(Handle handle) const { Close(handle); }
};

template <typename Handle, auto Close>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, HandleCloser<Handle, Close>>;

using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueBrush = Unique<HBRUSH, DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, DeleteObject>;
using UniqueDc = Unique<HDC, DeleteDC>;
using UniqueIcon = Unique<HICON, DestroyIcon>;
using UniqueCursor = Unique<HCURSOR, DestroyCursor>;
using UniqueAccelerators = Unique<HACCEL, DestroyAcceleratorTable>;

// CreateFile reports failure with INVALID_HANDLE_VALUE, which must not be closed: test before owning.
using UniqueFile = Unique<HANDLE, CloseHandle>;

// Owner of a COM interface pointer.
struct ComRelease {
    template <typename Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
template <typename Interface>
using UniqueCom = std::unique_ptr<Interface, ComRelease>;

// The device context of a window's client area, or of the screen for null, for the life of the object.
class WindowDc {
  public:
    explicit WindowDc(HWND window) : WindowDc(window, GetDC(window)) {}
    // One that draws over the window's children too.
    static WindowDc OverChildren(HWND window) {
        return {window, GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS)};
    }
    ~WindowDc() { ReleaseDC(window, dc); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC Dc() const { return dc; }

  private:
    WindowDc(HWND window, HDC dc) : window(window), dc(dc) {}

    HWND window;
    HDC dc;
};

// Selects a GDI object for the life of the selection.
class Selection {
  public:
    Selection(HDC dc, HGDIOBJ object) : dc(dc), previous(SelectObject(dc, object)) {}
    ~Selection() { SelectObject(dc, previous); }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

  private:
    HDC dc;
    HGDIOBJ previous;
};
