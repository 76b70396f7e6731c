// The size of the desktop.
#pragma once

#include "actions/action_table.h"

// Measures the displays and sets the default desktop: four by two screens, each side at most LARGEST_DESKTOP
// pixels.
void ResetDesktop();

// Sets the desktop's width and height, in pixels, without checking them.
void SetDesktopSize(int width, int height);

// Sets the desktop to a rectangle from the settings file, without checking it.
void SetDesktop(const RECT& desktop);

// Measures the displays again. A desktop smaller than the screen in either direction grows to it, for example
// after a change to a larger display: windows beyond the desktop are not managed.
void MeasureScreen();

enum DesktopSide {
    ADD_RIGHT,
    ADD_LEFT,
    ADD_BOTTOM,
    ADD_TOP,
    REMOVE_RIGHT,
    REMOVE_LEFT,
    REMOVE_TOP,
    REMOVE_BOTTOM
};

// Handler: adds or removes a screen; the argument is a DesktopSide. Always 1.
int ChangeDesktopSize(const ActionCall& call);
