// The map as a control surface: presses, drags and what the strip says under the cursor, by the real mouse.
#include "mouse.h"
#include "settings_file.h"

#include <vector>

namespace {

// The map a client area of this size: a whole number of desktop pixels to each of its own.
void ResizeMap(HWND quorl, int width, int height) {
    RECT map = {};
    GetClientRect(quorl, &map);
    const Place place = PlaceOf(quorl);
    SetWindowPos(quorl, nullptr, 0, 0, place.right - place.left + width - map.right,
                 place.bottom - place.top + height - map.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// What a strip of this size looks like on which the text stands, as a line of pixels.
std::vector<COLORREF> Pixels(HDC context, int width, int height) {
    std::vector<COLORREF> pixels;
    for (int i = 0; i < width * height; ++i)
        pixels.push_back(GetPixel(context, i % width, i / width));
    return pixels;
}

std::vector<COLORREF> Drawn(const std::string& text, int width, int height) {
    const HDC screen = GetDC(nullptr);
    const HDC context = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HFONT font = CreateFontA(14, 0, 0, 0, FW_LIGHT, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    SelectObject(context, bitmap);
    SelectObject(context, font);
    RECT area = {0, 0, width, height};
    FillRect(context, &area, GetSysColorBrush(COLOR_INFOBK));
    SetBkMode(context, TRANSPARENT);
    area.left = 2;
    DrawTextA(context, text.c_str(), -1, &area, DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS);
    const std::vector<COLORREF> pixels = Pixels(context, width, height);
    DeleteDC(context);
    DeleteObject(bitmap);
    DeleteObject(font);
    ReleaseDC(nullptr, screen);
    return pixels;
}

// Another program cannot read the strip's text: it is drawn once more and the pictures are compared.
bool StripSays(const std::string& text) {
    RECT area = {};
    POINT corner = {};
    if (!TipStrip() || !GetClientRect(TipStrip(), &area) || !ClientToScreen(TipStrip(), &corner))
        return false;
    const HDC screen = GetDC(nullptr);
    const HDC context = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
    SelectObject(context, bitmap);
    BitBlt(context, 0, 0, area.right, area.bottom, screen, corner.x, corner.y, SRCCOPY);
    const std::vector<COLORREF> seen = Pixels(context, area.right, area.bottom);
    DeleteDC(context);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    return seen == Drawn(text, area.right, area.bottom);
}

TEST(MapMouse, ShiftAndLeftGoToTheScreenUnderTheCursorAndTheMiddleButtonCentersIt) {
    const HWND editor = OpenWindow("editor", {400, 350, 600, 450});
    ASSERT_TRUE(StartQuorl());
    MoveMouse(OnMap(3500, 1200));
    EXPECT_SOON(TipStrip() != nullptr, true) << "the map has seen the mouse";
    ClickHolding({VK_LSHIFT}, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    EXPECT_SOON(PlaceOf(editor), Moved({400, 350, 600, 450}, -3 * SCREEN_W, -SCREEN_H));

    MoveMouse(OnMap(1000, 600));
    const POINT middle = OnDesktop(OnMap(1000, 600));
    Click(MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP);
    EXPECT_SOON(PlaceOf(editor),
                Moved({400, 350, 600, 450}, SCREEN_W / 2 - middle.x, SCREEN_H / 2 - middle.y));
}

TEST(MapMouse, TheRightButtonOpensTheMenuAndEscapeClosesIt) {
    ASSERT_TRUE(StartQuorl());
    const auto isMenuOpen = [] {
        const HWND menu = FindWindowA("#32768", nullptr);
        return menu && IsWindowVisible(menu);
    };
    MoveMouse(OnMap(2000, 700));
    Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    EXPECT_SOON(isMenuOpen(), true);
    PressKeys({VK_ESCAPE});
    EXPECT_SOON(isMenuOpen(), false);
    EXPECT_TRUE(QuorlWindow());
}

TEST(MapMouse, TheLeftButtonDragsTheMapWithTheCursor) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    const Place before = PlaceOf(quorl);
    POINT at = OnMap(2000, 700);
    MoveMouse(at);
    EXPECT_SOON(TipStrip() != nullptr, true);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    int moved = 0;
    for (const int step : {3, 150, 60}) {
        moved += step;
        EXPECT_SOON(AfterMoving(quorl, {at.x + moved, at.y + moved}), Moved(before, moved, moved));
    }
    PressButton(MOUSEEVENTF_LEFTUP);
    MoveMouse({at.x + moved + 5, at.y + moved + 5});
    Sleep(200);
    EXPECT_EQ(PlaceOf(quorl), Moved(before, moved, moved)) << "the button is up";
}

TEST(MapMouse, ShiftControlAndLeftTakeHoldOfAWindowByItsBox) {
    const HWND editor = OpenWindow("editor", {400, 300, 900, 700});
    const HWND other = OpenWindow("other", {700, 100, 900, 200});
    ASSERT_TRUE(StartQuorl());
    Activate(other);
    const POINT at = OnMap(650, 500);
    MoveMouse(at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    Sleep(200);
    HoldKeys({VK_LSHIFT, VK_LCONTROL}, 0);
    SendMouse(at.x + 1, at.y);
    EXPECT_SOON(GetForegroundWindow(), editor);
    PressButton(MOUSEEVENTF_LEFTUP);
    HoldKeys({VK_LSHIFT, VK_LCONTROL}, KEYEVENTF_KEYUP);
}

// Bound to the bare button: Wine lets go of sent keys when the foreground changes or a capture begins.
TEST(MapMouse, AWindowFollowsItsBoxAndTheMapStays) {
    const HWND editor = OpenWindow("editor", {400, 300, 900, 700});
    Store("Action38", "-1|-1|-1|-1|0");
    Store("Action39", "0|8|-1|-1|0");
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    ResizeMap(quorl, 256, 96);
    const Place map = PlaceOf(quorl);
    const POINT at = OnMap(650, 500);
    MoveMouse(at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    MoveMouse({at.x, at.y + 1});
    EXPECT_SOON(GetForegroundWindow(), editor);
    const Place before = AfterMoving(editor, {at.x, at.y + 1});
    EXPECT_SOON(AfterMoving(editor, {at.x + 10, at.y + 1}), Moved(before, 160, 0));
    EXPECT_SOON(AfterMoving(editor, {at.x + 10, at.y + 5}), Moved(before, 160, 64));
    PressButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(PlaceOf(quorl), map);
}

TEST(MapMouse, TheStripTellsTheWindowUnderTheCursorOrThePlace) {
    OpenWindow("100% editor", {400, 300, 900, 700});
    ASSERT_TRUE(StartQuorl());
    const POINT spots[] = {OnMap(650, 500), OnMap(3000, 1000)};
    const char* const names[] = {"100%% editor: [%ld, %ld]", "Quorl: %ld, %ld"};
    for (int spot = 0; spot < 2; ++spot) {
        MoveMouse(spots[spot]);
        const POINT at = OnDesktop(spots[spot]);
        char text[64];
        snprintf(text, sizeof text, names[spot], at.x, at.y);
        EXPECT_SOON(StripSays(text), true) << text;
    }
    EXPECT_FALSE(StripSays("Quorl: 0, 0")) << "the pictures differ when the texts do";
}

} // namespace
