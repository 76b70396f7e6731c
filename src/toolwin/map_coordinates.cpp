#include "toolwin/map_coordinates.h"

#include "core/rect.h"
#include "core/state.h"

POINT MapToDesktopDistance(int dx, int dy) {
    RECT map{};
    GetClientRect(MainWnd, &map);
    return {Scale(dx, Quorl.right, map.right), Scale(dy, Quorl.bottom, map.bottom)};
}

ActionPoint MapToDesktop(ActionPoint point) {
    const POINT desktop = MapToDesktopDistance(point.x, point.y);
    return {static_cast<int>(desktop.x), static_cast<int>(desktop.y)};
}

static RECT ScaleBox(int x, int y, int width, int height, const RECT& map, const RECT& quorl) {
    if (!quorl.right || !quorl.bottom)
        return {};
    const int left = Scale(x, map.right, quorl.right);
    const int top = Scale(y, map.bottom, quorl.bottom);
    return {left, top, Wrap(0LL + Scale(width, map.right, quorl.right) + left),
            Wrap(0LL + Scale(height, map.bottom, quorl.bottom) + top)};
}

RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl) {
    return ScaleBox(Wrap(0LL + vdesk.left + window.left), Wrap(0LL + vdesk.top + window.top), Width(window),
                    Height(window), map, quorl);
}

RECT ViewBox(const RECT& map, const RECT& vdesk, const RECT& quorl) {
    return ScaleBox(vdesk.left, vdesk.top, Width(vdesk), Height(vdesk), map, quorl);
}

RECT RegionBox(POINT corner, const RECT& map, const RECT& quorl, int screenW, int screenH) {
    return ScaleBox(corner.x, corner.y, screenW, screenH, map, quorl);
}
