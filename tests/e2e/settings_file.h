// Quorl's settings file, where Windows puts it, as seen from outside.
#pragma once

#include <string>

std::string SettingsFile();

// The whole file; empty if there is none.
std::string SettingsText();

// One key of it, and one put down before Quorl starts.
std::string Stored(const char* key);
void Store(const char* key, const char* value);
