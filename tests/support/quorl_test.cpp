// The words of the user.
#include "support/quorl_test.h"

#include "core/main.h"
#include "regions/region_table.h"
#include "scroll/window_table.h"

#include <cstring>
#include <ostream>

HookRecord Hook;

template <typename Function>
static FARPROC Export(Function* function) {
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

void PrepareDesk() {
    DeskModule& user = Desk.modules["user32.dll"];
    user.loads = 1;
    user.exports["SetLayeredWindowAttributes"] = Export(SetLayeredWindowAttributes);
    user.exports["LockWorkStation"] = Export(LockWorkStation);
    DeskModule& hook = Desk.modules["quorl.dll"];
    hook.exports["SaveSharedData"] = Export(+[](HWND window) { Hook.window = window; });
    hook.exports["SetMouseHook"] = Export(+[](int bSet) { Hook.set.push_back(bSet); });
}

void QuorlTest::SetUp() {
    PrepareDesk();
}

void QuorlTest::TearDown() {
    EXPECT_EQ(Desk.surprises, 0) << "an unexpected box, or a call that would have blocked: " << LastBox();
    // What a control has allocated goes with it, not with the process.
    Desk.fault = {};
    for (const DeskWindow& window : Desk.windows)
        if (window.handle && window.procedure && window.style & WS_CHILD)
            DestroyWindow(window.handle);
}

void RunningQuorl::SetUp() {
    QuorlTest::SetUp();
    ASSERT_EQ(StartQuorl(), 1);
    Settle();
    Desk.trace.clear();
}

int StartQuorl() {
    return StartUp(reinterpret_cast<HINSTANCE>(0x400000));
}

void Wait(DWORD milliseconds) {
    Desk.until = Desk.now + milliseconds;
    Desk.bRunDry = 0;
    RunMessageLoop();
}

void Settle() {
    Wait(0);
}

void Command(int row) {
    PostMessageA(MainWnd, WM_HOTKEY, static_cast<WPARAM>(row), 0);
    Settle();
}

void WillAnswer(std::initializer_list<int> answers) {
    Desk.answers.assign(answers.begin(), answers.end());
}

void Bind(int row, int mods, int button) {
    ActionTable[row].mouse_mods = mods;
    ActionTable[row].mouse_btn = button;
}

HWND OpenKnown(const char* title, const RECT& place, const char* className) {
    const HWND window = OpenWindow(title, place, className);
    RebuildWindowTable();
    return window;
}

void Mark(const std::string& name, int left, int top) {
    RegionRow& region = RegionTable[num_regions];
    region = {num_regions, "", left, top, left + ScreenW(), top + ScreenH(), 0};
    name.copy(region.name, sizeof region.name - 1);
    ++num_regions;
}

std::string LastTip() {
    for (auto stroke = Desk.strokes.rbegin(); stroke != Desk.strokes.rend(); ++stroke)
        if (stroke->what == "DrawTextExA" && RowOf(stroke->window).className == "w_ToolTip")
            return stroke->text;
    return "";
}

RECT PlaceOf(HWND window) {
    return RowOf(window).place;
}

RECT Rect(int left, int top, int right, int bottom) {
    return {left, top, right, bottom};
}

RECT Moved(const RECT& place, int dx, int dy) {
    return {place.left + dx, place.top + dy, place.right + dx, place.bottom + dy};
}

POINT ViewCorner() {
    return {VDesk.left, VDesk.top};
}

std::string LastBox() {
    return Desk.boxes.empty() ? "" : Desk.boxes.back().text + "/" + Desk.boxes.back().caption;
}

int CameInOrder(std::initializer_list<const char*> calls) {
    const auto* next = calls.begin();
    for (const char* made : Desk.trace)
        if (next != calls.end() && !std::strcmp(made, *next))
            ++next;
    return next == calls.end();
}

bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}

void PrintTo(const POINT& point, std::ostream* out) {
    *out << '(' << point.x << ", " << point.y << ')';
}
