// The desktop held in memory: one record, which tests read and write directly. The calls that windows.h
// declares act on it as Windows would. Start reading here; each .cpp beside it implements one group of calls.
#pragma once

#include "windows.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

// How a window of another program behaves when it is asked something.
enum class DeskAnswer {
    Answers,
    TimesOut, // waits out its time, then fails with `error`
    Hung,     // known to be hung: fails at once with `error`
    Fails,    // refuses with `error`
    Leaves,   // its program ends instead of answering
};

struct DeskMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    RECT record; // what lParam pointed to, for WM_MOVING
};

// A row of a list box or a drop-down list, a tab, a column of a list view.
struct DeskRow {
    std::string text;
    LPARAM data = 0; // of a column: its width in pixels
};

// What a control keeps; each kind uses its own few.
struct DeskControl {
    int bChecked = 0;            // button
    HANDLE image = nullptr;      // button, as BM_SETIMAGE gave it
    std::vector<DeskRow> rows;   // list box, drop-down list, tab control
    std::size_t room = SIZE_MAX; // rows that it takes: none fits in after them
    int chosen = -1;             // row that is selected, tab that is shown
    int count = 0;               // list view: rows, which it only counts
    int mark = -1;               // list view: row that was clicked last
    std::vector<DeskRow> columns;
    std::vector<int> redrawn;                // list view: rows that were asked for anew
    DWORD extendedStyle = 0;                 // list view
    int least = 0, most = 100, position = 0; // trackbar
};

struct DeskWindow {
    HWND handle = nullptr; // null: the window is gone
    std::string className;
    std::string title;
    RECT place{}; // screen pixels
    DWORD style = 0;
    DWORD exStyle = 0;
    HWND owner = nullptr; // of a child: its parent
    HINSTANCE instance = nullptr;
    WNDPROC procedure = nullptr; // null: a window of another program
    RECT restored{};             // place before it was minimized or maximized
    int bMaximizeAgain = 0;      // it was maximized when it was minimized
    int bCloaked = 0;            // the compositor keeps it out of sight
    int alpha = -1;              // as SetLayeredWindowAttributes set it; -1: never
    std::vector<HWND> children;  // in the order of their creation
    LONG_PTR id = 0;             // of a child
    LONG_PTR userData = 0;
    DLGPROC dialog = nullptr;   // of a dialog
    HWND focusInside = nullptr; // of a dialog: the control that has the focus whenever it is active
    DeskControl control;        // of a control

    // Windows of other programs only:
    DeskAnswer answer = DeskAnswer::Answers;
    DWORD error = ERROR_TIMEOUT; // when it times out or is hung; the oldest systems say 0
    int bRewrites = 0;           // its WM_MOVING handler puts `rewritten` into the record
    RECT rewritten{};            // left, top, width, height
    SIZE least{0, 0};            // sizes that it refuses to go below or above
    SIZE most{1 << 20, 1 << 20};
    int diesAtCall = 0; // the n-th call that names this window finds it gone; 0: never
    std::vector<DeskMessage> received;

    int bInvalid = 0; // waits for WM_PAINT
    int bErase = 0;   // its background waits too
    RECT invalid{};   // client pixels
};

struct DeskTimer {
    HWND window;
    UINT_PTR id;
    DWORD period; // milliseconds
    DWORD due;
    TIMERPROC callback;
};

// What the user did with the mouse and no thread has read yet.
struct DeskInput {
    UINT message;
    POINT at; // screen pixels
    DWORD time;
    BYTE keys[256]; // what was held when it happened
};

struct DeskHotkey {
    HWND window; // null: held by another program
    int id;
    UINT modifiers;
    UINT key;
};

struct DeskBox {
    HWND owner;
    std::string text;
    std::string caption;
    UINT type;
    int answer;
};

// One call fails: the n-th of that name, or the n-th of all. `hits` says how often it struck.
struct DeskFault {
    std::string call;  // empty: any call
    int callsLeft = 0; // 0: nothing fails
    int bForGood = 0;  // once struck, all later ones fail too
    DWORD error = 0;
    int hits = 0;
};

enum class DeskObjectKind { Brush, Font, Icon, Pen };

struct DeskPen {
    int style;
    int width;
    COLORREF color;
};

struct DeskObject {
    DeskObjectKind kind{};
    int bStock = 0; // belongs to the system and is never deleted
    int bLive = 1;
    int index = 0;      // Brush: system colour; Icon: resource number
    COLORREF color = 0; // Brush
    DeskPen pen{};
    int height = 0; // Font
    int weight = 0;
    std::string face;
};

struct DeskContext {
    HWND window;
    HGDIOBJ font, pen, brush; // selected
    int rop;
    POINT at;  // where a line starts
    RECT clip; // client pixels: nothing is drawn outside
    int bLive;
    int backMode = 2; // OPAQUE
};

// One thing drawn.
struct DeskStroke {
    std::string what; // name of the call
    HWND window;
    RECT rect; // LineTo: from left, top up to right, bottom
    std::string text;
    HGDIOBJ font;
    UINT format;   // DrawEdge: the edge, with its flags in the second byte
    DeskPen pen{}; // what was selected at that moment
    HGDIOBJ brush = nullptr;
    COLORREF fill = 0; // of the brush
    int rop = R2_COPYPEN;
    RECT clip{};
    std::vector<POINT> points; // Polygon
};

// What TileWindows was given.
struct DeskTiling {
    UINT how;
    RECT rect;
    std::vector<HWND> windows;
};

struct DeskColorBox {
    HWND owner;
    COLORREF initial;
    DWORD flags;
    std::vector<COLORREF> custom; // the 16 beside the palette
};

struct DeskMenuItem {
    UINT type;
    UINT state;
    UINT id;
    HMENU submenu; // null: none
    std::string text;
};

// Its items can still be read when it has been destroyed.
struct DeskMenu {
    std::vector<DeskMenuItem> items;
    int bLive = 1;
};

struct DeskShownMenu {
    HMENU menu;
    POINT at; // screen pixels
    UINT flags;
    HWND window;
    UINT choice; // 0: the user chose nothing
};

struct DeskTrayIcon {
    HWND window;
    UINT id;
    UINT callback;
    HICON icon;
    std::string tip;
};

struct DeskModule {
    std::map<std::string, FARPROC> exports;
    int bInstalled = 1; // LoadLibraryA finds it
    int loads = 0;
};

struct DeskState {
    std::deque<DeskWindow> windows; // every window ever made; a handle is a place in here
    std::vector<HWND> order;        // living top-level windows, the topmost first
    std::map<std::string, WNDCLASSA> classes;
    HWND foreground = nullptr;
    HWND focus = nullptr;
    HWND capture = nullptr;

    DWORD now = 0;   // milliseconds
    DWORD until = 0; // GetMessageA lets time pass up to here, then gives 0 ...
    int bRunDry = 0; // ... and sets this, so that it is not taken for the end
    std::deque<std::function<void()>>
        script; // what the user does, one act whenever nothing else is to be done
    std::deque<MSG> queue;
    std::deque<DeskInput> inputs;
    int bQuit = 0;
    int exitCode = 0;
    std::vector<DeskTimer> timers;

    POINT cursor{512, 384};
    BYTE keysNow[256] = {};  // GetAsyncKeyState: the state of the moment, 1 is down
    BYTE keysRead[256] = {}; // GetKeyState: as of the last input message that the thread has read
    std::vector<DeskHotkey> hotkeys;

    int pixelsPerInch{96};
    std::vector<RECT> monitors{
        {0, 0, 1024, 768}
    };                    // the first is the primary one
    std::map<std::string, DeskModule> modules; // by lower-case name
    std::map<std::string, std::string> files;  // profile files by lower-case name
    std::set<std::string> protectedFiles;      // the read-only ones among them

    std::deque<int> answers; // to the boxes that will come
    std::vector<DeskBox> boxes;
    std::deque<std::optional<COLORREF>> colorAnswers; // to the colour dialogs that will come; none cancels
    std::vector<DeskColorBox> colorBoxes;
    std::map<int, COLORREF> systemColors{
        {COLOR_BACKGROUND, 0xa56e3a}
    }; // all others are grey
    std::function<void()> inBox;       // runs while a box is open, as timers and other messages do
    int surprises = 0; // boxes and menus that nobody answers, and calls that would have blocked for ever
    std::deque<UINT> choices; // from the menus that will come, by id; 0 closes the menu
    std::deque<DeskMenu> menus;
    std::vector<DeskShownMenu> shownMenus;
    std::vector<DeskTrayIcon> tray;
    std::vector<UINT> beeps;
    std::vector<DWORD> tones; // hertz, as Beep was given them
    std::vector<DeskTiling> tilings;
    int locks = 0; // calls of LockWorkStation
    std::vector<DeskMessage> broadcasts;

    std::deque<DeskObject> objects;
    std::deque<DeskContext> contexts;
    std::vector<DeskStroke> strokes;
    int deletedInUse =
        0; // objects deleted while selected: Windows waits with them, good programs do not do it

    DWORD lastError = 0;
    LPTOP_LEVEL_EXCEPTION_FILTER crashFilter = nullptr; // what runs when the process crashes
    DeskFault fault;
    int calls = 0;  // platform calls so far
    int bTrace = 1; // keep their names, what was drawn and what others received; off in benchmarks
    std::vector<const char*> trace;
};

extern DeskState Desk;

// Opens a window of another program, on top of the others and without activating it. Screen pixels.
HWND OpenWindow(const char* title, const RECT& place, const char* className = "Program");

// The row of a window, dead or alive; `window` must have been a window once.
DeskWindow& RowOf(HWND window);

// A menu, living or destroyed.
DeskMenu& MenuOf(HMENU menu);

// The window is gone from one moment to the next, as when its program is killed.
void KillWindow(HWND window);

// The user presses a combination: posts WM_HOTKEY if this process holds it. Modifiers are MOD_ values.
void PressCombination(UINT modifiers, UINT key);

// The user holds or releases a key or button: the state of the moment, not yet read by any thread.
void HoldKey(int key, int bDown);

// The user moves the mouse, in screen pixels, or works a button, which is a VK_ value: the state of the
// moment changes, and a message waits for whoever gets it then.
void MoveMouse(int x, int y);
void PressMouse(int button, int bDown);

// A point of a window's client area, in screen pixels.
POINT OnScreen(HWND window, int x, int y);

// How often a call of this name was made since `Desk.trace` was last cleared.
int CallsOf(const char* call);

// Drawing objects and contexts that nobody has deleted or released; those of the system do not count.
int LiveObjects();
int LiveContexts();

// The control of a dialog by its number, without counting as a call; null if there is none.
HWND ControlOf(HWND dialog, int id);

// What a user does with controls. Nothing happens to one that is hidden or disabled.
//
// Clicks a button: it takes the focus, changes its check mark by itself if it is of that kind, and tells.
void ClickControl(HWND button);
// Goes to a control; the one that is left tells that.
void GoToControl(HWND control);
// Goes to an edit box and replaces its text; digits only where it takes no others.
void TypeInto(HWND edit, const char* text);
// Clicks a row, from 0, of a list box, a drop-down list or a list view, or a tab.
void ChooseRow(HWND control, int row);
// Drags the slider of a trackbar to a position.
void DragSlider(HWND trackbar, int position);
// Presses and releases a key, which goes to whatever has the focus. VK_ values.
void PressKey(int key);

// What the user reads in a row and a column of a list view, both from 0.
std::string TextInList(HWND listView, int row, int column);
