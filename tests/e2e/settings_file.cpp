// Quorl's settings file, where Windows puts it, as seen from outside.
#include "settings_file.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

std::string SettingsFile() {
    char folder[MAX_PATH] = "";
    GetWindowsDirectoryA(folder, sizeof folder);
    return std::string(folder) + "\\quorl.ini";
}

std::string SettingsText() {
    std::ifstream file(SettingsFile(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Stored(const char* key) {
    char text[8192] = "";
    GetPrivateProfileStringA("Quorl", key, "", text, sizeof text, SettingsFile().c_str());
    return text;
}

void Store(const char* key, const char* value) {
    ASSERT_TRUE(WritePrivateProfileStringA("Quorl", key, value, SettingsFile().c_str()));
}
