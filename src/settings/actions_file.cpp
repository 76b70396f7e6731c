// Bindings and values of all rows, as they lie in the settings file.
#include "settings/actions_file.h"

#include "actions/hotkeys.h"
#include "settings/ini.h"

#include <cstdio>

static const char LINE_KEY[] = "Action%d";

static const int FIELDS = 5; // of a line; the last is the value

// Stores the row's line in the row and registers nothing. 0 without a line.
static int ReadAction(HWND window, LPCSTR file, ActionId row) {
    char line[LINE_ROOM];
    if (!ReadIniLine(file, LINE_KEY, row, line))
        return 0;
    ActionRow& action = ActionTable[row];
    ClearActionKey(window, row, ACTION_KEY | ACTION_MOUSE);
    int* const fields[FIELDS] = {&action.mouse_mods, &action.mouse_btn, &action.key_mods, &action.vk,
                                 &action.value};
    int numbers[FIELDS];
    const int count = NumbersIn(line, numbers, FIELDS);
    for (int field = 0; field < count; ++field)
        *fields[field] = numbers[field];
    return 1;
}

// While a box tells of an earlier row the user may have given this one a hotkey, or loaded all of them.
static void RegisterStored(HWND window, ActionId row) {
    UnregisterHotKey(window, row);
    SetActionKey(window, row, ACTION_KEY, ActionTable[row].key_mods, ActionTable[row].vk);
}

// All lines are read before the first hotkey is registered: two rows may have swapped theirs, and a box about
// a refused one lets the user quit, which saves all rows.
int LoadActions(HWND window, LPCSTR file) {
    int bHasLine[NUM_ACTIONS];
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        bHasLine[row] = ReadAction(window, file, row);
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        if (bHasLine[row])
            RegisterStored(window, row);
    return 1;
}

int SaveActions(HWND, LPCSTR file) {
    for (ActionId row = 0; row < NUM_ACTIONS; ++row) {
        const ActionRow& action = ActionTable[row];
        char line[LINE_ROOM];
        std::snprintf(line, sizeof line, "%d|%d|%d|%d|%d", action.mouse_mods, action.mouse_btn,
                      action.key_mods, action.vk, action.value);
        WriteIniLine(file, LINE_KEY, row, line);
    }
    return 1;
}

int HasActionLine(LPCSTR file, ActionId row) {
    char line[LINE_ROOM];
    return ReadIniLine(file, LINE_KEY, row, line) > 0;
}

int WillLoadSettings(LPCSTR file) {
    char line[LINE_ROOM];
    int numbers[FIELDS];
    if (!ReadIniLine(file, LINE_KEY, ROW_LOAD_SETTINGS, line) || NumbersIn(line, numbers, FIELDS) < FIELDS)
        return ActionTable[ROW_LOAD_SETTINGS].value;
    return numbers[FIELDS - 1];
}

int LoadLoadSetting(HWND window, LPCSTR file) {
    const int bStored = ReadAction(window, file, ROW_LOAD_SETTINGS);
    const int bLoads = ActionTable[ROW_LOAD_SETTINGS].value;
    if (bStored && !bLoads)
        RegisterStored(window, ROW_LOAD_SETTINGS);
    return bLoads;
}
