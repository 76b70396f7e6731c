// From the desktop to the map.
#include "toolwin/map_scale.h"

#include "core/arithmetic.h"

RECT WindowBox(const RECT& window, const RECT& map, const RECT& vdesk, const RECT& quorl) {
    const int left = Scaled(vdesk.left + window.left, map.right, quorl.right);
    const int top = Scaled(vdesk.top + window.top, map.bottom, quorl.bottom);
    return {left, top, Scaled(window.right - window.left, map.right, quorl.right) + left,
            Scaled(window.bottom - window.top, map.bottom, quorl.bottom) + top};
}
