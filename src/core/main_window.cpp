// The Toolwin's procedure: one row a message, each with its handler.
#include "core/main_window.h"

#include "actions/dispatch.h"
#include "core/create.h"
#include "core/quit.h"
#include "core/state.h"
#include "menus/tray.h"
#include "mouse/hook_mouse.h"
#include "mouse/map_buttons.h"
#include "mouse/map_hover.h"
#include "toolwin/map.h"

static LRESULT OnCreateMessage(HWND window, UINT, WPARAM, LPARAM) {
    return OnCreate(window) ? 0 : -1;
}

// The window stays: it goes with the process.
static LRESULT OnEndMessage(HWND window, UINT, WPARAM, LPARAM) {
    ConfirmQuit(window);
    return 0;
}

// wParam 0: another program has kept the user logged on.
static LRESULT OnSessionEnd(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    if (wParam)
        EndWithSession(window, (lParam & ENDSESSION_CLOSEAPP) != 0);
    return 0;
}

static LRESULT OnColorsChanged(HWND window, UINT, WPARAM, LPARAM) {
    BackBrush = GetSysColorBrush(COLOR_BACKGROUND);
    Repaint(window);
    return 0;
}

static LRESULT OnSizeLimits(HWND, UINT, WPARAM, LPARAM lParam) {
    MINMAXINFO& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
    limits.ptMinTrackSize = {LEAST_TOOLWIN.cx, LEAST_TOOLWIN.cy};
    limits.ptMaxTrackSize = {MOST_TOOLWIN.cx, MOST_TOOLWIN.cy};
    return 0;
}

static LRESULT OnMouseNews(HWND window, UINT, WPARAM wParam, LPARAM) {
    return OnHookMouse(window, static_cast<UINT>(wParam));
}

static LRESULT OnHotkey(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DoAction(window, static_cast<int>(wParam), nullptr);
    return DefWindowProcA(window, message, wParam, lParam);
}

static LRESULT OnMouseMove(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    const ActionPoint point = PointOf(lParam);
    OnToolwinMouseMove(window, point.x, point.y, wParam);
    return 0;
}

static LRESULT OnTray(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    return OnTrayMessage(window, wParam, lParam);
}

static LRESULT OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PaintMap(window);
    return 0;
}

static LRESULT OnEraseBackground(HWND window, UINT, WPARAM wParam, LPARAM) {
    return PaintBackground(window, reinterpret_cast<HDC>(wParam));
}

static LRESULT OnDesktopSizeQuery(HWND, UINT, WPARAM, LPARAM lParam) {
    if (auto* limits = reinterpret_cast<MINMAXINFO*>(lParam))
        limits->ptMaxTrackSize = {Quorl.right, Quorl.bottom};
    return 0;
}

namespace {

struct MessageRow {
    UINT message;
    LRESULT (*does)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

} // namespace

// Not for others: what is pointed to is written without a look, so it must be a MINMAXINFO of this process.
// Nothing in Quorl sends it.
static const UINT DESKTOP_SIZE_MESSAGE = 1134;

static const MessageRow MainMessages[] = {
    {HOOK_MOUSE_MESSAGE,   OnMouseNews       }, // up to hundreds a second
    {WM_PAINT,             OnPaint           },
    {WM_ERASEBKGND,        OnEraseBackground },
    {WM_HOTKEY,            OnHotkey          },
    {WM_MOUSEMOVE,         OnMouseMove       },
    {WM_LBUTTONDOWN,       OnMapLeftPress    },
    {WM_LBUTTONUP,         OnMapRelease      },
    {WM_RBUTTONDOWN,       OnMapRightPress   },
    {WM_RBUTTONUP,         OnMapRelease      },
    {WM_MBUTTONDOWN,       OnMapMiddlePress  },
    {WM_MBUTTONUP,         OnMapMiddleRelease},
    {WM_GETMINMAXINFO,     OnSizeLimits      },
    {WM_CREATE,            OnCreateMessage   },
    {WM_DESTROY,           OnEndMessage      },
    {WM_CLOSE,             OnEndMessage      },
    {WM_QUIT,              OnEndMessage      },
    {WM_ENDSESSION,        OnSessionEnd      },
    {WM_SYSCOLORCHANGE,    OnColorsChanged   },
    {WM_SETTINGCHANGE,     OnColorsChanged   },
    {WM_DEVMODECHANGE,     OnColorsChanged   },
    {TRAY_MESSAGE,         OnTray            },
    {DESKTOP_SIZE_MESSAGE, OnDesktopSizeQuery},
};

LRESULT CALLBACK MainWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    for (const MessageRow& row : MainMessages)
        if (row.message == message)
            return row.does(window, message, wParam, lParam);
    return DefWindowProcA(window, message, wParam, lParam);
}
