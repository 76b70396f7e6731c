// Shows what Quorl does, on a screen that nobody needs to look at.
#include "tour.h"

#include <cstdarg>

Exhibit Exhibits[NUM_EXHIBITS] = {
    {"notepad",  "notepad",  "Notepad",         {60, 250, 560, 640},    nullptr},
    {"winemine", "winemine", "WineMine",        {640, 330, 640, 330},   nullptr},
    {"clock",    "clock",    "CLClass",         {700, 80, 920, 300},    nullptr},
    {"regedit",  "regedit",  "RegEdit_RegEdit", {1330, 320, 1930, 670}, nullptr},
};
bool bPictures;

void Say(const char* format, ...) {
    va_list values;
    va_start(values, format);
    vprintf(format, values);
    va_end(values);
    printf("\n");
    fflush(stdout);
}

void TakePicture(const char* name) {
    char line[16];
    if (!bPictures)
        return;
    Sleep(500); // the programs paint at their own pace
    Say("picture %s", name);
    Insist(fgets(line, sizeof line, stdin) != nullptr, "an answer from who takes the pictures");
}

void SeeView(const char* act, LONG x, LONG y) {
    std::string report;
    for (const Exhibit& exhibit : Exhibits) {
        const Place now = Soon([&] { return PlaceOf(exhibit.window); }, Moved(exhibit.home, -x, -y));
        report += std::string(report.empty() ? "" : "; ") + exhibit.name + " at " + std::to_string(now.left) +
                  ", " + std::to_string(now.top);
    }
    Say("  %s: %s", act, report.c_str());
    Insist(StandAt(x, y), "the view at " + std::to_string(x) + ", " + std::to_string(y));
}

void SeeKeys(const char* act, std::initializer_list<WORD> keys, LONG x, LONG y) {
    Insist(PressKeys(keys), act);
    SeeView(act, x, y);
}

void ShowPlace(const char* act, const char* name, HWND window) {
    const Place now = PlaceOf(window);
    Say("  %s: %s is at %d, %d and %d x %d in size", act, name, now.left, now.top, now.right - now.left,
        now.bottom - now.top);
}

bool StandAt(LONG x, LONG y) {
    return std::all_of(std::begin(Exhibits), std::end(Exhibits), [&](const Exhibit& exhibit) {
        return PlaceOf(exhibit.window) == Moved(exhibit.home, -x, -y);
    });
}

namespace {

void OpenPrograms() {
    for (Exhibit& exhibit : Exhibits) {
        const Place& home = exhibit.home;
        if (IsWindow(exhibit.window))
            continue;
        exhibit.window = OpenProgram(exhibit.command, exhibit.windowClass);
        Insist(exhibit.window != nullptr, exhibit.name);
        SetWindowPos(exhibit.window, nullptr, home.left, home.top, home.right - home.left,
                     home.bottom - home.top, SWP_NOZORDER | (home.right == home.left ? SWP_NOSIZE : 0U));
        exhibit.home = PlaceOf(exhibit.window);
    }
    SetWindowTextA(FindWindowExA(Exhibits[NOTEPAD].window, nullptr, "Edit", nullptr),
                   "Four screens by two, of which you see one.\r\n\r\nCtrl+Alt+arrow: a whole screen\r\n"
                   "Ctrl+Alt+Shift+arrow: a few pixels\r\nCtrl+Alt+Shift+Space: the menu\r\n");
}

void Open() {
    OpenPrograms();
    StartQuorl();
    ShowPlace("quorl.exe starts", "the map", QuorlWindow());
    SeeView("four programs are open", 0, 0);
    TakePicture("1-start");
}

void PressTheKeys() {
    SeeKeys("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, SCREEN_W, 0);
    SeeKeys("Ctrl+Alt+Shift+Right", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_RIGHT}, SCREEN_W + 5, 0);
    SeeKeys("Ctrl+Alt+Shift+Down", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_DOWN}, SCREEN_W + 5, 5);
    SeeKeys("Ctrl+Alt+Shift+Left", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_LEFT}, SCREEN_W, 5);
    SeeKeys("Ctrl+Alt+Shift+Up", {VK_CONTROL, VK_MENU, VK_SHIFT, VK_UP}, SCREEN_W, 0);
    SeeKeys("Ctrl+Alt+Left", {VK_CONTROL, VK_MENU, VK_LEFT}, 0, 0);
    SeeKeys("Ctrl+Alt+Down", {VK_CONTROL, VK_MENU, VK_DOWN}, 0, SCREEN_H);
    SeeKeys("Ctrl+Alt+Up", {VK_CONTROL, VK_MENU, VK_UP}, 0, 0);
    SeeKeys("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, SCREEN_W, 0);
    TakePicture("2-keys");
}

// The place on the screen where Quorl's map shows this point of the desktop, which is four screens by two.
POINT OnMap(LONG x, LONG y) {
    RECT map = {};
    GetClientRect(QuorlWindow(), &map);
    POINT at = {x * map.right / (4 * SCREEN_W), y * map.bottom / (2 * SCREEN_H)};
    ClientToScreen(QuorlWindow(), &at);
    return at;
}

// Clicks on the map until the view has come there.
void GoByMap(const char* act, WORD key, DWORD press, DWORD release, POINT at, LONG x, LONG y) {
    Until([&] { return StandAt(x, y); },
          [&] {
              AfterMoving(QuorlWindow(), at);
              SendKey(key, 0);
              Click(press, release);
              SendKey(key, KEYEVENTF_KEYUP);
          });
    SeeView(act, x, y);
}

void PressTheMap() {
    const POINT at = OnMap(1200, 800);
    RECT map = {};
    GetClientRect(QuorlWindow(), &map);
    POINT middle = at;
    ScreenToClient(QuorlWindow(), &middle);
    GoByMap("middle button in the midst of the map", 0, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP, at,
            middle.x * 4 * SCREEN_W / map.right - SCREEN_W / 2,
            middle.y * 2 * SCREEN_H / map.bottom - SCREEN_H / 2);
    TakePicture("3-map");
    GoByMap("Shift and left button on the map's first screen", VK_LSHIFT, MOUSEEVENTF_LEFTDOWN,
            MOUSEEVENTF_LEFTUP, OnMap(100, 100), 0, 0);
}

void DragTheMap() {
    const Place wanted = Moved(PlaceOf(QuorlWindow()), 60, -60);
    const POINT at = OnMap(3000, 1200);
    AfterMoving(QuorlWindow(), at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    MoveMouse({at.x + 30, at.y - 30});
    const Place now = Soon([&] { return AfterMoving(QuorlWindow(), {at.x + 60, at.y - 60}); }, wanted);
    PressButton(MOUSEEVENTF_LEFTUP);
    ShowPlace("left button held while the mouse moves", "the map", QuorlWindow());
    Insist(now == wanted, "the map under the mouse");
}

// Under Wine on a busy machine a menu closes again at once now and then, and loses keys at first.
void OpenMenu(const char* act, void (*open)()) {
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

void OpenMenuByKeys() {
    OpenMenu("Ctrl+Alt+Shift+Space", [] {
        MoveMouse({500, 120});
        PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, VK_SPACE});
    });
}

void PressInMenu(std::initializer_list<WORD> keys) {
    PressInTurn(keys);
    Insist(Soon(OpenedMenu, HWND{}) == nullptr, "an end of the menu");
}

void UseTheMenu() {
    for (const bool shown : {false, true}) {
        OpenMenuByKeys();
        if (!shown)
            TakePicture("4-menu");
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
    SeeKeys("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, SCREEN_W, 0);
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
    ShowPlace("quorl.exe starts with three regions and keys of our own in quorl.ini", "the map",
              QuorlWindow());
    TakePicture("6-regions");
}

void VisitRegions() {
    SeeKeys("Ctrl+Alt+Shift+2 jumps to web", {VK_CONTROL, VK_MENU, VK_SHIFT, '2'}, 1024, 768);
    SeeKeys("Ctrl+Alt+N steps on to home", {VK_CONTROL, VK_MENU, 'N'}, 0, 0);
    SeeKeys("Ctrl+Alt+N steps on to mail", {VK_CONTROL, VK_MENU, 'N'}, 2048, 0);
    SeeKeys("Ctrl+Alt+P steps back to home", {VK_CONTROL, VK_MENU, 'P'}, 0, 0);
    OpenMenuByKeys();
    PressInTurn({VK_UP, VK_RIGHT});
    TakePicture("7-view-region");
    PressInMenu({'2'});
    SeeView("View Region, web is chosen", SCREEN_W, SCREEN_H);
}

void DragABox() {
    Exhibit& clock = Exhibits[CLOCK];
    SeeKeys("Ctrl+Alt+Shift+0 jumps home", {VK_CONTROL, VK_MENU, VK_SHIFT, '0'}, 0, 0);
    constexpr int STEPS = 20; // the box is lost when the mouse leaves it
    const POINT at =
        OnMap((clock.home.left + clock.home.right) / 2, (clock.home.top + clock.home.bottom) / 2);
    const POINT way = {OnMap(1500, 1100).x - at.x, OnMap(1500, 1100).y - at.y};
    AfterMoving(QuorlWindow(), at);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    for (int step = 1; step <= STEPS; ++step) {
        const Place before = PlaceOf(clock.window);
        const POINT to = {at.x + way.x * step / STEPS, at.y + way.y * step / STEPS};
        for (int tries = 0; tries < 20 && AfterMoving(clock.window, to) == before; ++tries)
            Sleep(20); // until the window has followed
    }
    PressButton(MOUSEEVENTF_LEFTUP);
    Sleep(500); // the last step may be under way
    clock.home = PlaceOf(clock.window);
    Say("  left button drags the clock's box into web: the clock is at %d, %d", clock.home.left,
        clock.home.top);
    Insist(clock.home.left > SCREEN_W && clock.home.top > SCREEN_H, "the clock on another screen");
    SeeKeys("Ctrl+Alt+Shift+2 jumps there", {VK_CONTROL, VK_MENU, VK_SHIFT, '2'}, SCREEN_W, SCREEN_H);
    TakePicture("8-drag");
}

// Moves as the device does, but the pointer stays there: a move that was only sent is forgotten before a busy
// machine has handled it. It is sent unless placing the pointer was news enough.
void PushMouseTo(POINT to) {
    MoveMouse({SCREEN_W / 2, to.y});
    SetCursorPos(to.x, to.y);
    Sleep(60);
    const POINT now = MousePlace();
    if (now.x == to.x && now.y == to.y)
        SendMouse(to.x, to.y);
    Sleep(60);
}

// On for this chapter only: under Wine news of a mouse at rest in a corner may come late.
void PushAtTheEdge() {
    constexpr int FOLLOW_MOUSE = 85;
    DoRow(FOLLOW_MOUSE);
    PushMouseTo({SCREEN_W - 1, 600});
    SeeView("the mouse goes over the right edge", 2 * SCREEN_W, SCREEN_H);
    constexpr LONG LANDING = 15; // three borders from the other edge
    const LONG x = Soon([] { return MousePlace().x; }, LANDING);
    Say("  the mouse goes on at %ld, %ld", x, MousePlace().y);
    Insist(x == LANDING, "the mouse at the other edge");
    PushMouseTo({0, 600});
    SeeView("and back over the left edge", SCREEN_W, SCREEN_H);
    DoRow(FOLLOW_MOUSE);
    MoveMouse({500, 600});
}

void Rearrange() {
    PressKeys({VK_CONTROL, VK_MENU, 'A'});
    SeeKeys("Ctrl+Alt+A adds a desktop on the right, Ctrl+Alt+E goes there", {VK_CONTROL, VK_MENU, 'E'},
            4 * SCREEN_W, 0);
    const Place wanted = Moved(PlaceOf(QuorlWindow()), 100, 0);
    PressKeys({VK_CONTROL, VK_MENU, 'R'});
    Insist(Soon([] { return PlaceOf(QuorlWindow()); }, wanted) == wanted, "the map 100 pixels to the right");
    ShowPlace("Ctrl+Alt+R nudges the map", "the map", QuorlWindow());
}

void StartAgain() {
    const Place map = PlaceOf(QuorlWindow());
    Quit();
    SeeAllGathered();
    StartQuorl();
    ShowPlace("quorl.exe starts again", "the map", QuorlWindow());
    Insist(PlaceOf(QuorlWindow()) == map, "the map where it was left");
    SeeKeys("Ctrl+Alt+E goes to the fifth screen", {VK_CONTROL, VK_MENU, 'E'}, 4 * SCREEN_W, 0);
    SeeKeys("Ctrl+Alt+Shift+1 jumps to mail", {VK_CONTROL, VK_MENU, VK_SHIFT, '1'}, 2 * SCREEN_W, 0);
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
