// Invalid regions and text extents.
#include "contract/contract_test.h"

namespace {

class Painting : public Contract {
  protected:
    HWND window = nullptr;
    RECT area{}; // rcPaint of the last WM_PAINT

    void SetUp() override {
        Contract::SetUp();
        window = OpenOwn(WS_POPUP, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, {100, 100, 300, 200});
        Handlers[WM_PAINT] = [this](const MSG& received) {
            PAINTSTRUCT paint;
            EXPECT_NE(BeginPaint(received.hwnd, &paint), nullptr);
            area = paint.rcPaint;
            EndPaint(received.hwnd, &paint);
            return 0;
        };
        ShowWindow(window, SW_SHOWNOACTIVATE);
        HandleFor(50);
        Received.clear();
    }

    // Paints what is invalid, and returns its bounds; zeros if nothing is.
    RECT Painted() {
        Received.clear();
        area = {};
        UpdateWindow(window);
        return area;
    }
};

TEST_F(Painting, InvalidPartsAddUpAndAMoveNeedsNoPaint) {
    const RECT first{10, 10, 20, 20};
    const RECT second{30, 5, 50, 25};
    InvalidateRect(window, &first, FALSE);
    EXPECT_TRUE(Received.empty()) << "nothing is sent yet";
    EXPECT_EQ(Painted(), first);
    EXPECT_EQ(ReceivedOf({WM_PAINT, WM_ERASEBKGND}), Numbers{WM_PAINT});
    InvalidateRect(window, &first, TRUE);
    InvalidateRect(window, &second, FALSE);
    EXPECT_EQ(Painted(), (RECT{10, 5, 50, 25}));
    EXPECT_EQ(ReceivedOf({WM_PAINT, WM_ERASEBKGND}), (Numbers{WM_PAINT, WM_ERASEBKGND}));
    MoveWindow(window, 150, 120, 200, 100, TRUE);
    EXPECT_EQ(Painted(), RECT{});
    MoveWindow(window, 150, 120, 250, 100, TRUE);
    EXPECT_EQ(Painted(), (RECT{0, 0, 250, 100})) << "a new size invalidates all";
}

TEST_F(Painting, TextExtentAddsUpAndALongTextEndsInAnEllipsis) {
    const HDC context = GetDC(window);
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 96) << "a display that is not scaled";
    SIZE one{}, four{};
    EXPECT_TRUE(GetTextExtentPoint32A(context, "H", 1, &one));
    EXPECT_TRUE(GetTextExtentPoint32A(context, "HHHH", 4, &four));
    EXPECT_TRUE(one.cy > 5 && four.cx == 4 * one.cx);
    const std::string all(60, 'H');
    std::string text = all + std::string(68, '\0'); // room that DT_MODIFYSTRING needs
    RECT rect{2, 0, 180, 16};
    constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING;
    EXPECT_GT(DrawTextExA(context, text.data(), static_cast<int>(all.size()), &rect, format, nullptr), 5);
    const std::string drawn = text.substr(0, text.find('\0'));
    EXPECT_TRUE(drawn.size() > 8 && drawn.size() < all.size() && drawn.ends_with("H...")) << drawn;
    EXPECT_TRUE(ReleaseDC(window, context));
}

} // namespace
