// What a program holds of the system, as seen from outside.
#pragma once

#include <windows.h>

#include <string>

struct ResourcesInUse {
    int windows;   // with their children, visible or not
    int gdi;       // pens, brushes, fonts, contexts, ..., but no bitmaps
    SIZE_T memory; // bytes in the working set
};

// Of a running program. Graphics objects that cannot be counted are -1.
ResourcesInUse ResourcesOf(HANDLE process);
std::string Told(const ResourcesInUse& resources);
