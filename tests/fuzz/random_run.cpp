#include "fuzz/inputs.h"

#include "actions/dispatch.h"
#include "app/main.h"
#include "core/displays.h"
#include "core/rect.h"
#include "dialogs/registry.h"
#include "menus/menu_list.h"
#include "hook/hook_message.h"
#include "support/reset.h"
#include "regions/region_table.h"
#include "scroll/scroll_view.h"
#include "settings/ini.h"
#include "support/quorl_test.h"
#include "windows/window_table.h"

#include <algorithm>

namespace {

// Returns 0 after the last byte. Within one expression only braces guarantee reading from left to right.
struct Bytes {
    const char* next;
    const char* end;

    int Byte() { return next < end ? static_cast<unsigned char>(*next++) : 0; }
    std::size_t Index(std::size_t count) { return static_cast<std::size_t>(Byte()) % count; }
    int Below(int limit) {
        const int high = Byte();
        return (high * 256 + Byte()) % limit;
    }
    template <typename Item>
    Item OneOf(std::initializer_list<Item> items) {
        return items.begin()[Index(items.size())];
    }
};

constexpr RECT FRAME{7, 0, 7, 7}; // the usual invisible one
constexpr std::size_t MANY = 40;  // boxes answered in one step; windows of other programs

int Faults;               // platform calls that were made to fail
std::vector<HWND> Others; // windows of other programs, destroyed ones included

DeskWindow& SomeOther(Bytes& bytes) {
    if (Others.empty())
        Others.push_back(OpenWindow("first", {100, 100, 400, 300}));
    return WindowOf(Others[bytes.Index(Others.size())]);
}

RECT SomeRect(Bytes& bytes) {
    const int left = bytes.Below(6000) - 1000;
    const int top = bytes.Below(3000) - 500;
    return {left, top, left + bytes.Below(1400), top + bytes.Below(1000)};
}

void AnswerAll(int answer) {
    Desk.boxAnswers.assign(MANY, answer);
    Desk.colorChoices.assign(2, RGB(answer, 20, 30));
}

void RunAnyAction(Bytes& bytes) {
    const int action = bytes.Byte() % (NUM_ACTIONS + 1);
    if (action != ACTION_LOCK_STATION)
        RunAction(action);
}

void JumpToRegion(Bytes& bytes) {
    RunAction(FIRST_REGION_ID + bytes.Byte() - 5);
}

// An item that the menu does not have counts as closing it.
void ChooseFromMenu(Bytes& bytes) {
    const int before = Desk.unexpected;
    const int choice = bytes.Byte() % 2 ? bytes.Byte() % NUM_ACTIONS : FIRST_REGION_ID + bytes.Byte();
    Desk.menuChoices = {static_cast<UINT>(choice)};
    RunAction(ACTION_SHOW_MENU);
    Desk.unexpected = before;
}

void MoveTheMouse(Bytes& bytes) {
    const int held = bytes.OneOf({0, VK_LBUTTON, VK_RBUTTON, VK_MBUTTON});
    HoldKey(held, 1);
    const POINT at{bytes.Below(1024), bytes.Below(768)};
    MoveMouse(at.x, at.y);
    if (bytes.Byte() % 2)
        MoveMouse(bytes.Byte() % 2 ? 0 : ScreenW() - 1, Desk.cursor.y);
    const UINT message =
        bytes.OneOf<UINT>({WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_LBUTTONUP});
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, message, 0);
    HandleMessages();
    HoldKey(held, 0);
}

void UseTheMap(Bytes& bytes) {
    const auto keys = {VK_LSHIFT, VK_LCONTROL, VK_LMENU, VK_RSHIFT};
    int held = bytes.Byte();
    for (const int key : keys) {
        HoldKey(key, held & 1);
        held >>= 1;
    }
    const int button = bytes.OneOf({VK_LBUTTON, VK_RBUTTON, VK_MBUTTON});
    const auto move = [&bytes](int x) { MoveOnMap(x, bytes.Byte() - 20); };
    move(bytes.Byte() - 20);
    PressOnMap(button);
    for (int steps = bytes.Byte() % 3; steps > 0; --steps)
        move(bytes.Byte() - 20);
    ReleaseOnMap(button);
    for (const int key : keys)
        HoldKey(key, 0);
}

void OpenOther(Bytes& bytes) {
    if (Others.size() >= MANY)
        return;
    const auto* title = bytes.OneOf({"editor", "", "a|b & c", "a title that is longer than a region's name"});
    const RECT rect = SomeRect(bytes);
    const auto* kind = bytes.OneOf({"Program", "SysListView32", "Shell_TrayWnd", "BaseBar"});
    Others.push_back(OpenWindow(title, rect, kind));
}

void ChangeOther(Bytes& bytes) {
    if (DeskWindow& window = SomeOther(bytes); window.handle)
        window.rect = SomeRect(bytes);
}

void ChangeResponse(Bytes& bytes) {
    DeskWindow& window = SomeOther(bytes);
    window.response = static_cast<DeskResponse>(bytes.Byte() % 5);
    window.error = bytes.OneOf<DWORD>({0, ERROR_TIMEOUT, ERROR_ACCESS_DENIED});
    window.overridesMove = bytes.Byte() % 8 == 0;
    window.moveOverride = SomeRect(bytes);
    window.diesAtCall = bytes.Byte() % 8 == 0 ? bytes.Byte() : 0;
}

void EndOther(Bytes& bytes) {
    if (const HWND window = SomeOther(bytes).handle)
        KillWindow(window);
}

void ShowOther(Bytes& bytes) {
    if (const HWND window = SomeOther(bytes).handle)
        ShowWindow(window, bytes.OneOf({SW_HIDE, SW_SHOW, SW_MINIMIZE, SW_MAXIMIZE, SW_RESTORE}));
}

void GoToOther(Bytes& bytes) {
    if (const HWND window = SomeOther(bytes).handle)
        SetForegroundWindow(window);
}

// One to three displays side by side, the primary one at the origin. A display that stays keeps its name.
void PlugDisplays(Bytes& bytes) {
    std::vector<DeskDisplay> displays;
    LONG left = 0, right = 0;
    const int name = bytes.Byte();
    for (int more = bytes.Byte() % 3; more >= 0; --more) {
        const SIZE size = bytes.OneOf<SIZE>({{1024, 768}, {640, 480}, {1920, 1080}, {3840, 2160}});
        const int layout = displays.empty() ? 0 : bytes.Byte();
        const LONG x = layout % 2 ? left - size.cx : right;
        const LONG y = displays.empty() ? 0 : bytes.Below(480) - 240;
        RECT work{x, y, x + size.cx, y + size.cy};
        left = std::min(left, work.left);
        right = std::max(right, work.right);
        const RECT rect = work;
        work.bottom -= layout & 2 ? 0 : 40;
        work.top += layout & 4 ? 40 : 0;
        displays.emplace_back(rect, work, std::string(1, static_cast<char>('A' + (name + more) % 4)),
                              bytes.OneOf<UINT>({96, 120, 144, 192}));
    }
    ChangeDisplays(displays, bytes.Byte() % 4 != 0);
}

bool IsOverlay(const DeskWindow& window) {
    return window.exStyle & WS_EX_TRANSPARENT && !window.owner;
}

void ChangeTraits(Bytes& bytes) {
    DeskWindow& window = SomeOther(bytes);
    const HWND owner = SomeOther(bytes).handle;
    const int trait = bytes.Byte() % 7;
    window.elevated = trait == 1;
    window.cloaked = trait == 2;
    window.dpiAware = trait != 3;
    window.style = trait == 4 ? window.style | WS_DISABLED : window.style & ~WS_DISABLED;
    const DWORD overlay = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    window.exStyle = trait == 5 ? window.exStyle | overlay : window.exStyle & ~overlay;
    const bool isPalette = trait == 6 && owner < window.handle;
    window.owner = isPalette ? owner : nullptr;
    if (window.owner)
        WindowOf(owner).movesOwned = true;
}

void HoldSomeHotkey(Bytes& bytes) {
    if (Desk.hotkeys.empty())
        return;
    const DeskHotkey hotkey = Desk.hotkeys[bytes.Index(Desk.hotkeys.size())];
    HoldHotkey(hotkey.modifiers, hotkey.key, 1 + bytes.Byte() % 8);
    HandleMessages();
}

void ChangeTheSystem(Bytes& bytes) {
    if (bytes.Byte() % 2)
        RestartTaskbar();
    else
        RelocateWindows();
    HandleMessages();
}

void LetTimePass(Bytes& bytes) {
    Wait(static_cast<DWORD>(bytes.Byte()) * 20);
}

void FailACall(Bytes& bytes) {
    ++Faults;
    Desk.fault = {"", bytes.Byte() + 1, 0, 87, 0};
}

void UseADialog(Bytes& bytes) {
    const HWND dialog = DialogHandles[bytes.Byte() % NUM_DIALOGS];
    if (!dialog || !WindowOf(dialog).handle || WindowOf(dialog).children.empty())
        return;
    const std::vector<HWND>& children = WindowOf(dialog).children;
    const HWND control = children[bytes.Index(children.size())];
    const std::string& kind = WindowOf(control).className;
    const DeskControl& kept = WindowOf(control).control;
    const int rows = std::max(static_cast<int>(kept.items.size()), kept.itemCount);
    if (kind == "Button" || kind == "BUTTON")
        ClickControl(control);
    else if (kind == "Edit" || kind == "EDIT")
        TypeText(control, bytes.OneOf({"", "0", "7", "4096", "99999999999", "name|with & bar"}));
    else if (rows > 0)
        SelectItem(control, bytes.Byte() % rows);
    HandleMessages();
}

void EditSettings(Bytes& bytes) {
    const auto* key =
        bytes.OneOf({"Quorl.right", "border", "num_regions", "quorl_menu_count", "quorl_menu", "Region0",
                     "Action28", "minscroll", "quorl_pos.left", "delay", "alpha", "mousescroll_type"});
    const auto* value = bytes.OneOf({"0", "-1", "2147483647", "-2147483648", "99999999999999", "1|2|3|4|5",
                                     "|||||", "x|1|2|3|4|5", "200", "500", "-1|-1|6|39|0", "\"  a\""});
    WritePrivateProfileStringA(SETTINGS_SECTION, key, value, SETTINGS_FILE);
}

void PressAKey(Bytes& bytes) {
    PressKey(bytes.OneOf({VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE, VK_LEFT, VK_DOWN}));
    HandleMessages();
}

// Frequent steps are listed several times.
const auto Steps = {
    RunAnyAction,    RunAnyAction, RunAnyAction, JumpToRegion, ChooseFromMenu, MoveTheMouse, UseTheMap,
    UseTheMap,       OpenOther,    OpenOther,    ChangeOther,  ChangeResponse, EndOther,     ShowOther,
    GoToOther,       PlugDisplays, LetTimePass,  LetTimePass,  ChangeTraits,   ChangeTraits, HoldSomeHotkey,
    ChangeTheSystem, FailACall,    UseADialog,   UseADialog,   UseADialog,     EditSettings, PressAKey,
};

void ExpectValidState() {
    EXPECT_TRUE(num_windows >= 0 && num_windows <= MAX_WINDOWS) << num_windows;
    EXPECT_TRUE(num_regions >= 0 && num_regions <= MAX_REGIONS) << num_regions;
    EXPECT_TRUE(quorl_menu_count >= 0 && quorl_menu_count <= MAX_MENU_ENTRIES) << quorl_menu_count;
    EXPECT_TRUE(Quorl.right >= ScreenW() && Quorl.bottom >= ScreenH()) << Quorl.right << "x" << Quorl.bottom;
    EXPECT_TRUE(LiveContexts() == 0 || Faults) << "its release may have failed";
}

void ExpectScrollingToBeClamped() {
    for (const int corner : {-5000, 60000, 300, 0}) {
        ScrollView(MainWnd, corner, corner, SV_ABSOLUTE, 0);
        EXPECT_TRUE(VDesk.left >= 0 && VDesk.top >= 0 && VDesk.right <= Quorl.right &&
                    VDesk.bottom <= Quorl.bottom)
            << testing::PrintToString(VDesk) << " on " << testing::PrintToString(Quorl);
    }
}

// A negative position of the map would not be loaded.
void SaveWhatLoads() {
    MoveWindow(MainWnd, 100, 100, 200, 100, TRUE);
    RunAction(ACTION_SAVE_SETTINGS);
}

bool MovesWithOwner(const DeskWindow& window) {
    return window.owner && WindowOf(window.owner).movesOwned;
}

// No scroll and no exit may move these.
std::vector<std::pair<HWND, RECT>> FixedWindows() {
    std::vector<std::pair<HWND, RECT>> fixed;
    for (const HWND handle : Others) {
        const DeskWindow& window = WindowOf(handle);
        if ((window.elevated || window.className == "Shell_TrayWnd" || IsOverlay(window)) &&
            !MovesWithOwner(window) && !window.diesAtCall)
            fixed.emplace_back(handle, window.rect);
    }
    return fixed;
}

// Every other window that the user sees, and that lets itself be moved.
std::vector<HWND> WindowsToKeepInReach() {
    std::vector<HWND> windows;
    std::copy_if(Others.begin(), Others.end(), std::back_inserter(windows), [](HWND handle) {
        const DeskWindow& window = WindowOf(handle);
        return window.handle && window.style & WS_VISIBLE && window.response == DeskResponse::Responds &&
               !window.overridesMove && !window.diesAtCall && !window.elevated && !IsOverlay(window) &&
               !MovesWithOwner(window) && window.className != "Shell_TrayWnd" &&
               window.className != "BaseBar";
    });
    return windows;
}

RECT VisibleNormalRect(const DeskWindow& window) {
    return Shrink(window.normalRect, window.style & WS_THICKFRAME ? Desk.frameMargins : RECT{});
}

// A window that Windows scales lands up to two pixels off, which may leave less of its title in reach.
bool IsAboutInReach(const RECT& rect, const DeskWindow& window) {
    const int miss = window.dpiAware ? 0 : 2;
    return IsTitleInReach(rect) || IsTitleInReach(Offset(rect, miss, miss)) ||
           IsTitleInReach(Offset(rect, miss, -miss)) || IsTitleInReach(Offset(rect, -miss, miss)) ||
           IsTitleInReach(Offset(rect, -miss, -miss));
}

// Also after log-off ended its program. Quorl takes the usual frame away from a minimized window, which may
// leave nothing.
void ExpectInReach(HWND handle) {
    const DeskWindow& window = WindowOf(handle);
    const bool minimized = window.style & WS_MINIMIZE;
    const RECT rect = FromSystem(minimized ? VisibleNormalRect(window) : VisibleRect(handle));
    const RECT least = minimized ? Shrink(window.normalRect, FRAME) : rect;
    EXPECT_TRUE(Width(least) < GRAB_SIZE || Height(least) < GRAB_SIZE || IsAboutInReach(rect, window))
        << testing::PrintToString(rect) << " of " << testing::PrintToString(ScreenRect);
}

void End(bool logsOff) {
    AnswerAll(IDYES);
    if (logsOff)
        LogOff();
    else
        RunAction(ACTION_EXIT);
    EXPECT_TRUE(bQuitting);
    ShutDown();
}

void ExpectWindowsAndResourcesBack(bool logsOff, const std::vector<std::pair<HWND, RECT>>& fixed) {
    const std::vector<HWND> windows = WindowsToKeepInReach();
    End(logsOff);
    for (const HWND window : windows)
        ExpectInReach(window);
    for (const auto& [window, rect] : fixed)
        EXPECT_EQ(RectOf(window), rect);
    EXPECT_TRUE(Desk.tray.empty());
    for (const DeskHotkey& hotkey : Desk.hotkeys) // those of regions end with the process
        EXPECT_TRUE(hotkey.window != MainWnd || hotkey.id >= FIRST_REGION_ID || Faults);
    for (const DeskMenu& menu : Desk.menus)
        EXPECT_TRUE(!menu.live || Faults);
    EXPECT_EQ(Hook.set, (std::vector<int>{1, 0}));
    EXPECT_TRUE(Desk.deletedInUse == 0 || Faults) << "objects deleted while selected";
}

} // namespace

// Bits of the first byte.
enum { COMPOSITOR = 1, FRAMES = 2, SCALES = 4, FOREGROUND_LOCK = 8, LOGS_OFF = 16, STARTS_AGAIN = 32 };

void TestSession(std::string_view input) {
    Bytes bytes{input.data(), input.data() + input.size()};
    Faults = 0;
    Others.clear();
    PrepareDesk();
    const int setup = bytes.Byte();
    if (setup & COMPOSITOR) {
        InstallCompositor();
        Desk.frameMargins = setup & FRAMES ? FRAME : RECT{};
    }
    if (setup & SCALES)
        InstallDpiFunctions();
    Desk.foregroundLock = Desk.clicksActivate = setup & FOREGROUND_LOCK;
    AnswerAll(IDOK);
    StartQuorl();
    while (bytes.next < bytes.end && !testing::Test::HasFailure()) {
        const std::size_t step = bytes.Index(Steps.size());
        SCOPED_TRACE(step);
        AnswerAll(IDNO);
        Desk.menuChoices.assign(MANY, 0);
        Steps.begin()[step](bytes);
        ExpectValidState();
    }
    Desk.fault = {};
    RelocateWindows();
    // A display change takes effect at the next mouse move.
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
    Wait(2000);
    const auto fixed = FixedWindows();
    ExpectScrollingToBeClamped();
    if (setup & STARTS_AGAIN)
        SaveWhatLoads();
    ExpectWindowsAndResourcesBack(setup & LOGS_OFF, fixed);
}

void TestRun(std::string_view input) {
    TestSession(input);
    if (input.empty() || !(input[0] & STARTS_AGAIN))
        return;
    const bool loads = IsOn(ACTION_LOAD_AT_START);
    const auto files = Desk.files;
    const auto displays = Desk.displays;
    ResetProgram();
    PrepareDesk();
    Desk.files = files;
    Desk.displays = displays;
    AnswerAll(IDOK);
    StartQuorl();
    RunAction(ACTION_SAVE_SETTINGS);
    EXPECT_TRUE(!loads || Desk.files == files) << Desk.files[SETTINGS_FILE];
}
