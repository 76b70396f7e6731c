#include "core/displays.h"

#include "core/rect.h"
#include "core/state.h"

#include <algorithm>
#include <cstring>

static const int TITLE_HEIGHT = 24;  // pixels
static const int FAR_AWAY = 1 << 24; // pixels: beyond every position of the cursor

DisplayLayout Displays;

static RECT Union(const RECT& a, const RECT& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

static BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC, RECT*, LPARAM parameter) {
    DisplayLayout& layout = *reinterpret_cast<DisplayLayout*>(parameter);
    MONITORINFOEXA info{};
    info.cbSize = sizeof info;
    if (layout.count == MAX_DISPLAYS || !GetMonitorInfoA(monitor, &info))
        return TRUE;
    const bool bPrimary = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
    Display* const added = &layout.displays[layout.count++];
    *added = {info.rcMonitor, info.rcWork, {}};
    std::memcpy(added->device, info.szDevice, sizeof added->device);
    layout.all = layout.count == 1 ? info.rcMonitor : Union(layout.all, info.rcMonitor);
    if (bPrimary)
        std::swap(*added, layout.displays[0]);
    return TRUE;
}

void MonitorUnion(DisplayLayout* layout) {
    *layout = {};
    EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(layout));
}

static bool IsSameDisplay(const Display& a, const Display& b) {
    return IsSameRect(a.rect, b.rect) && IsSameRect(a.work, b.work) && !std::strcmp(a.device, b.device);
}

bool IsSameLayout(const DisplayLayout& a, const DisplayLayout& b) {
    return a.count == b.count && std::equal(a.displays, a.displays + a.count, b.displays, IsSameDisplay);
}

// Of two ranges along an axis: how many pixels both have, or the negative of the gap between them.
static long long Overlap(LONG firstA, LONG endA, LONG firstB, LONG endB) {
    return 0LL + std::min(endA, endB) - std::max(firstA, firstB);
}

bool IsShownBy(const DisplayLayout& layout, const RECT& rect) {
    return std::any_of(layout.displays, layout.displays + layout.count, [&rect](const Display& display) {
        return Overlap(display.rect.left, display.rect.right, rect.left, rect.right) > 0 &&
               Overlap(display.rect.top, display.rect.bottom, rect.top, rect.bottom) > 0;
    });
}

void UseDisplays(const DisplayLayout& layout) {
    Displays = layout;
    ScreenRect = FromSystem(layout.all);
}

RECT FromSystem(const RECT& rect) {
    return Offset(rect, Wrap(0LL - Displays.all.left), Wrap(0LL - Displays.all.top));
}

RECT ToSystem(const RECT& rect) {
    return Offset(rect, Displays.all.left, Displays.all.top);
}

bool ReadCursor(POINT* cursor) {
    if (!GetCursorPos(cursor))
        return false;
    *cursor = {Wrap(0LL + cursor->x - Displays.all.left), Wrap(0LL + cursor->y - Displays.all.top)};
    return true;
}

void MoveCursor(POINT cursor) {
    SetCursorPos(Wrap(0LL + cursor.x + Displays.all.left), Wrap(0LL + cursor.y + Displays.all.top));
}

// How well a display fits a rectangle: the shared area, or the negative of the squared distance.
static double Fit(const RECT& display, const RECT& rect) {
    const auto width = static_cast<double>(Overlap(display.left, display.right, rect.left, rect.right));
    const auto height = static_cast<double>(Overlap(display.top, display.bottom, rect.top, rect.bottom));
    if (width > 0 && height > 0)
        return width * height;
    const double dx = std::min(width, 0.0);
    const double dy = std::min(height, 0.0);
    return -(dx * dx + dy * dy);
}

static DisplayArea AreaOf(const Display& display) {
    return {FromSystem(display.rect), FromSystem(display.work)};
}

DisplayArea PrimaryDisplay() {
    return Displays.count ? AreaOf(Displays.displays[0]) : DisplayArea{};
}

DisplayArea DisplayNear(const RECT& rect) {
    const RECT target = ToSystem(rect);
    const Display* const end = Displays.displays + Displays.count;
    const Display* const nearest = std::max_element(
        static_cast<const Display*>(Displays.displays), end,
        [&target](const Display& a, const Display& b) { return Fit(a.rect, target) < Fit(b.rect, target); });
    return nearest == end ? DisplayArea{} : AreaOf(*nearest);
}

bool IsOnDisplay(const RECT& rect) {
    return IsShownBy(Displays, ToSystem(rect));
}

static bool IsPixelOnDisplay(LONG x, LONG y) {
    return IsOnDisplay({x, y, Wrap(1LL + x), Wrap(1LL + y)});
}

// Next to a taller display the edges of the union are out of the cursor's reach, hence each display's own.
RECT OuterEdges(POINT point) {
    RECT edges = DisplayNear({point.x, point.y, Wrap(1LL + point.x), Wrap(1LL + point.y)}).rect;
    if (IsPixelOnDisplay(edges.right, point.y))
        edges.right = FAR_AWAY;
    if (IsPixelOnDisplay(edges.left - 1, point.y))
        edges.left = -FAR_AWAY;
    if (IsPixelOnDisplay(point.x, edges.bottom))
        edges.bottom = FAR_AWAY;
    if (IsPixelOnDisplay(point.x, edges.top - 1))
        edges.top = -FAR_AWAY;
    return edges;
}

bool IsTitleInReach(const RECT& visible) {
    const RECT rect = ToSystem(visible);
    const LONG titleEnd = std::min<LONG>(rect.bottom, Wrap(0LL + rect.top + TITLE_HEIGHT));
    return std::any_of(Displays.displays, Displays.displays + Displays.count, [&](const Display& display) {
        return Overlap(display.work.left, display.work.right, rect.left, rect.right) >= GRAB_SIZE &&
               Overlap(display.work.top, display.work.bottom, rect.top, titleEnd) >= GRAB_SIZE;
    });
}

// The near edge of a range of that size inside [low, high), or at `low` if it is larger.
static LONG MoveInside(LONG nearEdge, int size, LONG low, LONG high) {
    return std::max<LONG>(low, std::min<LONG>(nearEdge, Wrap(0LL + high - size)));
}

RECT MoveIntoWorkArea(const RECT& visible) {
    if (Displays.count == 0)
        return visible;
    const RECT work = DisplayNear(visible).work;
    return Offset(visible,
                  Wrap(0LL + MoveInside(visible.left, Width(visible), work.left, work.right) - visible.left),
                  Wrap(0LL + MoveInside(visible.top, Height(visible), work.top, work.bottom) - visible.top));
}

// Displays of different size leave corners of the union that no display shows, and the taskbar is topmost.
RECT KeepInReach(const RECT& visible) {
    return IsTitleInReach(visible) ? visible : MoveIntoWorkArea(visible);
}
