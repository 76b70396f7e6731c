// Saving and loading everything that is kept between runs.
#pragma once

#include "actions/action_table.h"

// Loads the settings at start, unless the stored value of ACTION_LOAD_AT_START says no, and registers the
// hotkeys of all actions once everything is read.
void LoadSettingsAtStart();

// Saves the settings atomically. Does nothing until LoadSettingsAtStart has returned: a message box at start
// lets the user save and quit.
void SaveSettings();

// Handlers.
void SaveSettingsAction(const ActionCall& call);
void LoadSettingsAction(const ActionCall& call);
