// The compositor.
#pragma once

#include "windows.h"

constexpr DWORD DWMWA_EXTENDED_FRAME_BOUNDS = 9;
constexpr DWORD DWMWA_CLOAKED = 14;
constexpr DWORD DWM_CLOAKED_SHELL = 2;

HRESULT WINAPI DwmGetWindowAttribute(HWND window, DWORD attribute, void* value, DWORD size);
