// Where screen, desktop and map meet.
#include "core/coordinates.h"

#include "core/arithmetic.h"
#include "core/state.h"

#include <algorithm>

static BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC, RECT*, LPARAM parameter) {
    RECT& all = *reinterpret_cast<RECT*>(parameter);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoA(monitor, &info))
        return TRUE; // unplugged in this moment
    all.left = std::min(all.left, info.rcMonitor.left);
    all.top = std::min(all.top, info.rcMonitor.top);
    all.right = std::max(all.right, info.rcMonitor.right);
    all.bottom = std::max(all.bottom, info.rcMonitor.bottom);
    return TRUE;
}

int MonitorUnion(RECT* rect) {
    *rect = {0, 0, 0, 0};
    EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(rect));
    return 1;
}

void MeasureScreen() {
    MonitorUnion(&ScreenRect);
    Quorl.right = std::max<LONG>(Quorl.right, ScreenW());
    Quorl.bottom = std::max<LONG>(Quorl.bottom, ScreenH());
}

ActionPoint* MapToDesktop(ActionPoint* point) {
    RECT map{};
    GetClientRect(MainWnd, &map);
    point->x = Scaled(point->x, Quorl.right, map.right - map.left);
    point->y = Scaled(point->y, Quorl.bottom, map.bottom - map.top);
    return point;
}
