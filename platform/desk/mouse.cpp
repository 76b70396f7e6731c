// The user's mouse. What it does waits as hardware input and becomes a message of the window under the
// cursor, or of the one with the capture, when a thread asks for its next message.
#include "controls.h"

#include <cstring>

namespace {

struct MouseButton {
    int key;
    UINT pressed, released;
    WPARAM held; // in wParam of every mouse message
};

} // namespace

static const MouseButton Buttons[] = {
    {VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
    {VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
    {VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON},
};

static void Enter(UINT message) {
    DeskInput input{message, Desk.cursor, Desk.now, {}};
    std::memcpy(input.keys, Desk.keysNow, sizeof input.keys);
    Desk.inputs.push_back(input);
}

void MoveMouse(int x, int y) {
    Desk.cursor = {x, y};
    Enter(WM_MOUSEMOVE);
}

void PressMouse(int button, int bDown) {
    HoldKey(button, bDown);
    for (const MouseButton& row : Buttons)
        if (row.key == button)
            Enter(bDown ? row.pressed : row.released);
}

POINT OnScreen(HWND window, int x, int y) {
    const DeskWindow& row = RowOf(window);
    const RECT frame = FrameOf(row);
    return {row.place.left + frame.left + x, row.place.top + frame.top + y};
}

static int Holds(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

static int IsUnder(const DeskWindow& window, POINT point, DWORD topmost) {
    return (window.style & (WS_VISIBLE | WS_MINIMIZE)) == WS_VISIBLE &&
           (window.exStyle & WS_EX_TOPMOST) == topmost && Holds(window.place, point);
}

// A topmost window lies over all others, whatever was raised last.
static HWND WindowUnder(POINT point) {
    for (const DWORD topmost : {WS_EX_TOPMOST, DWORD{0}})
        for (const HWND handle : Desk.order)
            if (IsUnder(RowOf(handle), point, topmost))
                return handle;
    return nullptr;
}

// A frame is no client area: what happens on it is another message, which nobody here reads.
static int IsOnClient(const DeskWindow& window, POINT point) {
    const RECT frame = FrameOf(window);
    const RECT& place = window.place;
    return Holds({place.left + frame.left, place.top + frame.top, place.right - frame.right,
                  place.bottom - frame.bottom},
                 point);
}

// The child that takes the mouse at this point: a disabled one leaves it to what it stands in, and so does
// one that only shows something.
static const DeskWindow* Innermost(const DeskWindow& window, POINT point) {
    for (const HWND handle : window.children) {
        const DeskWindow& child = RowOf(handle);
        if ((child.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE && Holds(child.place, point) &&
            !IsSeenThrough(child))
            return Innermost(child, point);
    }
    return &window;
}

// Null: the input is not for this thread.
static const DeskWindow* ReceiverOf(const DeskInput& input) {
    if (Desk.capture)
        return Living(Desk.capture);
    const DeskWindow* window = Living(WindowUnder(input.at));
    return window && window->procedure && IsOnClient(*window, input.at) ? Innermost(*window, input.at)
                                                                        : nullptr;
}

static WPARAM HeldIn(const BYTE (&keys)[256]) {
    WPARAM held = 0;
    for (const MouseButton& row : Buttons)
        if (keys[row.key])
            held |= row.held;
    if (keys[VK_LSHIFT] || keys[VK_RSHIFT])
        held |= MK_SHIFT;
    if (keys[VK_LCONTROL] || keys[VK_RCONTROL])
        held |= MK_CONTROL;
    return held;
}

int TakeInput(MSG* message) {
    while (!Desk.inputs.empty()) {
        const DeskInput input = Desk.inputs.front();
        Desk.inputs.pop_front();
        const DeskWindow* window = ReceiverOf(input);
        if (!window)
            continue;
        std::memcpy(Desk.keysRead, input.keys, sizeof Desk.keysRead);
        const POINT origin = OnScreen(window->handle, 0, 0);
        *message = {window->handle,     input.message,
                    HeldIn(input.keys), MAKELPARAM(input.at.x - origin.x, input.at.y - origin.y),
                    input.time,         input.at};
        return 1;
    }
    return 0;
}
