#include "app/main.h"

#include "support/quorl_test.h"

class Start : public QuorlTest {};
class Process : public QuorlTest {};

TEST_F(Start, ShowsTheMapOnTopOnce) {
    ASSERT_TRUE(StartQuorl());
    EXPECT_TRUE(CalledInOrder({"RegisterHotKey", "LoadLibraryA", "ShowWindow"}));
    EXPECT_EQ(RectOf(MainWnd), Rect(100, 100, 300, 200));
    EXPECT_EQ(WindowOf(MainWnd).exStyle, DWORD{WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED});
    EXPECT_EQ(WindowOf(MainWnd).alpha, 255);
    EXPECT_EQ(Hook.window, MainWnd);
    for (int id = 0; id < NUM_ACTIONS; ++id)
        EXPECT_EQ(ActionDefs[id].id, id);
    EXPECT_FALSE(StartQuorl()) << "one instance is running";
}

TEST_F(Start, MeasuresAllDisplaysAndLimitsTheDesktop) {
    Desk.displays = {Rect(-1280, 50, 0, 1004), Rect(100, -20, 11520, 16001)};
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(VDesk, Rect(0, 0, 12800, 16021)) << "from the corner of their union";
    EXPECT_EQ(Quorl, Rect(0, 0, 32000, 32000));
    MINMAXINFO reported{}; // to other programs
    EXPECT_EQ(SendMessageA(MainWnd, 1134, 0, reinterpret_cast<LPARAM>(&reported)), 0);
    EXPECT_EQ(reported.ptMaxTrackSize, (POINT{32000, 32000}));
}

TEST_F(Start, DisablesActionsThatTheSystemLacks) {
    for (const char* const function : {"SetLayeredWindowAttributes", "LockWorkStation"})
        Desk.modules["user32.dll"].exports.erase(function);
    Desk.modules["quorl.dll"].installed = 0;
    Desk.files["quorl.ini"] = "[Quorl]\r\nAction85=-1|-1|-1|-1|1\r\n";
    ASSERT_TRUE(StartQuorl());
    EXPECT_FALSE(WindowOf(MainWnd).exStyle & WS_EX_LAYERED);
    EXPECT_EQ(Desk.beeps, std::vector<UINT>{0});
    for (const ActionId id :
         {ACTION_TRANSPARENCY, ACTION_LOCK_STATION, ACTION_FOLLOW_MOUSE, ACTION_SUPPRESS_SCROLL})
        EXPECT_EQ(ActionTable[id].flags, ACTION_OFF) << id;
    EXPECT_FALSE(IsOn(ACTION_FOLLOW_MOUSE)) << "whatever the settings say";
    EXPECT_FALSE(Options.hook_present);
    AnswerBoxes({IDOK});
    for (const ActionId id : {ACTION_LOCK_STATION, ACTION_TRANSPARENCY})
        RunAction(id);
    EXPECT_EQ(LastBox(), "Transparency cannot be done on this OS./Blame Microsoft!");
    EXPECT_NE(ActionTable[ACTION_SUPPRESS_FOLLOW].flags, ACTION_OFF);
    ShutDown();
}

TEST_F(Process, EndsWhenTheUserConfirms) {
    AnswerBoxes({IDNO, IDYES});
    Desk.script = {[] { PostMessageA(MainWnd, WM_DESTROY, 0, 0); },
                   [] {
                       EXPECT_EQ(Desk.hotkeys.size(), 11u) << "the answer was No";
                       PostMessageA(MainWnd, WM_CLOSE, 0, 0);
                   }};
    EXPECT_EQ(WinMain(nullptr, nullptr, nullptr, 0), 0);
    EXPECT_FALSE(Desk.timeIsUp) << "ended without a quit message";
    EXPECT_EQ(Desk.boxes.size(), 2u);
    EXPECT_EQ(LastBox(), "QUIT?/QUIT?");
    EXPECT_EQ(Hook.set, (std::vector<int>{1, 0}));
    EXPECT_EQ(Desk.modules["quorl.dll"].loads, 0);
    EXPECT_TRUE(CalledInOrder({"UnregisterHotKey", "EnumWindows", "PostQuitMessage", "FreeLibrary"}));
}

TEST_F(Process, FoldsWindowsOnceOnACrash) {
    const HWND far = OpenWindow("far", {1100, 200, 1300, 300});
    WindowOf(far).response = DeskResponse::Fails;
    WindowOf(far).error = 87; // would be reported otherwise
    WindowOf(OpenWindow("hung", {1100, 200, 1300, 300})).response = DeskResponse::TimesOut;
    OpenWindow("far", {1100, 200, 1300, 300});
    std::vector<LONG> results;
    Desk.script.assign(2, [&] {
        SendMessageA(MainWnd, WM_DISPLAYCHANGE, 0, 0); // nothing moves until the displays have settled
        if (results.empty())
            Desk.trace.clear();
        results.push_back(Desk.crashFilter(nullptr));
    });
    WinMain(nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(results, std::vector<LONG>(2, EXCEPTION_CONTINUE_SEARCH));
    EXPECT_EQ(CountCalls("SendMessageTimeoutA"), 4);
    EXPECT_TRUE(CalledInOrder({"SendMessageTimeoutA", "EnumWindows", "SendMessageTimeoutA"}))
        << "not while a tick of another thread fills the table";
}
