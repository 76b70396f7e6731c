// What dialogs share for dealing with their controls.
#include "dialogs/controls.h"

void AddListRow(HWND listBox, const char* text, LPARAM data) {
    const LRESULT place = SendMessageA(listBox, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    if (place >= 0)
        SendMessageA(listBox, LB_SETITEMDATA, static_cast<WPARAM>(place), data);
}

LRESULT SelectedData(HWND dialog, int listBox) {
    const LRESULT row = SendDlgItemMessageA(dialog, listBox, LB_GETCURSEL, 0, 0);
    if (row < 0)
        return LB_ERR;
    return SendDlgItemMessageA(dialog, listBox, LB_GETITEMDATA, static_cast<WPARAM>(row), 0);
}
