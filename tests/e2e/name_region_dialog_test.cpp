// Marking the view's place by hand, and finding the way back to it.
#include "dialogs.h"
#include "settings_file.h"

namespace {

constexpr int CANCEL = 2;
constexpr int NAME = 1025;
constexpr int SWATCH = 1040;

// In the system's own dialog for colours, which asks for a name of its own only in its title.
void ChooseColor(HWND dialog, const char* red, const char* green, const char* blue) {
    PressOnly(Control(dialog, SWATCH));
    const HWND colors = WaitForBox("Color");
    ASSERT_TRUE(colors);
    TypeOver(Control(colors, 706), red);
    TypeOver(Control(colors, 707), green);
    TypeOver(Control(colors, 708), blue);
    CloseBy(colors, IDOK);
}

COLORREF ColorOf(HWND swatch) {
    const Place place = PlaceOf(swatch);
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ReleaseDC(nullptr, screen);
    return color;
}

} // namespace

TEST(NameRegion, TheViewIsMarkedByNameAndColourAndItsDigitComesBackToIt) {
    const HWND editor = OpenWindow("editor", {500, 300, 800, 500});
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(49, "Name Region");
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(IsOn(dialog, 3)) << "Delete";
    PressKeys({VK_RETURN});
    const HWND box = WaitForBox("Fix name");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "That's an invalid name, see.");
    AnswerBox("Fix name", VK_RETURN);

    ChooseColor(dialog, "200", "100", "50");
    EXPECT_SOON(ColorOf(Control(dialog, SWATCH)), COLORREF{RGB(200, 100, 50)});
    TypeOver(Control(dialog, NAME), "Mail 1");
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(dialog));

    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), (Place{-524, 300, -224, 500}));
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '0'});
    EXPECT_SOON(PlaceOf(editor), (Place{500, 300, 800, 500}));

    const HWND again = OpenByRow(49, "Name Region");
    ASSERT_TRUE(again);
    EXPECT_EQ(ControlText(again, NAME), "Mail 1");
    EXPECT_SOON(ColorOf(Control(again, SWATCH)), COLORREF{RGB(200, 100, 50)});
    TypeOver(Control(again, NAME), "other");
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForEnd(again));
    DoRow(47);
    EXPECT_SOON(Stored("Region0"), std::string("Mail 1|0|0|1024|768|3302600"));
}

TEST(NameRegion, WithAllRowsInUseItSaysSoAndNothingIsLost) {
    for (int row = 0; row < 200; ++row) {
        const std::string number = std::to_string(row);
        Store(("Region" + number).c_str(), ("place " + number + "|" + number + "|7|1500|775|0").c_str());
    }
    Store("num_regions", "200");
    const HWND editor = OpenWindow("editor", {500, 300, 800, 500});
    ASSERT_TRUE(StartQuorl());
    const HWND dialog = OpenByRow(49, "Name Region");
    ASSERT_TRUE(dialog);
    TypeOver(Control(dialog, NAME), "more");
    PressOnly(Control(dialog, IDOK));
    AnswerBox("No room", VK_RETURN);
    EXPECT_EQ(ControlText(dialog, NAME), "more") << "the dialog waits for the user to make room";
    CloseBy(dialog, CANCEL);

    const HWND find = OpenByRow(111, "Find Region...");
    ASSERT_TRUE(find);
    const HWND list = Control(find, 1041);
    const std::vector<std::string> texts = ListTexts(list);
    ASSERT_EQ(texts.size(), 200u);
    EXPECT_EQ(texts[1], "place 1");
    EXPECT_EQ(texts[2], "place 10") << "sorted by name";
    PressRow(list, 199);
    EXPECT_SOON(PlaceOf(editor), (Place{401, 293, 701, 493})) << "the view stands at 99, 7";
    CloseBy(find, IDOK);
    DoRow(47);
    EXPECT_SOON(Stored("Region199"), std::string("place 199|199|7|1500|775|0"));
    EXPECT_SOON(Stored("num_regions"), std::string("200")) << "though each key's write makes the file anew";
}
