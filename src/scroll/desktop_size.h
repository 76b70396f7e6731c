// The size of the desktop.
#pragma once

#include "actions/action_table.h"

// The desktop that the user chose and the file stores. Quorl is never smaller than the screen, because
// windows beyond it are not managed.
extern RECT ChosenDesktop;

// Sets the default desktop: four by two screens, each side at most LARGEST_DESKTOP pixels.
void ResetDesktop();

// Sets the desktop's width and height, in pixels, to what the user chose when Quorl's were shown.
void SetDesktopSize(int width, int height);

// Sets the desktop to a rectangle from the settings file.
void SetDesktop(const RECT& desktop);

// Adapts the desktop to the size of the screen, after a change of displays.
void FitDesktop();

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

// Handler: adds or removes a screen; the argument is a DesktopSide. Does nothing if
// windows cannot move now.
void ChangeDesktopSize(const ActionCall& call);
