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

struct MouseRecord {
    POINT point; // client pixels
    WPARAM keys; // MK_ flags
    RECT map;    // of the map on the screen
};

} // namespace

static const KeyFlag KeyFlags[] = {
    {VK_LSHIFT, KEY_SHIFT},  {VK_RSHIFT, KEY_SHIFT}, {VK_LCONTROL, KEY_CTRL},
    {VK_RCONTROL, KEY_CTRL}, {VK_LMENU, KEY_ALT},    {VK_RMENU, KEY_ALT},
    {VK_LBUTTON, LBUTTON},   {VK_MBUTTON, MBUTTON},  {VK_RBUTTON, RBUTTON},
};

// If several buttons match, the last one in this table counts.
static const ButtonNumber ButtonNumbers[] = {{1, LBUTTON}, {2, RBUTTON}, {4, MBUTTON}};

static MouseRecord LastMessage = {{}, ~WPARAM{0}, {}}; // flags that no message has

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

bool RecordMouseMessage(HWND map, POINT point, WPARAM keys) {
    const MouseRecord before = LastMessage;
    LastMessage = {point, keys, {}};
    GetWindowRect(map, &LastMessage.map);
    return point.x != before.point.x || point.y != before.point.y || keys != before.keys ||
           !IsSameRect(LastMessage.map, before.map);
}

// Records the message first: the action may move the map.
static void RunBinding(HWND window, int button, WPARAM wParam, LPARAM lParam) {
    const POINT at = MousePosition(lParam);
    RecordMouseMessage(window, at, wParam);
    const int action = MatchMouseAction(GetHeldFlags(), button);
    if (action != NO_ACTION)
        DoAction(window, action, LastActiveWindow(), {static_cast<int>(at.x), static_cast<int>(at.y)});
}

// The capture comes last: a menu that the action opens would release it.
LRESULT OnMapLeftPress(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    RunBinding(window, LBUTTON, wParam, lParam);
    SetCapture(window);
    return 0;
}

LRESULT OnMapRightPress(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    SetCapture(window);
    RunBinding(window, RBUTTON, wParam, lParam);
    return 0;
}

LRESULT OnMapMiddlePress(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    SetCapture(window);
    RunBinding(window, MBUTTON, wParam, lParam);
    return 0;
}

// The middle button runs its binding again when it is released.
LRESULT OnMapMiddleRelease(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    RunBinding(window, MBUTTON, wParam, lParam);
    ReleaseCapture();
    return 0;
}

LRESULT OnMapRelease(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    RecordMouseMessage(window, MousePosition(lParam), wParam);
    ReleaseCapture();
    return 0;
}
