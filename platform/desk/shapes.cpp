// Lines and rectangles: recorded with the tools that draw them, and played back where a pixel is asked for.
#include "ground.h"

#include <algorithm>

void Record(const DeskContext& on, const char* what, const RECT& rect) {
    if (!Desk.bTrace)
        return;
    const auto& pen = *static_cast<const DeskObject*>(on.pen);
    const auto& brush = *static_cast<const DeskObject*>(on.brush);
    Desk.strokes.push_back(
        {what, on.window, rect, "", nullptr, 0, pen.pen, on.brush, brush.color, on.rop, on.clip, {}});
}

int SetROP2(HDC context, int mode) {
    DeskContext* on = Fails("SetROP2") ? nullptr : ContextOf(context);
    if (!on)
        return 0;
    const int before = on->rop;
    on->rop = mode;
    return before;
}

BOOL MoveToEx(HDC context, int x, int y, POINT* before) {
    DeskContext* on = Fails("MoveToEx") ? nullptr : ContextOf(context);
    if (!on)
        return FALSE;
    if (before)
        *before = on->at;
    on->at = {x, y};
    return TRUE;
}

BOOL LineTo(HDC context, int x, int y) {
    DeskContext* on = Fails("LineTo") ? nullptr : ContextOf(context);
    if (!on)
        return FALSE;
    Record(*on, "LineTo", {on->at.x, on->at.y, x, y});
    on->at = {x, y};
    return TRUE;
}

BOOL Rectangle(HDC context, int left, int top, int right, int bottom) {
    const DeskContext* on = Fails("Rectangle") ? nullptr : ContextOf(context);
    if (on)
        Record(*on, "Rectangle", {left, top, right, bottom});
    return on != nullptr;
}

// An edge or a polygon is only remembered: no pixel of it is ever asked for.
BOOL DrawEdge(HDC context, RECT* rect, UINT edge, UINT flags) {
    const DeskContext* on = Fails("DrawEdge") ? nullptr : ContextOf(context);
    if (!on)
        return FALSE;
    Record(*on, "DrawEdge", *rect);
    if (Desk.bTrace)
        Desk.strokes.back().format = edge | flags << 8;
    return TRUE;
}

BOOL Polygon(HDC context, const POINT* points, int count) {
    const DeskContext* on = Fails("Polygon") ? nullptr : ContextOf(context);
    if (!on)
        return FALSE;
    Record(*on, "Polygon", {});
    if (Desk.bTrace)
        Desk.strokes.back().points.assign(points, points + count);
    return TRUE;
}

BOOL DrawFocusRect(HDC context, const RECT* rect) {
    const DeskContext* on = Fails("DrawFocusRect") ? nullptr : ContextOf(context);
    if (on)
        Record(*on, "DrawFocusRect", *rect);
    return on != nullptr;
}

static COLORREF Mixed(COLORREF pen, COLORREF ground, int rop) {
    return rop == R2_MERGEPENNOT ? pen | (~ground & 0xffffff) : pen;
}

// The far sides belong to no rectangle.
static int IsInside(const RECT& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

static int IsOnFrame(const RECT& rect, int x, int y) {
    return IsInside(rect, x, y) &&
           (x == rect.left || x == rect.right - 1 || y == rect.top || y == rect.bottom - 1);
}

// A level or upright line of one pixel's width; its end belongs to the next line.
static int IsOnLine(const RECT& line, int x, int y) {
    if (x == line.right && y == line.bottom)
        return 0;
    return x >= std::min(line.left, line.right) && x <= std::max(line.left, line.right) &&
           y >= std::min(line.top, line.bottom) && y <= std::max(line.top, line.bottom);
}

static COLORREF After(const DeskStroke& stroke, int x, int y, COLORREF ground) {
    const RECT& rect = stroke.rect;
    if (!IsInside(stroke.clip, x, y))
        return ground;
    if (stroke.what == "LineTo")
        return IsOnLine(rect, x, y) ? Mixed(stroke.pen.color, ground, stroke.rop) : ground;
    if (stroke.what == "DrawFocusRect") // every second pixel is inverted
        return IsOnFrame(rect, x, y) && (x + y) % 2 ? ground ^ 0xffffff : ground;
    if (stroke.what == "FillRect")
        return IsInside(rect, x, y) ? stroke.fill : ground;
    if (stroke.what != "Rectangle" || !IsInside(rect, x, y))
        return ground;
    return Mixed(IsOnFrame(rect, x, y) ? stroke.pen.color : stroke.fill, ground, stroke.rop);
}

COLORREF GetPixel(HDC context, int x, int y) {
    const DeskContext* on = Fails("GetPixel") ? nullptr : ContextOf(context);
    const DeskWindow* row = on ? Living(on->window) : nullptr;
    if (!row || !IsInside(ClientArea(*row), x, y))
        return CLR_INVALID;
    COLORREF color = 0xffffff;
    for (const DeskStroke& stroke : Desk.strokes)
        if (stroke.window == on->window)
            color = After(stroke, x, y, color);
    return color;
}
