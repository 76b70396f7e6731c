// The windows that the user has locked in view.
#include "scroll/locked_windows.h"

HWND LockedWindows[MAX_LOCKED_WINDOWS];

// Slots from here on were never used, so a look-up need not read 32000 of them.
static int UsedSlots;

void ClearLockedWindows() {
    for (int slot = 0; slot < MAX_LOCKED_WINDOWS; ++slot)
        LockedWindows[slot] = nullptr;
    UsedSlots = 0;
}

int IsLockedWindow(HWND window) {
    for (int slot = 0; slot < UsedSlots; ++slot)
        if (LockedWindows[slot] == window)
            return 1;
    return !window && UsedSlots < MAX_LOCKED_WINDOWS; // a slot that was never used holds null
}

void LockWindow(HWND window) {
    for (int slot = 0; slot < MAX_LOCKED_WINDOWS; ++slot) {
        if (LockedWindows[slot] == window)
            return;
        if (LockedWindows[slot] && LockedWindows[slot] != FREED_SLOT)
            continue;
        LockedWindows[slot] = window;
        if (slot >= UsedSlots)
            UsedSlots = slot + 1;
        return;
    }
}

void UnlockWindow(HWND window) {
    for (int slot = 0; slot < UsedSlots; ++slot)
        if (LockedWindows[slot] == window)
            LockedWindows[slot] = FREED_SLOT;
}
