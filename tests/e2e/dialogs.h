// The dialogs as a user works them: found by their titles, pressed by the mouse, typed into. Controls are
// named by number; what they show is asked of them by message.
#pragma once

#include "user.h"

#include <string>
#include <vector>

// Has Quorl run the row and waits for the dialog with this title; null if none comes.
HWND OpenByRow(int row, const char* title);

// The dialog's control, as soon as it is there; null when patience is over.
HWND Control(HWND dialog, int id);

// Clicks into the middle of a window with the left button, and waits until its program is done with it. The
// second one does not wait, for a click that opens something modal.
void Press(HWND window);
void PressOnly(HWND window);

// Clicks a button of the dialog that closes it, and waits for its end.
void CloseBy(HWND dialog, int id);

// Clicks at a point of a window's client area.
void PressAt(HWND window, POINT at);

// Clicks into an edit box and types over what it holds; letters, digits and blanks.
void TypeOver(HWND edit, const std::string& text);

// Presses and releases one key after the other.
void PressInTurn(std::initializer_list<WORD> keys);

// Answers a box with this caption by a key, and waits for its end.
void AnswerBox(const char* caption, WORD key);

std::string ControlText(HWND dialog, int id);
bool IsChecked(HWND dialog, int id);
bool IsOn(HWND dialog, int id); // enabled
bool IsShown(HWND dialog, int id);

// List boxes.
std::vector<std::string> ListTexts(HWND list);
int SelectedRow(HWND list);        // -1: none
void PressRow(HWND list, int row); // scrolls it into sight and clicks it

// List views and tabs, by number from 0.
std::string ItemText(HWND list, int item, int column);
void PressItem(HWND list, int item); // scrolls it into sight and clicks it
void PressTab(HWND tabs, int tab);

// Chooses a capital letter of a drop-down list. The first press opens it, the second one closes it; the key
// then goes to the closed list.
void ChooseLetter(HWND combo, char letter);
