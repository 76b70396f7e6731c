// Errors, modules, monitors, boxes and sounds.
#include "ground.h"

#include <commctrl.h>

#include <utility>

DWORD GetLastError() {
    return Desk.lastError;
}

void SetLastError(DWORD error) {
    Desk.lastError = error;
}

LPTOP_LEVEL_EXCEPTION_FILTER SetUnhandledExceptionFilter(LPTOP_LEVEL_EXCEPTION_FILTER filter) {
    return Fails("SetUnhandledExceptionFilter") ? nullptr : std::exchange(Desk.crashFilter, filter);
}

LONG InterlockedExchange(volatile LONG* target, LONG value) {
    const LONG before = *target;
    *target = value;
    return before;
}

// A module's handle is the place of its record: nodes of a map never move.
static HMODULE HandleOf(DeskModule& module) {
    return reinterpret_cast<HMODULE>(&module);
}

static DeskModule* ModuleNamed(LPCSTR name) {
    const auto found = Desk.modules.find(LowerCase(name));
    return found == Desk.modules.end() ? nullptr : &found->second;
}

HMODULE GetModuleHandleA(LPCSTR name) {
    DeskModule* module = Fails("GetModuleHandleA") ? nullptr : ModuleNamed(name);
    return module && module->loads > 0 ? HandleOf(*module) : nullptr;
}

HMODULE LoadLibraryA(LPCSTR name) {
    DeskModule* module = Fails("LoadLibraryA") ? nullptr : ModuleNamed(name);
    if (!module || !module->bInstalled)
        return nullptr;
    ++module->loads;
    return HandleOf(*module);
}

BOOL FreeLibrary(HMODULE module) {
    if (Fails("FreeLibrary") || !module)
        return FALSE;
    --reinterpret_cast<DeskModule*>(module)->loads;
    return TRUE;
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
    if (Fails("GetProcAddress") || !module)
        return nullptr;
    const auto& exports = reinterpret_cast<DeskModule*>(module)->exports;
    const auto found = exports.find(name);
    return found == exports.end() ? nullptr : found->second;
}

BOOL LockWorkStation() {
    if (Fails("LockWorkStation"))
        return FALSE;
    ++Desk.locks;
    return TRUE;
}

static HMONITOR MonitorAt(std::size_t place) {
    return reinterpret_cast<HMONITOR>(place + 1);
}

BOOL EnumDisplayMonitors(HDC, const RECT*, MONITORENUMPROC callback, LPARAM parameter) {
    if (Fails("EnumDisplayMonitors"))
        return FALSE;
    for (std::size_t place = 0; place < Desk.monitors.size(); ++place) {
        RECT rect = Desk.monitors[place];
        if (!callback(MonitorAt(place), nullptr, &rect, parameter))
            return FALSE;
    }
    return TRUE;
}

BOOL GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info) {
    const std::size_t place = reinterpret_cast<std::size_t>(monitor) - 1;
    if (Fails("GetMonitorInfoA") || info->cbSize != sizeof(MONITORINFO) || place >= Desk.monitors.size())
        return FALSE;
    info->rcMonitor = info->rcWork = Desk.monitors[place];
    info->dwFlags = place == 0;
    return TRUE;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    if (Fails("MessageBoxA"))
        return 0;
    if (Desk.inBox)
        std::function<void()>(Desk.inBox)();
    int answer = type == MB_YESNO ? IDNO : IDOK;
    if (Desk.answers.empty()) {
        ++Desk.surprises;
    } else {
        answer = Desk.answers.front();
        Desk.answers.pop_front();
    }
    Desk.boxes.push_back({owner, text, caption, type, answer});
    return answer;
}

BOOL MessageBeep(UINT type) {
    if (Fails("MessageBeep"))
        return FALSE;
    Desk.beeps.push_back(type);
    return TRUE;
}

// Blocks for its duration.
BOOL Beep(DWORD hertz, DWORD milliseconds) {
    if (Fails("Beep"))
        return FALSE;
    Desk.tones.push_back(hertz);
    Desk.now += milliseconds;
    return TRUE;
}

void InitCommonControls() {
    Fails("InitCommonControls");
}
