// Invalid areas, contexts, drawing objects; what is drawn is recorded, not painted.
#include "ground.h"

#include <algorithm>
#include <utility>

void Invalidate(DeskWindow& window, const RECT* rect, int bErase) {
    RECT area{0, 0, window.place.right - window.place.left, window.place.bottom - window.place.top};
    if (rect)
        area = *rect;
    if (window.bInvalid)
        area = {std::min(area.left, window.invalid.left), std::min(area.top, window.invalid.top),
                std::max(area.right, window.invalid.right), std::max(area.bottom, window.invalid.bottom)};
    window.invalid = area;
    window.bInvalid = 1;
    window.bErase |= bErase;
}

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
    DeskWindow* row = Fails("InvalidateRect") ? nullptr : Named(window);
    if (row)
        Invalidate(*row, rect, erase);
    return row != nullptr;
}

BOOL UpdateWindow(HWND window) {
    const DeskWindow* row = Fails("UpdateWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    if (row->bInvalid && (row->style & WS_VISIBLE))
        CallProcedure(window, WM_PAINT, 0, 0);
    return TRUE;
}

static HDC ContextFor(HWND window) {
    Desk.contexts.push_back({window, nullptr, 1});
    return reinterpret_cast<HDC>(&Desk.contexts.back());
}

static DeskContext& ContextOf(HDC context) {
    return *reinterpret_cast<DeskContext*>(context);
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    *paint = {};
    DeskWindow* row = Fails("BeginPaint") ? nullptr : Named(window);
    if (!row)
        return nullptr;
    paint->hdc = ContextFor(window);
    paint->rcPaint = row->invalid;
    const int bErase = row->bErase;
    row->bInvalid = row->bErase = 0;
    if (bErase)
        paint->fErase = !CallProcedure(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    if (Fails("EndPaint") || !Named(window) || !paint->hdc)
        return FALSE;
    ContextOf(paint->hdc).bLive = 0;
    return TRUE;
}

HDC GetDC(HWND window) {
    return !Fails("GetDC") && Named(window) ? ContextFor(window) : nullptr;
}

int ReleaseDC(HWND, HDC context) {
    if (Fails("ReleaseDC") || !context)
        return 0;
    ContextOf(context).bLive = 0;
    return 1;
}

static DeskObject* Keep(DeskObjectKind kind, int index, int bStock) {
    DeskObject& object = Desk.objects.emplace_back();
    object.kind = kind;
    object.index = index;
    object.bStock = bStock;
    return &object;
}

HBRUSH GetSysColorBrush(int index) {
    static DeskObject* brushes[32];
    if (Fails("GetSysColorBrush"))
        return nullptr;
    DeskObject*& brush = brushes[index & 31];
    if (!brush)
        brush = Keep(DeskObjectKind::Brush, index, 1);
    return reinterpret_cast<HBRUSH>(brush);
}

HFONT CreateFontA(int height, int, int, int, int weight, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                  DWORD, LPCSTR face) {
    if (Fails("CreateFontA"))
        return nullptr;
    DeskObject* font = Keep(DeskObjectKind::Font, 0, 0);
    font->height = height;
    font->weight = weight;
    font->face = face;
    return reinterpret_cast<HFONT>(font);
}

// A picture named by number; the system's own (no instance) are never deleted.
static DeskObject* KeepIcon(HINSTANCE instance, LPCSTR name) {
    return Keep(DeskObjectKind::Icon, static_cast<int>(reinterpret_cast<UINT_PTR>(name) & 0xffff), !instance);
}

HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT, int, int, UINT) {
    return Fails("LoadImageA") ? nullptr : KeepIcon(instance, name);
}

HICON LoadIconA(HINSTANCE instance, LPCSTR name) {
    return Fails("LoadIconA") ? nullptr : reinterpret_cast<HICON>(KeepIcon(instance, name));
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
    return Fails("LoadCursorA") ? nullptr : reinterpret_cast<HCURSOR>(KeepIcon(instance, name));
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
    if (Fails("SelectObject") || !context || !object)
        return nullptr;
    if (static_cast<DeskObject*>(object)->kind != DeskObjectKind::Font)
        return nullptr;
    std::swap(ContextOf(context).font, object);
    return object;
}

// An icon is no drawing object: DeleteObject refuses it.
BOOL DeleteObject(HGDIOBJ object) {
    if (Fails("DeleteObject") || !object)
        return FALSE;
    auto& row = *static_cast<DeskObject*>(object);
    if (!row.bLive || row.kind == DeskObjectKind::Icon)
        return FALSE;
    row.bLive = row.bStock;
    return TRUE;
}

int SetBkMode(HDC context, int) {
    return !Fails("SetBkMode") && context;
}

// Every character is 7 pixels wide and 16 high in the font of a fresh context; an empty text has no height.
BOOL GetTextExtentPoint32A(HDC context, LPCSTR, int length, SIZE* extent) {
    if (Fails("GetTextExtentPoint32A") || !context)
        return FALSE;
    *extent = {7 * length, length > 0 ? 16 : 0};
    return TRUE;
}

int DrawTextExA(HDC context, LPSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS*) {
    if (Fails("DrawTextExA") || !context)
        return 0;
    const DeskContext& on = ContextOf(context);
    const std::string drawn(text, static_cast<std::size_t>(length));
    Desk.strokes.push_back({"DrawTextExA", on.window, *rect, drawn, on.font, format});
    return 16;
}
