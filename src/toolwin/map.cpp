// The picture in the Toolwin.
#include "toolwin/map.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "scroll/refresh.h"
#include "scroll/window_table.h"
#include "toolwin/map_scale.h"

#include <cstring>

static const COLORREF RED = 255;
static const COLORREF BLACK = 0;
static const UINT FLASH_PERIOD = 50; // milliseconds

// Classes of dialogs, of Windows and of a widespread framework; a name that merely begins so counts as well.
static const char* const DialogClasses[] = {"#32770", "Afx:400000"};

static int flash_level; // brightness of the pulse, in 255ths; see NextFlashLevel

namespace {

// What one paint works with.
struct MapPaint {
    HWND window;
    HDC context;
    RECT map;    // client rectangle
    HWND active; // as it was at the paint's start
    HPEN dotted, red, flash;
};

} // namespace

int NextFlashLevel(int level) {
    return (level > 255 ? level - 255 : level) + 25;
}

static int IsDialogClass(const char* name) {
    for (const char* dialog : DialogClasses)
        if (!std::strncmp(name, dialog, std::strlen(dialog)))
            return 1;
    return 0;
}

BoxKind KindOfBox(int bActive, const char* className, DWORD ownerStyle) {
    if (!bActive)
        return PLAIN_BOX;
    return IsDialogClass(className) && (ownerStyle & WS_DISABLED) ? PULSING_BOX : ACTIVE_BOX;
}

static DWORD OwnerStyle(HWND window) {
    const auto owner = reinterpret_cast<HWND>(GetWindowLongPtrA(window, GWLP_HWNDPARENT));
    return static_cast<DWORD>(GetWindowLongPtrA(owner, GWL_STYLE));
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

int PaintBackground(HWND window, HDC context) {
    RECT map{};
    GetClientRect(window, &map);
    SelectObject(context, reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND)));
    Rectangle(context, map.left, map.top, map.right, map.bottom);
    for (int row = 0; row < num_regions; ++row)
        DrawRegion(context, RegionTable[row], map);
    return 1;
}

// The pulse lives by its timer: each of its ticks repaints the box, and each such paint starts it anew.
static void DrawActiveBox(const MapPaint& paint, const RECT& box) {
    char name[128] = "";
    GetClassNameA(paint.active, name, 127);
    const DWORD ownerStyle = IsDialogClass(name) ? OwnerStyle(paint.active) : 0;
    const int bPulses = KindOfBox(1, name, ownerStyle) == PULSING_BOX;
    if (bPulses)
        SetTimer(paint.window, FLASH_TIMER, FLASH_PERIOD, RefreshTimer);
    else
        KillTimer(paint.window, FLASH_TIMER);
    SelectObject(paint.context, bPulses ? paint.flash : paint.red);
    DrawLines(paint.context, box);
    SelectObject(paint.context, paint.dotted);
}

static void DrawWindow(const MapPaint& paint, HWND window) {
    RECT place{};
    if (!IsManagedWindow(window, &place))
        return;
    const RECT box = WindowBox(place, paint.map, VDesk, Quorl);
    if (window == paint.active)
        DrawActiveBox(paint, box);
    else
        DrawFocusRect(paint.context, &box);
}

static void DrawView(const MapPaint& paint) {
    SetROP2(paint.context, R2_MERGEPENNOT); // shows on any ground
    DrawLines(paint.context, ViewBox(paint.map, VDesk, Quorl));
}

static void MakePens(MapPaint& paint) {
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

void PaintMap(HWND window) {
    MapPaint paint{};
    paint.window = window;
    paint.active = GetForegroundWindow();
    MakePens(paint);
    PAINTSTRUCT area;
    paint.context = BeginPaint(window, &area); // erases the background, so before a pen is selected
    const HGDIOBJ before = SelectObject(paint.context, paint.dotted);
    GetClientRect(window, &paint.map);
    for (int row = 0; row < num_windows; ++row)
        DrawWindow(paint, WindowTable[row].hwnd);
    DrawView(paint);
    SelectObject(paint.context, before);
    DeletePens(paint);
    EndPaint(window, &area);
}
