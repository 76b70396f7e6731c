// Shows what Quorl does, on a screen that nobody needs to look at.
#include "tour.h"

#include "dialogs.h"
#include "mouse.h"
#include "settings_file.h"
#include "tour_words.h"

namespace {

void ShowMap(const char* act) {
    const Place map = PlaceOf(QuorlWindow());
    Say("  %s: the map is at %d, %d and %d x %d in size", act, map.left, map.top, map.right - map.left,
        map.bottom - map.top);
}

void OpenExhibit(Exhibit& exhibit) {
    const Place& home = exhibit.home;
    exhibit.window = OpenProgram(exhibit.command, exhibit.windowClass);
    Insist(exhibit.window != nullptr, exhibit.name);
    SetWindowPos(exhibit.window, nullptr, home.left, home.top, home.right - home.left, home.bottom - home.top,
                 SWP_NOZORDER | (home.right == home.left ? SWP_NOSIZE : 0U));
    exhibit.home = PlaceOf(exhibit.window);
}

void OpenPrograms() {
    for (Exhibit& exhibit : Exhibits)
        if (!IsWindow(exhibit.window))
            OpenExhibit(exhibit);
    SetWindowTextA(FindWindowExA(Exhibits[NOTEPAD].window, nullptr, "Edit", nullptr),
                   "Four screens by two, of which you see one.\r\n\r\nCtrl+Alt+arrow: a whole screen\r\n"
                   "Ctrl+Alt+Shift+arrow: a few pixels\r\nCtrl+Alt+Shift+Space: the menu\r\n");
}

void Open() {
    OpenPrograms();
    StartQuorl();
    ShowMap("quorl.exe starts");
    SeeView("four programs are open", 0, 0);
    TakePicture("1-start");
}

void PressTheKeys() {
    static const KeyStep steps[] = {
        {"Ctrl+Alt+Right",       {VK_CONTROL, VK_MENU, VK_RIGHT},           SCREEN_W,     0       },
        {"Ctrl+Alt+Shift+Right", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_RIGHT}, SCREEN_W + 5, 0       },
        {"Ctrl+Alt+Shift+Down",  {VK_CONTROL, VK_MENU, VK_SHIFT, VK_DOWN},  SCREEN_W + 5, 5       },
        {"Ctrl+Alt+Shift+Left",  {VK_CONTROL, VK_MENU, VK_SHIFT, VK_LEFT},  SCREEN_W,     5       },
        {"Ctrl+Alt+Shift+Up",    {VK_CONTROL, VK_MENU, VK_SHIFT, VK_UP},    SCREEN_W,     0       },
        {"Ctrl+Alt+Left",        {VK_CONTROL, VK_MENU, VK_LEFT},            0,            0       },
        {"Ctrl+Alt+Down",        {VK_CONTROL, VK_MENU, VK_DOWN},            0,            SCREEN_H},
        {"Ctrl+Alt+Up",          {VK_CONTROL, VK_MENU, VK_UP},              0,            0       },
        {"Ctrl+Alt+Right",       {VK_CONTROL, VK_MENU, VK_RIGHT},           SCREEN_W,     0       },
    };
    SeeKeys(steps);
    TakePicture("2-keys");
}

// Clicks on the map until the view has come there.
template <typename Act>
void GoByMap(const char* act, POINT at, LONG x, LONG y, Act click) {
    Until([&] { return StandAt(x, y); },
          [&] {
              AfterMoving(QuorlWindow(), at);
              click();
          });
    SeeView(act, x, y);
}

void PressTheMap() {
    const POINT at = OnMap(1200, 800);
    const POINT middle = OnDesktop(at);
    GoByMap("middle button in the midst of the map", at, middle.x - SCREEN_W / 2, middle.y - SCREEN_H / 2,
            [] { Click(MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP); });
    TakePicture("3-map");
    GoByMap("Shift and left button on the map's first screen", OnMap(100, 100), 0, 0,
            [] { ClickHolding(VK_LSHIFT, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP); });
}

void DragTheMap() {
    constexpr LONG dx = 60;
    constexpr LONG dy = -60;
    const Place wanted = Moved(PlaceOf(QuorlWindow()), dx, dy);
    const POINT at = OnMap(3000, 1200);
    AfterMoving(QuorlWindow(), at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    MoveMouse({at.x + dx / 2, at.y + dy / 2});
    const Place now = Soon([&] { return AfterMoving(QuorlWindow(), {at.x + dx, at.y + dy}); }, wanted);
    PressButton(MOUSEEVENTF_LEFTUP);
    ShowMap("left button held while the mouse moves");
    Insist(now == wanted, "the map under the mouse");
}

// Under Wine on a busy machine a menu closes again at once now and then, and loses keys at first.
template <typename Act>
void OpenMenu(const char* act, Act open) {
    Until([] { return OpenedMenu() != nullptr; },
          [&] {
              open();
              Soon([] { return OpenedMenu() != nullptr; }, true, 2000);
              Sleep(500);
          });
    Insist(OpenedMenu() != nullptr, "the menu");
    const Place menu = PlaceOf(OpenedMenu());
    Say("  %s: the menu opens at %d, %d", act, menu.left, menu.top);
}

void OpenMenuByKeys(POINT at) {
    OpenMenu("Ctrl+Alt+Shift+Space", [at] {
        MoveMouse(at);
        PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, VK_SPACE});
    });
}

void PressInMenu(std::initializer_list<WORD> keys) {
    PressInTurn(keys);
    Insist(Soon(OpenedMenu, HWND{}) == nullptr, "an end of the menu");
}

void UseTheMenu() {
    OpenMenuByKeys({600, 120});
    TakePicture("4-menu");
    for (const bool shown : {false, true}) {
        if (shown)
            OpenMenuByKeys({600, 120});
        PressInMenu({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
        Insist(Soon(IsMapShown, shown) == shown, "another state of the map");
        Say("  Show Quorl Toolwin is chosen: the map is %s", shown ? "back" : "away");
    }
}

// Quitting brings every window to its place on one screen.
void SeeAllGathered() {
    for (Exhibit& exhibit : Exhibits)
        exhibit.home = Moved(exhibit.home, -(exhibit.home.left / SCREEN_W * SCREEN_W),
                             -(exhibit.home.top / SCREEN_H * SCREEN_H));
    SeeView("the question \"QUIT?\" is answered with Yes: every window is in reach", 0, 0);
}

void QuitByTheMenu() {
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    SeeView("Ctrl+Alt+Right", SCREEN_W, 0);
    OpenMenu("right button on the map", [] {
        MoveMouse(OnMap(2500, 400));
        Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    });
    PressInMenu({VK_UP, VK_RETURN});
    WaitForBox("QUIT?");
    TakePicture("5-quit");
    AnswerYesToQuit();
    SeeAllGathered();
    Say("  saved in quorl.ini: the map at %s, %s and a desktop of %s x %s", Stored("quorl_pos.left").c_str(),
        Stored("quorl_pos.top").c_str(), Stored("Quorl.right").c_str(), Stored("Quorl.bottom").c_str());
}

const char* const FileLines[][2] = {
    {"num_regions",      "3"                             },
    {"Region0",          "home|0|0|1024|768|16763080"    },
    {"Region1",          "mail|2048|0|3072|768|8454143"  },
    {"Region2",          "web|1024|768|2048|1536|8454016"},
    {"quorl_pos.left",   "160"                           },
    {"quorl_pos.top",    "40"                            },
    {"quorl_pos.right",  "460"                           },
    {"quorl_pos.bottom", "220"                           },
    {"Action14",         "-1|-1|6|82|0"                  }, // the map to the right: Ctrl+Alt+R
    {"Action35",         "-1|-1|6|69|0"                  }, // to the right edge, at the top: Ctrl+Alt+E
    {"Action36",         "-1|-1|6|78|0"                  }, // next region: Ctrl+Alt+N
    {"Action37",         "-1|-1|6|80|0"                  }, // previous region: Ctrl+Alt+P
    {"Action60",         "-1|-1|6|65|0"                  }, // one more desktop: Ctrl+Alt+A
    {"Action38",         "-1|-1|-1|-1|0"                 },
    {"Action39",         "0|8|-1|-1|0"                   }, // left button: drag a window's box
    {"Action114",        "-1|-1|-1|-1|0"                 }, // take the cursor along over the screen's edge
};

void StartWithFile() {
    OpenPrograms();
    for (const auto& [key, value] : FileLines)
        Store(key, value);
    StartQuorl();
    ShowMap("quorl.exe starts with three regions and keys of our own in quorl.ini");
    TakePicture("6-regions");
}

void VisitRegions() {
    static const KeyStep steps[] = {
        {"Ctrl+Alt+Shift+2 jumps to web", {VK_CONTROL, VK_MENU, VK_SHIFT, '2'}, 1024, 768},
        {"Ctrl+Alt+N steps on to home",   {VK_CONTROL, VK_MENU, 'N'},           0,    0  },
        {"Ctrl+Alt+N steps on to mail",   {VK_CONTROL, VK_MENU, 'N'},           2048, 0  },
        {"Ctrl+Alt+P steps back to home", {VK_CONTROL, VK_MENU, 'P'},           0,    0  },
    };
    SeeKeys(steps);
    OpenMenuByKeys({500, 120});
    PressInTurn({VK_UP, VK_RIGHT});
    TakePicture("7-view-region");
    PressInMenu({'2'});
    SeeView("View Region, web is chosen", SCREEN_W, SCREEN_H);
}

// Moves the mouse there until the window has followed.
void MoveOn(HWND window, POINT to) {
    const Place before = PlaceOf(window);
    for (int tries = 0; tries < 20 && AfterMoving(window, to) == before; ++tries)
        Sleep(20);
}

void DragABox() {
    Exhibit& clock = Exhibits[CLOCK];
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '0'});
    SeeView("Ctrl+Alt+Shift+0 jumps home", 0, 0);
    constexpr int STEPS = 20; // the box is lost when the mouse leaves it
    const POINT at =
        OnMap((clock.home.left + clock.home.right) / 2, (clock.home.top + clock.home.bottom) / 2);
    const POINT way = {OnMap(1500, 1100).x - at.x, OnMap(1500, 1100).y - at.y};
    AfterMoving(QuorlWindow(), at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    for (int step = 1; step <= STEPS; ++step)
        MoveOn(clock.window, {at.x + way.x * step / STEPS, at.y + way.y * step / STEPS});
    PressButton(MOUSEEVENTF_LEFTUP);
    Sleep(500); // the last step may be under way
    clock.home = PlaceOf(clock.window);
    Say("  left button drags the clock's box into web: the clock is at %d, %d", clock.home.left,
        clock.home.top);
    Insist(clock.home.left > SCREEN_W && clock.home.top > SCREEN_H, "the clock on another screen");
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '2'});
    SeeView("Ctrl+Alt+Shift+2 jumps there", SCREEN_W, SCREEN_H);
    TakePicture("8-drag");
}

// On for this chapter only: under Wine news of a mouse at rest in a corner may come late.
void PushAtTheEdge() {
    constexpr int FOLLOW_MOUSE = 85;
    DoRow(FOLLOW_MOUSE);
    MoveMouse({500, 600});
    PushMouseTo({SCREEN_W - 1, 600});
    SeeView("the mouse goes over the right edge", 2 * SCREEN_W, SCREEN_H);
    constexpr LONG LANDING = 15; // three borders from the other edge
    const LONG x = Soon([] { return MousePlace().x; }, LANDING);
    Say("  the mouse goes on at %ld, %ld", x, MousePlace().y);
    Insist(x == LANDING, "the mouse at the other edge");
    MoveMouse({500, 600});
    PushMouseTo({0, 600});
    SeeView("and back over the left edge", SCREEN_W, SCREEN_H);
    DoRow(FOLLOW_MOUSE);
    MoveMouse({500, 600});
}

void Rearrange() {
    PressKeys({VK_CONTROL, VK_MENU, 'A'});
    PressKeys({VK_CONTROL, VK_MENU, 'E'});
    SeeView("Ctrl+Alt+A adds a desktop on the right, Ctrl+Alt+E goes there", 4 * SCREEN_W, 0);
    const Place wanted = Moved(PlaceOf(QuorlWindow()), 100, 0);
    PressKeys({VK_CONTROL, VK_MENU, 'R'});
    Insist(Soon([] { return PlaceOf(QuorlWindow()); }, wanted) == wanted, "the map 100 pixels to the right");
    ShowMap("Ctrl+Alt+R nudges the map");
}

void StartAgain() {
    const Place map = PlaceOf(QuorlWindow());
    Quit();
    SeeAllGathered();
    StartQuorl();
    ShowMap("quorl.exe starts again");
    Insist(PlaceOf(QuorlWindow()) == map, "the map where it was left");
    PressKeys({VK_CONTROL, VK_MENU, 'E'});
    SeeView("Ctrl+Alt+E goes to the fifth screen", 4 * SCREEN_W, 0);
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '1'});
    SeeView("Ctrl+Alt+Shift+1 jumps to mail", 2 * SCREEN_W, 0);
    TakePicture("9-again");
}

void End() {
    Quit();
    SeeAllGathered();
}

const std::vector<Chapter> FirstDay = {
    {"Four programs and Quorl",              Open         },
    {"Keys slide the view over the desktop", PressTheKeys },
    {"The map takes the mouse",              PressTheMap  },
    {"The map is dragged out of the way",    DragTheMap   },
    {"The menu opens at the mouse",          UseTheMenu   },
    {"Quitting brings every window back",    QuitByTheMenu},
};
const std::vector<Chapter> OwnSettings = {
    {"Regions and keys of one's own, from a settings file", StartWithFile},
    {"Regions are reached by keys and by the menu",         VisitRegions },
    {"A box on the map is a handle to its window",          DragABox     },
    {"The mouse pushes the view at the screen's edge",      PushAtTheEdge},
    {"The desktop grows",                                   Rearrange    },
    {"What was saved is there again",                       StartAgain   },
};

void Play(const std::vector<Chapter>& chapters) {
    for (const Chapter& chapter : chapters) {
        Say("%s", chapter.title);
        chapter.play();
    }
}

} // namespace

int Tour() {
    bPictures = true;
    CleanDesktop();
    for (const auto* const part : {&FirstDay, &OwnSettings, &DialogChapters})
        Play(*part);
    End();
    CleanDesktop();
    return 0;
}

TEST(Tour, ANewUserGetsAboutByKeysMapAndMenu) {
    Play(FirstDay);
}

TEST(Tour, RegionsAndKeysOfOnesOwnAreThereAgainInTheNextRun) {
    Play(OwnSettings);
    End();
}

TEST(Tour, EachDialogOpensAndDoesItsWork) {
    StartWithFile();
    Play(DialogChapters);
    End();
}
