// The contract tests' environment on Windows: this program, started again, plays the other programs.
#include "contract/environment.h"

#include "shared/desktop.h"

#include <fstream>
#include <iterator>

int main(int count, char** arguments) {
    ScreenMetric(SM_CXSCREEN); // as DPI aware as Quorl
    if (PlayWindow(count, arguments))
        return 0;
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}

HWND OpenOther(const char* title, bool slow) {
    return OpenWindow(title, RECT_OF_WINDOWS, slow ? "slow" : "plain");
}

void CloseOthers() {
    EndPrograms();
}

void HandleFor(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    for (DWORD elapsed = 0; elapsed <= milliseconds; elapsed = GetTickCount() - start) {
        HandleMessages();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - elapsed, QS_ALLINPUT);
    }
}

// Windows caches profile files; this makes it write or forget the cached copy first.
static std::string Flushed(const char* file) {
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file);
    return std::string(folder) + "\\" + file;
}

void WriteProfile(const char* file, const std::string& text) {
    std::ofstream(Flushed(file), std::ios::binary) << text;
}

std::string ReadProfile(const char* file) {
    std::ifstream text(Flushed(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(text), {}};
}

void GiveOwnRights(const char* file) {
    SECURITY_DESCRIPTOR all; // without a list, everybody has all rights
    EXPECT_TRUE(InitializeSecurityDescriptor(&all, SECURITY_DESCRIPTOR_REVISION) &&
                SetSecurityDescriptorDacl(&all, TRUE, nullptr, FALSE) &&
                SetFileSecurityA(Flushed(file).c_str(), DACL_SECURITY_INFORMATION, &all));
}
