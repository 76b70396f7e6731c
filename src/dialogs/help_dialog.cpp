// The dialog that says where help is to be found; it can be resized.
#include "dialogs/help_dialog.h"

#include "core/coordinates.h"
#include "dialogs/registry.h"

static const int ID_TEXT = 1068;
static const int MARGIN = 10; // pixels, round both controls and between them

static const char* const HELP_TEXT =
    "Help inside the program is still to come.\r\n"
    "HTML documentation comes in the program's archive: start with index.html in its help folder.\r\n"
    "There is no web site yet; the archive holds all that there is to read.";

HelpLayout LayOutHelp(int width, int height, int buttonWidth, int buttonHeight) {
    const LONG left = width - buttonWidth - MARGIN;
    const LONG top = height - buttonHeight - MARGIN;
    return {
        {MARGIN, MARGIN, width - MARGIN,     top - MARGIN      },
        {left,   top,    left + buttonWidth, top + buttonHeight}
    };
}

static void Place(HWND control, const RECT& place) {
    MoveWindow(control, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

// OK has the focus: the text would come up selected with it.
static void OnInit(HWND dialog) {
    SetDlgItemTextA(dialog, ID_TEXT, HELP_TEXT);
    ShowWindow(dialog, SW_SHOW);
    DialogHandles[KEYS_HELP] = dialog;
    SetFocus(GetDlgItem(dialog, IDOK));
}

static void OnSize(HWND dialog, ActionPoint size) {
    const HWND text = GetDlgItem(dialog, ID_TEXT);
    const HWND button = GetDlgItem(dialog, IDOK);
    RECT now{};
    GetWindowRect(button, &now);
    const HelpLayout layout = LayOutHelp(size.x, size.y, now.right - now.left, now.bottom - now.top);
    if (text)
        Place(text, layout.text);
    Place(button, layout.button);
}

INT_PTR CALLBACK HelpDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); break;
    case WM_GETMINMAXINFO: reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {400, 200}; break;
    case WM_SIZE: OnSize(dialog, PointOf(lParam)); break;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            CloseDialog(dialog, DIALOG_HELP, 0);
        break;
    default: break;
    }
    return 0;
}
