#include "app/quit.h"

#include "actions/hotkeys.h"
#include "core/state.h"
#include "menus/tray.h"
#include "scroll/display_change.h"
#include "scroll/gather.h"
#include "settings/settings.h"

static void Quit(HWND window, FoldReason reason) {
    bQuitting = true;
    UseCurrentDisplays();
    if (IsOn(
            ACTION_SAVE_AT_EXIT)) // first: removing the icon waits for Explorer, and at log-off time is short
        SaveSettings();
    RemoveTrayIcon(window);
    ClearAllActionKeys();
    GatherWindows(reason);
    PostQuitMessage(0); // last: it would close a box about a window that refuses to move
}

bool ConfirmQuit(HWND window) {
    if (MessageBoxA(window, "QUIT?", "QUIT?", MB_YESNO) != IDYES)
        return false;
    if (!bQuitting) // if two boxes were open, this is the second: saving again would store cleared bindings
        Quit(window, FOLD_AT_EXIT);
    return true;
}

// May arrive while Quit shows a message box; settings and hotkeys are done by then, so only fold again, and
// close the box.
void EndSession(HWND window) {
    if (!bQuitting)
        return Quit(window, FOLD_AT_LOGOFF);
    GatherWindows(FOLD_AT_LOGOFF);
    PostQuitMessage(0);
}

void EndFirstAtLogoff() {
    SetProcessShutdownParameters(0x3FF, 0); // the first of all programs; the default is 0x280
}

void QuitAction(const ActionCall& call) {
    ConfirmQuit(call.window);
}
