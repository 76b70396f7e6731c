// The companion library's two doors. A program finds them by name, and calls them on the thread of its
// window while it has the library loaded.
#pragma once

#include "core/platform.h"

extern "C" {

// The window, of the calling process, that shall have the news. Counts at once: what is watched already is
// told to this window from now on, or to nobody if it is none.
void SaveSharedData(HWND window);

// 1: from now on the window gets HOOK_MOUSE_MESSAGE, posted, for every mouse message but the wheel's,
// wherever the mouse is. At most one move lies in its queue, since the cursor's place is what counts and that
// is asked for when the move is handled; clicks are never left out. 0: no more news is posted; back when the
// watching has ended. Asking for what is so already, or without a window, does nothing. A window that is gone
// ends the watching; it begins anew by asking again.
void SetMouseHook(int bWatch);
}
