// The way out.
#include "core/quit.h"

#include "actions/hotkeys.h"
#include "core/state.h"
#include "menus/tray.h"
#include "scroll/gather.h"
#include "settings/settings.h"

static int bMaySave;

void SavingMakesSense() {
    bMaySave = 1;
}

static void SaveIfWanted(HWND window) {
    if (bMaySave && ActionTable[ROW_SAVE_SETTINGS].value)
        SaveSettings(window);
}

void EndWithSession(HWND window, int bOthersStay) {
    if (bQuitting)
        return; // all is saved and folded
    SaveIfWanted(window);
    if (bOthersStay)
        GatherWindows();
}

// The process ends only when control is back in the message loop, so all steps finish first.
int ConfirmQuit(HWND window) {
    if (MessageBoxA(window, "QUIT?", "QUIT?", MB_YESNO) != IDYES)
        return 0;
    if (bQuitting)
        return 1; // answered twice: saving again would store the released bindings
    bQuitting = 1;
    PostQuitMessage(0);
    TrayIcon(window, NIM_DELETE);
    SaveIfWanted(window);
    ClearAllActionKeys(window);
    GatherWindows();
    return 1;
}
