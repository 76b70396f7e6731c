// Shared by dialogs and controls.
#pragma once

#include "internal.h"

#include <commctrl.h>

#include <span>

// Styles and messages that only the system's own code uses.
constexpr DWORD BS_DEFPUSHBUTTON = 1;
constexpr DWORD BS_AUTOCHECKBOX = 3;
constexpr DWORD BS_GROUPBOX = 7;
constexpr DWORD BS_AUTORADIOBUTTON = 9;
constexpr DWORD BS_TYPEMASK = 15;
constexpr DWORD DS_MODALFRAME = 0x80;
constexpr DWORD DS_CENTER = 0x800;
constexpr DWORD ES_MULTILINE = 4;
constexpr DWORD ES_READONLY = 0x800;
constexpr DWORD ES_NUMBER = 0x2000;
constexpr DWORD LBS_NOTIFY = 1;
constexpr DWORD LBS_SORT = 2;
constexpr DWORD WS_GROUP = 0x00020000;

constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;

// A predefined window class.
struct SystemClass {
    const char* name;
    WNDPROC procedure;
};

// Case-insensitive; null if there is none of that name.
const SystemClass* FindSystemClass(const char* name);

struct ControlMessage {
    UINT message;
    LRESULT (*handler)(DeskWindow& control, WPARAM wParam, LPARAM lParam);
};

// Messages that are not in the table go to DefaultProc.
LRESULT HandleByTable(std::span<const ControlMessage> table, HWND control, UINT message, WPARAM wParam,
                      LPARAM lParam);

LRESULT CALLBACK ButtonProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK StaticProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK EditProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ListBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboBoxProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK TabProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ListViewProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK TrackbarProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Sends WM_COMMAND, or WM_NOTIFY with a record that begins with `header`, to the parent.
void NotifyCommand(const DeskWindow& control, WORD code);
LRESULT SendNotify(const DeskWindow& control, NMHDR& header, UINT code);

// Labels and group boxes do not receive mouse input.
bool IsTransparentToMouse(const DeskWindow& control);

// Shown and enabled.
bool IsUsable(HWND control);

// As a click or the space bar does.
void PressButton(DeskWindow& button);

// As a click on an item does.
void SelectInListBox(DeskWindow& control, int index);
void SelectInComboBox(DeskWindow& control, int index);
void SelectTab(DeskWindow& control, int index);
void SelectInListView(DeskWindow& control, int index);

// The next control after `from` that Tab moves to, with wrap-around; null `from`: the first. Null if there is
// none.
HWND NextTabStop(HWND dialog, HWND from, bool backwards);
