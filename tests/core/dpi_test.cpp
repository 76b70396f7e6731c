// Sizes on scaled displays.
#include "dialogs/dialog_test.h"
#include "dialogs/spinner.h"
#include "settings/settings_test.h"
#include "status/status_strip.h"

#include <algorithm>

class ScaledDisplay : public DialogTest {
  protected:
    void SetUp() override { PrepareDesk(); } // the cases start Quorl

    SIZE SpinnerSize() const {
        const RECT rect = RectOf(Item(IDC_OPTIONS_WIDTH_SPINNER));
        return {Width(rect), Height(rect)};
    }
    std::vector<LPARAM> ColumnWidths() {
        Open(ACTION_DEFINE_ACTIONS);
        std::vector<LPARAM> widths;
        for (const DeskItem& column : Control(IDC_ACTIONS_LIST).columns)
            widths.push_back(column.data);
        return widths;
    }
};

static int StripFontHeight() {
    return static_cast<const DeskObject*>(Desk.drawCalls.back().font)->height;
}

TEST_F(ScaledDisplay, ScalesMapStripSpinnerAndColumnsByItsOwnDpi) {
    InstallDpiFunctions();
    Desk.pixelsPerInch = 120; // of the primary display at log-on
    Desk.displays = {{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}, "", 144}};
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(RectOf(MainWnd), Rect(100, 100, 400, 250));
    EXPECT_EQ(ColumnWidths(), (std::vector<LPARAM>{180, 375}));
    Open(ACTION_OPTIONS);
    EXPECT_EQ(SpinnerSize().cx + SpinnerSize().cy, 22 + 31);
    ShowTip("one");
    EXPECT_EQ(RectOf(TipWnd), Rect(100, 76, 400, 100));
    EXPECT_EQ(StripFontHeight(), 21);
    ChangeDisplays({{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}, "", 192}});
    EXPECT_EQ(RectOf(TipWnd), Rect(100, 68, 400, 100));
    HandleMessages();
    EXPECT_EQ(SpinnerSize().cx + SpinnerSize().cy, 30 + 42);
    ShowTip("two");
    EXPECT_EQ(StripFontHeight(), 28);
    EXPECT_EQ(RectOf(MainWnd), Rect(100, 100, 400, 250)) << "only the first size is scaled";
    const auto isFont = [](const DeskObject& object) {
        return object.live && object.kind == DeskObjectKind::Font;
    };
    EXPECT_EQ(std::count_if(Desk.objects.begin(), Desk.objects.end(), isFont), 2)
        << "the strip's and the system's";
}
