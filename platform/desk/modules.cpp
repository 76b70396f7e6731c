// Modules: loading them, their exports, and where the program and the system's libraries are.
#include "internal.h"

#include <dwmapi.h>

#include <cstring>

static const std::string SYSTEM_DIRECTORY = "C:\\WINDOWS\\system32";

UINT GetSystemDirectoryA(LPSTR directory, UINT size) {
    if (CallFails("GetSystemDirectoryA"))
        return 0;
    return static_cast<UINT>(CopyText(SYSTEM_DIRECTORY, directory, static_cast<int>(size)));
}

static DeskModule* FindModule(LPCSTR path) {
    const auto found = Desk.modules.find(LowerCase(path));
    return found == Desk.modules.end() ? nullptr : &found->second;
}

static DeskModule& SystemModule(const char* name) {
    return Desk.modules[LowerCase(SYSTEM_DIRECTORY + '\\' + name)];
}

// A handle is the address of the record: nodes of a std::map never move.
static HMODULE HandleOf(DeskModule& module) {
    return reinterpret_cast<HMODULE>(&module);
}

HMODULE GetModuleHandleA(LPCSTR name) {
    DeskModule* module = CallFails("GetModuleHandleA") ? nullptr : FindModule(name);
    return module && module->loads > 0 ? HandleOf(*module) : nullptr;
}

HMODULE LoadLibraryA(LPCSTR path) {
    DeskModule* module = CallFails("LoadLibraryA") ? nullptr : FindModule(path);
    if (!module || !module->installed)
        return nullptr;
    ++module->loads;
    return HandleOf(*module);
}

BOOL FreeLibrary(HMODULE module) {
    if (CallFails("FreeLibrary") || !module)
        return FALSE;
    --reinterpret_cast<DeskModule*>(module)->loads;
    return TRUE;
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
    if (CallFails("GetProcAddress") || !module)
        return nullptr;
    const auto& exports = reinterpret_cast<DeskModule*>(module)->exports;
    const auto found = exports.find(name);
    return found == exports.end() ? nullptr : found->second;
}

template <typename Function>
static FARPROC Export(Function* function) {
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

void InstallCompositor() {
    SystemModule("dwmapi.dll").exports["DwmGetWindowAttribute"] = Export(DwmGetWindowAttribute);
}

void InstallDpiFunctions() {
    DeskModule& user = Desk.modules["user32.dll"];
    user.loads = 1;
    user.exports["GetDpiForWindow"] = Export(GetDpiForWindow);
    SystemModule("shcore.dll").exports["GetDpiForMonitor"] = Export(GetDpiForMonitor);
}
