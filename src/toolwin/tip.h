// The strip along the Toolwin's top edge that tells the user what happened, for one to two seconds.
#pragma once

#include "core/platform.h"

constexpr char TIP_CLASS[] = "w_ToolTip"; // class and title

// Registers the strip's class; once, before the main window exists.
void RegisterTipClass(HINSTANCE instance);

// Shows `text` (cut at 255 characters) on the strip, which is made on first use and attached to `owner`. The
// strip's window, or null if `enabled` is 0 (nothing is touched then) or it could not be made.
HWND ShowTip(HWND owner, const char* text, int enabled);

// Hides a strip; null does nothing.
void HideTip(HWND window);

// What nearly every caller wants: formats as printf does, shows it at MainWnd if the user has tips switched
// on, and keeps the result in TipWnd.
__attribute__((format(printf, 1, 2))) void Tell(const char* format, ...);

// Pure: where the strip's top lies for an owner at that place: on its top edge, or below it when there is no
// room. Screen pixels.
int TipTop(const RECT& owner, int height);
