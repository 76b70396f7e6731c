#include "toolwin/map.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "toolwin/map_coordinates.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

#include <cstring>

static const COLORREF RED = 255;
static const COLORREF BLACK = 0;
static const COLORREF NOT_DARK = 0xc0c0c0; // red, green or blue above 63
static const UINT_PTR FLASH_TIMER = 1234;
static const UINT FLASH_PERIOD = 50; // milliseconds

// Class names of dialogs, of Windows and of a common framework; longer names that begin so count as well.
static const char* const DialogClasses[] = {"#32770", "Afx:400000"};

static int flash_level; // brightness of the flash; see NextFlashLevel

namespace {

// The state of one paint.
struct MapPaint {
    HWND window;
    HDC context;
    RECT map;    // client rectangle
    HWND active; // the foreground window when the paint started
    HPEN dotted, red, flash;
};

} // namespace

int NextFlashLevel(int level) {
    return (level > 255 ? level - 255 : level) + 25;
}

static bool IsDialogClass(const char* name) {
    for (const char* dialog : DialogClasses)
        if (!std::strncmp(name, dialog, std::strlen(dialog)))
            return true;
    return false;
}

// Whether it is a dialog that disables its owner: its box flashes.
static bool IsModalDialog(HWND window) {
    char name[128] = "";
    GetClassNameA(window, name, 127);
    if (!IsDialogClass(name))
        return false;
    const auto owner = reinterpret_cast<HWND>(GetWindowLongPtrA(window, GWLP_HWNDPARENT));
    return (GetWindowLongPtrA(owner, GWL_STYLE) & WS_DISABLED) != 0;
}

static void DrawLines(HDC context, const RECT& box) {
    MoveToEx(context, box.left, box.top, nullptr);
    LineTo(context, box.right, box.top);
    LineTo(context, box.right, box.bottom);
    LineTo(context, box.left, box.bottom);
    LineTo(context, box.left, box.top);
}

static void DrawRegion(HDC context, const RegionRow& region, const RECT& map) {
    const RECT box = RegionBox({region.left, region.top}, map, Quorl, ScreenW(), ScreenH());
    const HBRUSH brush = CreateSolidBrush(region.color);
    const HGDIOBJ before = SelectObject(context, brush);
    Rectangle(context, box.left, box.top, box.right, box.bottom);
    SelectObject(context, before);
    DeleteObject(brush);
}

// The background is black under a wallpaper picture, where black lines would be invisible.
static void SelectLinePen(HDC context) {
    if (!(GetSysColor(COLOR_BACKGROUND) & NOT_DARK))
        SelectObject(context, GetStockObject(WHITE_PEN));
}

static void DrawBackground(const MapPaint& paint) {
    SelectLinePen(paint.context);
    SelectObject(paint.context, reinterpret_cast<HBRUSH>(GetClassLongPtrA(paint.window, GCLP_HBRBACKGROUND)));
    Rectangle(paint.context, paint.map.left, paint.map.top, paint.map.right, paint.map.bottom);
    for (int index = 0; index < num_regions; ++index)
        DrawRegion(paint.context, RegionTable[index], paint.map);
}

static void CALLBACK FlashTimer(HWND window, UINT, UINT_PTR, DWORD) {
    RECT map{};
    GetClientRect(window, &map);
    RECT active{};
    GetVisibleRect(GetForegroundWindow(), &active);
    const RECT box = WindowBox(active, map, VDesk, Quorl);
    InvalidateRect(window, &box, TRUE);
    UpdateWindow(window);
}

// Each tick of the timer repaints the box, and each such paint starts the timer again.
static void DrawActiveBox(const MapPaint& paint, const RECT& box) {
    const bool bFlashes = IsModalDialog(paint.active);
    if (bFlashes)
        SetTimer(paint.window, FLASH_TIMER, FLASH_PERIOD, FlashTimer);
    else
        KillTimer(paint.window, FLASH_TIMER);
    SelectObject(paint.context, bFlashes ? paint.flash : paint.red);
    DrawLines(paint.context, box);
    SelectObject(paint.context, paint.dotted);
}

static void DrawWindow(const MapPaint& paint, HWND window) {
    WindowFrame frame{};
    if (!IsManagedWindow(window, &frame))
        return;
    const RECT box = WindowBox(frame.visible, paint.map, VDesk, Quorl);
    if (window == paint.active)
        DrawActiveBox(paint, box);
    else
        DrawFocusRect(paint.context, &box);
}

static void DrawView(const MapPaint& paint) {
    SetROP2(paint.context, R2_MERGEPENNOT); // visible on any background
    DrawLines(paint.context, ViewBox(paint.map, VDesk, Quorl));
}

static void CreatePens(MapPaint& paint) {
    flash_level = NextFlashLevel(flash_level);
    paint.dotted = CreatePen(PS_DOT, 1, BLACK);
    paint.red = CreatePen(PS_SOLID, 2, RED);
    paint.flash = CreatePen(PS_SOLID, 2, static_cast<COLORREF>(flash_level & 255));
}

static void DeletePens(const MapPaint& paint) {
    DeleteObject(paint.dotted);
    DeleteObject(paint.red);
    DeleteObject(paint.flash);
}

static void DrawMap(MapPaint& paint, HDC context) {
    paint.context = context;
    DrawBackground(paint);
    const HGDIOBJ before = SelectObject(context, paint.dotted);
    for (int i = 0; i < num_windows; ++i)
        DrawWindow(paint, WindowTable[i].hwnd);
    DrawView(paint);
    SelectObject(context, before);
}

// Erasing and drawing on the screen flickers, so draw into a bitmap and copy it at once. False if that fails.
static bool DrawInMemory(MapPaint& paint, HDC screen) {
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, paint.map.right, paint.map.bottom);
    bool bDone = false;
    if (SelectObject(memory, bitmap)) {
        DrawMap(paint, memory);
        bDone = BitBlt(screen, 0, 0, paint.map.right, paint.map.bottom, memory, 0, 0, SRCCOPY) != 0;
    }
    DeleteDC(memory); // first: a selected bitmap cannot be deleted
    DeleteObject(bitmap);
    return bDone;
}

void PaintMap(HWND window) {
    MapPaint paint{};
    paint.window = window;
    paint.active = GetForegroundWindow();
    GetClientRect(window, &paint.map);
    CreatePens(paint);
    PAINTSTRUCT area;
    const HDC screen = BeginPaint(window, &area);
    if (!DrawInMemory(paint, screen))
        DrawMap(paint, screen);
    DeletePens(paint);
    EndPaint(window, &area);
}
