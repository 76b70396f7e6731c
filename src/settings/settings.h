// Saving and loading everything that is kept between runs.
#pragma once

#include "actions/action_table.h"

// Loads the settings at start, unless the stored value of ACTION_LOAD_AT_START says no, and registers the
// hotkeys of all actions once everything is read.
void LoadSettingsAtStart();

// Saves the settings atomically.
void SaveSettings();

// Handlers. Always 0.
int SaveSettingsAction(const ActionCall& call);
int LoadSettingsAction(const ActionCall& call);
