// Text in UTF-16, and drawing through a bitmap.
#include "contract/contract_test.h"

#include <string>

namespace {

using Text = Contract;

TEST_F(Text, AListBoxOfADialogCreatedByAnACallKeepsUtf16) {
    constexpr int list = 1061;
    const std::wstring text = L"\u0416\u6f22 a";
    const HWND box = GetDlgItem(OpenTemplate(116), list);
    EXPECT_EQ(SendMessageW(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())), 0);
    WCHAR read[16] = {};
    EXPECT_EQ(SendMessageW(box, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(read)), 4);
    EXPECT_EQ(read, text);
}

TEST_F(Text, AWindowHasOneTitleForBothKindsOfCalls) {
    const HWND window = OpenOwn();
    EXPECT_TRUE(SetWindowTextW(window, L"a title"));
    char ansi[16] = "";
    WCHAR wide[16] = {};
    EXPECT_EQ(GetWindowTextA(window, ansi, sizeof ansi), 7);
    EXPECT_EQ(GetWindowTextW(window, wide, 4), 3);
    EXPECT_STREQ(ansi, "a title");
    EXPECT_EQ(wide, std::wstring(L"a t"));
}

TEST_F(Text, ABitmapIsCopiedToAWindow) {
    const HWND window = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST);
    HandleFor(100);
    const HDC screen = GetDC(window);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 20, 20);
    const HBRUSH brush = CreateSolidBrush(RGB(10, 200, 30));
    const HGDIOBJ before = SelectObject(memory, bitmap);
    const HGDIOBJ noBrush = SelectObject(memory, brush);
    const HGDIOBJ blackPen = SelectObject(memory, GetStockObject(WHITE_PEN));
    Rectangle(memory, 0, 0, 20, 20);
    EXPECT_TRUE(BitBlt(screen, 0, 0, 20, 20, memory, 0, 0, SRCCOPY));
    EXPECT_EQ(GetPixel(screen, 10, 10), COLORREF{RGB(10, 200, 30)});
    EXPECT_EQ(GetPixel(screen, 0, 10), COLORREF{RGB(255, 255, 255)});
    SelectObject(memory, blackPen);
    SelectObject(memory, noBrush);
    SelectObject(memory, before);
    EXPECT_TRUE(DeleteObject(bitmap) && DeleteObject(brush) && DeleteDC(memory));
    EXPECT_TRUE(ReleaseDC(window, screen));
}

} // namespace
