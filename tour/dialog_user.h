// What a user does with the mouse, and in the dialogs and menus of Quorl. Positions are screen pixels.
#pragma once

#include "shared/user.h"

// Where a window is after the mouse has moved there. Under Wine a single move is lost now and then.
RECT RectAfterMoving(HWND window, POINT to);
POINT MousePosition();

HWND OpenedMenu(); // null if none is open

// Answers the open question with Yes and requires exit code 0.
void AnswerYesToQuit();

// Runs the action and requires the dialog with this title.
HWND OpenDialog(int action, const char* title);
// The same by a button of an open dialog, which is then closed by its OK.
HWND OpenByButton(HWND dialog, int button, const char* title);

// The dialog's control as soon as it exists; null after the timeout.
HWND Control(HWND dialog, int id);
// The id of the dialog's focused control; 0: none.
int Focused(HWND dialog);

// Clicks into the middle of a window, or at a point of its client area, and waits until its program has
// handled it; PressOnly does not wait, for a click that opens something modal.
void Press(HWND window);
void PressAt(HWND window, POINT at);
void PressOnly(HWND window);

// Closes the dialog by a button or a key.
void CloseBy(HWND dialog, int id);
void CloseByKey(HWND dialog, WORD key);

// Replaces the text of an edit box; letters, digits and blanks.
void TypeOver(HWND edit, const std::string& text);
std::string ControlText(HWND dialog, int id);

// List boxes. PressItem requires an item with this text.
std::vector<std::string> ListTexts(HWND list);
void PressItem(HWND list, const std::string& text);
