// The popup menu and the tray icon, worked with real keys. A menu of another program cannot be asked what it
// holds, but two programs draw the same menu to the same pixels: this one draws what the user should see.
#include "settings_file.h"
#include "user.h"

#include <vector>

namespace {

constexpr UINT TRAY_MESSAGE = 1125;
const POINT MENU_PLACE = {300, 200};

using Picture = std::vector<DWORD>;

struct Line {
    const char* text; // null: a separator
    UINT state = 0;
    std::vector<const char*> below = {};
};
const Line StartMenu[] = {
    {"Options..."        },
    {"Define Actions..." },
    {"Customize Menu..." },
    {"Show Quorl Toolwin", MF_CHECKED},
    {"Mark Current Region..."                   },
    {nullptr},
    {"Help..."                   },
    {"About..."},
    {nullptr                   },
    {"Exit"},
};

// The first open menu; null if there is none.
HWND OpenMenu() {
    const HWND menu = FindWindowA("#32768", nullptr);
    return menu && IsWindowVisible(menu) ? menu : nullptr;
}

Picture PictureOf(HWND window) {
    const Place place = PlaceOf(window);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    BITMAPINFO format = {};
    format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const HDC copy = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateDIBSection(copy, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const DWORD* const first = static_cast<const DWORD*>(bits);
    Picture picture(first, first + width * height);
    for (DWORD& pixel : picture)
        pixel &= 0xffffff;
    SelectObject(copy, before);
    DeleteObject(bitmap);
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);
    return picture;
}

// Looks at the menu that is open in this program, as soon as it is painted, and closes it.
Picture Wanted;
void CALLBACK LookAndClose(HWND, UINT, UINT_PTR, DWORD) {
    const HWND menu = OpenMenu();
    if (!menu)
        return;
    Wanted = PictureOf(menu);
    EndMenu();
}

HMENU Made(const std::vector<Line>& lines) {
    const HMENU menu = CreatePopupMenu();
    for (const Line& line : lines) {
        const HMENU below = line.below.empty() ? nullptr : CreatePopupMenu();
        for (const char* text : line.below)
            AppendMenuA(below, MF_STRING, 1, text);
        const UINT kind = below ? MF_POPUP : line.text ? line.state : UINT{MF_SEPARATOR};
        AppendMenuA(menu, kind, below ? reinterpret_cast<UINT_PTR>(below) : 1, line.text);
    }
    return menu;
}

// What a menu with these lines looks like.
Picture PictureOf(const std::vector<Line>& lines) {
    const HMENU menu = Made(lines);
    const HWND owner =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(owner);
    Wanted.clear();
    SetTimer(owner, 1, 300, LookAndClose);
    TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, MENU_PLACE.x, MENU_PLACE.y, owner, nullptr);
    DestroyWindow(owner);
    DestroyMenu(menu);
    return Wanted;
}

std::vector<Line> Lines() {
    return {std::begin(StartMenu), std::end(StartMenu)};
}

// The user opens the menu by its key, away from the pointer's resting place.
HWND OpenMenuByKey() {
    SetCursorPos(MENU_PLACE.x, MENU_PLACE.y);
    Sleep(150);
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, VK_SPACE});
    EXPECT_SOON(OpenMenu() != nullptr, true);
    return OpenMenu();
}

// In turn, to the open menu, which is closed by the last one.
void PressInMenu(std::initializer_list<WORD> keys) {
    for (const WORD key : keys)
        PressKeys({key});
    EXPECT_SOON(OpenMenu(), HWND{});
}

bool IsMapShown() {
    return QuorlWindow() && IsWindowVisible(QuorlWindow());
}

} // namespace

TEST(Menu, ANewUserSeesItsEntriesAtThePointerAndAChoiceRunsItsRow) {
    const Picture shown = PictureOf(Lines());
    std::vector<Line> lines = Lines();
    lines[3].state = 0;
    const Picture hidden = PictureOf(lines);
    ASSERT_NE(shown, hidden);
    ASSERT_TRUE(StartQuorl());

    const HWND menu = OpenMenuByKey();
    EXPECT_EQ(PlaceOf(menu).left, MENU_PLACE.x);
    EXPECT_EQ(PlaceOf(menu).top, MENU_PLACE.y);
    EXPECT_SOON(PictureOf(OpenMenu()) == shown, true);
    PressInMenu({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_SOON(IsMapShown(), false);

    OpenMenuByKey();
    EXPECT_SOON(PictureOf(OpenMenu()) == hidden, true) << "the check mark is gone";
    PressInMenu({VK_ESCAPE});
    OpenMenuByKey();
    PressInMenu({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_SOON(IsMapShown(), true);
}

TEST(Menu, ViewRegionJumpsToTheRegionWithThatDigit) {
    Store("num_regions", "2");
    Store("Region0", "home|0|0|1024|768|255");
    Store("Region1", "R&D|2000|300|3024|1068|255");
    std::vector<Line> lines = Lines();
    lines.push_back({"View Region", 0, {"x"}});
    const Picture wanted = PictureOf(lines);
    const Place place = {200, 150, 600, 450};
    const HWND editor = OpenWindow("editor", place);
    ASSERT_TRUE(StartQuorl());

    OpenMenuByKey();
    EXPECT_SOON(PictureOf(OpenMenu()) == wanted, true);
    PressInMenu({VK_UP, VK_RIGHT, '1'});
    EXPECT_SOON(PlaceOf(editor), Moved(place, -2000, -300));
}

TEST(Menu, TheTrayIconOpensItAndADoubleClickHidesTheMap) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    PostMessageA(quorl, TRAY_MESSAGE, TRAY_MESSAGE, WM_RBUTTONDOWN);
    EXPECT_SOON(OpenMenu() != nullptr, true);
    PressInMenu({VK_ESCAPE});
    for (const bool shown : {false, true}) {
        PostMessageA(quorl, TRAY_MESSAGE, TRAY_MESSAGE, WM_LBUTTONDBLCLK);
        EXPECT_SOON(IsMapShown(), shown);
    }
}
