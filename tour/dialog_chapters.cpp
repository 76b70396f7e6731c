// The chapters of the tour that walk through the dialogs.
#include "tour.h"

namespace {

// Saves the settings and requires a value in the file.
void SeeSaved(const char* step, const char* key, const std::string& wanted) {
    RunActions({ACTION_SAVE_SETTINGS});
    const std::string value = Eventually([key] { return Stored(key); }, wanted);
    Say("  %s: quorl.ini has %s=%s", step, key, value.c_str());
    Require(value == wanted, wanted);
}

void GoHome() {
    SeeKeys("Ctrl+Alt+Shift+0 jumps home", {VK_CONTROL, VK_MENU, VK_SHIFT, '0'}, 0, 0);
}

void SetOptions() {
    constexpr POINT UP = {7, 5};
    GoHome();
    const HWND dialog = OpenDialog(ACTION_OPTIONS, "Options...");
    const auto width = [dialog] { return ControlText(dialog, IDC_OPTIONS_WIDTH); };
    const std::string before = width();
    Retry([&] { return width() != before; },
          [&] { PressAt(Control(dialog, IDC_OPTIONS_WIDTH_SPINNER), UP); });
    Say("  the arrow beside Desktop Width: from %s to %s", before.c_str(), width().c_str());
    const std::string wanted = std::to_string(std::stoi(before) + SCREEN_W);
    Require(width() == wanted, wanted);
    TakePicture("10-options");
    CloseBy(dialog, IDOK);
    SeeSaved("OK makes the desktop wider", "Quorl.right", wanted);
}

// By keyboard alone. Escape keeps what was applied.
void BindAKey() {
    constexpr int ITEM = 25; // of ACTION_SCREEN_RIGHT; the list has only what can have a key
    const HWND dialog = OpenDialog(ACTION_DEFINE_ACTIONS, "Actions...");
    EXPECT_EVENTUALLY(Focused(dialog), IDC_ACTIONS_LIST);
    PressInTurn({VK_END, VK_HOME});
    PressInTurn(std::vector<WORD>(ITEM, VK_DOWN));
    PressInTurn({VK_TAB, VK_SPACE, VK_SPACE});                            // Shift on and off
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_TAB, 'Q', VK_TAB, VK_SPACE}); // past three flags, the key, Apply
    TakePicture("11-actions");
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_RIGHT}); // Clear, OK, the tabs
    EXPECT_EVENTUALLY(ControlText(dialog, IDC_ACTIONS_GROUP), "Mouse");
    CloseByKey(dialog, VK_ESCAPE);
    SeeSaved("Apply binds Ctrl+Alt+Q", "Action30", "-1|-1|6|81|0");
    SeeKeys("Ctrl+Alt+Q moves one desktop to the right", {VK_CONTROL, VK_MENU, 'Q'}, SCREEN_W, 0);
    GoHome();
}

void ComposeMenu() {
    const HWND dialog =
        OpenByButton(OpenDialog(ACTION_OPTIONS, "Options..."), IDC_OPTIONS_MENUS, "Customize Menu...");
    const auto last = [dialog] { return ListTexts(Control(dialog, IDC_MENU_LIST)).back(); };
    PressItem(Control(dialog, IDC_MENU_ACTIONS), "Find Window...");
    Retry([&] { return last() == "Find Window..."; }, [&] { Press(Control(dialog, IDC_MENU_ADD)); });
    Say("  >>>>: the last entry of the menu is \"%s\"", last().c_str());
    TakePicture("12-menu");
    CloseBy(dialog, IDOK);
    SeeSaved("OK keeps the menu", "quorl_menu", "54|55|74|77|49|-1|56|57|-1|59|52");
}

void ChooseColor(HWND dialog) {
    PressOnly(Control(dialog, IDC_REGION_COLOR));
    const HWND colors = WaitForBox("Color");
    int box = 706; // the first of three edit boxes
    for (const char* const part : {"200", "100", "50"})
        TypeOver(Control(colors, box++), part);
    CloseBy(colors, IDOK);
}

void NameTheView() {
    SeeKeys("Ctrl+Alt+Q", {VK_CONTROL, VK_MENU, 'Q'}, SCREEN_W, 0);
    const HWND dialog = OpenDialog(ACTION_MARK_REGION, "Name Region");
    const auto name = [dialog] { return ControlText(dialog, IDC_REGION_NAME); };
    Retry([&] { return name() == "Notes"; }, [&] { TypeOver(Control(dialog, IDC_REGION_NAME), "Notes"); });
    Say("  the name is typed: %s", name().c_str());
    Require(name() == "Notes", "the name");
    TakePicture("13-name-region");
    ChooseColor(dialog);
    CloseBy(dialog, IDOK);
    SeeSaved("OK makes a region of the view", "Region3", "Notes|1024|0|2048|768|3302600");
    GoHome();
    SeeKeys("Ctrl+Alt+Shift+3 jumps to Notes", {VK_CONTROL, VK_MENU, VK_SHIFT, '3'}, SCREEN_W, 0);
    GoHome();
}

// Selects from a list and requires the view there. Waits first until Quorl has noticed the dialog and moves
// it with the view like any window: one that was unknown when the view left would move away when it returns.
void Find(HWND dialog, const char* picture, const std::string& text, const char* step, LONG x, LONG y) {
    constexpr DWORD LONGEST_REFRESH = 2000; // ms
    Sleep(LONGEST_REFRESH);
    std::string all;
    for (const std::string& each : ListTexts(Control(dialog, IDC_FIND_LIST)))
        all += (all.empty() ? "" : ", ") + each;
    Say("  it lists %s", all.c_str());
    TakePicture(picture);
    PressItem(Control(dialog, IDC_FIND_LIST), text);
    SeeView(step, x, y);
    GoHome();
    CloseBy(dialog, IDOK);
}

void FindAWindow() {
    const auto& [left, top, right, bottom] = Programs[WINEMINE].home;
    Find(OpenDialog(ACTION_FIND_WINDOW, "Find Windows..."), "14-find-window",
         TextOf(Programs[WINEMINE].window), "winemine is chosen and comes to the middle",
         (left + right - SCREEN_W) / 2, (top + bottom - SCREEN_H) / 2);
}

void FindARegion() {
    Find(OpenDialog(ACTION_FIND_REGION, "Find Region..."), "15-find-region", "mail", "mail is chosen",
         2 * SCREEN_W, 0);
}

void ResizeAWindow() {
    DemoProgram& notepad = Programs[NOTEPAD];
    RECT& home = notepad.home;
    const HWND dialog = OpenDialog(ACTION_RESIZE_WINDOW, "Resize Windows...");
    home = {home.left, home.top, home.left + 420, home.top + 300};
    Retry([&] { return WindowRect(notepad.window) == home; },
          [&] {
              PressItem(Control(dialog, IDC_RESIZE_LIST), TextOf(notepad.window));
              TypeOver(Control(dialog, IDC_RESIZE_WIDTH), "420");
              TypeOver(Control(dialog, IDC_RESIZE_HEIGHT), "300");
              Press(Control(dialog, IDC_RESIZE_APPLY));
          });
    SayRect("Apply", "notepad", notepad.window);
    Require(WindowRect(notepad.window) == home, "420 x 300");
    TakePicture("16-resize");
    CloseBy(dialog, IDC_RESIZE_OK);
}

void SeeThrough() {
    const HWND dialog = OpenDialog(ACTION_TRANSPARENCY, "Toolwin Transparency...");
    const auto alpha = [] {
        BYTE value = 0;
        return GetLayeredWindowAttributes(QuorlWindow(), nullptr, &value, nullptr) ? value : -1;
    };
    Retry([&] { return alpha() < 200; },
          [&] {
              Activate(dialog); // under Wine the map may have become active when it was made transparent
              Press(Control(dialog, IDC_TRANSPARENCY_SLIDER));
              PressKeys({VK_PRIOR});
          });
    Say("  a click into the slider and Page Up: the map's opacity is %d of 255", alpha());
    Require(alpha() >= 10 && alpha() < 200, "a transparent map");
    TakePicture("17-transparency");
    PressKeys({VK_END});
    CloseBy(dialog, IDOK);
    SeeSaved("the End key and OK make it solid again", "alpha", "255");
}

void Read(HWND dialog, int control, const char* name, const char* wanted, const char* picture) {
    const std::string text = ControlText(dialog, control);
    Say("  %s says: %s", name, text.substr(0, text.find_first_of("\r\n")).c_str());
    Require(text.find(wanted) != std::string::npos, wanted);
    TakePicture(picture);
    CloseBy(dialog, IDOK);
}

void ReadHelp() {
    Read(OpenDialog(ACTION_HELP, "Quorl Help"), IDC_HELP_TEXT, "Help", "index.html", "18-help");
    Read(OpenDialog(ACTION_ABOUT, "About..."), IDC_ABOUT_PROGRAM, "About", "Quorl ", "19-about");
}

} // namespace

const std::vector<Chapter> DialogChapters = {
    {"Options: the size of the desktop", SetOptions},
    {"Actions: a key of one's own", BindAKey},
    {"Customize Menu: one entry more", ComposeMenu},
    {"Name Region: the view gets a name", NameTheView},
    {"Find Window: the view goes to it", FindAWindow},
    {"Find Region: the view goes there", FindARegion},
    {"Resize Windows: a size in numbers", ResizeAWindow},
    {"Transparency: the map shows what is below", SeeThrough},
    {"Help and About", ReadHelp},
};
