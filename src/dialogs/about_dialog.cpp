#include "dialogs/about_dialog.h"

#include "dialogs/registry.h"
#include "resources/control_ids.h"

static const char* const PROGRAM_TEXT = "Quorl " QUORL_VERSION "\n"
                                        "Copyright (c) 2026\n"
                                        "the Quorl developers\n"
                                        "MIT License";

static const char* const CONTACT_TEXT = "Web: none yet; read the help in the archive\r\n"
                                        "E-mail: none yet";

// OK gets the focus: a text with the focus would appear selected.
static void OnInit(HWND dialog) {
    SetDlgItemTextA(dialog, IDC_ABOUT_PROGRAM, PROGRAM_TEXT);
    SetDlgItemTextA(dialog, IDC_ABOUT_CONTACT, CONTACT_TEXT);
    ShowWindow(dialog, SW_SHOW);
    SetFocus(GetDlgItem(dialog, IDOK));
}

INT_PTR CALLBACK AboutDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); break;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            CloseDialog(dialog);
        break;
    default: break;
    }
    return 0;
}
