// Shared by the implementations of the calls; not for tests.
#pragma once

#include "desk.h"

// Counts a platform call. True if the test wants this one to fail; the last error is set then.
bool CallFails(const char* call);

// Adds a window and fills in its handle. A top-level one goes on top without being activated.
HWND AddWindow(DeskWindow window);

// The existing window behind a handle, or null with the last error set. Counts down `diesAtCall`.
DeskWindow* ResolveHandle(HWND window);

// The same for calls that change the window: they fail for an elevated one. Counts those that would wait for
// a hung one.
DeskWindow* ResolveForChange(HWND window);

// Without side effects.
DeskWindow* LiveWindow(HWND window);

// Adds to the area that waits for WM_PAINT; null is the whole client area.
void Invalidate(DeskWindow& window, const RECT* rect, bool erase);

// In client pixels.
RECT ClientRect(const DeskWindow& window);

// From screen to client pixels, without counting as a call.
void ToClient(HWND window, POINT* point);

// Calls the window procedure; returns 0 for another program's window.
LRESULT CallWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The same with text in UTF-16.
LRESULT CallWndProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// What DefWindowProcA does, without counting as a call.
LRESULT DefaultProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Passes a message to its window procedure or timer callback.
LRESULT Dispatch(const MSG& message);

// Destroys a window of this process, its children and the windows it owns.
void DestroyTree(HWND window);

// The top-level window that contains a child, or the window itself.
HWND RootOf(HWND window);

// Visible together with all its parents.
bool IsShown(HWND window);

// Moves the focus and sends WM_KILLFOCUS and WM_SETFOCUS; null: to another program.
void ChangeFocus(HWND to);

// Gives a window the focus after activating its top-level window.
void FocusWindow(HWND window);

// Hides a top-level window and passes the foreground on.
void HideWindow(DeskWindow& window);

// Puts a window on top of those that are topmost like it, or not topmost like it.
void Raise(HWND window);

// SetWindowPos's second argument.
void ChangeZOrder(DeskWindow& window, HWND after);

// Clamps the size to the window's limits, which a window of this process is asked for first.
void ClampSize(DeskWindow& window);

// Moves and sizes a window, with the messages for it.
void SetRect(DeskWindow& window, const RECT& rect, bool repaint);

// Where a window that is not DPI aware lands when it is moved to `rect`.
RECT ScaledRect(const DeskWindow& window, const RECT& rect);

// Sends WM_DPICHANGED to a window of this process if its display has another scale than the last time.
void SendDpiChange(HWND window);

// The invisible part of the frame in the present show state.
RECT VisibleMargins(const DeskWindow& window);

// ShowWindow for a top-level window.
void ApplyShowCommand(DeskWindow& window, int command);

// Send WM_SIZE or WM_MOVE to a window of this process.
void SendSize(HWND window);
void SendMove(HWND window);

// Puts a window on top and makes it the foreground window, with the focus if it is of this process. Only
// raises it if this process may not take the foreground.
void Activate(HWND window);

// Distance of each window edge from the client area.
RECT FrameWidths(const DeskWindow& window);

// Turns queued mouse input into the next message for this process. False: there is none.
bool TakeInput(MSG* message);

// For a window that is being destroyed.
void RemoveTimers(HWND window);
void RemoveHotkeys(HWND window);

// Copies at most `limit` characters including the terminating 0. Returns the number copied without it.
int CopyText(const std::string& from, char* to, int limit);

// Conversions. ToWide takes bytes that are not UTF-8 for Latin-1; ToAnsi replaces what Latin-1 lacks by '?'.
std::wstring ToWide(const std::string& utf8);
std::string FromWide(const std::wstring& wide);
std::string ToAnsi(const std::string& utf8);
std::string FromAnsi(const std::string& ansi);
int CopyWide(const std::wstring& from, LPWSTR to, int limit);

// Text in lParam, in the encoding of the call in progress; and the other way, into a buffer.
std::string TextFrom(LPARAM text);
int TextTo(const std::string& utf8, LPARAM buffer, std::size_t limit);

// Key of a file in `Desk.files`; valid until the next call.
const std::string& FileKey(LPCSTR path);

std::string LowerCase(std::string text);

// Arithmetic on rectangles with any coordinates, computed in 64 bits and converted once.
LONG Narrow(long long value);
LONG Width(const RECT& rect);
LONG Height(const RECT& rect);
RECT RectAt(long long left, long long top, long long width, long long height);
RECT OffsetBy(const RECT& rect, long long dx, long long dy);
bool Contains(const RECT& rect, POINT point);

// The smallest rectangle around all displays.
RECT DesktopBounds();

std::string DisplayName(const std::vector<DeskDisplay>& displays, std::size_t index);

// Index of the display that shows most of a rectangle, displays.size() if none shows it; and the nearest one.
std::size_t DisplayShowing(const std::vector<DeskDisplay>& displays, const RECT& rect);
std::size_t NearestDisplay(const std::vector<DeskDisplay>& displays, const RECT& rect);
const DeskDisplay& DisplayFor(const RECT& rect);

// A context for a window's client area.
HDC OpenContext(const DeskWindow& window);

HDC OpenMemoryContext();

// Reuses deleted objects, so a long run does not grow.
DeskObject* NewObject(DeskObjectKind kind, int index, bool stock);

// Null if the context was released.
DeskContext* LiveContext(HDC context);

// Records a drawing call with the selected objects, in the bitmap of a memory context. Null if recording is
// off.
DeskDrawCall* RecordDraw(const DeskContext& context, const char* call, const RECT& rect);
