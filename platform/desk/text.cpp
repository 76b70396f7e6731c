// Text in its three encodings. The record stores UTF-8; A calls use Latin-1 as the ANSI code page, W calls
// UTF-16.
#include "controls.h"

#include <algorithm>
#include <cstring>

static bool wideCall; // the window procedure in progress receives UTF-16

// Number of bytes of a UTF-8 character, by its first.
static std::size_t CharacterLength(unsigned char lead) {
    if (lead < 0xC0)
        return 1;
    if (lead < 0xE0)
        return 2;
    return lead < 0xF0 ? 3 : 4;
}

// The character at `at`, which moves behind it. A stray byte counts as Latin-1.
static unsigned NextCharacter(const std::string& utf8, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(utf8[at]);
    const std::size_t length = CharacterLength(lead);
    const std::size_t start = at++;
    if (length == 1 || start + length > utf8.size())
        return lead;
    unsigned code = lead & (0xFFU >> (length + 1));
    for (std::size_t next = 1; next < length; ++next) {
        const auto byte = static_cast<unsigned char>(utf8[start + next]);
        if ((byte & 0xC0) != 0x80)
            return lead;
        code = code << 6 | (byte & 0x3FU);
    }
    at = start + length;
    return code;
}

std::wstring ToWide(const std::string& utf8) {
    std::wstring wide;
    for (std::size_t at = 0; at < utf8.size();) {
        unsigned code = NextCharacter(utf8, at);
        if (code >= 0x10000) {
            wide += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
            code = 0xDC00 + ((code - 0x10000) & 0x3FF);
        }
        wide += static_cast<wchar_t>(code);
    }
    return wide;
}

static void AppendUtf8(std::string& utf8, unsigned code) {
    if (code < 0x80) {
        utf8 += static_cast<char>(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3; // bytes after the first
    constexpr unsigned lead[] = {0, 0xC0, 0xE0, 0xF0};
    utf8 += static_cast<char>(lead[more] | code >> (6 * more));
    for (int shift = 6 * (more - 1); shift >= 0; shift -= 6)
        utf8 += static_cast<char>(0x80 | (code >> shift & 0x3F));
}

std::string FromWide(const std::wstring& wide) {
    std::string utf8;
    for (std::size_t at = 0; at < wide.size(); ++at) {
        unsigned code = static_cast<unsigned>(wide[at]) & 0xFFFF;
        const unsigned next = at + 1 < wide.size() ? static_cast<unsigned>(wide[at + 1]) & 0xFFFF : 0;
        if (code >> 10 == 0x36 && next >> 10 == 0x37) {
            code = 0x10000 + ((code & 0x3FF) << 10) + (next & 0x3FF);
            ++at;
        }
        AppendUtf8(utf8, code);
    }
    return utf8;
}

std::string ToAnsi(const std::string& utf8) {
    std::string ansi;
    for (const wchar_t unit : ToWide(utf8))
        ansi += unit < 0x100 ? static_cast<char>(unit) : '?';
    return ansi;
}

std::string FromAnsi(const std::string& ansi) {
    std::string utf8;
    for (const char letter : ansi)
        AppendUtf8(utf8, static_cast<unsigned char>(letter));
    return utf8;
}

int CopyWide(const std::wstring& from, LPWSTR to, int limit) {
    if (limit <= 0)
        return 0;
    const std::size_t length = std::min(from.size(), static_cast<std::size_t>(limit - 1));
    std::copy_n(from.begin(), length, to);
    to[length] = 0;
    return static_cast<int>(length);
}

std::string TextFrom(LPARAM text) {
    return wideCall ? FromWide(reinterpret_cast<LPCWSTR>(text)) : FromAnsi(reinterpret_cast<LPCSTR>(text));
}

int TextTo(const std::string& utf8, LPARAM buffer, std::size_t limit) {
    const int size = static_cast<int>(std::min<std::size_t>(limit, 1U << 30));
    return wideCall ? CopyWide(ToWide(utf8), reinterpret_cast<LPWSTR>(buffer), size)
                    : CopyText(ToAnsi(utf8), reinterpret_cast<LPSTR>(buffer), size);
}

static LRESULT Call(const DeskWindow& window, bool wide, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool before = wideCall;
    wideCall = wide;
    const LRESULT result = window.procedure(window.handle, message, wParam, lParam);
    wideCall = before;
    return result;
}

LRESULT CallWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const DeskWindow* record = LiveWindow(window);
    return record && record->procedure ? Call(*record, false, message, wParam, lParam) : 0;
}

// The program's own windows are ANSI windows: text is converted on its way to them.
static LRESULT CallAnsiWindow(const DeskWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) {
        const std::string text = ToAnsi(FromWide(reinterpret_cast<LPCWSTR>(lParam)));
        return Call(window, false, message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
    }
    if (message != WM_GETTEXT)
        return Call(window, false, message, wParam, lParam);
    std::string text(wParam + 1, 0);
    Call(window, false, message, wParam, reinterpret_cast<LPARAM>(text.data()));
    text.resize(std::strlen(text.data()));
    return CopyWide(ToWide(FromAnsi(text)), reinterpret_cast<LPWSTR>(lParam), static_cast<int>(wParam));
}

LRESULT CallWndProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const DeskWindow* record = LiveWindow(window);
    if (!record || !record->procedure)
        return 0;
    const SystemClass* predefined = FindSystemClass(record->className.c_str());
    const bool takesWide = predefined && predefined->procedure == record->procedure;
    return takesWide ? Call(*record, true, message, wParam, lParam)
                     : CallAnsiWindow(*record, message, wParam, lParam);
}

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const DeskWindow* record = CallFails("SendMessageW") ? nullptr : ResolveHandle(window);
    return record ? CallWndProcW(window, message, wParam, lParam) : 0;
}

int GetWindowTextW(HWND window, LPWSTR text, int limit) {
    const DeskWindow* record = CallFails("GetWindowTextW") ? nullptr : ResolveHandle(window);
    return CopyWide(record ? ToWide(record->title) : L"", text, limit);
}

BOOL SetWindowTextW(HWND window, LPCWSTR text) {
    if (CallFails("SetWindowTextW") || !ResolveHandle(window))
        return FALSE;
    return CallWndProcW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallFails("SendDlgItemMessageW") ? 0
                                            : CallWndProcW(FindControl(dialog, id), message, wParam, lParam);
}

BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text) {
    return !CallFails("SetDlgItemTextW") &&
           CallWndProcW(FindControl(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

DWORD GetModuleFileNameW(HMODULE, LPWSTR path, DWORD size) {
    return CallFails("GetModuleFileNameW")
               ? 0
               : static_cast<DWORD>(CopyWide(Desk.programPath, path, static_cast<int>(size)));
}

DWORD GetShortPathNameW(LPCWSTR path, LPWSTR shortPath, DWORD size) {
    if (CallFails("GetShortPathNameW"))
        return 0;
    const auto found = Desk.shortPaths.find(path);
    return static_cast<DWORD>(
        CopyWide(found == Desk.shortPaths.end() ? path : found->second, shortPath, static_cast<int>(size)));
}

BOOL IsDBCSLeadByte(BYTE first) {
    switch (Desk.codePage) {
    case 932: return (first >= 0x81 && first <= 0x9F) || (first >= 0xE0 && first <= 0xFC);
    case 936:
    case 949:
    case 950: return first >= 0x81 && first <= 0xFE;
    default: return FALSE;
    }
}

// Only Latin-1 and texts that end in 0.
int WideCharToMultiByte(UINT, DWORD, LPCWSTR from, int, LPSTR to, int limit, LPCSTR, BOOL* usedDefault) {
    if (CallFails("WideCharToMultiByte"))
        return 0;
    const std::wstring wide = from;
    if (usedDefault)
        *usedDefault = std::any_of(wide.begin(), wide.end(), [](wchar_t unit) { return unit >= 0x100; });
    const std::string ansi = ToAnsi(FromWide(wide));
    const int needed = static_cast<int>(ansi.size()) + 1;
    if (limit == 0)
        return needed;
    if (limit < needed)
        return 0;
    std::memcpy(to, ansi.c_str(), ansi.size() + 1);
    return needed;
}

int MultiByteToWideChar(UINT, DWORD, LPCSTR from, int, LPWSTR to, int limit) {
    const int needed = static_cast<int>(std::strlen(from)) + 1;
    if (CallFails("MultiByteToWideChar") || (limit > 0 && limit < needed))
        return 0;
    if (limit > 0) // a Latin-1 character has the same code in UTF-16
        std::transform(from, from + needed, to,
                       [](char letter) { return static_cast<WCHAR>(static_cast<unsigned char>(letter)); });
    return needed;
}
