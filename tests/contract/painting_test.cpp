// What the map expects of drawing: where lines and rectangles end, what tools a fresh context has, the order
// of erasing and painting.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

constexpr COLORREF BLACK = 0;
constexpr COLORREF WHITE = 0xffffff;
constexpr COLORREF RED = 0x0000ff;
constexpr RECT CLIENT{0, 0, 60, 40}; // of a window without a frame, at that size

std::string Happened;
COLORREF AtPaint;

LRESULT CALLBACK CanvasProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        Happened += "erase ";
        Rectangle(reinterpret_cast<HDC>(wParam), 0, 0, CLIENT.right, CLIENT.bottom);
        return 1;
    }
    if (message != WM_PAINT)
        return DefWindowProcA(window, message, wParam, lParam);
    Happened += "begin ";
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(window, &paint);
    Happened += "draw ";
    AtPaint = GetPixel(context, 20, 20);
    MoveToEx(context, 0, 20, nullptr);
    LineTo(context, CLIENT.right, 20);
    EndPaint(window, &paint);
    return 0;
}

class Painting : public testing::Test {
  protected:
    HWND window = nullptr;
    HDC context = nullptr;
    HBRUSH background = nullptr;

    void SetUp() override {
        background = GetSysColorBrush(COLOR_BACKGROUND);
        WNDCLASSA description{};
        description.lpfnWndProc = CanvasProc;
        description.hbrBackground = background;
        description.lpszClassName = "Canvas";
        RegisterClassA(&description);
        window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "Canvas", "Canvas", WS_POPUP, 100, 100,
                                 CLIENT.right, CLIENT.bottom, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(window, nullptr);
        ShowWindow(window, SW_SHOWNOACTIVATE);
        UpdateWindow(window);
        context = GetDC(window);
        ASSERT_TRUE(Rectangle(context, -1, -1, 100, 100)); // white all over
    }

    void TearDown() override {
        EXPECT_TRUE(ReleaseDC(window, context));
        EXPECT_TRUE(DestroyWindow(window));
    }

    COLORREF At(int x, int y) const { return GetPixel(context, x, y); }
};

TEST_F(Painting, ARectangleHasABlackFrameAWhiteInsideAndLeavesItsFarSidesOut) {
    const HBRUSH red = CreateSolidBrush(RED);
    const HGDIOBJ before = SelectObject(context, red);
    ASSERT_TRUE(Rectangle(context, 10, 10, 20, 20));
    EXPECT_EQ(SelectObject(context, before), red);
    EXPECT_EQ(At(10, 10), BLACK);
    EXPECT_EQ(At(19, 19), BLACK);
    EXPECT_EQ(At(15, 15), RED);
    EXPECT_EQ(At(20, 20), WHITE);
    EXPECT_EQ(At(9, 15), WHITE);
    EXPECT_TRUE(Rectangle(context, 30, 30, 30, 30)) << "an empty one is no error ...";
    EXPECT_EQ(At(30, 30), WHITE) << "... and draws nothing";
    EXPECT_TRUE(DeleteObject(red));
    EXPECT_FALSE(DeleteObject(red)) << "gone already";
}

TEST_F(Painting, ALineLeavesItsEndOutAndTheNextOneStartsThere) {
    POINT at{-1, -1};
    ASSERT_TRUE(MoveToEx(context, 5, 5, nullptr));
    ASSERT_TRUE(LineTo(context, 15, 5));
    EXPECT_EQ(At(5, 5), BLACK);
    EXPECT_EQ(At(14, 5), BLACK);
    EXPECT_EQ(At(15, 5), WHITE);
    ASSERT_TRUE(MoveToEx(context, 0, 0, &at));
    EXPECT_EQ(at.x, 15);
    EXPECT_EQ(at.y, 5);
}

TEST_F(Painting, MergingABlackPenWithTheInvertedGroundInvertsIt) {
    EXPECT_EQ(SetROP2(context, R2_MERGEPENNOT), R2_COPYPEN);
    ASSERT_TRUE(MoveToEx(context, 5, 5, nullptr));
    ASSERT_TRUE(LineTo(context, 15, 5));
    EXPECT_EQ(At(10, 5), BLACK);
    ASSERT_TRUE(MoveToEx(context, 5, 5, nullptr));
    ASSERT_TRUE(LineTo(context, 15, 5));
    EXPECT_EQ(At(10, 5), WHITE);
    EXPECT_EQ(SetROP2(context, R2_COPYPEN), R2_MERGEPENNOT);
}

TEST_F(Painting, AFocusRectangleDrawnTwiceIsGone) {
    const RECT box{10, 10, 30, 20};
    ASSERT_TRUE(DrawFocusRect(context, &box));
    EXPECT_NE(At(14, 10), At(15, 10)) << "every second pixel";
    EXPECT_NE(At(29, 14), At(29, 15));
    EXPECT_EQ(At(30, 14), WHITE);
    EXPECT_EQ(At(15, 15), WHITE) << "no inside";
    ASSERT_TRUE(DrawFocusRect(context, &box));
    for (int x = 9; x <= 30; ++x)
        EXPECT_EQ(At(x, 10), WHITE) << x;
}

TEST_F(Painting, ASelectedPenDrawsAndTheOldOneComesBack) {
    const HPEN pen = CreatePen(PS_SOLID, 1, RED);
    const HGDIOBJ before = SelectObject(context, pen);
    ASSERT_NE(before, nullptr) << "a fresh context has a pen";
    ASSERT_TRUE(MoveToEx(context, 5, 5, nullptr));
    ASSERT_TRUE(LineTo(context, 15, 5));
    EXPECT_EQ(At(10, 5), RED);
    EXPECT_EQ(SelectObject(context, nullptr), nullptr) << "nothing to select";
    EXPECT_EQ(SelectObject(context, before), pen);
    EXPECT_TRUE(DeleteObject(pen));
}

TEST_F(Painting, TheBackgroundIsErasedInsideBeginPaintAndOnlyTheInvalidPartIsDrawn) {
    UpdateWindow(window);
    Happened.clear();
    const RECT part{10, 10, 30, 30};
    ASSERT_TRUE(InvalidateRect(window, &part, TRUE));
    EXPECT_EQ(Happened, "") << "nothing is drawn yet";
    ASSERT_TRUE(UpdateWindow(window));
    EXPECT_EQ(Happened, "begin erase draw ");
    EXPECT_EQ(AtPaint, WHITE);
    EXPECT_EQ(At(10, 20), BLACK);
    EXPECT_EQ(At(29, 20), BLACK);
    EXPECT_EQ(At(9, 20), WHITE) << "clipped";
    EXPECT_EQ(At(30, 20), WHITE);
    EXPECT_EQ(At(0, 0), WHITE) << "and the frame of the background with it";
    Happened.clear();
    ASSERT_TRUE(UpdateWindow(window));
    EXPECT_EQ(Happened, "") << "nothing is invalid any more";
}

TEST_F(Painting, AWindowTellsTheBrushOfItsClassAndItsOwner) {
    EXPECT_EQ(reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND)), background);
    const HWND owned =
        CreateWindowExA(0, "Canvas", "", WS_POPUP, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
    EXPECT_EQ(reinterpret_cast<HWND>(GetWindowLongPtrA(owned, GWLP_HWNDPARENT)), window);
    EnableWindow(window, FALSE);
    EXPECT_TRUE(GetWindowLongPtrA(window, GWL_STYLE) & WS_DISABLED);
    EXPECT_EQ(GetWindowLongPtrA(window, GWLP_HWNDPARENT), 0) << "nobody owns it";
    EXPECT_EQ(GetWindowLongPtrA(nullptr, GWL_STYLE), 0);
}

} // namespace
