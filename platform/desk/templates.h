// The dialog templates of the program's resource script.
#pragma once

#include "desk.h"

// In dialog units.
struct DialogRect {
    int x, y, width, height;
};

struct ControlTemplate {
    std::string className;
    std::string text;
    int id;
    DWORD style, exStyle;
    DialogRect rect;
};

struct DialogTemplate {
    std::string title;
    DWORD style = 0, exStyle = 0;
    DialogRect rect{};
    std::vector<ControlTemplate> controls;
};

// Null if the script has no dialog with that number. The first call parses the script and aborts on anything
// it does not support. Numbers may be names that a header included with `#include "..."` defines.
const DialogTemplate* FindTemplate(int id);
