// The settings file as key and value.
#include "settings/ini.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

static const int KEY_ROOM = 32;
static const char FIELD_MARKS[] = {FIELD_MARK, 0};

int bWriteFailed;

const char* FirstField(const char* line) {
    return line + std::strspn(line, FIELD_MARKS);
}

std::size_t FieldLength(const char* field) {
    return std::strcspn(field, FIELD_MARKS);
}

const char* NextField(const char* field) {
    return FirstField(field + FieldLength(field));
}

int NumberIn(const char* text) {
    const long long number = std::strtoll(text, nullptr, 10);
    return static_cast<int>(std::clamp<long long>(number, INT_MIN, INT_MAX));
}

int NumbersIn(const char* line, int* numbers, int most) {
    int count = 0;
    for (const char* field = FirstField(line); *field && count < most; field = NextField(field))
        numbers[count++] = NumberIn(field);
    return count;
}

int ReadIniInt(LPCSTR file, LPCSTR key, int* target) {
    const int number = static_cast<int>(GetPrivateProfileIntA(SETTINGS_SECTION, key, -1, file));
    if (number < 0)
        return -1;
    if (target)
        *target = number;
    return number;
}

void WriteIniInt(LPCSTR file, LPCSTR key, int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%d", number);
    WriteIniText(file, key, text);
}

int ReadIniText(LPCSTR file, LPCSTR key, char* text, int room) {
    return static_cast<int>(
        GetPrivateProfileStringA(SETTINGS_SECTION, key, "", text, static_cast<DWORD>(room), file));
}

void WriteIniText(LPCSTR file, LPCSTR key, LPCSTR text) {
    if (!WritePrivateProfileStringA(SETTINGS_SECTION, key, text, file))
        bWriteFailed = 1;
}

int ReadIniLine(LPCSTR file, LPCSTR format, int row, char (&line)[LINE_ROOM]) {
    char key[KEY_ROOM];
    std::snprintf(key, sizeof key, format, row);
    return ReadIniText(file, key, line, LINE_ROOM);
}

void WriteIniLine(LPCSTR file, LPCSTR format, int row, LPCSTR line) {
    char key[KEY_ROOM];
    std::snprintf(key, sizeof key, format, row);
    WriteIniText(file, key, line);
}
