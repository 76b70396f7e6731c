// The templates of the project's dialogs, as its resource script has them.
#pragma once

#include "desk.h"

// Places are in dialog units: x, y, width, height.
struct DeskUnits {
    int x, y, width, height;
};

struct ControlTemplate {
    std::string className;
    std::string text;
    int id;
    DWORD style, exStyle;
    DeskUnits place;
};

struct DialogTemplate {
    std::string title;
    DWORD style = 0, exStyle = 0;
    DeskUnits place{};
    std::vector<ControlTemplate> controls;
};

// Null if the script has none of that number. The script is read at the first call; what it cannot
// understand in it ends the program.
const DialogTemplate* TemplateOf(int id);
