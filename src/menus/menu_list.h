// The list that says what the popup menu holds and in what order. The menu reads it each time it opens.
#pragma once

#include "core/platform.h"

constexpr int MAX_MENU_ENTRIES = 500;
constexpr int MENU_SEPARATOR = -1; // in the start list; any other negative number is a separator too

// An entry of 0 or more is an ActionId, a negative one a separator line. Entries behind the count have no
// meaning. The count lies between 0 and MAX_MENU_ENTRIES: whoever sets it holds it there.
extern int MenuList[MAX_MENU_ENTRIES];
extern int quorl_menu_count;

// The list that a new user finds.
void SetDefaultMenu();

// The position of the first entry equal to `entry`, or -1.
int FindMenuEntry(int entry);

// Puts `entry` before the one at `position`; a negative position, or one past the end, appends. 0 when the
// list is full, which changes nothing; else 1.
int InsertMenuEntry(int position, int entry);

int AppendMenuEntry(int entry);

// Takes out one entry: an action (0 or more) wherever it first stands, a separator by its `position`, since
// lines have no identity of their own. 1, or 0 when there is no such entry.
int RemoveMenuEntry(int entry, int position);

// Exchanges the entries at `position` and `position` + `delta`. 0 when one of them lies outside the list.
int SwapMenuEntries(int position, int delta);
