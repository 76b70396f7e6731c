#include "settings/actions_file.h"

#include "actions/hotkeys.h"
#include "settings/ini.h"

#include <cstdio>
#include <iterator>

static const char LINE_KEY[] = "Action%d";

bool ReadAction(LPCSTR file, int id) {
    char line[LINE_SIZE];
    if (!ReadIniLine(file, LINE_KEY, id, line))
        return false;
    ActionRow& action = ActionTable[id];
    ClearActionKey(id, ACTION_KEY | ACTION_MOUSE);
    int* const fields[] = {&action.mouse_mods, &action.mouse_btn, &action.key_mods, &action.vk,
                           &action.value};
    int numbers[std::size(fields)];
    const int count = ParseNumbers(line, numbers, std::size(fields));
    for (int field = 0; field < count; ++field)
        *fields[field] = numbers[field];
    return true;
}

void ReadActions(LPCSTR file, bool (&bStored)[NUM_ACTIONS]) {
    for (int id = 0; id < NUM_ACTIONS; ++id)
        bStored[id] = ReadAction(file, id);
}

void SaveActions(LPCSTR file) {
    for (int id = 0; id < NUM_ACTIONS; ++id) {
        const ActionRow& action = ActionTable[id];
        char line[LINE_SIZE];
        std::snprintf(line, sizeof line, "%d|%d|%d|%d|%d", action.mouse_mods, action.mouse_btn,
                      action.key_mods, action.vk, action.value);
        WriteIniLine(file, LINE_KEY, id, line);
    }
}

bool HasLastAction(LPCSTR file) {
    char line[LINE_SIZE];
    return ReadIniLine(file, LINE_KEY, NUM_ACTIONS - 1, line) > 0;
}
