#include "dialogs/controls.h"

void AddListRow(HWND listBox, const char* text, LPARAM data) {
    const LRESULT position = SendMessageA(listBox, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    if (position >= 0)
        SendMessageA(listBox, LB_SETITEMDATA, static_cast<WPARAM>(position), data);
}

LRESULT SelectedData(HWND dialog, int listBox) {
    const LRESULT row = SendDlgItemMessageA(dialog, listBox, LB_GETCURSEL, 0, 0);
    if (row < 0)
        return LB_ERR;
    return SendDlgItemMessageA(dialog, listBox, LB_GETITEMDATA, static_cast<WPARAM>(row), 0);
}
