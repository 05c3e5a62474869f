// RAII owners for the Windows handles and GDI objects the program takes. Every
// handle is released by its owner's destructor; nothing is closed by hand.
#pragma once

#include <windows.h>

#include <cstdint>
#include <utility>

namespace Win {

// Owns one handle of type H and releases it with Close when it goes. InvalidBits
// is the "no handle" value (0, or -1 for file and find handles).
template <typename H, auto Close, std::intptr_t InvalidBits = 0>
class UniqueHandle {
    static H Invalid() { return reinterpret_cast<H>(InvalidBits); }

public:
    UniqueHandle() = default;
    explicit UniqueHandle(H h) : handle_(h) {}
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    ~UniqueHandle() { reset(); }

    H get() const { return handle_; }
    explicit operator bool() const { return handle_ != Invalid(); }
    H release() { return std::exchange(handle_, Invalid()); }
    void reset() { reset(Invalid()); }
    void reset(H h) {
        H old = std::exchange(handle_, h);
        if (old != Invalid())
            Close(old);
    }

private:
    H handle_ = Invalid();
};

namespace Detail {
inline void CloseKernelHandle(HANDLE h) { ::CloseHandle(h); }
inline void CloseFind(HANDLE h) { ::FindClose(h); }
inline void CloseKey(HKEY h) { ::RegCloseKey(h); }
inline void DestroyWindowHandle(HWND h) { ::DestroyWindow(h); }
inline void DeleteGdiObject(HGDIOBJ h) { ::DeleteObject(h); }
inline void DeleteMemoryDc(HDC h) { ::DeleteDC(h); }
inline void DestroyIconHandle(HICON h) { ::DestroyIcon(h); }
inline void DestroyMenuHandle(HMENU h) { ::DestroyMenu(h); }
inline void UnloadModule(HMODULE h) { ::FreeLibrary(h); }
inline void RemoveHook(HHOOK h) { ::UnhookWindowsHookEx(h); }
} // namespace Detail

using UniqueKernelHandle = UniqueHandle<HANDLE, Detail::CloseKernelHandle>;
using UniqueFileHandle = UniqueHandle<HANDLE, Detail::CloseKernelHandle, -1>;
using UniqueFindHandle = UniqueHandle<HANDLE, Detail::CloseFind, -1>;
using UniqueKey = UniqueHandle<HKEY, Detail::CloseKey>;
using UniqueWindow = UniqueHandle<HWND, Detail::DestroyWindowHandle>;
using UniqueMemoryDc = UniqueHandle<HDC, Detail::DeleteMemoryDc>;
using UniqueIcon = UniqueHandle<HICON, Detail::DestroyIconHandle>;
using UniqueMenu = UniqueHandle<HMENU, Detail::DestroyMenuHandle>;
using UniqueModule = UniqueHandle<HMODULE, Detail::UnloadModule>;
using UniqueHook = UniqueHandle<HHOOK, Detail::RemoveHook>;

// GDI objects of one kind each, so a brush cannot be handed where a font is wanted.
template <typename H>
using UniqueGdi = UniqueHandle<H, Detail::DeleteGdiObject>;
using UniqueBrush = UniqueGdi<HBRUSH>;
using UniquePen = UniqueGdi<HPEN>;
using UniqueFont = UniqueGdi<HFONT>;
using UniqueBitmap = UniqueGdi<HBITMAP>;
using UniqueRegion = UniqueGdi<HRGN>;

// A device context obtained with GetDC, released with ReleaseDC on the same window.
class WindowDc {
public:
    explicit WindowDc(HWND hwnd) : hwnd_(hwnd), dc_(::GetDC(hwnd)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() {
        if (dc_)
            ::ReleaseDC(hwnd_, dc_);
    }
    HDC get() const { return dc_; }

private:
    HWND hwnd_;
    HDC dc_;
};

// BeginPaint/EndPaint as one object.
class PaintDc {
public:
    explicit PaintDc(HWND hwnd) : hwnd_(hwnd) { dc_ = ::BeginPaint(hwnd, &ps_); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    ~PaintDc() { ::EndPaint(hwnd_, &ps_); }
    HDC get() const { return dc_; }
    const RECT& area() const { return ps_.rcPaint; }

private:
    HWND hwnd_;
    PAINTSTRUCT ps_{};
    HDC dc_;
};

// Selects a GDI object into a DC and puts the old one back when it goes.
class SelectGuard {
public:
    SelectGuard(HDC dc, HGDIOBJ obj) : dc_(dc), old_(::SelectObject(dc, obj)) {}
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;
    ~SelectGuard() {
        if (old_ && old_ != HGDI_ERROR)
            ::SelectObject(dc_, old_);
    }

private:
    HDC dc_;
    HGDIOBJ old_;
};

} // namespace Win
