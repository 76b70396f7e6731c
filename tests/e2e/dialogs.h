// The dialogs as a user works them: found by their titles, pressed by the mouse, typed into. Controls are
// named by number; what they show is asked of them by message.
#pragma once

#include "user.h"

// Has Quorl run the row, and insists on the dialog with this title. The same by a button of an open dialog,
// which then closes by its OK.
HWND OpenByRow(int row, const char* title);
HWND OpenByButton(HWND dialog, int button, const char* title);

// The dialog's control, as soon as it is there; null when patience is over.
HWND Control(HWND dialog, int id);
// The number of the control that has the keyboard; 0: none of the dialog's.
int Focused(HWND dialog);

// Clicks into the middle of a window with the left button, and waits until its program is done with it. The
// second one does not wait, for a click that opens something modal.
void Press(HWND window);
void PressOnly(HWND window);
// Clicks at a point of a window's client area.
void PressAt(HWND window, POINT at);

// Clicks a button of the dialog that closes it, or presses a key, and waits for its end.
void CloseBy(HWND dialog, int id);
void CloseByKey(HWND dialog, WORD key);

// Clicks into an edit box and types over what it holds; letters, digits and blanks.
void TypeOver(HWND edit, const std::string& text);
std::string ControlText(HWND dialog, int id);

// List boxes. The row with this text is insisted on.
std::vector<std::string> ListTexts(HWND list);
void PressRow(HWND list, const std::string& text);
