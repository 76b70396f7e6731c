#include "menus/tray.h"

#include "core/state.h"
#include "menus/action_menu.h"
#include "resources/control_ids.h"
#include "toolwin/placement.h"

#include <cstring>

static const UINT TRAY_ICON_ID = 1125;

static const UINT_PTR RETRY_TIMER = 2003;
static const UINT RETRY_PERIOD = 1200; // milliseconds, as the window table is rebuilt
static const int MAX_RETRIES = 50;     // a minute

static int NumRetries;
static UINT TaskbarCreated; // the registered message; 0 until the icon is added first

// The short form of the record, which every version of the shell accepts: its tip has 64 characters.
static bool TrayIcon(HWND window, DWORD operation) {
    NOTIFYICONDATAA data{};
    data.cbSize = NOTIFYICONDATAA_V1_SIZE;
    data.hWnd = window;
    data.uID = TRAY_ICON_ID;
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = TRAY_MESSAGE;
    data.hIcon = TrayImage;
    std::strcpy(data.szTip, "Quorl");
    return Shell_NotifyIconA(operation, &data) != 0;
}

// The taskbar has its own copy of an image, so an older one can be destroyed.
static void LoadTrayImage() {
    const HANDLE image = LoadImageA(AppInstance, MAKEINTRESOURCEA(IDI_QUORL), IMAGE_ICON,
                                    GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), 0);
    if (!image)
        return;
    if (TrayImage)
        DestroyIcon(TrayImage);
    TrayImage = static_cast<HICON>(image);
}

// NIM_ADD fails if the icon exists: after a change of scale, or after an earlier one that only timed out,
// which happens while Windows is busy at log-on.
static bool PlaceIcon(HWND window) {
    return TrayIcon(window, NIM_ADD) || TrayIcon(window, NIM_MODIFY);
}

static void CALLBACK RetryTimer(HWND window, UINT, UINT_PTR, DWORD) {
    if (bQuitting || PlaceIcon(window) || ++NumRetries == MAX_RETRIES)
        KillTimer(window, RETRY_TIMER);
}

void AddTrayIcon(HWND window) {
    if (bQuitting)
        return;
    if (!TaskbarCreated)
        TaskbarCreated = RegisterWindowMessageA("TaskbarCreated");
    LoadTrayImage();
    NumRetries = 0;
    if (!PlaceIcon(window))
        SetTimer(window, RETRY_TIMER, RETRY_PERIOD, RetryTimer);
}

void RemoveTrayIcon(HWND window) {
    TrayIcon(window, NIM_DELETE);
}

bool IsTaskbarCreated(UINT message) {
    return TaskbarCreated && message == TaskbarCreated;
}

void OnTrayMessage(HWND window, LPARAM lParam) {
    switch (lParam) {
    case WM_RBUTTONDOWN: ShowActionMenu(window); break;
    case WM_LBUTTONDBLCLK: ToggleToolwin({}); break;
    default: break;
    }
}
