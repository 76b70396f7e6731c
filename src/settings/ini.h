// The settings file as keys and values: one section of a private profile file.
#pragma once

#include "core/platform.h"

#include <cstddef>

// A bare name, which the profile functions look for in the Windows folder. Without administrator rights,
// Windows redirects what a 32-bit program writes there to a copy of the user's own.
constexpr char SETTINGS_FILE[] = "quorl.ini";
constexpr char SETTINGS_SECTION[] = "Quorl";

constexpr char DELIMITER = '|';

// Bytes of the line of an action or a region, the terminator included. A longer value is cut.
constexpr int LINE_SIZE = 64;

// Stores the number in `target`, if that is not null, and returns it. Returns -1 and leaves `target`
// unchanged if the key is absent or negative. A value that is not a number counts as 0.
int ReadIniInt(LPCSTR file, LPCSTR key, int* target);

// A failed write leaves the stored value unchanged. Once the save has failed, nothing is written.
void WriteIniInt(LPCSTR file, LPCSTR key, int number);

// Reads a value into `text`, at most `size` bytes with the terminator. The number of characters; 0 if the key
// is absent or the value is empty.
int ReadIniText(LPCSTR file, LPCSTR key, char* text, int size);

void WriteIniText(LPCSTR file, LPCSTR key, LPCSTR text);

// The same for keys that end in an index; `format` contains one %d.
int ReadIniLine(LPCSTR file, LPCSTR format, int index, char (&line)[LINE_SIZE]);
void WriteIniLine(LPCSTR file, LPCSTR format, int index, LPCSTR line);

// Pure: the first field of a line; an empty text if there is none. Consecutive delimiters count as one and
// leading ones are skipped, so no field is empty. The second byte of a letter is not a delimiter.
const char* FirstField(const char* line);
std::size_t FieldLength(const char* field);

// Pure: converts the fields of a line, at most `max`, to numbers, clamped to 32 bits; a field that is not a
// number is 0. The number of fields.
int ParseNumbers(const char* line, int* numbers, int max);
