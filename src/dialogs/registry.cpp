#include "dialogs/registry.h"

#include "core/displays.h"
#include "core/rect.h"
#include "core/state.h"
#include "windows/other_window.h"

#include <algorithm>
#include <iterator>

HWND DialogHandles[NUM_DIALOGS];

// Moves it so that its left edge is a quarter of its width left of the screen's middle, and its top likewise
// above it, then raises it.
static void RaiseDialog(HWND dialog) {
    RECT rect{};
    GetWindowRect(dialog, &rect);
    const int x = (ScreenW() - Width(rect) / 2) / 2;
    const int y = (ScreenH() - Height(rect) / 2) / 2;
    const RECT moved = ToSystem(KeepInReach({x, y, x + Width(rect), y + Height(rect)}));
    MoveWindow(dialog, moved.left, moved.top, Width(moved), Height(moved), TRUE);
    RaiseWindow(dialog);
}

// Only one at a time: a message box during creation runs other actions, which must not create a second
// dialog.
static bool CreateRegistered(HWND parent, const DialogDef& def) {
    static bool bCreating;
    if (bCreating)
        return false;
    bCreating = true;
    DialogHandles[def.id] =
        CreateDialogParamA(AppInstance, MAKEINTRESOURCEA(def.resource_id), parent, def.procedure, 0);
    bCreating = false;
    return DialogHandles[def.id] != nullptr;
}

bool OpenDialog(HWND parent, DialogId id) {
    for (const DialogDef& def : DialogDefs) {
        if (def.resource_id != DialogDefs[id].resource_id || !IsWindow(DialogHandles[def.id]))
            continue;
        RaiseDialog(DialogHandles[def.id]);
        return true;
    }
    return CreateRegistered(parent, DialogDefs[id]);
}

void OpenDialogAction(const ActionCall& call) {
    OpenDialog(call.window, static_cast<DialogId>(call.argument));
}

// Windows destroys owned windows with their owner, but dialogs opened by a dialog outlive it.
static void ReassignOwned(HWND dialog) {
    for (const HWND other : DialogHandles)
        if (other && GetWindowLongPtrA(other, GWLP_HWNDPARENT) == reinterpret_cast<LONG_PTR>(dialog))
            SetWindowLongPtrA(other, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(MainWnd));
}

// EndDialog only hides a modeless dialog, so destroy it too.
void CloseDialog(HWND dialog) {
    HWND* const open = std::find(std::begin(DialogHandles), std::end(DialogHandles), dialog);
    if (!dialog || open == std::end(DialogHandles))
        return;
    *open = nullptr;
    EndDialog(dialog, 0);
    ReassignOwned(dialog);
    DestroyWindow(dialog);
}

bool IsOpenDialogMessage(MSG* message) {
    return std::any_of(std::begin(DialogDefs), std::end(DialogDefs), [message](const DialogDef& def) {
        return def.bKeyboard && IsDialogMessageA(DialogHandles[def.id], message);
    });
}
