// What the contract tests need of a desktop and cannot ask for by a plain call: other programs, the user's
// hands, the passing of time, files. desk/ does it on the in-memory desktop, windows/ on Windows.
#pragma once

#include "core/platform.h"

#include <string>
#include <vector>

inline const RECT PLACE{100, 120, 400, 320}; // of windows, unless a case says otherwise

// After each case: closes what OpenStranger opened.
void GroundTearDown();

// A visible window of another program, of class "Stranger", with title bar and sizing frame, not activated.
// It takes half a second to answer WM_MOVING; on the in-memory desktop, where no answer takes time, a slow
// one does not come to it.
HWND OpenStranger(const char* title, int bSlow = 0);

// Handles messages for so many milliseconds.
void Handle(DWORD milliseconds);

// The user holds or releases a key.
void HoldKey(int key, int bDown);

// The user moves the mouse, in screen pixels, or holds or releases one of its buttons (VK_ values).
void MoveMouse(int x, int y);
void PressMouse(int button, int bDown);

// The whole text of a private profile file, by its bare name.
void WriteProfile(const char* file, const std::string& text);
std::string ReadProfile(const char* file);
