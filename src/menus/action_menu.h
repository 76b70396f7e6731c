// The popup menu: the actions that the user put into it, and the regions.
#pragma once

#include "actions/dispatch.h"

// Opens the menu at the cursor and waits for the user's choice. 0 when nothing was chosen or the menu could
// not be made, else an ActionId or FIRST_REGION_ID + the region's row. It is built afresh each time, so what
// has changed shows without further ado.
UINT BuildActionMenu(HWND window);

// Brings `window` to the foreground, opens the menu and runs what was chosen. The result of the action; 0
// when nothing was chosen.
int ShowActionMenu(HWND window);

// The row that opens the menu. Always 0.
int DisplayMenu(const ActionCall& call);

constexpr int MENU_TEXT_ROOM = 80; // bytes: twice a region's name, its number, the zero

// Pure: the text of a region's entry. The first ten get the keys 0 to 9, later ones 0 as well. An "&" of the
// name shows as it is and marks no key.
void RegionEntryText(char (&text)[MENU_TEXT_ROOM], int region, const char* name);
