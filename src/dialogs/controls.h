// Helpers for the controls of dialogs.
#pragma once

#include "core/platform.h"

struct CommandRow {
    int id; // of the control
    void (*handler)(HWND dialog);
};

// Runs the handler of the control that sent WM_COMMAND, whatever its notification. TRUE if it has one.
template <int COUNT>
INT_PTR RunCommand(const CommandRow (&rows)[COUNT], HWND dialog, WPARAM wParam) {
    for (const CommandRow& row : rows) {
        if (row.id != LOWORD(wParam))
            continue;
        row.handler(dialog);
        return TRUE;
    }
    return FALSE;
}

// Adds a text with its item data to a list box, sorted if the list box sorts. Nothing happens if the list box
// refuses it.
void AddListRow(HWND listBox, const char* text, LPARAM data);

// The same for a window's title, which may contain characters that the ANSI code page lacks.
void AddTitleRow(HWND listBox, LPCWSTR title, LPARAM data);

// The item data of the selected row of a list box; LB_ERR if none is selected.
LRESULT SelectedData(HWND dialog, int listBox);

// Makes a radio button reachable by Tab. Unchecking removes WS_TABSTOP, so needed if none is checked.
inline void KeepTabStop(HWND radio) {
    SetWindowLongPtrA(radio, GWL_STYLE, GetWindowLongPtrA(radio, GWL_STYLE) | WS_TABSTOP);
}
