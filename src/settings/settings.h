// Saving and loading all that is kept between runs, and the two rows that do it.
#pragma once

#include "actions/dispatch.h"

// Options, regions, actions, in this order, from and to the settings file. `window` is the Toolwin. What is
// saved is all in the file, or none of it.
void LoadSettings(HWND window);
void SaveSettings(HWND window);

// Always 0.
int OnSaveSettings(const ActionCall& call);
int OnLoadSettings(const ActionCall& call);
