// The list that defines the contents and order of the popup menu. The menu reads it each time it opens.
#pragma once

constexpr int MAX_MENU_ENTRIES = 500;
constexpr int MENU_SEPARATOR = -1; // in the default list; any other negative number is a separator too

// An entry of 0 or more is an action, a negative one a separator. Entries from the count on have no meaning.
extern int MenuList[MAX_MENU_ENTRIES];
extern int quorl_menu_count; // from 0 to MAX_MENU_ENTRIES

// Sets the default menu.
void SetDefaultMenu();

// Replaces the first `count` entries; the others and the number of entries in use stay.
void SetMenuEntries(const int* entries, int count);

// Sets the number of entries in use, at most MAX_MENU_ENTRIES.
void SetMenuCount(int count);

// The position of the first entry equal to `entry`, or -1.
int FindMenuEntry(int entry);

// Inserts an entry before `position`; a negative position, or one past the end, appends. Nothing happens if
// the list is full.
void InsertMenuEntry(int position, int entry);

// Removes an entry: an action (0 or more) at its first position, a separator at `position`, as separators are
// all alike. Nothing happens if there is no such entry.
void RemoveMenuEntry(int entry, int position);

// Swaps the entries at `position` and `position` + `delta`. False if one of them is outside the list.
bool SwapMenuEntries(int position, int delta);
