// Classes, creation and end of windows, enumeration, look-up, texts, styles.
#include "contract/contract_test.h"

#include <algorithm>

namespace {

using Windows = Contract;

TEST_F(Windows, AClassCanBeRegisteredOnceWhateverItsCase) {
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.hInstance = Instance();
    description.lpszClassName = "Contract once";
    EXPECT_NE(RegisterClassA(&description), 0);

    description.lpszClassName = "CONTRACT ONCE";
    EXPECT_EQ(RegisterClassA(&description), 0);
    EXPECT_EQ(GetLastError(), ERROR_CLASS_ALREADY_EXISTS);

    const HWND window = CreateWindowExA(0, "contract ONCE", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                        Instance(), nullptr);
    char name[32] = "";
    EXPECT_EQ(GetClassNameA(window, name, sizeof name), 13);
    EXPECT_STREQ(name, "Contract once") << "the name as it was registered";
    EXPECT_TRUE(DestroyWindow(window));
}

TEST_F(Windows, CreationOfAnUnknownClassFails) {
    EXPECT_EQ(CreateWindowExA(0, "Contract never", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, Instance(),
                              nullptr),
              nullptr);
}

TEST_F(Windows, CreationAsksForLimitsThenAnnouncesTheWindowThenItsPlace) {
    HWND inside = nullptr;
    int bVisibleInside = -1;
    Replies[WM_CREATE] = [&](const MSG& arrived) {
        inside = arrived.hwnd;
        bVisibleInside = IsWindowVisible(arrived.hwnd);
        return 0;
    };
    const HWND window = OpenOwn({100, 100, 300, 200}, WS_POPUP | WS_THICKFRAME);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(inside, window) << "WM_CREATE arrives before the call returns";
    EXPECT_EQ(bVisibleInside, 0);
    EXPECT_EQ(SeenOf({WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}),
              (std::vector<UINT>{WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}));
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_EQ(PlaceOf(window), Rect(100, 100, 300, 200));
}

TEST_F(Windows, MinusOneFromWmCreateUndoesTheWindow) {
    HWND inside = nullptr;
    Replies[WM_CREATE] = [&](const MSG& arrived) {
        inside = arrived.hwnd;
        return -1;
    };
    EXPECT_EQ(OpenOwn({100, 100, 300, 200}), nullptr);
    EXPECT_NE(inside, nullptr);
    EXPECT_FALSE(IsWindow(inside));
    EXPECT_EQ(Seen.back().message, WM_NCDESTROY);
}

TEST_F(Windows, ANegativeSizeMakesAWindowWithoutSize) {
    const HWND strip = OpenOwn({-1, -1, -2, -2}, WS_POPUP | WS_BORDER);
    EXPECT_EQ(PlaceOf(strip), Rect(-1, -1, -1, -1));
    RECT client;
    EXPECT_TRUE(GetClientRect(strip, &client));
    EXPECT_EQ(client, Rect(0, 0, 0, 0));
}

TEST_F(Windows, AWindowEndsOnceAndOnlyByItsOwnProgram) {
    const HWND window = OpenOwn({100, 100, 300, 200});
    SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(window)) << "the default answer to WM_CLOSE ends the window";
    EXPECT_EQ(SeenOf({WM_CLOSE, WM_DESTROY, WM_NCDESTROY}),
              (std::vector<UINT>{WM_CLOSE, WM_DESTROY, WM_NCDESTROY}));
    EXPECT_FALSE(DestroyWindow(window));

    const HWND stranger = OpenStranger("stays", {200, 200, 500, 400});
    EXPECT_FALSE(DestroyWindow(stranger));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_TRUE(IsWindow(stranger));
}

TEST_F(Windows, WhatIsGoneAnswersNoToEverything) {
    const HWND gone = OpenOwn({100, 100, 300, 200});
    DestroyWindow(gone);
    char text[8] = "x";
    RECT place{1, 2, 3, 4};
    EXPECT_FALSE(IsWindow(gone));
    EXPECT_FALSE(IsWindowVisible(gone));
    EXPECT_FALSE(IsWindowEnabled(gone));
    EXPECT_FALSE(IsIconic(gone));
    EXPECT_FALSE(IsZoomed(gone));
    EXPECT_FALSE(GetWindowRect(gone, &place));
    EXPECT_EQ(place, Rect(1, 2, 3, 4)) << "what was in the record stays";
    EXPECT_FALSE(MoveWindow(gone, 0, 0, 10, 10, TRUE));
    EXPECT_FALSE(ShowWindow(gone, SW_SHOW));
    EXPECT_FALSE(SetForegroundWindow(gone));
    EXPECT_EQ(GetClassNameA(gone, text, sizeof text), 0);
    EXPECT_EQ(GetWindowTextA(gone, text, sizeof text), 0);
    EXPECT_STREQ(text, "") << "a text that is not to be had is emptied";
    EXPECT_EQ(SendMessageA(gone, WM_USER, 0, 0), 0);
    SetLastError(0);
    EXPECT_FALSE(PostMessageA(gone, WM_USER, 0, 0));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
    EXPECT_FALSE(IsWindow(nullptr));
    EXPECT_FALSE(IsWindowEnabled(nullptr));
}

TEST_F(Windows, EnumerationGoesFromTheTopAndTellsHiddenOnesToo) {
    const HWND below = OpenStranger("below", {10, 10, 300, 200});
    const HWND hidden = OpenOwn({20, 20, 310, 210});
    const HWND above = OpenStranger("above", {30, 30, 320, 220});
    EXPECT_EQ(Order({below, hidden, above}), (std::vector{above, hidden, below}));

    EXPECT_TRUE(BringWindowToTop(hidden));
    EXPECT_EQ(Order({below, hidden, above}), (std::vector{hidden, above, below}));

    const HWND always = OpenOwn({40, 40, 80, 80}, WS_POPUP, WS_EX_TOPMOST);
    EXPECT_TRUE(BringWindowToTop(hidden));
    EXPECT_EQ(Order({below, hidden, above, always}), (std::vector{always, hidden, above, below}))
        << "a topmost window stays above the others";

    DestroyWindow(hidden);
    EXPECT_EQ(Order({below, hidden, above}), (std::vector{above, below}));
    EXPECT_TRUE(Order({GetDesktopWindow()}).empty());
}

TEST_F(Windows, WhatATopmostWindowOwnsIsTopmostWithIt) {
    const HWND owner = OpenOwn({40, 40, 80, 80}, WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST);
    const HWND owned = CreateWindowExA(0, "Contract", "owned", WS_POPUP | WS_VISIBLE, 50, 50, 20, 20, owner,
                                       nullptr, Instance(), nullptr);
    EXPECT_TRUE(GetWindowLongPtrA(owned, GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_EQ(Order({owner, owned}), (std::vector{owned, owner}));
    DestroyWindow(owned);
}

static BOOL CALLBACK CountTwo(HWND, LPARAM count) {
    return ++*reinterpret_cast<int*>(count) < 2;
}

static BOOL CALLBACK EndTheOther(HWND window, LPARAM parameter) {
    auto& pair = *reinterpret_cast<std::vector<HWND>*>(parameter);
    if (window == pair[0])
        DestroyWindow(pair[1]);
    if (window == pair[1])
        pair.push_back(window);
    return TRUE;
}

TEST_F(Windows, EnumerationStopsAtZeroAndPassesOverWhatEndsMeanwhile) {
    const HWND second = OpenOwn({10, 10, 300, 200});
    const HWND first = OpenOwn({20, 20, 310, 210});
    int count = 0;
    EXPECT_FALSE(EnumWindows(CountTwo, reinterpret_cast<LPARAM>(&count)));
    EXPECT_EQ(count, 2);

    std::vector<HWND> pair{first, second};
    EXPECT_TRUE(EnumWindows(EndTheOther, reinterpret_cast<LPARAM>(&pair)));
    EXPECT_EQ(pair.size(), 2U);
}

TEST_F(Windows, AWindowIsFoundByClassAndTitleInAnyCase) {
    EXPECT_EQ(FindWindowA("Contract", "Wanted"), nullptr);
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP, 0, "Wanted");
    EXPECT_EQ(FindWindowA("Contract", "Wanted"), window);
    EXPECT_EQ(FindWindowA("contract", "wanted"), window);
    EXPECT_EQ(FindWindowA("Contract", "Want"), nullptr);
}

TEST_F(Windows, TextsAreCutAtTheLimit) {
    for (const HWND window : {OpenOwn({10, 10, 300, 200}, WS_POPUP, 0, "a-long-title"),
                              OpenStranger("a-long-title", {10, 10, 300, 200})}) {
        char text[32] = "";
        EXPECT_EQ(GetWindowTextA(window, text, sizeof text), 12);
        EXPECT_STREQ(text, "a-long-title");
        EXPECT_EQ(GetWindowTextA(window, text, 7), 6);
        EXPECT_STREQ(text, "a-long");
        EXPECT_EQ(GetClassNameA(window, text, 5), 4);
        EXPECT_EQ(std::string(text).size(), 4U);
        EXPECT_EQ(GetClassNameA(window, text, 0), 0);
    }
}

TEST_F(Windows, StylesAndInstanceCanBeReadBack) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP | WS_THICKFRAME, WS_EX_TOOLWINDOW);
    const auto style = [window] { return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)); };
    EXPECT_EQ(style() & (WS_POPUP | WS_THICKFRAME | WS_VISIBLE | WS_DISABLED), WS_POPUP | WS_THICKFRAME);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongPtrA(window, GWL_EXSTYLE)) & WS_EX_TOOLWINDOW,
              WS_EX_TOOLWINDOW);
    EXPECT_EQ(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(window, GWLP_HINSTANCE)), Instance());

    EXPECT_FALSE(EnableWindow(window, FALSE)) << "it was not disabled before";
    EXPECT_FALSE(IsWindowEnabled(window));
    EXPECT_NE(style() & WS_DISABLED, 0U);
    EXPECT_TRUE(EnableWindow(window, TRUE)) << "it was disabled before";
    EXPECT_TRUE(IsWindowEnabled(window));
}

TEST_F(Windows, OnlyALayeredWindowTakesAnOpacity) {
    const HWND layered = OpenOwn({10, 10, 300, 200}, WS_POPUP, WS_EX_LAYERED);
    const HWND plain = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    EXPECT_TRUE(SetLayeredWindowAttributes(layered, 0, 128, LWA_ALPHA));
    EXPECT_FALSE(SetLayeredWindowAttributes(plain, 0, 128, LWA_ALPHA));
}

TEST_F(Windows, TheDesktopWindowIsTheScreen) {
    const HWND desktop = GetDesktopWindow();
    ASSERT_TRUE(IsWindow(desktop));
    EXPECT_EQ(PlaceOf(desktop), Rect(0, 0, 1024, 768));
    char name[16];
    EXPECT_EQ(GetClassNameA(desktop, name, sizeof name), 6);
    EXPECT_STREQ(name, "#32769");
}

} // namespace
