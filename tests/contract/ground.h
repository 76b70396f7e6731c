// What the contract tests need of a desktop and cannot ask for by a plain call: other programs, the user's
// hands, the passing of time, files. desk/ does it on the in-memory desktop, windows/ on Windows.
#pragma once

#include "core/platform.h"

#include <string>
#include <vector>

// How another program's window takes WM_MOVING.
enum class Manner {
    Answers,
    Rewrites, // puts RewrittenRecord into the record
    Slow,     // answers after half a second
    Hung,     // has not looked at its messages for so long that the system knows it
    Leaves,   // its program ends instead of answering
};

inline const RECT PLACE{100, 120, 400, 320}; // of windows, unless a case says otherwise
inline const RECT RewrittenRecord{11, 22, 333, 244};

// After each case: closes what OpenStranger opened.
void GroundTearDown();

// The instance of this program, for classes and windows.
HINSTANCE Instance();

// A visible window of another program, of class "Stranger", with title bar and sizing frame, not activated.
HWND OpenStranger(const char* title, Manner manner = Manner::Answers);

// Milliseconds on a clock of the ground.
DWORD Clock();

// Lets time pass without looking at any message.
void Pass(DWORD milliseconds);

// Handles messages for so long.
void Handle(DWORD milliseconds);

// The user holds or releases a key.
void HoldKey(int key, int bDown);

// The user moves the mouse, in screen pixels, or holds or releases one of its buttons (VK_ values).
void MoveMouse(int x, int y);
void PressMouse(int button, int bDown);

// The user clicks a button, or a row of a list or a tab, from 0; types into an edit box instead of what it
// holds. All of it in a dialog in front, and handled when the call is back.
void ClickControl(HWND button);
void ChooseRow(HWND control, int row);
void TypeInto(HWND edit, const char* text);

// A private profile file by its bare name: its whole text put down or removed, its lines without blank ones.
void WriteProfile(const char* file, const std::string& text);
void RemoveProfile(const char* file);
std::vector<std::string> ProfileLines(const char* file);

// Plays another program until it is stopped, if this process was started for that; else 0, at once.
int PlayStranger(int count, char** words);
