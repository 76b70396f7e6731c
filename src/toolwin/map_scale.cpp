// From the desktop to the map.
#include "toolwin/map_scale.h"

#include "core/arithmetic.h"

static RECT BoxOf(POINT corner, int width, int height, const RECT& map, const RECT& quorl) {
    if (!quorl.right || !quorl.bottom)
        return {};
    const int left = Scaled(corner.x, map.right, quorl.right);
    const int top = Scaled(corner.y, map.bottom, quorl.bottom);
    return {left, top, Scaled(width, map.right, quorl.right) + left,
            Scaled(height, map.bottom, quorl.bottom) + top};
}

RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl) {
    return BoxOf({vdesk.left + window.left, vdesk.top + window.top}, window.right - window.left,
                 window.bottom - window.top, map, quorl);
}

RECT ViewBox(const RECT& map, const RECT& vdesk, const RECT& quorl) {
    return BoxOf({vdesk.left, vdesk.top}, vdesk.right - vdesk.left, vdesk.bottom - vdesk.top, map, quorl);
}

RECT RegionBox(POINT corner, const RECT& map, const RECT& quorl, int screenW, int screenH) {
    return BoxOf(corner, screenW, screenH, map, quorl);
}
