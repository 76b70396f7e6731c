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

// Lets Tab find a radio button of a group in which none is checked: clearing one takes it out of Tab's way.
inline void KeepTabStop(HWND radio) {
    SetWindowLongPtrA(radio, GWL_STYLE, GetWindowLongPtrA(radio, GWL_STYLE) | WS_TABSTOP);
}
