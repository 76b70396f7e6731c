// The words for tests that read and write the settings file.
#pragma once

#include "settings/ini.h"
#include "support/quorl_test.h"

#include <string>

// The file's text.
inline std::string& File() {
    return Desk.files[SETTINGS_FILE];
}

// The user has edited the file: these lines are all that it holds.
inline void StoreFile(const std::string& lines) {
    File() = "[Quorl]\r\n" + lines;
}

// And Quorl, which runs, is told to load them.
inline void Load(const std::string& lines) {
    StoreFile(lines);
    Command(48);
}

// The value of a key as any program would read it.
inline std::string Stored(const std::string& key) {
    char text[4096];
    GetPrivateProfileStringA(SETTINGS_SECTION, key.c_str(), "", text, sizeof text, SETTINGS_FILE);
    return text;
}
