// The keys that move and press inside a dialog: Tab, Enter, Escape.
#include "controls.h"

#include <algorithm>

static int IsPushButton(const DeskWindow& control) {
    return control.procedure == ButtonProc && (control.style & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
}

static int IsDown(int key) {
    return Desk.keysRead[key];
}

HWND NextTabStop(HWND dialog, HWND from, int bBack) {
    std::vector<HWND> controls = RowOf(dialog).children;
    if (bBack)
        std::reverse(controls.begin(), controls.end());
    const auto at = std::find(controls.begin(), controls.end(), from);
    if (at != controls.end())
        std::rotate(controls.begin(), at + 1, controls.end());
    const auto next = std::find_if(controls.begin(), controls.end(), [](HWND control) {
        return (RowOf(control).style & (WS_TABSTOP | WS_VISIBLE | WS_DISABLED)) == (WS_TABSTOP | WS_VISIBLE);
    });
    return next == controls.end() ? nullptr : *next;
}

static void OnTab(HWND dialog) {
    const HWND next = NextTabStop(dialog, Desk.focus, IsDown(VK_LSHIFT) || IsDown(VK_RSHIFT));
    if (next)
        MoveFocus(next);
}

static void Command(HWND dialog, int id) {
    CallProcedure(dialog, WM_COMMAND, static_cast<WPARAM>(id),
                  reinterpret_cast<LPARAM>(ControlOf(dialog, id)));
}

// The button that Enter presses: the one with the focus, else the template's default, else number 1.
static int DefaultButton(HWND dialog) {
    const DeskWindow* focused = Living(Desk.focus);
    if (focused && IsPushButton(*focused))
        return static_cast<int>(focused->id);
    for (const HWND control : RowOf(dialog).children)
        if (IsPushButton(RowOf(control)) && (RowOf(control).style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
            return static_cast<int>(RowOf(control).id);
    return IDOK;
}

// A disabled button is not pressed; a number without a button is told all the same.
static void Press(HWND dialog, int id) {
    const DeskWindow* button = Living(ControlOf(dialog, id));
    if (!button || !(button->style & WS_DISABLED))
        Command(dialog, id);
}

static int TakesKey(HWND dialog, WPARAM key) {
    switch (key) {
    case VK_TAB: OnTab(dialog); return 1;
    case VK_RETURN: Press(dialog, DefaultButton(dialog)); return 1;
    case VK_ESCAPE: Press(dialog, IDCANCEL); return 1;
    default: return 0;
    }
}

// What is not for the dialog or its controls stays where it is; all else is done here, and counts as taken.
// No handle takes nothing, whether the call fails or not, so that it need not count among those that may.
BOOL IsDialogMessageA(HWND dialog, MSG* message) {
    if (!dialog || Fails("IsDialogMessageA") || !Living(dialog) || !Living(message->hwnd) ||
        RootOf(message->hwnd) != dialog)
        return FALSE;
    if (message->message != WM_KEYDOWN || !TakesKey(dialog, message->wParam))
        Dispatch(*message);
    return TRUE;
}
