// What dialogs share for dealing with their controls.
#pragma once

#include "core/platform.h"

struct CommandRow {
    int id; // of the control
    void (*does)(HWND dialog);
};

// Runs the row of the control that sent WM_COMMAND, whatever has happened to it. TRUE if it has a row.
template <int COUNT>
INT_PTR RunCommand(const CommandRow (&rows)[COUNT], HWND dialog, WPARAM wParam) {
    for (const CommandRow& row : rows) {
        if (row.id != LOWORD(wParam))
            continue;
        row.does(dialog);
        return TRUE;
    }
    return FALSE;
}

// Adds a row to a list box, with a number of the program's as its item data; in its sorted place, if the list
// sorts. A text that the list box refuses is left out of it.
void AddListRow(HWND listBox, const char* text, LPARAM data);

// The item data of the row that is selected in a list box of the dialog; LB_ERR if there is none.
LRESULT SelectedData(HWND dialog, int listBox);

// Lets Tab find a radio button of a group in which none is checked: clearing one takes it out of Tab's way.
inline void KeepTabStop(HWND radio) {
    SetWindowLongPtrA(radio, GWL_STYLE, GetWindowLongPtrA(radio, GWL_STYLE) | WS_TABSTOP);
}
