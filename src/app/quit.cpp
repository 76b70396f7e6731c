#include "app/quit.h"

#include "actions/hotkeys.h"
#include "core/state.h"
#include "menus/tray.h"
#include "scroll/display_change.h"
#include "scroll/gather.h"
#include "settings/settings.h"

static void BeginQuit() {
    bQuitting = true;
    UseCurrentDisplays();
}

static void SaveAtExit() {
    if (IsOn(ACTION_SAVE_AT_EXIT))
        SaveSettings();
}

static void EndQuit(FoldReason reason) {
    ClearAllActionKeys();
    GatherWindows(reason);
    PostQuitMessage(0); // last: it would close a box about a window that refuses to move
}

bool ConfirmQuit(HWND window) {
    if (MessageBoxA(window, "QUIT?", "QUIT?", MB_YESNO) != IDYES)
        return false;
    if (bQuitting) // two boxes were open, this is the second: saving again would store cleared bindings
        return true;
    BeginQuit();
    RemoveTrayIcon(window);
    SaveAtExit();
    EndQuit(FOLD_AT_EXIT);
    return true;
}

// Saves first: Windows may end the process in a few seconds, and removing the icon waits for Explorer. May
// arrive while ConfirmQuit shows a message box; settings and hotkeys are done by then, so only fold again,
// and close the box.
void EndSession(HWND window) {
    if (!bQuitting) {
        BeginQuit();
        SaveAtExit();
        RemoveTrayIcon(window);
    }
    EndQuit(FOLD_AT_LOGOFF);
}

void EndFirstAtLogoff() {
    SetProcessShutdownParameters(0x3FF, 0); // the first of all programs; the default is 0x280
}

void QuitAction(const ActionCall& call) {
    ConfirmQuit(call.window);
}
