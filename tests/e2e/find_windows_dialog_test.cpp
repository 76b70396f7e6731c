// The lists of windows: going to one, and setting its size.
#include "dialogs.h"

#include <set>

namespace {

constexpr int LIST = 1041;

int RowOf(HWND list, const char* title) {
    const std::vector<std::string> texts = ListTexts(list);
    for (std::size_t row = 0; row < texts.size(); ++row)
        if (texts[row] == title)
            return static_cast<int>(row);
    ADD_FAILURE() << "no row " << title;
    return 0;
}

void Choose(HWND dialog, const char* title) {
    const HWND list = Control(dialog, LIST);
    PressRow(list, RowOf(list, title));
}

// Gone from the screen, while the list still names it.
void End(HWND window) {
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitForEnd(window));
}

} // namespace

TEST(FindWindows, TheViewComesToTheChosenWindowAndTheDialogStays) {
    OpenWindow("mail", {100, 300, 300, 500});
    const HWND web = OpenWindow("web", {1800, 900, 2200, 1200});
    OpenWindow("", {300, 300, 500, 500});
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(52, "Find Windows...");
    ASSERT_TRUE(dialog);
    // A set, since the tray's tooltip has no title either.
    const std::vector<std::string> texts = ListTexts(Control(dialog, LIST));
    EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()), (std::set<std::string>{"", "mail", "web"}))
        << "neither the map nor the dialog itself";
    Choose(dialog, "web");
    EXPECT_SOON(GetForegroundWindow(), web);
    EXPECT_SOON(PlaceOf(web), (Place{312, 234, 712, 534})) << "in the middle of the screen";
    EXPECT_TRUE(IsWindowVisible(dialog));

    DoRow(111);
    EXPECT_SOON(GetForegroundWindow(), dialog);
    EXPECT_EQ(TextOf(dialog), "Find Windows...") << "the two share one place";
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(dialog));
    EXPECT_TRUE(OpenByRow(111, "Find Region..."));
}

TEST(FindWindows, AWindowThatHangsOrIsGoneIsNotGoneTo) {
    const HWND mail = OpenWindow("mail", {100, 500, 300, 700});
    OpenWindow("hung", {1800, 300, 2000, 500}, "hung");
    const HWND gone = OpenWindow("gone", {1800, 300, 2000, 500});
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(52, "Find Windows...");
    ASSERT_TRUE(dialog);
    End(gone);
    Choose(dialog, "gone");
    Choose(dialog, "hung");
    EXPECT_EQ(PlaceOf(mail), (Place{100, 500, 300, 700}));
    Choose(dialog, "mail");
    EXPECT_SOON(GetForegroundWindow(), mail) << "Quorl goes on";
}

TEST(ResizeWindows, TheNumbersAreTheSizeOnceTheyAreApplied) {
    const HWND mail = OpenWindow("mail", {500, 100, 800, 300});
    OpenWindow("hung", {500, 500, 700, 700}, "hung");
    const HWND gone = OpenWindow("gone", {500, 400, 700, 500});
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(53, "Resize Windows...");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(ControlText(dialog, 1043), "4096x1536");
    End(gone);
    for (const char* const title : {"hung", "gone", "mail"}) {
        Choose(dialog, title);
        Press(Control(dialog, 2));
    }
    EXPECT_EQ(ControlText(dialog, 1001), "300");
    EXPECT_EQ(ControlText(dialog, 1000), "200");
    TypeOver(Control(dialog, 1001), "350");
    TypeOver(Control(dialog, 1000), "1900");
    PressKeys({VK_RETURN}); // the dialog is offered no keys
    EXPECT_EQ(PlaceOf(mail), (Place{500, 100, 800, 300}));
    TypeOver(Control(dialog, 1000), "250");
    Press(Control(dialog, 2));
    EXPECT_SOON(PlaceOf(mail), (Place{500, 100, 850, 350}));
    CloseBy(dialog, 1044);
}
