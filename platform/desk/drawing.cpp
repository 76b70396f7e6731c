// Invalid areas, contexts, drawing objects, text. Drawing is recorded, not rasterised.
#include "internal.h"

#include <algorithm>
#include <cstring>
#include <utility>

constexpr SIZE CHARACTER{7, 16}; // pixels of a character in every font

void Invalidate(DeskWindow& window, const RECT* rect, bool needsErase) {
    RECT area = rect ? *rect : ClientRect(window);
    if (window.needsPaint)
        area = {std::min(area.left, window.invalid.left), std::min(area.top, window.invalid.top),
                std::max(area.right, window.invalid.right), std::max(area.bottom, window.invalid.bottom)};
    window.invalid = area;
    window.needsPaint = 1;
    window.needsErase |= needsErase;
}

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
    DeskWindow* record = CallFails("InvalidateRect") ? nullptr : ResolveHandle(window);
    if (record)
        Invalidate(*record, rect, erase);
    return record != nullptr;
}

BOOL UpdateWindow(HWND window) {
    const DeskWindow* record = CallFails("UpdateWindow") ? nullptr : ResolveHandle(window);
    if (!record)
        return FALSE;
    if (record->needsPaint && IsShown(window))
        CallWndProc(window, WM_PAINT, 0, 0);
    return TRUE;
}

DeskObject* NewObject(DeskObjectKind kind, int index, bool stock) {
    const auto gone = std::find_if(Desk.objects.begin(), Desk.objects.end(),
                                   [](const DeskObject& object) { return !object.live; });
    DeskObject& object = gone == Desk.objects.end() ? Desk.objects.emplace_back() : *gone;
    object = {};
    object.kind = kind;
    object.index = index;
    object.stock = stock;
    return &object;
}

static std::size_t StockIndex(DeskObjectKind kind) {
    switch (kind) {
    case DeskObjectKind::Pen: return 0;
    case DeskObjectKind::Brush: return 1;
    case DeskObjectKind::Font: return 2;
    default: return 3;
    }
}

// Selected in a new context.
static HGDIOBJ StockObject(DeskObjectKind kind) {
    DeskObject*& object = Desk.stockObjects[StockIndex(kind)];
    if (!object)
        object = NewObject(kind, -1, 1);
    object->color = 0xffffff;
    object->pen = {PS_SOLID, 1, 0};
    return object;
}

static HDC ContextFor(HWND window) {
    const auto gone = std::find_if(Desk.contexts.begin(), Desk.contexts.end(),
                                   [](const DeskContext& context) { return !context.live; });
    DeskContext& context = gone == Desk.contexts.end() ? Desk.contexts.emplace_back() : *gone;
    context = {};
    context.window = window;
    context.font = StockObject(DeskObjectKind::Font);
    context.pen = StockObject(DeskObjectKind::Pen);
    context.brush = StockObject(DeskObjectKind::Brush);
    context.rop = R2_COPYPEN;
    context.live = 1;
    return reinterpret_cast<HDC>(&context);
}

DeskContext* LiveContext(HDC context) {
    auto* record = reinterpret_cast<DeskContext*>(context);
    return record && record->live ? record : nullptr;
}

static bool Release(HDC context) {
    DeskContext* record = LiveContext(context);
    if (record)
        record->live = 0;
    return record != nullptr;
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    *paint = {};
    DeskWindow* record = CallFails("BeginPaint") ? nullptr : ResolveHandle(window);
    if (!record)
        return nullptr;
    paint->hdc = ContextFor(window);
    paint->rcPaint = record->invalid;
    const int needsErase = record->needsErase;
    record->needsPaint = record->needsErase = false;
    if (needsErase)
        paint->fErase = !CallWndProc(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    return !CallFails("EndPaint") && ResolveHandle(window) && Release(paint->hdc);
}

HDC OpenContext(const DeskWindow& window) {
    return ContextFor(window.handle);
}

HDC OpenMemoryContext() {
    const HDC context = ContextFor(nullptr);
    LiveContext(context)->bitmap = StockObject(DeskObjectKind::Bitmap);
    return context;
}

HDC GetDC(HWND window) {
    const DeskWindow* record = CallFails("GetDC") ? nullptr : ResolveHandle(window);
    return record ? OpenContext(*record) : nullptr;
}

int ReleaseDC(HWND, HDC context) {
    return !CallFails("ReleaseDC") && Release(context);
}

int GetDeviceCaps(HDC context, int index) {
    const bool known = !CallFails("GetDeviceCaps") && LiveContext(context) && index == LOGPIXELSX;
    return known ? Desk.pixelsPerInch : 0;
}

DWORD GetSysColor(int index) {
    constexpr COLORREF grey = 0xc0c0c0;
    if (CallFails("GetSysColor"))
        return 0;
    const auto found = Desk.systemColors.find(index);
    return found == Desk.systemColors.end() ? grey : found->second;
}

HBRUSH GetSysColorBrush(int index) {
    if (CallFails("GetSysColorBrush"))
        return nullptr;
    DeskObject*& brush = Desk.systemBrushes[index & 31];
    if (!brush)
        brush = NewObject(DeskObjectKind::Brush, index, 1);
    return reinterpret_cast<HBRUSH>(brush);
}

HFONT CreateFontA(int height, int, int, int, int weight, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                  DWORD, LPCSTR face) {
    if (CallFails("CreateFontA"))
        return nullptr;
    DeskObject* font = NewObject(DeskObjectKind::Font, 0, 0);
    font->height = height;
    font->weight = weight;
    font->face = face;
    return reinterpret_cast<HFONT>(font);
}

// Only WHITE_PEN.
HGDIOBJ GetStockObject(int index) {
    DeskObject*& pen = Desk.whitePen;
    if (CallFails("GetStockObject") || index != WHITE_PEN)
        return nullptr;
    if (!pen)
        pen = NewObject(DeskObjectKind::Pen, -1, 1);
    pen->pen = {PS_SOLID, 1, 0xffffff};
    return pen;
}

HBRUSH CreateSolidBrush(COLORREF color) {
    if (CallFails("CreateSolidBrush"))
        return nullptr;
    DeskObject* brush = NewObject(DeskObjectKind::Brush, -1, 0);
    brush->color = color;
    return reinterpret_cast<HBRUSH>(brush);
}

HPEN CreatePen(int style, int width, COLORREF color) {
    if (CallFails("CreatePen"))
        return nullptr;
    DeskObject* pen = NewObject(DeskObjectKind::Pen, -1, 0);
    pen->pen = {style, width, color};
    return reinterpret_cast<HPEN>(pen);
}

// `name` is a resource number. Without an instance it is the system's own icon and never deleted.
static DeskObject* NewIcon(HINSTANCE instance, LPCSTR name) {
    return NewObject(DeskObjectKind::Icon, static_cast<int>(reinterpret_cast<UINT_PTR>(name) & 0xffff),
                     !instance);
}

HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT, int width, int height, UINT) {
    if (CallFails("LoadImageA"))
        return nullptr;
    DeskObject* icon = NewIcon(instance, name);
    icon->size = {width, height};
    return icon;
}

HICON LoadIconA(HINSTANCE instance, LPCSTR name) {
    return CallFails("LoadIconA") ? nullptr : reinterpret_cast<HICON>(NewIcon(instance, name));
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
    return CallFails("LoadCursorA") ? nullptr : reinterpret_cast<HCURSOR>(NewIcon(instance, name));
}

// Icons cannot be selected.
static HGDIOBJ* SlotFor(DeskContext& on, DeskObjectKind kind) {
    switch (kind) {
    case DeskObjectKind::Font: return &on.font;
    case DeskObjectKind::Pen: return &on.pen;
    case DeskObjectKind::Brush: return &on.brush;
    case DeskObjectKind::Bitmap: return on.window ? nullptr : &on.bitmap;
    default: return nullptr;
    }
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
    DeskContext* on = CallFails("SelectObject") ? nullptr : LiveContext(context);
    if (!on || !object || !static_cast<DeskObject*>(object)->live)
        return nullptr;
    HGDIOBJ* slot = SlotFor(*on, static_cast<DeskObject*>(object)->kind);
    if (!slot)
        return nullptr;
    std::swap(*slot, object);
    return object;
}

static bool IsSelected(HGDIOBJ object) {
    return std::any_of(Desk.contexts.begin(), Desk.contexts.end(), [object](const DeskContext& context) {
        return context.live && (context.font == object || context.pen == object || context.brush == object ||
                                context.bitmap == object);
    });
}

// Refuses icons, which are not drawing objects, and objects deleted before.
BOOL DeleteObject(HGDIOBJ object) {
    if (CallFails("DeleteObject") || !object)
        return FALSE;
    auto& record = *static_cast<DeskObject*>(object);
    if (!record.live || record.kind == DeskObjectKind::Icon)
        return FALSE;
    Desk.deletedInUse += IsSelected(object);
    record.live = record.stock;
    return TRUE;
}

BOOL DestroyIcon(HICON icon) {
    if (CallFails("DestroyIcon") || !icon)
        return FALSE;
    DeskObject& record = *reinterpret_cast<DeskObject*>(icon);
    if (!record.live || record.kind != DeskObjectKind::Icon)
        return FALSE;
    record.live = record.stock;
    return TRUE;
}

int LiveObjects() {
    return static_cast<int>(
        std::count_if(Desk.objects.begin(), Desk.objects.end(),
                      [](const DeskObject& object) { return object.live && !object.stock; }));
}

int LiveContexts() {
    return static_cast<int>(std::count_if(Desk.contexts.begin(), Desk.contexts.end(),
                                          [](const DeskContext& context) { return context.live; }));
}

int SetBkMode(HDC context, int mode) {
    DeskContext* on = CallFails("SetBkMode") ? nullptr : LiveContext(context);
    return on ? std::exchange(on->backMode, mode) : 0;
}

// An empty text has height 0.
BOOL GetTextExtentPoint32W(HDC context, LPCWSTR, int length, SIZE* extent) {
    if (CallFails("GetTextExtentPoint32W") || !LiveContext(context))
        return FALSE;
    *extent = {CHARACTER.cx * length, length > 0 ? CHARACTER.cy : 0};
    return TRUE;
}

BOOL GetTextExtentPoint32A(HDC context, LPCSTR, int length, SIZE* extent) {
    if (CallFails("GetTextExtentPoint32A") || !LiveContext(context))
        return FALSE;
    *extent = {CHARACTER.cx * length, length > 0 ? CHARACTER.cy : 0};
    return TRUE;
}

// With DT_MODIFYSTRING the ellipsis is written into the text.
template <typename Character>
static void AddEllipsis(Character* text, int length, const RECT& rect, UINT format) {
    constexpr UINT inPlace = DT_END_ELLIPSIS | DT_MODIFYSTRING;
    const LONG fits = std::max(1, Width(rect) / CHARACTER.cx);
    if ((format & inPlace) != inPlace || length <= fits)
        return;
    Character* end = text + std::max(1, fits - 3);
    std::fill_n(end, 3, static_cast<Character>('.'));
    end[3] = 0;
}

// Records the text without the ellipsis: rectangles in tests are seldom as wide as on a screen.
static void RecordText(const DeskContext& context, const char* call, const std::string& text,
                       const RECT& rect, UINT format) {
    DeskDrawCall* drawn = RecordDraw(context, call, rect);
    if (!drawn)
        return;
    drawn->text = text;
    drawn->font = context.font;
    drawn->format = format;
}

int DrawTextExA(HDC context, LPSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS*) {
    const DeskContext* record = CallFails("DrawTextExA") ? nullptr : LiveContext(context);
    if (!record)
        return 0;
    if (Desk.recording)
        RecordText(*record, "DrawTextExA", FromAnsi({text, static_cast<std::size_t>(length)}), *rect, format);
    AddEllipsis(text, length, *rect, format);
    return CHARACTER.cy;
}

int DrawTextExW(HDC context, LPWSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS*) {
    const DeskContext* record = CallFails("DrawTextExW") ? nullptr : LiveContext(context);
    if (!record)
        return 0;
    if (Desk.recording)
        RecordText(*record, "DrawTextExW", FromWide({text, static_cast<std::size_t>(length)}), *rect, format);
    AddEllipsis(text, length, *rect, format);
    return CHARACTER.cy;
}
