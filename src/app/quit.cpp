#include "app/quit.h"

#include "actions/hotkeys.h"
#include "core/state.h"
#include "menus/tray.h"
#include "scroll/gather.h"
#include "settings/settings.h"

static bool bMaySave; // not while a message box of the start is open: some hotkeys are not registered yet

void EnableSaving() {
    bMaySave = true;
}

static void SaveIfWanted() {
    if (bMaySave && IsOn(ACTION_SAVE_AT_EXIT))
        SaveSettings();
}

static void Quit(HWND window, FoldReason reason) {
    bQuitting = true;
    PostQuitMessage(0); // takes effect only in the message loop, after all that follows
    TrayIcon(window, NIM_DELETE);
    SaveIfWanted();
    ClearAllActionKeys();
    GatherWindows(reason);
}

bool ConfirmQuit(HWND window) {
    if (MessageBoxA(window, "QUIT?", "QUIT?", MB_YESNO) != IDYES)
        return false;
    if (!bQuitting) // if two boxes were open, this is the second: saving again would store cleared bindings
        Quit(window, FOLD_AT_EXIT);
    return true;
}

// Also while a box or a fold of the exit waits for the user: everything else is done by then.
void EndSession(HWND window) {
    if (bQuitting)
        GatherWindows(FOLD_AT_LOGOFF);
    else
        Quit(window, FOLD_AT_LOGOFF);
}

void EndFirstAtLogoff() {
    SetProcessShutdownParameters(0x3FF, 0); // the first of all programs; the default is 0x280
}

int QuitAction(const ActionCall& call) {
    return ConfirmQuit(call.window);
}
