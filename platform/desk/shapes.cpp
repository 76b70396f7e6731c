// Lines and rectangles: recorded with the tools that draw them.
#include "ground.h"

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
