// Events that Windows itself causes: display changes, a restarted taskbar, log-off.
#include "internal.h"

#include <algorithm>
#include <utility>

// Windows of this process, from the top.
static std::vector<HWND> OwnWindows() {
    std::vector<HWND> windows;
    for (const HWND handle : Desk.zOrder)
        if (WindowOf(handle).procedure)
            windows.push_back(handle);
    return windows;
}

static std::size_t FindByName(const std::vector<DeskDisplay>& displays, const std::string& name) {
    for (std::size_t index = 0; index < displays.size(); ++index)
        if (DisplayName(displays, index) == name)
            return index;
    return displays.size();
}

static LONG ClampedAxis(long long at, LONG size, LONG low, LONG high) {
    return Narrow(std::max<long long>(low, std::min<long long>(at, 0LL + high - size)));
}

// Windows keep their offset inside the display. Those of a removed display move into the primary one's work
// area, maximized ones fill the new work area.
static RECT RectAfterChange(const DeskWindow& window, const DeskDisplay& from, const DeskDisplay& to,
                            bool removed) {
    if (window.style & WS_MAXIMIZE) {
        const RECT margins = VisibleMargins(window);
        return {to.work.left - margins.left, to.work.top - margins.top, to.work.right + margins.right,
                to.work.bottom + margins.bottom};
    }
    const long long dx = 0LL + to.rect.left - from.rect.left;
    const long long dy = 0LL + to.rect.top - from.rect.top;
    const RECT moved = OffsetBy(window.rect, dx, dy);
    if (!removed)
        return moved;
    return RectAt(ClampedAxis(moved.left, Width(moved), to.work.left, to.work.right),
                  ClampedAxis(moved.top, Height(moved), to.work.top, to.work.bottom), Width(moved),
                  Height(moved));
}

// Windows that no display shows, minimized and hidden ones stay where they are.
static void CollectAffected(const std::vector<DeskDisplay>& before) {
    Desk.affected.clear();
    for (const HWND handle : Desk.zOrder) {
        const DeskWindow& window = WindowOf(handle);
        const std::size_t from = DisplayShowing(before, window.rect);
        if ((window.style & (WS_VISIBLE | WS_MINIMIZE)) != WS_VISIBLE || from == before.size())
            continue;
        const std::size_t kept = FindByName(Desk.displays, DisplayName(before, from));
        const bool removed = kept == Desk.displays.size();
        const DeskDisplay& to = Desk.displays[removed ? 0 : kept];
        Desk.affected.push_back({handle, window.rect, RectAfterChange(window, before[from], to, removed)});
    }
}

static void SendToOwn(UINT message, WPARAM wParam, LPARAM lParam) {
    for (const HWND handle : OwnWindows())
        CallWndProc(handle, message, wParam, lParam);
}

void RelocateWindows() {
    for (const DeskAffectedWindow& affected : std::exchange(Desk.affected, {})) {
        DeskWindow* window = LiveWindow(affected.window);
        const auto same = [](const RECT& a, const RECT& b) {
            return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
        };
        if (window && same(window->rect, affected.before) && !same(affected.before, affected.after))
            SetRect(*window, affected.after, true);
    }
}

void ChangeDisplays(std::vector<DeskDisplay> displays, bool relocate) {
    const std::vector<DeskDisplay> before = std::exchange(Desk.displays, std::move(displays));
    CollectAffected(before);
    const RECT primary = Desk.displays.front().rect;
    SendToOwn(WM_DISPLAYCHANGE, 32, MAKELPARAM(Width(primary), Height(primary)));
    SendToOwn(WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    if (relocate)
        RelocateWindows();
    for (const HWND handle : OwnWindows())
        SendDpiChange(handle);
}

UINT RegisterWindowMessageA(LPCSTR name) {
    if (CallFails("RegisterWindowMessageA"))
        return 0;
    const UINT next = 0xC000 + static_cast<UINT>(Desk.registeredMessages.size());
    return Desk.registeredMessages.emplace(LowerCase(name), next).first->second;
}

void RestartTaskbar() {
    Desk.tray.clear();
    const auto registered = Desk.registeredMessages.find("taskbarcreated");
    if (registered == Desk.registeredMessages.end())
        return;
    for (const HWND handle : OwnWindows())
        Desk.queue.push_back({handle, registered->second, 0, 0, Desk.now, Desk.cursor});
}

BOOL SetProcessShutdownParameters(DWORD level, DWORD) {
    if (CallFails("SetProcessShutdownParameters"))
        return FALSE;
    Desk.shutdownLevel = level;
    return TRUE;
}

static void EndOtherPrograms() {
    for (const HWND handle : std::vector<HWND>(Desk.zOrder))
        if (LiveWindow(handle) && !WindowOf(handle).procedure) {
            Desk.rememberedRects[handle] = WindowOf(handle).rect;
            KillWindow(handle);
        }
}

static void EndOwnSession(LPARAM reason) {
    for (const HWND handle : OwnWindows())
        if (LiveWindow(handle) && !CallWndProc(handle, WM_QUERYENDSESSION, 0, reason))
            return;
    for (const HWND handle : OwnWindows())
        if (LiveWindow(handle))
            CallWndProc(handle, WM_ENDSESSION, TRUE, reason);
}

void LogOff(LPARAM reason) {
    constexpr DWORD defaultLevel = 0x280; // of all other programs
    if (Desk.shutdownLevel <= defaultLevel)
        EndOtherPrograms();
    EndOwnSession(reason);
    EndOtherPrograms();
}
