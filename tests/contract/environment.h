// What the contract tests need beyond plain Win32 calls: other programs, keyboard and mouse, time, files.
// in_memory/ implements it for the in-memory desktop, windows/ for Windows.
#pragma once

#include "support/rect.h"

#include <string>

inline constexpr RECT RECT_OF_WINDOWS{100, 120, 400, 320}; // unless a case says otherwise

// A visible window of another program with title bar and sizing frame, not activated. A slow one takes half a
// second to handle WM_MOVING.
HWND OpenOther(const char* title, bool slow = false);
void CloseOthers();

// Handles messages for so many milliseconds.
void HandleFor(DWORD milliseconds);

// Keyboard and mouse; screen pixels, buttons are VK_ values.
void HoldKey(int key, bool down);
void MoveMouse(int x, int y);
void PressMouse(int button, bool down);

// The whole text of a private profile file, by its bare name.
void WriteProfile(const char* file, const std::string& text);
std::string ReadProfile(const char* file);

// Gives a file, by its bare name, access rights that are not those of its folder.
void GiveOwnRights(const char* file);
