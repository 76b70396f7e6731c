// What waits to be painted, and texts.
#include "contract/contract_test.h"

#include <cstring>

namespace {

class Repaint : public Contract {
  protected:
    HWND window = nullptr;
    RECT area{};   // as BeginPaint told it
    BOOL bErase{}; // nobody has erased

    void SetUp() override {
        Contract::SetUp();
        window = OpenOwn({100, 100, 300, 200}, WS_POPUP);
        Replies[WM_PAINT] = [this](const MSG& arrived) {
            PAINTSTRUCT paint;
            EXPECT_NE(BeginPaint(arrived.hwnd, &paint), nullptr);
            area = paint.rcPaint;
            bErase = paint.fErase;
            EndPaint(arrived.hwnd, &paint);
            return 0;
        };
    }

    void Show() {
        ShowWindow(window, SW_SHOWNOACTIVATE);
        Handle(50);
        Seen.clear();
    }
};

TEST_F(Repaint, UpdatePaintsAtOnceAndErasesInsideBeginPaint) {
    Show();
    EXPECT_TRUE(InvalidateRect(window, nullptr, TRUE));
    EXPECT_TRUE(Seen.empty()) << "to be invalid is only a note";
    EXPECT_TRUE(UpdateWindow(window));
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), (std::vector<UINT>{WM_PAINT, WM_ERASEBKGND}));
    EXPECT_EQ(area, Rect(0, 0, 200, 100));
    EXPECT_FALSE(bErase) << "the default answer to WM_ERASEBKGND has erased";

    Seen.clear();
    EXPECT_TRUE(UpdateWindow(window));
    EXPECT_TRUE(Seen.empty()) << "nothing is invalid any more";

    Replies[WM_ERASEBKGND] = [](const MSG&) { return 0; };
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
    EXPECT_TRUE(bErase) << "its procedure did not want to";
}

TEST_F(Repaint, PartsThatAreInvalidAddUpAndEraseWhenOneOfThemAsks) {
    Show();
    const RECT first{10, 10, 20, 20};
    const RECT second{30, 5, 50, 15};
    InvalidateRect(window, &first, FALSE);
    UpdateWindow(window);
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), (std::vector<UINT>{WM_PAINT}));
    EXPECT_EQ(area, first);

    Seen.clear();
    InvalidateRect(window, &first, TRUE);
    InvalidateRect(window, &second, FALSE);
    UpdateWindow(window);
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), (std::vector<UINT>{WM_PAINT, WM_ERASEBKGND}));
    EXPECT_EQ(area, Rect(10, 5, 50, 20));
}

TEST_F(Repaint, AHiddenWindowPaintsNothingUntilItShows) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
    Handle(30);
    EXPECT_TRUE(SeenOf({WM_PAINT}).empty());
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    EXPECT_EQ(SeenOf({WM_PAINT}).size(), 1U);
    EXPECT_EQ(area, Rect(0, 0, 200, 100));
}

TEST_F(Repaint, AnotherSizeIsPaintedAnotherPlaceIsNot) {
    Show();
    MoveWindow(window, 150, 120, 200, 100, TRUE);
    UpdateWindow(window);
    EXPECT_TRUE(SeenOf({WM_PAINT}).empty()) << "the picture moves along";
    MoveWindow(window, 150, 120, 250, 100, TRUE);
    UpdateWindow(window);
    EXPECT_EQ(SeenOf({WM_PAINT}).size(), 1U);
    EXPECT_EQ(SeenOf({WM_ERASEBKGND}).size(), 1U);
    EXPECT_EQ(area, Rect(0, 0, 250, 100));
}

TEST_F(Repaint, ATextHasTheExtentOfItsCharactersAndAnEmptyOneNone) {
    const HDC context = GetDC(window);
    ASSERT_NE(context, nullptr);
    SIZE empty{9, 9};
    SIZE one{};
    SIZE four{};
    EXPECT_TRUE(GetTextExtentPoint32A(context, "", 0, &empty));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "H", 1, &one));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "HHHH", 4, &four));
    EXPECT_EQ(empty.cx, 0);
    EXPECT_EQ(empty.cy, 0);
    EXPECT_GT(one.cx, 0);
    EXPECT_GT(one.cy, 5);
    EXPECT_EQ(four.cx, 4 * one.cx);
    EXPECT_EQ(four.cy, one.cy);
    EXPECT_EQ(ReleaseDC(window, context), 1);
}

TEST_F(Repaint, ATextTooLongForItsPlaceEndsInAnEllipsisAlsoInItsStore) {
    Show();
    const HDC context = GetDC(window);
    constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING;
    char fits[32] = "Hi & so";
    RECT rect{2, 0, 180, 16};
    EXPECT_GT(DrawTextExA(context, fits, static_cast<int>(std::strlen(fits)), &rect, format, nullptr), 5);
    EXPECT_STREQ(fits, "Hi & so");

    char tooLong[128] = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";
    rect = {2, 0, 180, 16};
    DrawTextExA(context, tooLong, static_cast<int>(std::strlen(tooLong)), &rect, format, nullptr);
    const std::string drawn = tooLong;
    EXPECT_LT(drawn.size(), 60U);
    EXPECT_GT(drawn.size(), 8U);
    EXPECT_EQ(drawn.substr(drawn.size() - 4), "H...");
    ReleaseDC(window, context);
}

TEST_F(Repaint, AFontIsSelectedAndDeletedAndSystemBrushesStay) {
    const HFONT font = CreateFontA(14, 0, 0, 0, FW_LIGHT, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    ASSERT_NE(font, nullptr);
    const HDC context = GetDC(window);
    const HGDIOBJ before = SelectObject(context, font);
    EXPECT_NE(before, nullptr);
    EXPECT_EQ(SelectObject(context, before), font);
    EXPECT_NE(SetBkMode(context, TRANSPARENT), 0);
    EXPECT_EQ(SetBkMode(context, TRANSPARENT), TRANSPARENT) << "the mode that was";
    ReleaseDC(window, context);
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_EQ(GetSysColorBrush(COLOR_INFOBK), GetSysColorBrush(COLOR_INFOBK));
}

} // namespace
