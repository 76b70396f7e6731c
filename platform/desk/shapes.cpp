// Lines and shapes, which are recorded.
#include "internal.h"

DeskDrawCall* RecordDraw(const DeskContext& context, const char* call, const RECT& rect) {
    if (!Desk.recording)
        return nullptr;
    const auto& pen = *static_cast<const DeskObject*>(context.pen);
    const auto& brush = *static_cast<const DeskObject*>(context.brush);
    auto* bitmap = static_cast<DeskObject*>(context.bitmap);
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
