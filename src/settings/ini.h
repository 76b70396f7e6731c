// The settings file as key and value: one section of one private profile file.
#pragma once

#include "core/platform.h"

#include <cstddef>

// A bare name: Windows decides where it lies, in the user's own copy of the Windows directory.
constexpr char SETTINGS_FILE[] = "quorl.ini";
constexpr char SETTINGS_SECTION[] = "Quorl";

constexpr char FIELD_MARK = '|';

// Room for the line of an action or a region, the zero included: more of a value is never seen. What is
// longer is cut.
constexpr int LINE_ROOM = 64;

// Stores the number in `target`, which may be null, and returns it. A key that is absent or negative gives a
// negative result and leaves `target` alone. A value that is no number counts as 0.
int ReadIniInt(LPCSTR file, LPCSTR key, int* target);

extern int bWriteFailed; // set to 1 by a write that fails, which leaves what was stored

void WriteIniInt(LPCSTR file, LPCSTR key, int number);

// Reads a value into `text`, at most `room` bytes with the zero. The characters stored; 0 when it is absent
// or empty.
int ReadIniText(LPCSTR file, LPCSTR key, char* text, int room);

void WriteIniText(LPCSTR file, LPCSTR key, LPCSTR text);

// The same for keys that end in a row number; `format` holds its one %d.
int ReadIniLine(LPCSTR file, LPCSTR format, int row, char (&line)[LINE_ROOM]);
void WriteIniLine(LPCSTR file, LPCSTR format, int row, LPCSTR line);

// Pure: the first field of a line, or the one behind `field`; an empty text at the end. Marks in a row count
// as one and those at the start for nothing, so no field is empty.
const char* FirstField(const char* line);
const char* NextField(const char* field);
std::size_t FieldLength(const char* field);

// Pure: the number at the start of a text, behind white space and a sign; 0 if there is none. A number past
// 32 bits becomes the nearest that fits.
int NumberIn(const char* text);

// Pure: reads the fields from `line` on as numbers, at most `most`. How many there were.
int NumbersIn(const char* line, int* numbers, int most);
