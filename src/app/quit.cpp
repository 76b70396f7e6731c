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

void EndWithSession(bool bOnlyQuorl) {
    if (bQuitting)
        return; // everything is saved and folded
    SaveIfWanted();
    if (bOnlyQuorl)
        GatherWindows();
}

// PostQuitMessage takes effect only in the message loop, so all later steps run first.
bool ConfirmQuit(HWND window) {
    if (MessageBoxA(window, "QUIT?", "QUIT?", MB_YESNO) != IDYES)
        return false;
    if (bQuitting)
        return true; // two boxes were open, and this is the second: saving again would store cleared bindings
    bQuitting = true;
    PostQuitMessage(0);
    TrayIcon(window, NIM_DELETE);
    SaveIfWanted();
    ClearAllActionKeys();
    GatherWindows();
    return true;
}

int QuitAction(const ActionCall& call) {
    return ConfirmQuit(call.window);
}
