// The dialog that says what this program is.
#include "dialogs/about_dialog.h"

#include "dialogs/registry.h"

static const int ID_CONTACT = 1011;
static const int ID_PROGRAM = 1072;

static const char* const PROGRAM_TEXT = "Quorl " QUORL_VERSION "\n"
                                        "Copyright (c) 2026\n"
                                        "the Quorl developers\n"
                                        "MIT License";

static const char* const CONTACT_TEXT = "Web: none yet; read the help in the archive\r\n"
                                        "E-mail: none yet";

// OK has the focus: the text would come up selected with it.
static void OnInit(HWND dialog) {
    SetDlgItemTextA(dialog, ID_PROGRAM, PROGRAM_TEXT);
    SetDlgItemTextA(dialog, ID_CONTACT, CONTACT_TEXT);
    ShowWindow(dialog, SW_SHOW);
    DialogHandles[KEYS_ABOUT] = dialog;
    SetFocus(GetDlgItem(dialog, IDOK));
}

INT_PTR CALLBACK AboutDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); break;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            CloseDialog(dialog, DIALOG_ABOUT, 0);
        break;
    default: break;
    }
    return 0;
}
