#include "core/displays.h"

#include "core/state.h"

#include <algorithm>

static BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC, RECT*, LPARAM parameter) {
    RECT& all = *reinterpret_cast<RECT*>(parameter);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoA(monitor, &info))
        return TRUE; // just unplugged
    all.left = std::min(all.left, info.rcMonitor.left);
    all.top = std::min(all.top, info.rcMonitor.top);
    all.right = std::max(all.right, info.rcMonitor.right);
    all.bottom = std::max(all.bottom, info.rcMonitor.bottom);
    return TRUE;
}

void MonitorUnion() {
    ScreenRect = {0, 0, 0, 0};
    EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&ScreenRect));
}
