// The entry point: start-up, message loop, shutdown. Start reading here.
#include "app/main.h"

#include "actions/action_table.h"
#include "app/crash.h"
#include "app/main_window.h"
#include "app/quit.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "menus/tray.h"
#include "status/status_strip.h"

#include <cstdio>

static const DWORD MAP_STYLE = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;

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
static Function FindFunction(HMODULE module, const char* name) {
    // Through void*, because compilers warn about a cast between incompatible function types.
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// Disables an action whose function this version of Windows lacks.
static void DisableUnless(ActionId id, bool bAvailable) {
    if (!bAvailable)
        ActionTable[id].flags = ACTION_OFF;
}

// By the full path: a library of that name in the program's folder is not Windows' own. Null if it is
// missing.
static HMODULE LoadSystemLibrary(const char* name) {
    char folder[MAX_PATH] = "";
    char path[MAX_PATH + 16];
    const UINT length = GetSystemDirectoryA(folder, MAX_PATH);
    if (!length || length >= MAX_PATH)
        return nullptr;
    std::snprintf(path, sizeof path, "%s\\%s", folder, name);
    return LoadLibraryA(path);
}

static void FindScales() {
    if (const HMODULE scaling = LoadSystemLibrary("shcore.dll"))
        pGetDpiForMonitor = FindFunction<decltype(pGetDpiForMonitor)>(scaling, "GetDpiForMonitor");
}

static void FindCompositor() {
    if (const HMODULE compositor = LoadSystemLibrary("dwmapi.dll"))
        pDwmGetWindowAttribute =
            FindFunction<decltype(pDwmGetWindowAttribute)>(compositor, "DwmGetWindowAttribute");
}

static void FindOptionalFunctions() {
    const HMODULE user = GetModuleHandleA("USER32.DLL");
    if (!user)
        return;
    pSetLayeredWindowAttributes =
        FindFunction<decltype(pSetLayeredWindowAttributes)>(user, "SetLayeredWindowAttributes");
    DisableUnless(ACTION_TRANSPARENCY, pSetLayeredWindowAttributes != nullptr);
    pLockWorkStation = FindFunction<decltype(pLockWorkStation)>(user, "LockWorkStation");
    DisableUnless(ACTION_LOCK_STATION, pLockWorkStation != nullptr);
    pGetDpiForWindow = FindFunction<decltype(pGetDpiForWindow)>(user, "GetDpiForWindow");
}

static void DisableHookActions() {
    MessageBeep(0);
    for (int id = ACTION_FOLLOW_MOUSE; id <= ACTION_SUPPRESS_SCROLL; ++id) {
        ActionTable[id].flags = ACTION_OFF;
        ActionTable[id].value = 0;
    }
}

// Called after OnCreate, so that a missing library overrides the stored settings.
static void StartMouseHook() {
    HookLibrary = LoadLibraryA("quorl.dll");
    if (!HookLibrary) {
        DisableHookActions();
        return;
    }
    if (const auto SaveSharedData = FindFunction<void (*)(HWND)>(HookLibrary, "SaveSharedData"))
        SaveSharedData(MainWnd);
    pSetMouseHook = FindFunction<decltype(pSetMouseHook)>(HookLibrary, "SetMouseHook");
    if (pSetMouseHook) {
        pSetMouseHook(1);
        Options.hook_present = 1;
    }
}

bool StartUp(HINSTANCE instance) {
    if (FindWindowA(MAIN_CLASS, MAIN_CLASS))
        return false;
    FillActionTable();
    InitCommonControls();
    BackBrush = GetSysColorBrush(COLOR_BACKGROUND);
    RegisterMainClass(instance);
    FindOptionalFunctions();
    FindCompositor();
    FindScales();
    RegisterTipClass(instance);
    EndFirstAtLogoff();
    const DWORD exStyle = pSetLayeredWindowAttributes ? MAP_STYLE | WS_EX_LAYERED : MAP_STYLE;
    MainWnd = CreateWindowExA(exStyle, MAIN_CLASS, MAIN_CLASS, WS_POPUP | WS_THICKFRAME, 100, 100, 200, 100,
                              nullptr, nullptr, instance, nullptr);
    if (!MainWnd) {
        MessageBoxA(nullptr, "Can't start app.", "Alas!", MB_OK);
        return false;
    }
    if (bQuitting)
        return true; // the user quit from a box during creation; the message loop ends at once
    if (pSetLayeredWindowAttributes)
        pSetLayeredWindowAttributes(MainWnd, 0, static_cast<BYTE>(Options.alpha), LWA_ALPHA);
    AddTrayIcon(MainWnd);
    StartMouseHook();
    if (IsOn(ACTION_SHOW_TOOLWIN))
        ShowWindow(MainWnd, SW_SHOWNA); // the user goes on typing into another program
    return true;
}

int RunMessageLoop() {
    MSG message{};
    while (const BOOL got = GetMessageA(&message, nullptr, 0, 0)) {
        if (got < 0)
            continue; // GetMessage failed. Keep running: exiting here would strand windows off the screen.
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
        DestroyIcon(TrayImage);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    if (!StartUp(instance))
        return 0;
    FoldWindowsOnCrash();
    const int result = RunMessageLoop();
    ShutDown();
    return result;
}
