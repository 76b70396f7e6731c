// The entry point and the life of the process: start-up, message loop, end. Start reading here.
#include "core/main.h"

#include "actions/action_table.h"
#include "core/crash.h"
#include "core/main_window.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "menus/tray.h"
#include "toolwin/tip.h"

constexpr int TRAY_ICON_RESOURCE = 118;

static const DWORD BASE_STYLE = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;

static HMODULE HookLibrary;
static void (*pSetMouseHook)(int);

static void RegisterMainClass(HINSTANCE instance) {
    WNDCLASSA description{};
    description.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    description.lpfnWndProc = MainWndProc;
    description.hInstance = instance;
    description.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = BackBrush;
    description.lpszClassName = MAIN_CLASS;
    AppInstance = instance;
    RegisterClassA(&description);
}

template <typename Function>
static Function Find(HMODULE module, const char* name) {
    // By way of void*, since the compiler rightly distrusts a cast between unlike function types.
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// A row whose function the running system lacks is offered nowhere.
static void OfferRow(ActionId row, int bOffered) {
    ActionTable[row].flags = bOffered ? ACTION_KEY | ACTION_MOUSE : ACTION_OFF;
}

static void FindCompositor() {
    if (const HMODULE compositor = LoadLibraryA("dwmapi.dll"))
        pDwmGetWindowAttribute = Find<decltype(pDwmGetWindowAttribute)>(compositor, "DwmGetWindowAttribute");
}

static void FindOptionalFunctions() {
    const HMODULE user = GetModuleHandleA("USER32.DLL");
    if (!user)
        return;
    pSetLayeredWindowAttributes =
        Find<decltype(pSetLayeredWindowAttributes)>(user, "SetLayeredWindowAttributes");
    OfferRow(ROW_TRANSPARENCY, pSetLayeredWindowAttributes != nullptr);
    pLockWorkStation = Find<decltype(pLockWorkStation)>(user, "LockWorkStation");
    OfferRow(ROW_LOCK_WORK_STATION, pLockWorkStation != nullptr);
}

static void TurnEdgeScrollingOff() {
    MessageBeep(0);
    for (ActionId row = ROW_FOLLOW_MOUSE; row <= ROW_SUPPRESS_WHEN_DRAGGING; ++row) {
        ActionTable[row].flags = ACTION_OFF;
        ActionTable[row].value = 0;
    }
}

// After OnCreate, so that a missing library overrides what the user stored.
static void StartMouseHook() {
    HookLibrary = LoadLibraryA("quorl.dll");
    if (!HookLibrary) {
        TurnEdgeScrollingOff();
        return;
    }
    if (const auto SaveSharedData = Find<void (*)(HWND)>(HookLibrary, "SaveSharedData"))
        SaveSharedData(MainWnd);
    pSetMouseHook = Find<decltype(pSetMouseHook)>(HookLibrary, "SetMouseHook");
    if (pSetMouseHook) {
        pSetMouseHook(1);
        Options.hook_present = 1;
    }
}

int StartUp(HINSTANCE instance) {
    if (FindWindowA(MAIN_CLASS, MAIN_CLASS))
        return 0;
    InitCommonControls();
    BackBrush = GetSysColorBrush(COLOR_BACKGROUND);
    TrayImage =
        static_cast<HICON>(LoadImageA(instance, MAKEINTRESOURCEA(TRAY_ICON_RESOURCE), IMAGE_ICON, 16, 16, 0));
    RegisterMainClass(instance);
    FindOptionalFunctions();
    FindCompositor();
    RegisterTipClass(instance);
    const DWORD exStyle = pSetLayeredWindowAttributes ? BASE_STYLE | WS_EX_LAYERED : BASE_STYLE;
    MainWnd = CreateWindowExA(exStyle, MAIN_CLASS, MAIN_CLASS, WS_POPUP | WS_THICKFRAME, 100, 100, 200, 100,
                              nullptr, nullptr, instance, nullptr);
    if (!MainWnd) {
        MessageBoxA(nullptr, "Can't start app.", "Alas!", MB_OK);
        return 0;
    }
    if (bQuitting)
        return 1; // a box of the creation let the user do so; the message loop ends at once
    if (pSetLayeredWindowAttributes)
        pSetLayeredWindowAttributes(MainWnd, 0, static_cast<BYTE>(Options.alpha), LWA_ALPHA);
    TrayIcon(MainWnd, NIM_ADD);
    StartMouseHook();
    if (ActionTable[ROW_SHOW_TOOLWIN].value)
        ShowWindow(MainWnd, SW_SHOW);
    return 1;
}

int RunMessageLoop() {
    MSG message{};
    while (const BOOL got = GetMessageA(&message, nullptr, 0, 0)) {
        if (got < 0)
            continue; // no message came; only the user ends Quorl, or windows would stay out of reach
        if (IsOpenDialogMessage(&message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

void ShutDown() {
    if (pSetMouseHook)
        pSetMouseHook(0);
    if (HookLibrary)
        FreeLibrary(HookLibrary);
    if (TrayImage)
        DeleteObject(TrayImage);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    if (!StartUp(instance))
        return 0;
    FoldWindowsOnCrash();
    const int result = RunMessageLoop();
    ShutDown();
    return result;
}
