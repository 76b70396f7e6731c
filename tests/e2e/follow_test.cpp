// The view goes to the active window: once when asked, or always.
#include "user.h"

namespace {

const Place EDITOR = {200, 150, 600, 450};
const Place AWAY = {1524, 234, 2024, 534}; // its middle is that of the screen at 1262, 0

} // namespace

TEST(Follow, OnDemandTheViewGoesToTheActiveWindow) {
    const HWND away = OpenWindow("away", AWAY);
    ASSERT_TRUE(StartQuorl());
    Activate(away);
    DoRow(21);
    EXPECT_SOON(PlaceOf(away), Moved(AWAY, -1262, 0));
    EXPECT_SOON(GetForegroundWindow(), away);
}

TEST(Follow, WhenToldSoTheViewFollowsEveryActivation) {
    const HWND away = OpenWindow("away", AWAY);
    const HWND editor = OpenWindow("editor", EDITOR);
    Activate(editor);
    ASSERT_TRUE(StartQuorl());
    Activate(editor);
    DoRow(79);
    Activate(away);
    EXPECT_SOON(PlaceOf(away), Moved(AWAY, -1262, 0));
    EXPECT_EQ(PlaceOf(editor), Moved(EDITOR, -1262, 0));
    EXPECT_SOON(GetForegroundWindow(), away);
}
