// Keyboard handling of dialogs: Tab, Enter, Escape.
#include "controls.h"

#include <algorithm>

static bool IsPushButton(const DeskWindow& control) {
    return control.procedure == ButtonProc && (control.style & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
}

static bool IsDown(int key) {
    return Desk.keysRead[key];
}

HWND NextTabStop(HWND dialog, HWND from, bool backwards) {
    std::vector<HWND> controls = WindowOf(dialog).children;
    if (backwards)
        std::reverse(controls.begin(), controls.end());
    const auto at = std::find(controls.begin(), controls.end(), from);
    if (at != controls.end())
        std::rotate(controls.begin(), at + 1, controls.end());
    const auto next = std::find_if(controls.begin(), controls.end(), [](HWND control) {
        return (WindowOf(control).style & (WS_TABSTOP | WS_VISIBLE | WS_DISABLED)) ==
               (WS_TABSTOP | WS_VISIBLE);
    });
    return next == controls.end() ? nullptr : *next;
}

static void OnTab(HWND dialog) {
    const HWND next = NextTabStop(dialog, Desk.focus, IsDown(VK_LSHIFT) || IsDown(VK_RSHIFT));
    if (next)
        ChangeFocus(next);
}

static void Command(HWND dialog, int id) {
    CallWndProc(dialog, WM_COMMAND, static_cast<WPARAM>(id),
                reinterpret_cast<LPARAM>(FindControl(dialog, id)));
}

// The button Enter presses: the focused one, else the template's default, else id 1.
static int DefaultButton(HWND dialog) {
    const DeskWindow* focused = LiveWindow(Desk.focus);
    if (focused && IsPushButton(*focused))
        return static_cast<int>(focused->id);
    for (const HWND control : WindowOf(dialog).children)
        if (IsPushButton(WindowOf(control)) && (WindowOf(control).style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
            return static_cast<int>(WindowOf(control).id);
    return IDOK;
}

// The command is sent even if no button has this id, but not for a disabled button.
static void Press(HWND dialog, int id) {
    const DeskWindow* button = LiveWindow(FindControl(dialog, id));
    if (!button || !(button->style & WS_DISABLED))
        Command(dialog, id);
}

static bool TakesKey(HWND dialog, WPARAM key) {
    switch (key) {
    case VK_TAB: OnTab(dialog); return true;
    case VK_RETURN: Press(dialog, DefaultButton(dialog)); return true;
    case VK_ESCAPE: Press(dialog, IDCANCEL); return true;
    default: return false;
    }
}

// Handles messages for the dialog and its controls completely; leaves all others to the caller.
// A null dialog does not count as a call: failing it would change nothing.
BOOL IsDialogMessageA(HWND dialog, MSG* message) {
    if (!dialog || CallFails("IsDialogMessageA") || !LiveWindow(dialog) || !LiveWindow(message->hwnd) ||
        RootOf(message->hwnd) != dialog)
        return FALSE;
    if (message->message != WM_KEYDOWN || !TakesKey(dialog, message->wParam))
        Dispatch(*message);
    return TRUE;
}
