// Mouse presses on the map: a press is a pair of modifier keys and button, and the table says what it runs.
#include "mouse/map_buttons.h"

#include "actions/dispatch.h"
#include "core/state.h"

namespace {

struct HeldRow {
    DWORD kind;
    int key;
    int flag;
};

struct ButtonRow {
    int number; // as some callers and old bindings name the button
    int flag;
};

} // namespace

static const HeldRow HeldRows[] = {
  // kind        key          flag
    {ACTION_KEY,   VK_LSHIFT,   KEY_SHIFT},
    {ACTION_KEY,   VK_RSHIFT,   KEY_SHIFT},
    {ACTION_KEY,   VK_LCONTROL, KEY_CTRL },
    {ACTION_KEY,   VK_RCONTROL, KEY_CTRL },
    {ACTION_KEY,   VK_LMENU,    KEY_ALT  },
    {ACTION_KEY,   VK_RMENU,    KEY_ALT  },
    {ACTION_MOUSE, VK_LBUTTON,  LBUTTON  },
    {ACTION_MOUSE, VK_MBUTTON,  MBUTTON  },
    {ACTION_MOUSE, VK_RBUTTON,  RBUTTON  },
};

static const ButtonRow ButtonRows[] = {
  // the weakest first
    {1, LBUTTON},
    {2, RBUTTON},
    {4, MBUTTON},
};

static const int MODIFIERS = KEY_SHIFT | KEY_ALT | KEY_CTRL | KEY_WIN;
static const int NO_ROW = -1;

int MatchedButton(int flags, int button) {
    int matched = button;
    for (const ButtonRow& row : ButtonRows)
        if (button == row.number || flags & row.flag)
            matched = row.flag;
    return matched;
}

static ActionId BoundRow(int mods, int button) {
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        if (ActionTable[row].mouse_mods == mods && ActionTable[row].mouse_btn == button)
            return row;
    return NO_ROW;
}

// Row 3 takes a y of -1 as a sign that x is a region's number. The mouse gets there too, a pixel above the
// map, while the map has the capture; one pixel further up lies the same nothing.
static ActionPoint* AsPlace(ActionPoint* point) {
    if (point && point->y == -1)
        --point->y;
    return point;
}

// GetKeyState on purpose: it belongs to the message in hand, so a button reads as up in its own release,
// however late the message is handled.
int GetHeldFlags(DWORD mask) {
    int flags = 0;
    for (const HeldRow& row : HeldRows)
        if (mask & row.kind && GetKeyState(row.key) < 0)
            flags |= row.flag;
    return flags;
}

int MatchMouseAction(HWND window, DWORD kind, int flags, int button, ActionPoint* point, int bDispatch) {
    if (!(kind & ACTION_MOUSE))
        return 0;
    TipWnd = nullptr; // a look-up tells nothing, and what was told before no longer counts
    const ActionId row = BoundRow(flags & MODIFIERS, MatchedButton(flags, button));
    if (row == NO_ROW)
        return 0;
    if (bDispatch)
        DoAction(window, row, row == ROW_REGION ? AsPlace(point) : point);
    return row;
}

static void RunBinding(HWND window, int button, LPARAM lParam) {
    ActionPoint point = PointOf(lParam);
    MatchMouseAction(window, ACTION_MOUSE, GetHeldFlags(KEYS_AND_BUTTONS), button, &point, 1);
}

// The capture comes last: a menu opened by the row would take it away again.
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

// The middle button runs its binding once more where it is let go.
LRESULT OnMapMiddleRelease(HWND window, UINT, WPARAM, LPARAM lParam) {
    RunBinding(window, MBUTTON, lParam);
    ReleaseCapture();
    return 0;
}

LRESULT OnMapRelease(HWND, UINT, WPARAM, LPARAM) {
    ReleaseCapture();
    return 0;
}
