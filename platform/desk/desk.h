// The in-memory desktop: one record, `Desk`, that tests read and write directly. The calls declared in
// windows.h act on it as Windows would. Start reading here; each .cpp beside it implements one group of
// calls. Rectangles and points are screen pixels unless stated otherwise, times are milliseconds.
#pragma once

#include "windows.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

// How another program's window responds to a sent message.
enum class DeskResponse {
    Responds,
    TimesOut, // uses up the timeout, then fails with `error`
    Hung,     // known to be hung: fails at once with `error`
    Fails,    // refuses with `error`
    Exits,    // its program ends instead of responding
};

struct DeskMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    RECT record; // for WM_MOVING: what lParam pointed to
};

// An item of a list box or a drop-down list, a tab, a column of a list view.
struct DeskItem {
    std::string text; // UTF-8
    LPARAM data = 0;  // of a column: its width in pixels
};

// State of a control; each kind uses a few of the fields.
struct DeskControl {
    bool checked = false;            // button
    HANDLE image = nullptr;          // button: set by BM_SETIMAGE
    std::vector<DeskItem> items;     // list box, drop-down list, tab control
    std::size_t capacity = SIZE_MAX; // items it accepts before it reports that memory ran out
    int selected = -1;               // selected item, visible tab
    int itemCount = 0;               // list view: it stores only the number of its items
    std::vector<DeskItem> columns;
    std::vector<int> redrawn;             // list view: items that LVM_REDRAWITEMS named
    DWORD extendedStyle = 0;              // list view
    int min = 0, max = 100, position = 0; // trackbar
};

struct DeskWindow {
    HWND handle = nullptr; // null: destroyed
    std::string className;
    std::string title; // UTF-8; A calls see characters beyond Latin-1 as '?'
    RECT rect{};
    DWORD style = 0;
    DWORD exStyle = 0;
    HWND owner = nullptr; // of a child: its parent
    HINSTANCE instance = nullptr;
    WNDPROC procedure = nullptr;    // null: another program's window
    RECT normalRect{};              // `rect` before it was minimized or maximized
    bool restoresMaximized = false; // was maximized when it was minimized
    bool cloaked = false;           // hidden by the compositor although visible
    std::optional<RECT>
        margins;                // invisible part of the frame per side; default: Desk.frameMargins if sizable
    UINT dpi = 96;              // of this process: the scale it was told last
    int alpha = -1;             // set by SetLayeredWindowAttributes; -1: never
    std::vector<HWND> children; // in order of creation
    LONG_PTR id = 0;            // of a child
    LONG_PTR userData = 0;
    DLGPROC dialog = nullptr;   // of a dialog
    HWND dialogFocus = nullptr; // of a dialog: the control that has the focus while it is active
    DeskControl control;        // of a control

    // Other programs' windows only:
    DeskResponse response = DeskResponse::Responds;
    DWORD error = ERROR_TIMEOUT; // last error after TimesOut, Hung or Fails
    bool overridesMove = false;  // its WM_MOVING handler writes `moveOverride` into the record
    RECT moveOverride{};         // left, top, width, height
    bool elevated = false;       // higher integrity: messages and changes fail with ERROR_ACCESS_DENIED
    bool movesOwned = false;     // its program moves the windows it owns along with it
    bool dpiAware = true;        // false: reports 96 DPI and is moved to whole pixels of its own scale only
    std::optional<RECT> pendingRect; // posted by SWP_ASYNCWINDOWPOS; WakeWindow applies it
    SIZE minSize{0, 0};
    SIZE maxSize{1 << 20, 1 << 20};
    std::function<void()> duringMessage; // runs while it handles a message that somebody waits for
    int diesAtCall = 0;                  // destroyed just before the n-th call that names it; 0: never
    std::vector<DeskMessage> received;

    bool needsPaint = false; // WM_PAINT is pending
    bool needsErase = false; // so is WM_ERASEBKGND
    RECT invalid{};          // client pixels
};

struct DeskTimer {
    HWND window;
    UINT_PTR id;
    DWORD period;
    DWORD due;
    TIMERPROC callback;
};

// Mouse input that no thread has read yet.
struct DeskInput {
    UINT message;
    POINT at;
    DWORD time;
    BYTE keys[256]; // keys and buttons held at that time
};

struct DeskHotkey {
    HWND window; // null: another program's
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

// Makes one call fail: the n-th of that name, or the n-th of any name.
struct DeskFault {
    std::string call;       // empty: any call
    int callsLeft = 0;      // 0: nothing fails
    bool permanent = false; // later calls fail too
    DWORD error = 0;
    int repeats = 0; // later calls that fail too, if not all do
    int hits = 0;    // calls that failed
};

enum class DeskObjectKind { Bitmap, Brush, Font, Icon, Pen };

struct DeskPen {
    int style;
    int width;
    COLORREF color;
};

// One drawing call with the objects that were selected at the time.
struct DeskDrawCall {
    std::string call; // its name
    HWND window;
    RECT rect;        // client pixels; LineTo: from left, top to right, bottom
    std::string text; // UTF-8
    HGDIOBJ font;
    UINT format; // DrawEdge: the edge, with the flags in the second byte
    DeskPen pen{};
    HGDIOBJ brush = nullptr;
    COLORREF fill = 0; // of the brush
    int rop = R2_COPYPEN;
    std::vector<POINT> points; // Polygon
    COLORREF textColor = 0;
};

struct DeskObject {
    DeskObjectKind kind{};
    bool stock = false; // belongs to the system and is never deleted
    bool live = true;
    int index = 0;      // Brush: system colour; Icon: resource number
    COLORREF color = 0; // Brush
    DeskPen pen{};
    int height = 0; // Font
    int weight = 0;
    std::string face;
    SIZE size{};                         // Bitmap, Icon: pixels requested
    std::vector<DeskDrawCall> drawCalls; // Bitmap: drawn into it
};

struct DeskContext {
    HWND window;              // null: a memory context
    HGDIOBJ font, pen, brush; // selected objects
    int rop;
    POINT at; // current position
    bool live;
    int backMode = 2;         // OPAQUE
    HGDIOBJ bitmap = nullptr; // of a memory context
    COLORREF textColor = 0;
};

// The arguments of a TileWindows call.
struct DeskTiling {
    UINT how;
    RECT rect;
    std::vector<HWND> windows;
};

struct DeskColorDialog {
    HWND owner;
    COLORREF initial;
    DWORD flags;
    std::vector<COLORREF> custom; // the 16 custom colours
};

struct DeskMenuItem {
    UINT type;
    UINT state;
    UINT id;
    HMENU submenu; // null: none
    std::string text;
};

// Its items can still be read after it was destroyed.
struct DeskMenu {
    std::vector<DeskMenuItem> items;
    bool live = true;
};

struct DeskShownMenu {
    HMENU menu;
    POINT at;
    UINT flags;
    HWND window;
    UINT choice; // 0: closed without a choice
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
    bool installed = true; // LoadLibraryA finds it
    int loads = 0;
};

struct DeskDisplay {
    RECT rect;
    RECT work;        // without the taskbar
    std::string name; // szDevice, which identifies it when displays change; "": numbered by its index
    UINT dpi;

    // NOLINTNEXTLINE: a plain rectangle is a display without a taskbar
    DeskDisplay(const RECT& area) : DeskDisplay(area, area) {}
    DeskDisplay(const RECT& area, const RECT& workArea, std::string device = "", UINT pixelsPerInch = 96)
        : rect(area), work(workArea), name(std::move(device)), dpi(pixelsPerInch) {}
};

// A window whose display changed.
struct DeskAffectedWindow {
    HWND window;
    RECT before;
    RECT after;
};

struct DeskState {
    // Every window ever created; handles are indices into it.
    std::vector<std::unique_ptr<DeskWindow>> windows;
    HWND desktop = nullptr;   // GetDesktopWindow
    std::vector<HWND> zOrder; // existing top-level windows, topmost first
    std::map<std::string, WNDCLASSA> classes;
    HWND foreground = nullptr;
    HWND focus = nullptr;
    HWND capture = nullptr;
    bool foregroundLock = false; // SetForegroundWindow needs the foreground or the last input, as on Windows
    bool ownsLastInput = false;  // this process received the last input
    bool clicksActivate = false; // a press on an inactive window of this process activates it, as on Windows
    std::vector<HWND> flashing;  // windows that were refused the foreground

    // GetMessageA with nothing to do runs the next entry of `script`, then moves the clock to the next timer;
    // at `runUntil` it sets `timeIsUp` and returns 0.
    DWORD now = 0;
    DWORD runUntil = 0;
    bool timeIsUp = false;
    std::deque<std::function<void()>> script; // what the user does
    std::deque<MSG> queue;
    std::deque<DeskInput> inputs;
    bool quitPosted = false;
    int exitCode = 0;
    std::vector<DeskTimer> timers;

    POINT cursor{512, 384};
    BYTE keysNow[256] = {};  // GetAsyncKeyState: current state, 1 is down
    BYTE keysRead[256] = {}; // GetKeyState: as of the input message read last
    std::vector<DeskHotkey> hotkeys;
    std::map<char, SHORT> keyScans; // replaces what VkKeyScanA returns; -1: the layout lacks the character
    DWORD messageTime = 0;          // GetMessageTime

    int pixelsPerInch{96}; // of the system: GetDeviceCaps, size of small icons
    std::vector<DeskDisplay> displays{RECT{0, 0, 1024, 768}}; // the first is the primary one
    std::vector<DeskAffectedWindow> affected;                 // wait for RelocateWindows
    RECT frameMargins{}; // invisible part of sizable frames; {7, 0, 7, 7} on Windows 10 and 11
    std::map<std::string, DeskModule> modules; // by lower-case name, or path in the system directory
    std::map<std::string, std::string>
        files; // text by lower-case name in the Windows folder, else by full path
    std::wstring programPath = L"C:\\Program Files\\Quorl\\quorl.exe"; // GetModuleFileNameW
    std::map<std::wstring, std::wstring> shortPaths; // GetShortPathNameW; others stay as they are
    UINT codePage = 1252;                            // 932, 936, 949 and 950 have letters of two bytes
    std::set<std::string> protectedFiles;            // read-only ones
    std::set<std::string> ownRights; // files with other access rights than those of their folder
    std::set<std::string>
        openFiles; // here or in another program, which shares reading and writing, not deleting
    DWORD processId = 0x1234;

    std::deque<int> boxAnswers; // to the next message boxes
    std::vector<DeskBox> boxes;
    std::deque<std::optional<COLORREF>> colorChoices; // in the next colour dialogs; nullopt cancels
    std::vector<DeskColorDialog> colorDialogs;
    std::map<int, COLORREF> systemColors{{COLOR_BACKGROUND, 0xa56e3a},
                                         {COLOR_INFOTEXT, 0}}; // all others are grey
    std::function<void()> duringBox; // runs while a box is open, as its message loop would
    int unexpected = 0;           // boxes and menus without a prepared answer, calls that would block forever
    int blockedCalls = 0;         // changes of hung windows that would wait for them
    std::deque<UINT> menuChoices; // item ids for the next menus; 0 closes the menu
    std::deque<DeskMenu> menus;
    std::vector<DeskShownMenu> shownMenus;
    std::vector<DeskTrayIcon> tray;
    int trayAddsToFail = 0;                         // the next NIM_ADD calls fail ...
    bool trayAddsLate = false;                      // ... but add the icon all the same, as after a timeout
    std::map<std::string, UINT> registeredMessages; // by lower-case name
    DWORD shutdownLevel = 0x280;
    std::map<HWND, RECT> rememberedRects; // where other programs' windows were when log-off ended them
    std::vector<UINT> beeps;
    std::vector<DWORD> tones; // frequencies in hertz given to Beep
    std::vector<DeskTiling> tilings;
    int locks = 0; // calls of LockWorkStation
    std::vector<DeskMessage> broadcasts;

    std::deque<DeskObject> objects;
    std::deque<DeskContext> contexts;
    std::vector<DeskDrawCall> drawCalls;
    int deletedInUse = 0; // objects deleted while selected
    DeskObject* stockObjects[4] = {};
    DeskObject* systemBrushes[32] = {}; // by colour
    DeskObject* whitePen = nullptr;

    DWORD lastError = 0;
    LPTOP_LEVEL_EXCEPTION_FILTER crashFilter = nullptr;
    DeskFault fault;
    int calls = 0;                  // platform calls so far
    bool recording = true;          // fills `trace`, `drawCalls` and `received`; off in benchmarks
    std::vector<const char*> trace; // names of the calls
};

extern DeskState Desk;

// Opens another program's window on top of the others, without activating it.
HWND OpenWindow(const char* title, const RECT& rect, const char* className = "Program");

// The record of a window, existing or destroyed; `window` must be a handle that was valid once.
DeskWindow& WindowOf(HWND window);

// A menu, existing or destroyed.
DeskMenu& MenuOf(HMENU menu);

// What the user sees of a window: its rectangle without the invisible part of the frame.
RECT VisibleRect(HWND window);

// A hung window responds again and obeys the move that was posted to it meanwhile.
void WakeWindow(HWND window);

// Changes the displays as Windows does: sends WM_DISPLAYCHANGE and WM_SETTINGCHANGE, then relocates the
// windows of removed or moved displays, except those that moved meanwhile. Without `relocate` that waits for
// RelocateWindows. Displays are identified by name.
void ChangeDisplays(std::vector<DeskDisplay> displays, bool relocate = true);
void RelocateWindows();

// The taskbar loses its icons and announces itself by the registered message "TaskbarCreated".
void RestartTaskbar();

// Ends the session: this process receives WM_QUERYENDSESSION and WM_ENDSESSION with lParam `reason`, before
// the other programs end if its shutdown level is above theirs.
void LogOff(LPARAM reason = 0);

// Optional functions: DwmGetWindowAttribute in dwmapi.dll; GetDpiForWindow in user32.dll, GetDpiForMonitor
// in shcore.dll.
void InstallCompositor();
void InstallDpiFunctions();

// Removes a window without any message, as when its program is killed.
void KillWindow(HWND window);

// Presses a key combination: posts WM_HOTKEY if this process holds it. MOD_ values.
void PressHotkey(UINT modifiers, UINT key);

// Holds a combination down: as many WM_HOTKEY as the keyboard repeats, `interval` apart, with the clock after
// the last one.
void HoldHotkey(UINT modifiers, UINT key, int repeats, DWORD interval = 33);

// Presses or releases a key or button; no thread has read it yet.
void HoldKey(int key, bool down);

// Moves the mouse, or presses or releases one of its buttons (VK_ values). The current state changes at once,
// and the input is queued for the window that will receive it.
void MoveMouse(int x, int y);
void PressMouse(int button, bool down);

// From client to screen pixels.
POINT ToScreen(HWND window, int x, int y);

// Number of calls of this name since `Desk.trace` was last cleared.
int CountCalls(const char* call);

// Drawing objects and contexts that have not been deleted or released, without the system's own.
int LiveObjects();
int LiveContexts();

// The control of a dialog by its id, without counting as a call; null if there is none.
HWND FindControl(HWND dialog, int id);

// User actions on controls. They do nothing to a hidden or disabled one.
void ClickControl(HWND button); // as the mouse does it: focus, automatic check mark, notification
void FocusControl(HWND control);
void TypeText(HWND edit, const char* text); // replaces all of it
void SelectItem(HWND control, int index);   // list box, drop-down list, list view or tab control; from 0, and
                                            // -1 clicks into the empty part of a list view
void DragSlider(HWND trackbar, int position);
void PressKey(int key); // presses and releases it where the focus is. VK_ values.

// The text in a list view's cell, both from 0.
std::string ListViewText(HWND listView, int item, int column);
