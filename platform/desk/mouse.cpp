// Mouse input. It is queued as hardware input and becomes a message for the capture window or the window
// under the cursor when a thread asks for its next message.
#include "controls.h"

#include <cstring>

namespace {

struct MouseButton {
    int key;
    UINT pressed, released;
    WPARAM held; // MK_ flag in wParam of mouse messages
};

} // namespace

static const MouseButton Buttons[] = {
    {VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
    {VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
    {VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON},
};

static void QueueInput(UINT message) {
    DeskInput input{message, Desk.cursor, Desk.now, {}};
    std::memcpy(input.keys, Desk.keysNow, sizeof input.keys);
    Desk.inputs.push_back(input);
}

void MoveMouse(int x, int y) {
    Desk.cursor = {x, y};
    QueueInput(WM_MOUSEMOVE);
}

void PressMouse(int button, bool down) {
    HoldKey(button, down);
    for (const MouseButton& row : Buttons)
        if (row.key == button)
            QueueInput(down ? row.pressed : row.released);
}

static bool IsUnder(const DeskWindow& window, POINT point, DWORD topmost) {
    return (window.style & (WS_VISIBLE | WS_MINIMIZE)) == WS_VISIBLE &&
           (window.exStyle & WS_EX_TOPMOST) == topmost && Contains(window.rect, point);
}

static HWND TopLevelAt(POINT point) {
    for (const DWORD topmost : {WS_EX_TOPMOST, DWORD{0}})
        for (const HWND handle : Desk.zOrder)
            if (IsUnder(WindowOf(handle), point, topmost))
                return handle;
    return nullptr;
}

// Input on the frame becomes non-client messages, which are not supported.
static bool IsOnClient(const DeskWindow& window, POINT point) {
    const POINT origin = ToScreen(window.handle, 0, 0);
    return Contains(OffsetBy(ClientRect(window), origin.x, origin.y), point);
}

// The child that receives mouse input at this point. Disabled children and those that are transparent to the
// mouse leave it to their parent.
static const DeskWindow* ChildAt(const DeskWindow& window, POINT point) {
    for (const HWND handle : window.children) {
        const DeskWindow& child = WindowOf(handle);
        if ((child.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE && Contains(child.rect, point) &&
            !IsTransparentToMouse(child))
            return ChildAt(child, point);
    }
    return &window;
}

// Null: the input is not for this process.
static const DeskWindow* TargetOf(const DeskInput& input) {
    if (Desk.capture)
        return LiveWindow(Desk.capture);
    const DeskWindow* window = LiveWindow(TopLevelAt(input.at));
    return window && window->procedure && IsOnClient(*window, input.at) ? ChildAt(*window, input.at)
                                                                        : nullptr;
}

static WPARAM KeyFlags(const BYTE (&keys)[256]) {
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

static bool IsPress(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

// An inactive window decides whether a press activates it, and whether it is delivered.
static bool OfferActivation(HWND window, const DeskInput& input) {
    const HWND root = RootOf(window);
    if (Desk.capture || root == Desk.foreground || !IsPress(input.message))
        return true;
    constexpr int onClient = 1; // HTCLIENT
    const LRESULT reply = CallWndProc(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root),
                                      MAKELPARAM(onClient, static_cast<int>(input.message)));
    if (Desk.clicksActivate && LiveWindow(root) && reply != MA_NOACTIVATE && reply != MA_NOACTIVATEANDEAT)
        Activate(root);
    return LiveWindow(window) && reply != MA_ACTIVATEANDEAT && reply != MA_NOACTIVATEANDEAT;
}

bool TakeInput(MSG* message) {
    while (!Desk.inputs.empty()) {
        const DeskInput input = Desk.inputs.front();
        Desk.inputs.pop_front();
        const DeskWindow* window = TargetOf(input);
        Desk.ownsLastInput = window != nullptr;
        if (!window || !OfferActivation(window->handle, input))
            continue;
        std::memcpy(Desk.keysRead, input.keys, sizeof Desk.keysRead);
        POINT client = input.at;
        ToClient(window->handle, &client);
        *message = {window->handle, input.message, KeyFlags(input.keys), MAKELPARAM(client.x, client.y),
                    input.time,     input.at};
        return true;
    }
    return false;
}

HWND WindowFromPoint(POINT point) {
    if (CallFails("WindowFromPoint"))
        return nullptr;
    for (const HWND handle : Desk.zOrder)
        if ((WindowOf(handle).style & WS_VISIBLE) && Contains(WindowOf(handle).rect, point))
            return handle;
    return nullptr;
}

// Hidden and disabled children count too. Returns the parent where there is no child.
HWND ChildWindowFromPoint(HWND parent, POINT point) {
    const DeskWindow* record = CallFails("ChildWindowFromPoint") ? nullptr : ResolveHandle(parent);
    if (!record || !Contains(ClientRect(*record), point))
        return nullptr;
    const POINT at = ToScreen(parent, point.x, point.y);
    for (const HWND child : record->children)
        if (Contains(WindowOf(child).rect, at))
            return child;
    return parent;
}
