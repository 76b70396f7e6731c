// Which pixels a line or a rectangle takes, and which it leaves to its neighbour.
#include "contract/contract_test.h"

namespace {

constexpr COLORREF BLACK = 0;
constexpr COLORREF WHITE = 0xffffff;
constexpr COLORREF RED = 0x0000ff;

class Pixels : public Contract {
  protected:
    HWND window = nullptr;
    HDC context = nullptr;

    void SetUp() override {
        Contract::SetUp();
        window = OpenOwn(WS_POPUP, WS_EX_TOPMOST | WS_EX_TOOLWINDOW);
        ShowWindow(window, SW_SHOWNOACTIVATE);
        UpdateWindow(window);
        context = GetDC(window);
        ASSERT_TRUE(Rectangle(context, -1, -1, 100, 100)); // white all over
    }

    void TearDown() override {
        EXPECT_TRUE(ReleaseDC(window, context));
        Contract::TearDown();
    }

    COLORREF At(int x, int y) const { return GetPixel(context, x, y); }

    void DrawLine() const {
        MoveToEx(context, 5, 5, nullptr);
        LineTo(context, 15, 5);
    }
};

TEST_F(Pixels, ARectangleHasAFrameByThePenAnInsideByTheBrushAndLeavesItsFarSidesOut) {
    const HBRUSH red = CreateSolidBrush(RED);
    const HGDIOBJ before = SelectObject(context, red);
    ASSERT_TRUE(Rectangle(context, 10, 10, 20, 20));
    SelectObject(context, before);
    EXPECT_TRUE(DeleteObject(red));
    EXPECT_EQ(At(10, 10), BLACK);
    EXPECT_EQ(At(19, 19), BLACK);
    EXPECT_EQ(At(15, 15), RED);
    EXPECT_EQ(At(20, 20), WHITE);
    EXPECT_EQ(At(9, 15), WHITE);
}

TEST_F(Pixels, ALineLeavesItsEndOutAndInvertsBlackOnWhiteAndBackWhenTheMixSaysSo) {
    EXPECT_EQ(SetROP2(context, R2_MERGEPENNOT), R2_COPYPEN);
    DrawLine();
    EXPECT_EQ(At(5, 5), BLACK);
    EXPECT_EQ(At(14, 5), BLACK);
    EXPECT_EQ(At(15, 5), WHITE);
    DrawLine();
    EXPECT_EQ(At(10, 5), WHITE);

    EXPECT_EQ(SetROP2(context, R2_COPYPEN), R2_MERGEPENNOT);
    const HPEN red = CreatePen(PS_SOLID, 1, RED);
    const HGDIOBJ before = SelectObject(context, red);
    DrawLine();
    SelectObject(context, before);
    EXPECT_TRUE(DeleteObject(red));
    EXPECT_EQ(At(10, 5), RED);
}

TEST_F(Pixels, AFocusRectangleTakesEverySecondPixelAndASecondOneTakesItBack) {
    const RECT box{10, 10, 30, 20};
    ASSERT_TRUE(DrawFocusRect(context, &box));
    EXPECT_NE(At(14, 10), At(15, 10));
    EXPECT_NE(At(29, 14), At(29, 15));
    EXPECT_EQ(At(30, 14), WHITE);
    EXPECT_EQ(At(15, 15), WHITE) << "no inside";
    ASSERT_TRUE(DrawFocusRect(context, &box));
    for (int x = 9; x <= 30; ++x)
        EXPECT_EQ(At(x, 10), WHITE) << x;
}

} // namespace
