// What waits to be painted, and texts.
#include "contract/contract_test.h"

#include <cstring>

namespace {

const RECT NOWHERE{};

class Painting : public Contract {
  protected:
    HWND window = nullptr;
    HDC context = nullptr;
    RECT area{}; // as BeginPaint told it

    void SetUp() override {
        Contract::SetUp();
        window = OpenOwn(WS_POPUP, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, {100, 100, 300, 200});
        Replies[WM_PAINT] = [this](const MSG& arrived) {
            PAINTSTRUCT paint;
            EXPECT_NE(BeginPaint(arrived.hwnd, &paint), nullptr);
            area = paint.rcPaint;
            EndPaint(arrived.hwnd, &paint);
            return 0;
        };
        ShowWindow(window, SW_SHOWNOACTIVATE);
        Handle(50);
        Seen.clear();
        context = GetDC(window);
    }

    void TearDown() override {
        EXPECT_TRUE(ReleaseDC(window, context));
        Contract::TearDown();
    }

    // Paints at once what is invalid, and tells where.
    RECT Painted() {
        Seen.clear();
        area = NOWHERE;
        UpdateWindow(window);
        return area;
    }
};

TEST_F(Painting, InvalidPartsAddUpAndAreErasedInsideBeginPaintWhenOneOfThemAsks) {
    const RECT first{10, 10, 20, 20};
    const RECT second{30, 5, 50, 25};
    InvalidateRect(window, &first, FALSE);
    EXPECT_TRUE(Seen.empty()) << "to be invalid is only a note";
    EXPECT_EQ(Painted(), first);
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), Kinds{WM_PAINT});

    InvalidateRect(window, &first, TRUE);
    InvalidateRect(window, &second, FALSE);
    EXPECT_EQ(Painted(), Rect(10, 5, 50, 25));
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), (Kinds{WM_PAINT, WM_ERASEBKGND}));
    EXPECT_EQ(Painted(), NOWHERE) << "nothing is invalid any more";
}

TEST_F(Painting, AWindowIsPaintedWhenItShowsAndAtAnotherSizeButNotAtAnotherPlace) {
    ShowWindow(window, SW_HIDE);
    InvalidateRect(window, nullptr, TRUE);
    EXPECT_EQ(Painted(), NOWHERE);
    Handle(30);
    EXPECT_EQ(area, NOWHERE);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    EXPECT_EQ(Painted(), Rect(0, 0, 200, 100));
    MoveWindow(window, 150, 120, 200, 100, TRUE);
    EXPECT_EQ(Painted(), NOWHERE) << "the picture moves along";
    MoveWindow(window, 150, 120, 250, 100, TRUE);
    EXPECT_EQ(Painted(), Rect(0, 0, 250, 100));
}

TEST_F(Painting, ATextHasTheExtentOfItsCharactersAndAnEmptyOneNone) {
    SIZE none{9, 9}, one{}, four{};
    EXPECT_TRUE(GetTextExtentPoint32A(context, "", 0, &none));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "H", 1, &one));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "HHHH", 4, &four));
    EXPECT_TRUE(none.cx == 0 && none.cy == 0);
    EXPECT_TRUE(one.cy > 5 && four.cx == 4 * one.cx);
}

TEST_F(Painting, ATextTooLongForItsPlaceEndsInAnEllipsisAlsoInItsStore) {
    char texts[][128] = {"Hi & so", "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH"};
    for (char(&text)[128] : texts) {
        RECT rect{2, 0, 180, 16};
        EXPECT_GT(DrawTextExA(context, text, static_cast<int>(std::strlen(text)), &rect,
                              DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr),
                  5);
    }
    EXPECT_STREQ(texts[0], "Hi & so");
    const std::string drawn = texts[1];
    EXPECT_TRUE(drawn.size() > 8 && drawn.size() < 60) << drawn;
    EXPECT_TRUE(drawn.ends_with("H...")) << drawn;
}

} // namespace
