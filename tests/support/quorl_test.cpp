// Starting Quorl on the in-memory desktop and acting as its user.
#include "support/quorl_test.h"

#include "app/main.h"
#include "support/reset.h"
#include "regions/region_table.h"
#include "status/status_strip.h"
#include "windows/window_table.h"

#include <cstring>
#include <ostream>

HookRecord Hook;

namespace {

class ResetBeforeCases : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { ResetProgram(); }
};

const bool ResetsBeforeCases =
    (testing::UnitTest::GetInstance()->listeners().Append(new ResetBeforeCases), true);

} // namespace

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
    EXPECT_EQ(Desk.unexpected, 0) << "an unexpected box, or a call that would have blocked: " << LastBox();
    FreeControls();
}

void FreeControls() {
    Desk.fault = {};
    for (const auto& window : Desk.windows)
        if (window->handle && window->procedure && window->style & WS_CHILD)
            DestroyWindow(window->handle);
}

void RunningQuorl::SetUp() {
    QuorlTest::SetUp();
    ASSERT_TRUE(StartQuorl());
    HandleMessages();
    Desk.trace.clear();
}

void MapTest::SetUp() {
    RunningQuorl::SetUp();
    WindowOf(MainWnd).rect = {100, 100, 364, 204}; // including the frame
}

bool StartQuorl() {
    return StartUp(reinterpret_cast<HINSTANCE>(0x400000));
}

void Wait(DWORD milliseconds) {
    Desk.runUntil = Desk.now + milliseconds;
    Desk.timeIsUp = 0;
    RunMessageLoop();
}

void HandleMessages() {
    Wait(0);
}

void RunAction(int id) {
    PostMessageA(MainWnd, WM_HOTKEY, static_cast<WPARAM>(id), 0);
    HandleMessages();
}

void AnswerBoxes(std::initializer_list<int> answers) {
    Desk.boxAnswers.assign(answers.begin(), answers.end());
}

void BindMouse(int id, int mods, int button) {
    ActionTable[id].mouse_mods = mods;
    ActionTable[id].mouse_btn = button;
}

void MoveOnMap(int x, int y) {
    const POINT at = ToScreen(MainWnd, x, y);
    MoveMouse(at.x, at.y);
    HandleMessages();
}

void PressOnMap(int button) {
    PressMouse(button, 1);
    HandleMessages();
}

void ReleaseOnMap(int button) {
    PressMouse(button, 0);
    HandleMessages();
}

HWND OpenAndList(const char* title, const RECT& rect, const char* className) {
    const HWND window = OpenWindow(title, rect, className);
    RebuildWindowTable();
    return window;
}

void AddRegion(const std::string& name, int left, int top) {
    RegionRow& region = RegionTable[num_regions];
    region = {"", left, top, left + ScreenW(), top + ScreenH(), 0};
    name.copy(region.name, sizeof region.name - 1);
    ++num_regions;
}

std::string LastStatus() {
    for (auto call = Desk.drawCalls.rbegin(); call != Desk.drawCalls.rend(); ++call)
        if (call->call == "DrawTextExW" && WindowOf(call->window).className == TIP_CLASS)
            return call->text;
    return "";
}

RECT RectOf(HWND window) {
    return WindowOf(window).rect;
}

RECT Rect(int left, int top, int right, int bottom) {
    return {left, top, right, bottom};
}

POINT ViewCorner() {
    return {VDesk.left, VDesk.top};
}

std::string LastBox() {
    return Desk.boxes.empty() ? "" : Desk.boxes.back().text + "/" + Desk.boxes.back().caption;
}

bool CalledInOrder(std::initializer_list<const char*> calls) {
    const auto* next = calls.begin();
    for (const char* made : Desk.trace)
        if (next != calls.end() && !std::strcmp(made, *next))
            ++next;
    return next == calls.end();
}

// If the call fails that stores or finds the state of a spinner, nobody can free it.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:OnSpinnerCreate";
}

int FailEachCall(void (*prepare)(), void (*scenario)()) {
    int nth = 0;
    bool hit = true;
    while (hit && !testing::Test::HasFailure()) {
        ++nth;
        SCOPED_TRACE("call " + std::to_string(nth) + " fails");
        ResetProgram();
        prepare();
        Desk.fault = {"", nth, 0, 87, 0};
        scenario();
        hit = Desk.fault.hits;
        FreeControls();
    }
    return nth - 1;
}

bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}

void PrintTo(const POINT& point, std::ostream* out) {
    *out << '(' << point.x << ", " << point.y << ')';
}
