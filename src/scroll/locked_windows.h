// The windows that the user has locked in view: they never move with the view.
#pragma once

#include "core/platform.h"

constexpr int MAX_LOCKED_WINDOWS = 32000;

// A slot holds null (never used), FREED_SLOT (unlocked again) or a handle.
extern HWND LockedWindows[MAX_LOCKED_WINDOWS];

inline const HWND FREED_SLOT = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

void ClearLockedWindows();

// 1 if the handle stands anywhere in the list, behind holes too; so the null handle stands in a list that is
// not full.
int IsLockedWindow(HWND window);

// Puts the handle into the first slot that is free. Nothing happens when it is there already or all are
// taken.
void LockWindow(HWND window);

// Frees every copy of the handle before the first slot that was never used.
void UnlockWindow(HWND window);
