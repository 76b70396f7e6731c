// Reading and writing the settings file as its user does.
#pragma once

#include "settings/ini.h"
#include "support/quorl_test.h"

#include <string>

inline std::string& File() {
    return Desk.files[SETTINGS_FILE];
}

// The file contains only these lines.
inline void StoreFile(const std::string& lines) {
    File() = "[Quorl]\r\n" + lines;
}

// Stores these lines and loads the file.
inline void Load(const std::string& lines) {
    StoreFile(lines);
    RunAction(ACTION_LOAD_SETTINGS);
}

inline std::string Stored(const char* key) {
    char text[4096];
    GetPrivateProfileStringA(SETTINGS_SECTION, key, "", text, sizeof text, SETTINGS_FILE);
    return text;
}
