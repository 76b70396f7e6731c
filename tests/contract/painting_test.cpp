// What waits to be painted; which pixels a line or a rectangle takes, and which it leaves to its neighbour;
// texts.
#include "contract/contract_test.h"

namespace {

const RECT NOWHERE{};
constexpr COLORREF BLACK = 0, WHITE = 0xffffff, RED = 0x0000ff;

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
        ASSERT_TRUE(Rectangle(context, -1, -1, 201, 101)); // white all over
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

    COLORREF At(int x, int y) const { return GetPixel(context, x, y); }
};

TEST_F(Painting, InvalidPartsAddUpAndAMovedPictureNeedsNoPaint) {
    const RECT first{10, 10, 20, 20};
    const RECT second{30, 5, 50, 25};
    InvalidateRect(window, &first, FALSE);
    EXPECT_TRUE(Seen.empty()) << "to be invalid is only a note";
    EXPECT_EQ(Painted(), first);
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), Numbers{WM_PAINT});
    InvalidateRect(window, &first, TRUE);
    InvalidateRect(window, &second, FALSE);
    EXPECT_EQ(Painted(), (RECT{10, 5, 50, 25}));
    EXPECT_EQ(SeenOf({WM_PAINT, WM_ERASEBKGND}), (Numbers{WM_PAINT, WM_ERASEBKGND}));
    MoveWindow(window, 150, 120, 200, 100, TRUE);
    EXPECT_EQ(Painted(), NOWHERE);
    MoveWindow(window, 150, 120, 250, 100, TRUE);
    EXPECT_EQ(Painted(), (RECT{0, 0, 250, 100})) << "another size is another picture";
}

TEST_F(Painting, ARectangleAndALineLeaveTheirFarEndsOutAndTheMixInvertsBlackOnWhite) {
    const HBRUSH brush = CreateSolidBrush(RED);
    const HGDIOBJ white = SelectObject(context, brush);
    ASSERT_TRUE(Rectangle(context, 10, 10, 20, 20));
    SelectObject(context, white);
    EXPECT_TRUE(DeleteObject(brush));
    EXPECT_TRUE(At(10, 10) == BLACK && At(19, 19) == BLACK && At(15, 15) == RED);
    EXPECT_TRUE(At(20, 20) == WHITE && At(9, 15) == WHITE);

    const auto drawLine = [this] { return MoveToEx(context, 5, 5, nullptr) && LineTo(context, 15, 5); };
    EXPECT_EQ(SetROP2(context, R2_MERGEPENNOT), R2_COPYPEN);
    EXPECT_TRUE(drawLine());
    EXPECT_TRUE(At(5, 5) == BLACK && At(14, 5) == BLACK && At(15, 5) == WHITE);
    EXPECT_TRUE(drawLine());
    EXPECT_EQ(At(10, 5), WHITE) << "and back";
    SetROP2(context, R2_COPYPEN);
    const HPEN pen = CreatePen(PS_SOLID, 1, RED);
    const HGDIOBJ black = SelectObject(context, pen);
    EXPECT_TRUE(drawLine());
    SelectObject(context, black);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(At(10, 5), RED);
}

TEST_F(Painting, AFocusRectangleTakesEverySecondPixelAndASecondOneTakesItBack) {
    const RECT box{10, 10, 30, 20};
    ASSERT_TRUE(DrawFocusRect(context, &box));
    EXPECT_NE(At(14, 10), At(15, 10));
    EXPECT_NE(At(29, 14), At(29, 15));
    EXPECT_TRUE(At(30, 14) == WHITE && At(15, 15) == WHITE) << "no inside";
    ASSERT_TRUE(DrawFocusRect(context, &box));
    for (int x = 9; x <= 30; ++x)
        EXPECT_EQ(At(x, 10), WHITE) << x;
}

TEST_F(Painting, ATextHasTheExtentOfItsCharactersAndEndsInAnEllipsisWhenThatIsTooMuch) {
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 96) << "a display that is not scaled";
    SIZE one{}, four{};
    EXPECT_TRUE(GetTextExtentPoint32A(context, "H", 1, &one));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "HHHH", 4, &four));
    EXPECT_TRUE(one.cy > 5 && four.cx == 4 * one.cx);
    char text[128] = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";
    const std::string all = text;
    RECT rect{2, 0, 180, 16};
    constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING;
    EXPECT_GT(DrawTextExA(context, text, static_cast<int>(all.size()), &rect, format, nullptr), 5);
    const std::string drawn = text;
    EXPECT_TRUE(drawn.size() > 8 && drawn.size() < all.size() && drawn.ends_with("H...")) << drawn;
}

} // namespace
