// Invalid areas, contexts, drawing objects; what is drawn is recorded, not painted.
#include "ground.h"

#include <algorithm>
#include <cstring>
#include <utility>

constexpr SIZE CHARACTER{7, 16}; // each one's pixels, in every font

void Invalidate(DeskWindow& window, const RECT* rect, int bErase) {
    RECT area = rect ? *rect : ClientArea(window);
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
    if (row->bInvalid && IsInSight(window))
        CallProcedure(window, WM_PAINT, 0, 0);
    return TRUE;
}

// Places of what is gone are used again, so that a long run does not grow.
static DeskObject* Keep(DeskObjectKind kind, int index, int bStock) {
    const auto gone = std::find_if(Desk.objects.begin(), Desk.objects.end(),
                                   [](const DeskObject& object) { return !object.bLive; });
    DeskObject& object = gone == Desk.objects.end() ? Desk.objects.emplace_back() : *gone;
    object = {};
    object.kind = kind;
    object.index = index;
    object.bStock = bStock;
    return &object;
}

// What a fresh context has selected.
static HGDIOBJ StockObject(DeskObjectKind kind) {
    static DeskObject* stock[3];
    DeskObject*& object = stock[kind == DeskObjectKind::Pen ? 0 : kind == DeskObjectKind::Brush ? 1 : 2];
    if (!object)
        object = Keep(kind, -1, 1);
    object->color = 0xffffff;
    object->pen = {PS_SOLID, 1, 0};
    return object;
}

static HDC ContextFor(HWND window, const RECT& clip) {
    const auto gone = std::find_if(Desk.contexts.begin(), Desk.contexts.end(),
                                   [](const DeskContext& context) { return !context.bLive; });
    DeskContext& context = gone == Desk.contexts.end() ? Desk.contexts.emplace_back() : *gone;
    context = {};
    context.window = window;
    context.font = StockObject(DeskObjectKind::Font);
    context.pen = StockObject(DeskObjectKind::Pen);
    context.brush = StockObject(DeskObjectKind::Brush);
    context.rop = R2_COPYPEN;
    context.clip = clip;
    context.bLive = 1;
    return reinterpret_cast<HDC>(&context);
}

DeskContext* ContextOf(HDC context) {
    auto* row = reinterpret_cast<DeskContext*>(context);
    return row && row->bLive ? row : nullptr;
}

static int Release(HDC context) {
    DeskContext* row = ContextOf(context);
    if (row)
        row->bLive = 0;
    return row != nullptr;
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    *paint = {};
    DeskWindow* row = Fails("BeginPaint") ? nullptr : Named(window);
    if (!row)
        return nullptr;
    paint->hdc = ContextFor(window, row->invalid);
    paint->rcPaint = row->invalid;
    const int bErase = row->bErase;
    row->bInvalid = row->bErase = 0;
    if (bErase)
        paint->fErase = !CallProcedure(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    return !Fails("EndPaint") && Named(window) && Release(paint->hdc);
}

HDC OpenContext(const DeskWindow& window) {
    return ContextFor(window.handle, ClientArea(window));
}

HDC GetDC(HWND window) {
    const DeskWindow* row = Fails("GetDC") ? nullptr : Named(window);
    return row ? OpenContext(*row) : nullptr;
}

int ReleaseDC(HWND, HDC context) {
    return !Fails("ReleaseDC") && Release(context);
}

int GetDeviceCaps(HDC context, int index) {
    const bool bKnown = !Fails("GetDeviceCaps") && ContextOf(context) && index == LOGPIXELSX;
    return bKnown ? Desk.pixelsPerInch : 0;
}

DWORD GetSysColor(int index) {
    constexpr COLORREF grey = 0xc0c0c0;
    if (Fails("GetSysColor"))
        return 0;
    const auto found = Desk.systemColors.find(index);
    return found == Desk.systemColors.end() ? grey : found->second;
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

HBRUSH CreateSolidBrush(COLORREF color) {
    if (Fails("CreateSolidBrush"))
        return nullptr;
    DeskObject* brush = Keep(DeskObjectKind::Brush, -1, 0);
    brush->color = color;
    return reinterpret_cast<HBRUSH>(brush);
}

HPEN CreatePen(int style, int width, COLORREF color) {
    if (Fails("CreatePen"))
        return nullptr;
    DeskObject* pen = Keep(DeskObjectKind::Pen, -1, 0);
    pen->pen = {style, width, color};
    return reinterpret_cast<HPEN>(pen);
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

// The place in a context that holds objects of a kind; an icon has none.
static HGDIOBJ* SlotFor(DeskContext& on, DeskObjectKind kind) {
    switch (kind) {
    case DeskObjectKind::Font: return &on.font;
    case DeskObjectKind::Pen: return &on.pen;
    case DeskObjectKind::Brush: return &on.brush;
    default: return nullptr;
    }
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
    DeskContext* on = Fails("SelectObject") ? nullptr : ContextOf(context);
    if (!on || !object || !static_cast<DeskObject*>(object)->bLive)
        return nullptr;
    HGDIOBJ* slot = SlotFor(*on, static_cast<DeskObject*>(object)->kind);
    if (!slot)
        return nullptr;
    std::swap(*slot, object);
    return object;
}

static int IsSelected(HGDIOBJ object) {
    return std::any_of(Desk.contexts.begin(), Desk.contexts.end(), [object](const DeskContext& context) {
        return context.bLive && (context.font == object || context.pen == object || context.brush == object);
    });
}

// An icon is no drawing object: DeleteObject refuses it. So it does for one that is gone already.
BOOL DeleteObject(HGDIOBJ object) {
    if (Fails("DeleteObject") || !object)
        return FALSE;
    auto& row = *static_cast<DeskObject*>(object);
    if (!row.bLive || row.kind == DeskObjectKind::Icon)
        return FALSE;
    Desk.deletedInUse += IsSelected(object);
    row.bLive = row.bStock;
    return TRUE;
}

int LiveObjects() {
    return static_cast<int>(
        std::count_if(Desk.objects.begin(), Desk.objects.end(),
                      [](const DeskObject& object) { return object.bLive && !object.bStock; }));
}

int LiveContexts() {
    return static_cast<int>(std::count_if(Desk.contexts.begin(), Desk.contexts.end(),
                                          [](const DeskContext& context) { return context.bLive; }));
}

int SetBkMode(HDC context, int mode) {
    DeskContext* on = Fails("SetBkMode") ? nullptr : ContextOf(context);
    return on ? std::exchange(on->backMode, mode) : 0;
}

// An empty text has no height.
BOOL GetTextExtentPoint32A(HDC context, LPCSTR, int length, SIZE* extent) {
    if (Fails("GetTextExtentPoint32A") || !ContextOf(context))
        return FALSE;
    *extent = {CHARACTER.cx * length, length > 0 ? CHARACTER.cy : 0};
    return TRUE;
}

// A text too long for its place ends in three points when the format asks for that in the text itself.
static void Shorten(LPSTR text, int length, const RECT& rect, UINT format) {
    constexpr UINT inPlace = DT_END_ELLIPSIS | DT_MODIFYSTRING;
    const LONG room = std::max(1, (rect.right - rect.left) / CHARACTER.cx);
    if ((format & inPlace) == inPlace && length > room)
        std::memcpy(text + std::max(1, room - 3), "...", 4);
}

// What is kept is the text as it was handed over, since its place in a test is seldom as wide as on a screen.
int DrawTextExA(HDC context, LPSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS*) {
    const DeskContext* on = Fails("DrawTextExA") ? nullptr : ContextOf(context);
    if (!on)
        return 0;
    if (Desk.bTrace) {
        Record(*on, "DrawTextExA", *rect);
        Desk.strokes.back().text.assign(text, static_cast<std::size_t>(length));
        Desk.strokes.back().font = on->font;
        Desk.strokes.back().format = format;
    }
    Shorten(text, length, *rect, format);
    return CHARACTER.cy;
}
