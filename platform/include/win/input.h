// Keyboard, hotkeys, cursor, mouse capture.
#pragma once

#include "types.h"

constexpr UINT MOD_ALT = 1;
constexpr UINT MOD_CONTROL = 2;
constexpr UINT MOD_SHIFT = 4;
constexpr UINT MOD_WIN = 8;

// Buttons and keys held, in wParam of mouse messages.
constexpr WPARAM MK_LBUTTON = 1;
constexpr WPARAM MK_RBUTTON = 2;
constexpr WPARAM MK_SHIFT = 4;
constexpr WPARAM MK_CONTROL = 8;
constexpr WPARAM MK_MBUTTON = 16;

constexpr int VK_LBUTTON = 1;
constexpr int VK_RBUTTON = 2;
constexpr int VK_MBUTTON = 4;
constexpr int VK_TAB = 9;
constexpr int VK_RETURN = 13;
constexpr int VK_ESCAPE = 27;
constexpr int VK_SPACE = 32;
constexpr int VK_LEFT = 37;
constexpr int VK_UP = 38;
constexpr int VK_RIGHT = 39;
constexpr int VK_DOWN = 40;
constexpr int VK_F1 = 112;
constexpr int VK_F12 = 123;
constexpr int VK_F13 = 124;
constexpr int VK_F24 = 135;
constexpr int VK_LSHIFT = 160;
constexpr int VK_RSHIFT = 161;
constexpr int VK_LCONTROL = 162;
constexpr int VK_RCONTROL = 163;
constexpr int VK_LMENU = 164;
constexpr int VK_RMENU = 165;

constexpr DWORD ERROR_HOTKEY_ALREADY_REGISTERED = 1409;
constexpr DWORD ERROR_HOTKEY_NOT_REGISTERED = 1419;

BOOL WINAPI RegisterHotKey(HWND window, int id, UINT modifiers, UINT key);
BOOL WINAPI UnregisterHotKey(HWND window, int id);
SHORT WINAPI VkKeyScanA(char character);
SHORT WINAPI GetKeyState(int key);
SHORT WINAPI GetAsyncKeyState(int key);
BOOL WINAPI GetCursorPos(POINT* point);
BOOL WINAPI SetCursorPos(int x, int y);
HWND WINAPI SetCapture(HWND window);
BOOL WINAPI ReleaseCapture();
