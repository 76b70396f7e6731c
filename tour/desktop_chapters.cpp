// The chapters of the tour that use keys, map, menu, regions and the mouse.
#include "tour.h"

namespace {

void OpenPrograms() {
    for (DemoProgram& program : Programs) {
        const RECT& home = program.home;
        if (IsWindow(program.window))
            continue;
        program.window = WaitForVisible(GetProcessId(Launch(program.command)), program.windowClass, nullptr);
        Require(program.window != nullptr, program.name);
        SetWindowPos(program.window, nullptr, home.left, home.top, home.right - home.left,
                     home.bottom - home.top, SWP_NOZORDER | (home.right == home.left ? SWP_NOSIZE : 0U));
        program.home = WindowRect(program.window);
    }
    SetWindowTextA(FindWindowExA(Programs[NOTEPAD].window, nullptr, "Edit", nullptr),
                   "Four screens by two, of which you see one.\r\n\r\nCtrl+Alt+arrow: a whole screen\r\n"
                   "Ctrl+Alt+Shift+arrow: a few pixels\r\nCtrl+Alt+Shift+Space: the menu\r\n");
}

void Start() {
    OpenPrograms();
    StartQuorl();
    SayRect("quorl.exe starts", "the map", QuorlWindow());
    SeeView("four programs are open", 0, 0);
    TakePicture("1-start");
}

void UseTheKeys() {
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

// The screen position of the map's point for this point of the desktop, which is four screens by two.
POINT OnMap(LONG x, LONG y) {
    RECT map{};
    GetClientRect(QuorlWindow(), &map);
    POINT at{x * map.right / (4 * SCREEN_W), y * map.bottom / (2 * SCREEN_H)};
    ClientToScreen(QuorlWindow(), &at);
    return at;
}

// Clicks on the map until the view is there. Under Wine a slow program sees the keys as they are when it
// reads the click.
void GoByMap(const char* step, int key, int button, POINT at, LONG x, LONG y) {
    const auto isThere = [&] { return ViewIsAt(x, y); };
    Retry(isThere, [&] {
        RectAfterMoving(QuorlWindow(), at);
        HoldKey(key, true);
        Click(button);
        Eventually(isThere, true, 2000);
        HoldKey(key, false);
    });
    SeeView(step, x, y);
}

void ClickOnTheMap() {
    const POINT at = OnMap(1200, 800), corner = OnMap(0, 0), end = OnMap(4 * SCREEN_W, 2 * SCREEN_H);
    GoByMap("middle button in the midst of the map", 0, VK_MBUTTON, at,
            (at.x - corner.x) * 4 * SCREEN_W / (end.x - corner.x) - SCREEN_W / 2,
            (at.y - corner.y) * 2 * SCREEN_H / (end.y - corner.y) - SCREEN_H / 2);
    TakePicture("3-map");
    GoByMap("Shift and left button on the map's first screen", VK_LSHIFT, VK_LBUTTON, OnMap(100, 100), 0, 0);
}

// Held in its middle: Wine now and then counts a step twice, because the map moves meanwhile, and without the
// foreground a capture gets no moves outside the window there.
void DragTheMap() {
    const RECT wanted = Moved(WindowRect(QuorlWindow()), 60, -60);
    const auto isThere = [&] { return WindowRect(QuorlWindow()) == wanted; };
    Retry(isThere, [&] {
        const RECT map = WindowRect(QuorlWindow());
        const POINT at = OnMap(2 * SCREEN_W, SCREEN_H);
        const LONG right = wanted.left - map.left, down = wanted.top - map.top;
        RectAfterMoving(QuorlWindow(), at);
        PressMouse(VK_LBUTTON, true);
        MoveMouse(at.x + right / 2, at.y + down / 2);
        Eventually([&] { return RectAfterMoving(QuorlWindow(), {at.x + right, at.y + down}); }, wanted, 2000);
        PressMouse(VK_LBUTTON, false);
    });
    SayRect("left button held while the mouse moves", "the map", QuorlWindow());
    Require(isThere(), "the map under the mouse");
}

// Under Wine on a busy machine a menu closes again at once now and then, and loses keys at first. One that is
// asked for twice is stuck.
void OpenMenu(const char* step, void (*open)()) {
    Retry([] { return OpenedMenu() != nullptr; },
          [&] {
              open();
              Eventually([] { return OpenedMenu() != nullptr; }, true);
              Sleep(500);
          });
    Require(OpenedMenu() != nullptr, "the menu");
    const RECT menu = WindowRect(OpenedMenu());
    Say("  %s: the menu opens at %ld, %ld", step, menu.left, menu.top);
}

void OpenMenuByKeys() {
    OpenMenu("Ctrl+Alt+Shift+Space", [] {
        MoveMouse(500, 120);
        PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, VK_SPACE});
    });
}

// Under Wine on a busy machine another program now and then takes the foreground back, and with it the keys.
void ReturnForegroundToTheMenu() {
    const auto hasForeground = [] { return GetForegroundWindow() == QuorlWindow(); };
    if (hasForeground())
        return;
    Say("  (Quorl gets the foreground back from \"%s\")", TextOf(GetForegroundWindow()).c_str());
    SetForegroundWindow(QuorlWindow());
    Eventually(hasForeground, true, 2000);
}

void ChooseFromMenu(std::initializer_list<WORD> keys) {
    const auto isClosed = [] { return OpenedMenu() == nullptr; };
    Retry(isClosed, [&] {
        ReturnForegroundToTheMenu();
        PressInTurn(keys);
    });
    Require(isClosed(), "the end of the menu");
}

void UseTheMenu() {
    for (const bool shown : {false, true}) {
        OpenMenuByKeys();
        if (!shown)
            TakePicture("4-menu");
        ChooseFromMenu({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
        Require(Eventually(IsMapShown, shown) == shown, "another state of the map");
        Say("  Show Quorl Toolwin is chosen: the map is %s", shown ? "back" : "away");
    }
}

// Quitting folds every window onto one screen.
void SeeAllFolded() {
    for (DemoProgram& program : Programs)
        program.home = Moved(program.home, -(program.home.left / SCREEN_W * SCREEN_W),
                             -(program.home.top / SCREEN_H * SCREEN_H));
    SeeView("the question \"QUIT?\" is answered with Yes: every window is in reach", 0, 0);
}

void QuitByTheMenu() {
    SeeKeys("Ctrl+Alt+Right", {VK_CONTROL, VK_MENU, VK_RIGHT}, SCREEN_W, 0);
    OpenMenu("right button on the map", [] {
        const POINT at = OnMap(2500, 400);
        MoveMouse(at.x, at.y);
        Click(VK_RBUTTON);
    });
    ChooseFromMenu({VK_UP, VK_RETURN});
    WaitForBox("QUIT?");
    TakePicture("5-quit");
    AnswerYesToQuit();
    SeeAllFolded();
    Say("  saved in quorl.ini: the map at %s, %s and a desktop of %s x %s", Stored("quorl_pos.left").c_str(),
        Stored("quorl_pos.top").c_str(), Stored("Quorl.right").c_str(), Stored("Quorl.bottom").c_str());
}

// The keys of the next and the previous region are Ctrl+Alt+N and P; the left button drags a window's box;
// the pointer moves along at the screen's edge.
constexpr char OwnSettings[] =
    "num_regions=3\0Region0=home|0|0|1024|768|16763080\0Region1=mail|2048|0|3072|768|8454143\0"
    "Region2=web|1024|768|2048|1536|8454016\0quorl_pos.left=160\0quorl_pos.top=40\0quorl_pos.right=460\0"
    "quorl_pos.bottom=220\0Action36=-1|-1|6|78|0\0Action37=-1|-1|6|80|0\0Action38=-1|-1|-1|-1|0\0"
    "Action39=0|8|-1|-1|0\0Action114=-1|-1|-1|-1|0\0";

void StartWithSettings() {
    OpenPrograms();
    StoreSettings(OwnSettings);
    StartQuorl();
    SayRect("quorl.exe starts with three regions and keys of our own in quorl.ini", "the map", QuorlWindow());
    TakePicture("6-regions");
}

int CountMenus() {
    int count = 0;
    for (HWND menu = nullptr; (menu = FindWindowExA(nullptr, menu, "#32768", nullptr)) != nullptr;)
        count += IsWindowVisible(menu) ? 1 : 0;
    return count;
}

// The last entry. Home makes it the same however many keys were lost before.
void OpenRegionsMenu() {
    const auto isOpen = [] { return CountMenus() == 2; };
    Retry(isOpen, [] {
        ReturnForegroundToTheMenu();
        PressInTurn({VK_HOME, VK_UP, VK_RIGHT});
    });
    Require(isOpen(), "the menu of regions");
}

void VisitRegions() {
    SeeKeys("Ctrl+Alt+Shift+2 jumps to web", {VK_CONTROL, VK_MENU, VK_SHIFT, '2'}, 1024, 768);
    SeeKeys("Ctrl+Alt+N continues with home", {VK_CONTROL, VK_MENU, 'N'}, 0, 0);
    SeeKeys("Ctrl+Alt+N continues with mail", {VK_CONTROL, VK_MENU, 'N'}, 2048, 0);
    SeeKeys("Ctrl+Alt+P goes back to home", {VK_CONTROL, VK_MENU, 'P'}, 0, 0);
    OpenMenuByKeys();
    OpenRegionsMenu();
    TakePicture("7-view-region");
    ChooseFromMenu({'2'});
    SeeView("View Region, web is chosen", SCREEN_W, SCREEN_H);
}

// In small steps, because a mouse that leaves the box loses it. The window is on top, so that no other box
// covers its own.
void DragBox(HWND window, POINT to) {
    constexpr int STEPS = 20;
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    const RECT rect = WindowRect(window);
    const POINT at = OnMap((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    RectAfterMoving(QuorlWindow(), at);
    PressMouse(VK_LBUTTON, true);
    bool followed = true;
    for (int step = 1; step <= STEPS && followed; ++step) {
        const RECT before = WindowRect(window);
        const POINT next{at.x + (to.x - at.x) * step / STEPS, at.y + (to.y - at.y) * step / STEPS};
        followed = Eventually([&] { return RectAfterMoving(window, next) != before; }, true);
    }
    PressMouse(VK_LBUTTON, false);
    RECT last;
    do { // until the last step is done, which a busy machine may put off for a second
        last = WindowRect(window);
        Sleep(1500);
    } while (WindowRect(window) != last);
}

void DragABox() {
    const HWND window = Programs[CLOCK].window;
    RECT& home = Programs[CLOCK].home;
    SeeKeys("Ctrl+Alt+Shift+0 jumps home", {VK_CONTROL, VK_MENU, VK_SHIFT, '0'}, 0, 0);
    const auto isInWeb = [&] { return (home = WindowRect(window)).left > SCREEN_W && home.top > SCREEN_H; };
    Retry(isInWeb, [&] { DragBox(window, OnMap(1500, 1100)); });
    Say("  left button drags the clock's box into web: the clock is at %ld, %ld", home.left, home.top);
    Require(isInWeb(), "the clock on another screen");
    SeeKeys("Ctrl+Alt+Shift+2 jumps there", {VK_CONTROL, VK_MENU, VK_SHIFT, '2'}, SCREEN_W, SCREEN_H);
    TakePicture("8-drag");
}

// Moves as the device does, and the pointer stays there: a move that was only sent is replaced before a busy
// machine has handled it. It is sent only if setting the pointer did not scroll already.
void PushMouseTo(POINT to) {
    MoveMouse(SCREEN_W / 2, to.y);
    SetCursorPos(to.x, to.y);
    Sleep(60);
    const POINT now = MousePosition();
    if (now.x == to.x && now.y == to.y)
        SendMouse(to.x, to.y);
    Sleep(60);
}

// Again until the mouse lands at the other edge: on a busy machine a program can miss that the mouse was
// there.
void PushUntilItLands(POINT to, LONG landing) {
    Retry([&] { return MousePosition().x == landing; }, [&] { PushMouseTo(to); });
    Say("  the mouse goes on at %ld, %ld", MousePosition().x, MousePosition().y);
    Require(MousePosition().x == landing, "the mouse at the other edge");
}

// The switch is on for this chapter only: under Wine messages of a mouse at rest in a corner may be late.
void PushAtTheEdge() {
    constexpr LONG LANDING = 15; // three borders from the other edge
    RunActions({ACTION_FOLLOW_MOUSE});
    PushUntilItLands({SCREEN_W - 1, 600}, LANDING);
    SeeView("the mouse goes over the right edge", 2 * SCREEN_W, SCREEN_H);
    PushUntilItLands({0, 600}, SCREEN_W - LANDING);
    SeeView("and back over the left edge", SCREEN_W, SCREEN_H);
    RunActions({ACTION_FOLLOW_MOUSE});
    MoveMouse(500, 600);
}

} // namespace

void QuitAtTheEnd() {
    Quit();
    SeeAllFolded();
}

const std::vector<Chapter> DesktopChapters = {
    {"Four programs and Quorl", Start},
    {"Keys move the view over the desktop", UseTheKeys},
    {"The map reacts to the mouse", ClickOnTheMap},
    {"The map is dragged to another position", DragTheMap},
    {"The menu opens at the mouse", UseTheMenu},
    {"Quitting brings every window back", QuitByTheMenu},
    {"Regions and keys of one's own, from a settings file", StartWithSettings},
    {"Regions are reached by keys and by the menu", VisitRegions},
    {"A box on the map is a handle to its window", DragABox},
    {"The mouse pushes the view at the screen's edge", PushAtTheEdge},
};
