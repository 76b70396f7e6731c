// Memory contexts and bitmaps. What is drawn into a bitmap is kept there and reaches a window by BitBlt.
#include "internal.h"

#include <utility>

HDC CreateCompatibleDC(HDC context) {
    if (CallFails("CreateCompatibleDC") || (context && !LiveContext(context)))
        return nullptr;
    return OpenMemoryContext();
}

BOOL DeleteDC(HDC context) {
    DeskContext* memory = CallFails("DeleteDC") ? nullptr : LiveContext(context);
    if (!memory || memory->window)
        return FALSE;
    memory->live = false;
    return TRUE;
}

HBITMAP CreateCompatibleBitmap(HDC context, int width, int height) {
    if (CallFails("CreateCompatibleBitmap") || !LiveContext(context) || width < 0 || height < 0)
        return nullptr;
    DeskObject* bitmap = NewObject(DeskObjectKind::Bitmap, 0, false);
    bitmap->size = {width, height};
    return reinterpret_cast<HBITMAP>(bitmap);
}

static void Replay(HWND window, DeskDrawCall drawn, LONG dx, LONG dy) {
    drawn.window = window;
    drawn.rect = OffsetBy(drawn.rect, dx, dy);
    for (POINT& point : drawn.points)
        point = {point.x + dx, point.y + dy};
    Desk.drawCalls.push_back(drawn);
}

// Records itself, which makes the target black as a new bitmap is, and then what was drawn into the bitmap.
BOOL BitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY, DWORD operation) {
    const bool fails = CallFails("BitBlt");
    const DeskContext* target = LiveContext(to);
    const DeskContext* source = LiveContext(from);
    if (fails || !target || !target->window || !source || !source->bitmap || operation != SRCCOPY)
        return FALSE;
    if (!Desk.recording)
        return TRUE;
    RecordDraw(*target, "BitBlt", RectAt(x, y, width, height));
    for (const DeskDrawCall& drawn : static_cast<const DeskObject*>(source->bitmap)->drawCalls)
        Replay(target->window, drawn, x - fromX, y - fromY);
    return TRUE;
}

COLORREF SetTextColor(HDC context, COLORREF color) {
    DeskContext* record = CallFails("SetTextColor") ? nullptr : LiveContext(context);
    return record ? std::exchange(record->textColor, color) : CLR_INVALID;
}
