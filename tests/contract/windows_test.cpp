// Creation and end of windows, enumeration, look-up, texts; the icons of the notification area.
#include "contract/contract_test.h"

namespace {

using Windows = Contract;

TEST_F(Windows, CreationAsksForLimitsThenAnnouncesTheWindowThenItsPlace) {
    HWND inside = nullptr;
    Replies[WM_CREATE] = [&inside](const MSG& arrived) {
        inside = arrived.hwnd;
        return 0;
    };
    EXPECT_EQ(OpenOwn(WS_POPUP | WS_THICKFRAME), inside) << "WM_CREATE arrives before the call returns";
    EXPECT_EQ(SeenOf({WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}),
              (Kinds{WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}));
}

TEST_F(Windows, WhatIsGoneAnswersNoToEverything) {
    const HWND gone = OpenOwn();
    DestroyWindow(gone);
    char text[8] = "x";
    RECT place = PLACE;
    EXPECT_FALSE(IsWindow(gone) || IsWindow(nullptr));
    EXPECT_FALSE(IsWindowVisible(gone));
    EXPECT_FALSE(IsWindowEnabled(gone) || IsWindowEnabled(nullptr));
    EXPECT_FALSE(IsIconic(gone) || IsZoomed(gone));
    EXPECT_FALSE(GetWindowRect(gone, &place));
    EXPECT_EQ(place, PLACE) << "what was in the record stays";
    EXPECT_FALSE(MoveWindow(gone, 0, 0, 10, 10, TRUE));
    EXPECT_FALSE(ShowWindow(gone, SW_SHOW));
    EXPECT_FALSE(SetForegroundWindow(gone));
    EXPECT_FALSE(DestroyWindow(gone));
    EXPECT_EQ(GetClassNameA(gone, text, sizeof text), 0);
    EXPECT_EQ(GetWindowTextA(gone, text, sizeof text), 0);
    EXPECT_STREQ(text, "") << "a text that is not to be had is emptied";
    EXPECT_EQ(SendMessageA(gone, WM_USER, 0, 0), 0);
    EXPECT_FALSE(PostMessageA(gone, WM_USER, 0, 0));
    EXPECT_EQ(GetParent(nullptr), nullptr);
    EXPECT_EQ(GetWindowLongPtrA(nullptr, GWL_STYLE), 0);
}

TEST_F(Windows, EnumerationGoesFromTheTopAndTellsHiddenOnesToo) {
    const HWND below = OpenStranger("below");
    const HWND hidden = OpenOwn();
    const HWND above = OpenStranger("above");
    EXPECT_EQ(Order({below, hidden, above, GetDesktopWindow()}), (std::vector{above, hidden, below}));
    const HWND always = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST);
    const HWND owned = OpenOwn(WS_POPUP | WS_VISIBLE, 0, PLACE, always);
    EXPECT_TRUE(BringWindowToTop(hidden));
    EXPECT_EQ(Order({below, hidden, above, always, owned}),
              (std::vector{owned, always, hidden, above, below}))
        << "what is topmost stays above the others, and what it owns with it";
    EXPECT_TRUE(GetWindowLongPtrA(owned, GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(Windows, AWindowIsFoundByItsWholeTitleInAnyCaseAndTextsAreCutAtTheLimit) {
    const HWND own = OpenOwn();
    EXPECT_EQ(FindWindowA("Contract", "a-long-title"), nullptr);
    EXPECT_TRUE(SetWindowTextA(own, "a-long-title"));
    EXPECT_EQ(FindWindowA("contract", "A-Long-Title"), own);
    EXPECT_EQ(FindWindowA("Contract", "a-long"), nullptr);
    for (const HWND window : {own, OpenStranger("a-long-title")}) {
        char text[32] = "";
        EXPECT_EQ(GetWindowTextA(window, text, 7), 6);
        EXPECT_STREQ(text, "a-long");
        EXPECT_EQ(GetClassNameA(window, text, 5), 4);
        EXPECT_EQ(std::string(text).size(), 4U);
    }
}

TEST_F(Windows, OnlyALayeredWindowTakesAnOpacity) {
    EXPECT_TRUE(SetLayeredWindowAttributes(OpenOwn(WS_POPUP, WS_EX_LAYERED), 0, 128, LWA_ALPHA));
    EXPECT_FALSE(SetLayeredWindowAttributes(OpenOwn(), 0, 128, LWA_ALPHA));
}

TEST_F(Windows, AnIconStandsInTheNotificationAreaOnce) {
    NOTIFYICONDATAA icon{};
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
    EXPECT_EQ(icon.cbSize, sizeof(void*) == 4 ? 88u : 104u);
    icon.hWnd = OpenOwn();
    icon.uID = 1125;
    icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    icon.uCallbackMessage = WM_USER;
    icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
}

} // namespace
