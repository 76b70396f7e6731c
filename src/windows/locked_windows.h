// The windows that the user has locked in view: they do not move with the view.
#pragma once

#include "core/platform.h"

constexpr int MAX_LOCKED_WINDOWS = 32000;

// A slot holds null (never used), FREED_SLOT (unlocked again) or a handle.
extern HWND LockedWindows[MAX_LOCKED_WINDOWS];

inline const HWND FREED_SLOT = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

bool IsLockedWindow(HWND window);

// Stores the handle in the first free slot. Nothing happens if it is locked already or all slots are taken.
void LockWindow(HWND window);

void UnlockWindow(HWND window);
