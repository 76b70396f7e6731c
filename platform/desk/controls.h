// What dialogs and controls share with the rest of the in-memory desktop.
#pragma once

#include "ground.h"

#include <commctrl.h>

#include <span>

// Styles that only the system reads.
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

// Messages and news that only the system and its controls exchange.
constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;

// A class that the system brings along.
struct SystemClass {
    const char* name;
    WNDPROC procedure;
};

// Null if there is none of that name, in any case.
const SystemClass* SystemClassNamed(const char* name);

// What a kind of control answers to one message; what no row answers goes to the default.
struct ControlMessage {
    UINT message;
    LRESULT (*answer)(DeskWindow& control, WPARAM wParam, LPARAM lParam);
};

LRESULT AnswerBy(std::span<const ControlMessage> table, HWND control, UINT message, WPARAM wParam,
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

// Tells the parent by WM_COMMAND, or by WM_NOTIFY with a record that begins with `header`.
void Tell(const DeskWindow& control, WORD code);
LRESULT Notify(const DeskWindow& control, NMHDR& header, UINT code);

// A label or a frame round other controls: the mouse goes through.
int IsSeenThrough(const DeskWindow& control);

// Visible with all it stands in, and enabled.
int IsUsable(HWND control);

// As a click or the space bar does it.
void PressButton(DeskWindow& button);

// The user has clicked a row or a tab, one function a kind.
void ChooseInListBox(DeskWindow& control, int row);
void ChooseInComboBox(DeskWindow& control, int row);
void ChooseTab(DeskWindow& control, int row);
void ChooseInListView(DeskWindow& control, int row);

// The next control behind `from` (null: the first) that Tab goes to, round the end; `bBack` the other way.
// Null if there is none.
HWND NextTabStop(HWND dialog, HWND from, int bBack);
