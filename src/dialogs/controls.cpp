#include "dialogs/controls.h"

static void SetRowData(HWND listBox, LRESULT position, LPARAM data) {
    if (position >= 0)
        SendMessageA(listBox, LB_SETITEMDATA, static_cast<WPARAM>(position), data);
}

void AddListRow(HWND listBox, const char* text, LPARAM data) {
    SetRowData(listBox, SendMessageA(listBox, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)), data);
}

void AddTitleRow(HWND listBox, LPCWSTR title, LPARAM data) {
    SetRowData(listBox, SendMessageW(listBox, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title)), data);
}

LRESULT SelectedData(HWND dialog, int listBox) {
    const LRESULT row = SendDlgItemMessageA(dialog, listBox, LB_GETCURSEL, 0, 0);
    if (row < 0)
        return LB_ERR;
    return SendDlgItemMessageA(dialog, listBox, LB_GETITEMDATA, static_cast<WPARAM>(row), 0);
}
