#include "dialogs/help_dialog.h"

#include "core/rect.h"
#include "dialogs/registry.h"
#include "resources/control_ids.h"

static const int MARGIN = 10; // pixels, around both controls and between them

static const char* const HELP_TEXT =
    "Help inside the program is still to come.\r\n"
    "HTML documentation comes in the program's archive: start with index.html in its help folder.\r\n"
    "There is no web site yet; the archive holds all that there is to read.";

namespace {

// Pixels of the dialog's client area.
struct HelpLayout {
    RECT text, button;
};

} // namespace

// Pure: the rectangles of the text and of an OK button of that size in a client area of width by height. If
// it is too small for both, the text has a negative size.
static HelpLayout LayOutHelp(int width, int height, int buttonWidth, int buttonHeight) {
    const LONG left = width - buttonWidth - MARGIN;
    const LONG top = height - buttonHeight - MARGIN;
    return {{MARGIN, MARGIN, width - MARGIN, top - MARGIN},
            {left, top, left + buttonWidth, top + buttonHeight}};
}

static void MoveControl(HWND control, const RECT& rect) {
    MoveWindow(control, rect.left, rect.top, Width(rect), Height(rect), TRUE);
}

// OK gets the focus: a text with the focus would appear selected.
static void OnInit(HWND dialog) {
    SetDlgItemTextA(dialog, IDC_HELP_TEXT, HELP_TEXT);
    ShowWindow(dialog, SW_SHOW);
    SetFocus(GetDlgItem(dialog, IDOK));
}

static void OnSize(HWND dialog, POINT size) {
    const HWND text = GetDlgItem(dialog, IDC_HELP_TEXT);
    const HWND button = GetDlgItem(dialog, IDOK);
    RECT now{};
    GetWindowRect(button, &now);
    const HelpLayout layout = LayOutHelp(size.x, size.y, Width(now), Height(now));
    if (text)
        MoveControl(text, layout.text);
    MoveControl(button, layout.button);
}

INT_PTR CALLBACK HelpDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); break;
    case WM_GETMINMAXINFO: reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {400, 200}; break;
    case WM_SIZE: OnSize(dialog, MousePosition(lParam)); break;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            CloseDialog(dialog);
        break;
    default: break;
    }
    return 0;
}
