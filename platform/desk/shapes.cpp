// Lines and shapes. They are recorded, and replayed when a pixel is read.
#include "internal.h"

#include <algorithm>

DeskDrawCall* RecordDraw(const DeskContext& context, const char* call, const RECT& rect) {
    if (!Desk.recording)
        return nullptr;
    const auto& pen = *static_cast<const DeskObject*>(context.pen);
    const auto& brush = *static_cast<const DeskObject*>(context.brush);
    auto* bitmap = static_cast<DeskObject*>(context.bitmap);
    const RECT clip = bitmap ? RectAt(0, 0, bitmap->size.cx, bitmap->size.cy) : context.clip;
    std::vector<DeskDrawCall>& list = bitmap ? bitmap->drawCalls : Desk.drawCalls;
    list.push_back({call,
                    context.window,
                    rect,
                    "",
                    nullptr,
                    0,
                    pen.pen,
                    context.brush,
                    brush.color,
                    context.rop,
                    clip,
                    {},
                    context.textColor});
    return &list.back();
}

int SetROP2(HDC context, int mode) {
    DeskContext* on = CallFails("SetROP2") ? nullptr : LiveContext(context);
    if (!on)
        return 0;
    const int before = on->rop;
    on->rop = mode;
    return before;
}

BOOL MoveToEx(HDC context, int x, int y, POINT* before) {
    DeskContext* on = CallFails("MoveToEx") ? nullptr : LiveContext(context);
    if (!on)
        return FALSE;
    if (before)
        *before = on->at;
    on->at = {x, y};
    return TRUE;
}

BOOL LineTo(HDC context, int x, int y) {
    DeskContext* on = CallFails("LineTo") ? nullptr : LiveContext(context);
    if (!on)
        return FALSE;
    RecordDraw(*on, "LineTo", {on->at.x, on->at.y, x, y});
    on->at = {x, y};
    return TRUE;
}

BOOL Rectangle(HDC context, int left, int top, int right, int bottom) {
    const DeskContext* on = CallFails("Rectangle") ? nullptr : LiveContext(context);
    if (on)
        RecordDraw(*on, "Rectangle", {left, top, right, bottom});
    return on != nullptr;
}

// GetPixel does not replay edges and polygons.
BOOL DrawEdge(HDC context, RECT* rect, UINT edge, UINT flags) {
    const DeskContext* on = CallFails("DrawEdge") ? nullptr : LiveContext(context);
    if (!on)
        return FALSE;
    if (DeskDrawCall* drawn = RecordDraw(*on, "DrawEdge", *rect))
        drawn->format = edge | flags << 8;
    return TRUE;
}

BOOL Polygon(HDC context, const POINT* points, int count) {
    const DeskContext* on = CallFails("Polygon") ? nullptr : LiveContext(context);
    if (!on)
        return FALSE;
    if (DeskDrawCall* drawn = RecordDraw(*on, "Polygon", {}))
        drawn->points.assign(points, points + count);
    return TRUE;
}

BOOL DrawFocusRect(HDC context, const RECT* rect) {
    const DeskContext* on = CallFails("DrawFocusRect") ? nullptr : LiveContext(context);
    if (on)
        RecordDraw(*on, "DrawFocusRect", *rect);
    return on != nullptr;
}

static COLORREF Combine(COLORREF pen, COLORREF background, int rop) {
    return rop == R2_MERGEPENNOT ? pen | (~background & 0xffffff) : pen;
}

static bool IsInside(const RECT& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

static bool IsOnFrame(const RECT& rect, int x, int y) {
    return IsInside(rect, x, y) &&
           (x == rect.left || x == rect.right - 1 || y == rect.top || y == rect.bottom - 1);
}

// For horizontal and vertical lines one pixel wide. LineTo does not draw the end point.
static bool IsOnLine(const RECT& line, int x, int y) {
    if (x == line.right && y == line.bottom)
        return false;
    return x >= std::min(line.left, line.right) && x <= std::max(line.left, line.right) &&
           y >= std::min(line.top, line.bottom) && y <= std::max(line.top, line.bottom);
}

static COLORREF ReplayPixel(const DeskDrawCall& drawn, int x, int y, COLORREF background) {
    const RECT& rect = drawn.rect;
    if (!IsInside(drawn.clip, x, y))
        return background;
    if (drawn.call == "LineTo")
        return IsOnLine(rect, x, y) ? Combine(drawn.pen.color, background, drawn.rop) : background;
    if (drawn.call == "DrawFocusRect") // every second pixel is inverted
        return IsOnFrame(rect, x, y) && (x + y) % 2 ? background ^ 0xffffff : background;
    if (drawn.call == "BitBlt")
        return IsInside(rect, x, y) ? 0 : background;
    if (drawn.call == "FillRect")
        return IsInside(rect, x, y) ? drawn.fill : background;
    if (drawn.call != "Rectangle" || !IsInside(rect, x, y))
        return background;
    return Combine(IsOnFrame(rect, x, y) ? drawn.pen.color : drawn.fill, background, drawn.rop);
}

COLORREF GetPixel(HDC context, int x, int y) {
    const DeskContext* on = CallFails("GetPixel") ? nullptr : LiveContext(context);
    const DeskWindow* record = on ? LiveWindow(on->window) : nullptr;
    if (!record || !IsInside(ClientRect(*record), x, y))
        return CLR_INVALID;
    COLORREF color = 0xffffff;
    for (const DeskDrawCall& drawn : Desk.drawCalls)
        if (drawn.window == on->window)
            color = ReplayPixel(drawn, x, y, color);
    return color;
}
