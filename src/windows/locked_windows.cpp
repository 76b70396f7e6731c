#include "windows/locked_windows.h"

HWND LockedWindows[MAX_LOCKED_WINDOWS];

// Slots from here on were never used, so a search need not read all 32000.
static int UsedSlots;

bool IsLockedWindow(HWND window) {
    for (int slot = 0; slot < UsedSlots; ++slot)
        if (LockedWindows[slot] == window)
            return true;
    return false;
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
