#include "mouse/map_buttons.h"

#include "actions/dispatch.h"
#include "core/rect.h"
#include "windows/foreground.h"

namespace {

struct KeyFlag {
    int key;
    int flag;
};

struct ButtonNumber {
    int number; // that MatchMouseAction accepts in place of the flag
    int flag;
};

} // namespace

static const KeyFlag KeyFlags[] = {
    {VK_LSHIFT, KEY_SHIFT},  {VK_RSHIFT, KEY_SHIFT}, {VK_LCONTROL, KEY_CTRL},
    {VK_RCONTROL, KEY_CTRL}, {VK_LMENU, KEY_ALT},    {VK_RMENU, KEY_ALT},
    {VK_LBUTTON, LBUTTON},   {VK_MBUTTON, MBUTTON},  {VK_RBUTTON, RBUTTON},
};

// If several buttons match, the last one in this table counts.
static const ButtonNumber ButtonNumbers[] = {{1, LBUTTON}, {2, RBUTTON}, {4, MBUTTON}};

static const int MODIFIERS = KEY_SHIFT | KEY_ALT | KEY_CTRL | KEY_WIN;

static int MatchedButton(int flags, int button) {
    int matched = button;
    for (const ButtonNumber& row : ButtonNumbers)
        if (button == row.number || flags & row.flag)
            matched = row.flag;
    return matched;
}

// GetKeyState, not GetAsyncKeyState: it is the state at the message being handled, so a button reads as up in
// its own release, however late that is handled.
int GetHeldFlags() {
    int flags = 0;
    for (const KeyFlag& row : KeyFlags)
        if (GetKeyState(row.key) < 0)
            flags |= row.flag;
    return flags;
}

int MatchMouseAction(int flags, int button) {
    const int mods = flags & MODIFIERS;
    const int matched = MatchedButton(flags, button);
    for (int id = 0; id < NUM_ACTIONS; ++id)
        if (ActionTable[id].mouse_mods == mods && ActionTable[id].mouse_btn == matched)
            return id;
    return NO_ACTION;
}

static void RunBinding(HWND window, int button, LPARAM lParam) {
    const POINT at = MousePosition(lParam);
    const int action = MatchMouseAction(GetHeldFlags(), button);
    if (action != NO_ACTION)
        DoAction(window, action, LastActiveWindow(), {static_cast<int>(at.x), static_cast<int>(at.y)});
}

// The capture comes last: a menu that the action opens would release it.
LRESULT OnMapLeftPress(HWND window, UINT, WPARAM, LPARAM lParam) {
    RunBinding(window, LBUTTON, lParam);
    SetCapture(window);
    return 0;
}

LRESULT OnMapRightPress(HWND window, UINT, WPARAM, LPARAM lParam) {
    SetCapture(window);
    RunBinding(window, RBUTTON, lParam);
    return 0;
}

LRESULT OnMapMiddlePress(HWND window, UINT, WPARAM, LPARAM lParam) {
    SetCapture(window);
    RunBinding(window, MBUTTON, lParam);
    return 0;
}

// The middle button runs its binding again when it is released.
LRESULT OnMapMiddleRelease(HWND window, UINT, WPARAM, LPARAM lParam) {
    RunBinding(window, MBUTTON, lParam);
    ReleaseCapture();
    return 0;
}

LRESULT OnMapRelease(HWND, UINT, WPARAM, LPARAM) {
    ReleaseCapture();
    return 0;
}
