// The settings file as keys and values.
#include "settings/ini.h"

#include "core/letters.h"
#include "settings/save_attempt.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

static const int KEY_SIZE = 32;
static const char DELIMITERS[] = {DELIMITER, 0};

const char* FirstField(const char* line) {
    return line + std::strspn(line, DELIMITERS);
}

std::size_t FieldLength(const char* field) {
    const std::size_t end = std::strlen(field);
    std::size_t length = 0;
    while (length < end && field[length] != DELIMITER)
        length += LetterSize(field[length]);
    return std::min(length, end);
}

// Pure: the field after this one; an empty text at the end.
static const char* NextField(const char* field) {
    return FirstField(field + FieldLength(field));
}

static int ParseNumber(const char* text) {
    const long long number = std::strtoll(text, nullptr, 10);
    return static_cast<int>(std::clamp<long long>(number, INT_MIN, INT_MAX));
}

int ParseNumbers(const char* line, int* numbers, int max) {
    int count = 0;
    for (const char* field = FirstField(line); *field && count < max; field = NextField(field))
        numbers[count++] = ParseNumber(field);
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

int ReadIniText(LPCSTR file, LPCSTR key, char* text, int size) {
    return static_cast<int>(
        GetPrivateProfileStringA(SETTINGS_SECTION, key, "", text, static_cast<DWORD>(size), file));
}

void WriteIniText(LPCSTR file, LPCSTR key, LPCSTR text) {
    if (bSaveFailed)
        return;
    while (!WritePrivateProfileStringA(SETTINGS_SECTION, key, text, file)) {
        const DWORD error = GetLastError();
        if (!WaitIfOpen(error))
            return NoteWriteError(error);
    }
}

int ReadIniLine(LPCSTR file, LPCSTR format, int index, char (&line)[LINE_SIZE]) {
    char key[KEY_SIZE];
    std::snprintf(key, sizeof key, format, index);
    return ReadIniText(file, key, line, LINE_SIZE);
}

void WriteIniLine(LPCSTR file, LPCSTR format, int index, LPCSTR line) {
    char key[KEY_SIZE];
    std::snprintf(key, sizeof key, format, index);
    WriteIniText(file, key, line);
}
