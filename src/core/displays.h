// The displays, and the coordinates that Quorl decides with.
//
// Windows counts from the corner of the primary display, so a display left of it or above it has negative
// coordinates: system coordinates. Quorl counts from the top left corner of the union of all displays: screen
// coordinates, which start at 0. Convert where a position comes from Windows or goes back to it.
#pragma once

#include "core/platform.h"

constexpr int GRAB_SIZE = 5;     // pixels in both directions: less of a title could not be grabbed
constexpr int MAX_DISPLAYS = 16; // further ones are ignored

struct Display {
    RECT rect; // all of it
    RECT work; // without taskbars
    char device[CCHDEVICENAME];
};

// A measurement, in system coordinates. The first display is the primary one.
struct DisplayLayout {
    int count;
    RECT all; // the union; empty without a display
    Display displays[MAX_DISPLAYS];
};

// The layout in use; older than the real one while displays change.
extern DisplayLayout Displays;

// Measures the displays. A display that has just been unplugged is left out.
void MonitorUnion(DisplayLayout* layout);

bool IsSameLayout(const DisplayLayout& a, const DisplayLayout& b);

// Whether a display of the layout shows a part of the rectangle, in system coordinates.
bool IsShownBy(const DisplayLayout& layout, const RECT& rect);

// Changes the layout in use, and with it ScreenRect and all conversions.
void UseDisplays(const DisplayLayout& layout);

// From system coordinates to screen pixels, and back.
RECT FromSystem(const RECT& rect);
RECT ToSystem(const RECT& rect);

// The cursor, in screen pixels. False if it cannot be read, for example while the workstation is locked.
bool ReadCursor(POINT* cursor);
void MoveCursor(POINT cursor);

// Everything below takes and returns screen pixels, and uses the layout in use.

struct DisplayArea {
    RECT rect, work;
};

// The display that shows most of the rectangle, or else the nearest one. All 0 without a display.
DisplayArea DisplayNear(const RECT& rect);
DisplayArea PrimaryDisplay();

// Whether a display shows a part of the rectangle.
bool IsOnDisplay(const RECT& rect);

// The edges of the display at a point. An edge next to another display is moved far away, so that the cursor
// never reaches it.
RECT OuterEdges(POINT point);

// Whether a window can be grabbed: at least 5 by 5 pixels of its title are in a work area.
bool IsTitleInReach(const RECT& visible);

// The rectangle moved into the nearest work area; a larger one starts at the corner. Unchanged without a
// display.
RECT MoveIntoWorkArea(const RECT& visible);

// MoveIntoWorkArea if the title is out of reach; else unchanged.
RECT KeepInReach(const RECT& visible);
