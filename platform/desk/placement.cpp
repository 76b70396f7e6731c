// Window placements: the normal rectangle and the show state in one record.
#include "internal.h"

// Normal rectangles are stored relative to the work area, except those of tool windows.
static POINT WorkspaceOffset(const DeskWindow& window, const RECT& rect) {
    if (window.exStyle & WS_EX_TOOLWINDOW)
        return {};
    const DeskDisplay& display = DisplayFor(rect);
    return {display.work.left - display.rect.left, display.work.top - display.rect.top};
}

static UINT ShowState(const DeskWindow& window) {
    if (window.style & WS_MINIMIZE)
        return SW_SHOWMINIMIZED;
    return window.style & WS_MAXIMIZE ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
}

BOOL GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement) {
    const DeskWindow* record = CallFails("GetWindowPlacement") ? nullptr : ResolveHandle(window);
    if (!record)
        return FALSE;
    const UINT state = ShowState(*record);
    const RECT normal = state == SW_SHOWNORMAL ? record->rect : record->normalRect;
    const POINT offset = WorkspaceOffset(*record, normal);
    placement->flags = state == SW_SHOWMINIMIZED && record->restoresMaximized ? WPF_RESTORETOMAXIMIZED : 0;
    placement->showCmd = state;
    placement->ptMinPosition = placement->ptMaxPosition = {-1, -1};
    placement->rcNormalPosition = OffsetBy(normal, -offset.x, -offset.y);
    return TRUE;
}

BOOL SetWindowPlacement(HWND window, const WINDOWPLACEMENT* placement) {
    DeskWindow* record = CallFails("SetWindowPlacement") ? nullptr : ResolveForChange(window);
    if (!record)
        return FALSE;
    if (placement->length != sizeof *placement) {
        Desk.lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    const POINT offset = WorkspaceOffset(*record, placement->rcNormalPosition);
    const RECT normal = OffsetBy(placement->rcNormalPosition, offset.x, offset.y);
    record->normalRect = normal;
    ApplyShowCommand(*record, static_cast<int>(placement->showCmd));
    if (DeskWindow* still = LiveWindow(window)) {
        if (still->style & WS_MINIMIZE)
            still->restoresMaximized = (placement->flags & WPF_RESTORETOMAXIMIZED) != 0;
        if (!(still->style & (WS_MINIMIZE | WS_MAXIMIZE)))
            SetRect(*still, normal, true);
    }
    return TRUE;
}
