// Basic types, with the sizes they have on Windows.
#pragma once

#include <cstddef>
#include <cstdint>

#define WINAPI
#define CALLBACK
#define APIENTRY

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using ATOM = WORD;
using UINT = unsigned int;
using LONG = std::int32_t;
using DWORD = std::uint32_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using ULONG_PTR = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = LONG;
using COLORREF = DWORD;
using LPSTR = char*;
using LPCSTR = const char*;
using WCHAR = wchar_t; // holds UTF-16 units, whatever its size
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPVOID = void*;

// Handles are opaque. Those of windows and displays are numbers, not addresses.
using HWND = struct DeskHandleOfWindow*;
using HINSTANCE = struct DeskHandleOfModule*;
using HMODULE = HINSTANCE;
using HANDLE = void*;
using HGDIOBJ = void*;
using HDC = struct DeskHandleOfContext*;
using HPEN = struct DeskHandleOfPen*;
using HBITMAP = struct DeskHandleOfBitmap*;
using HBRUSH = struct DeskHandleOfBrush*;
using HFONT = struct DeskHandleOfFont*;
using HICON = struct DeskHandleOfIcon*;
using HCURSOR = HICON;
using HMENU = struct DeskHandleOfMenu*;
using HMONITOR = struct DeskHandleOfMonitor*;

using FARPROC = INT_PTR(WINAPI*)();

struct POINT {
    LONG x, y;
};

struct SIZE {
    LONG cx, cy;
};

struct RECT {
    LONG left, top, right, bottom;
};

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

constexpr WORD LOWORD(DWORD_PTR value) {
    return static_cast<WORD>(value & 0xffff);
}

constexpr WORD HIWORD(DWORD_PTR value) {
    return static_cast<WORD>((value >> 16) & 0xffff);
}

constexpr LPARAM MAKELPARAM(int low, int high) {
    return static_cast<LPARAM>(static_cast<DWORD>(static_cast<WORD>(low)) |
                               static_cast<DWORD>(static_cast<WORD>(high)) << 16);
}

inline LPWSTR MAKEINTRESOURCEW(int id) {
    return reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(static_cast<WORD>(id)));
}

inline LPSTR MAKEINTRESOURCEA(int id) {
    return reinterpret_cast<LPSTR>(static_cast<UINT_PTR>(static_cast<WORD>(id)));
}
