// The chapters of the tour that walk through the dialogs.
#include "dialogs.h"
#include "tour.h"

namespace {

// Reads a line of the settings file after they were saved.
void SeeStored(const char* act, const char* key, const std::string& wanted) {
    DoRow(SAVE);
    const std::string value = Soon([key] { return Stored(key); }, wanted);
    Say("  %s: quorl.ini has %s=%s", act, key, value.c_str());
    Insist(value == wanted, wanted);
}

void GoHome() {
    SeeKeys("Ctrl+Alt+Shift+0 jumps home", {VK_CONTROL, VK_MENU, VK_SHIFT, '0'}, 0, 0);
}

void SetOptions() {
    constexpr int WIDTH = 1001, WIDTH_SPINNER = 54322;
    constexpr POINT UP = {7, 5};
    GoHome();
    const HWND dialog = OpenByRow(54, "Options...");
    const auto width = [dialog] { return ControlText(dialog, WIDTH); };
    const std::string before = width();
    Until([&] { return width() != before; }, [&] { PressAt(Control(dialog, WIDTH_SPINNER), UP); });
    Say("  the arrow beside Desktop Width: from %s to %s", before.c_str(), width().c_str());
    const std::string wanted = std::to_string(std::stoi(before) + SCREEN_W);
    Insist(width() == wanted, wanted);
    TakePicture("10-options");
    CloseBy(dialog, IDOK);
    SeeStored("OK makes the desktop wider", "Quorl.right", wanted);
}

void BindAKey() {
    constexpr int ACTIONS_BUTTON = 3, KEYS = 1038, LIST = 1051, APPLY = 1053, RIGHT_BY_SCREEN = 25;
    const HWND dialog = OpenByButton(OpenByRow(54, "Options..."), ACTIONS_BUTTON, "Actions...");
    Until([] { return Stored("Action30") == "-1|-1|6|81|0"; },
          [dialog] {
              Press(Control(dialog, LIST));
              PressKeys({VK_HOME});
              PressInTurn(std::vector<WORD>(RIGHT_BY_SCREEN, VK_DOWN));
              Press(Control(dialog, KEYS)); // drops the list
              Press(Control(dialog, KEYS));
              PressKeys({'Q'});
              Press(Control(dialog, APPLY));
              DoRow(SAVE);
          });
    TakePicture("11-actions");
    CloseBy(dialog, IDOK);
    SeeKeys("Apply: Ctrl+Alt+Q moves one desktop to the right", {VK_CONTROL, VK_MENU, 'Q'}, SCREEN_W, 0);
    GoHome();
}

void ComposeMenu() {
    constexpr int MENUS_BUTTON = 1064, INTO = 3, ACTION_LIST = 1062, MENU_LIST = 1061;
    const HWND dialog = OpenByButton(OpenByRow(54, "Options..."), MENUS_BUTTON, "Customize Menu...");
    const auto last = [dialog] { return ListTexts(Control(dialog, MENU_LIST)).back(); };
    PressRow(Control(dialog, ACTION_LIST), "Find Window...");
    Until([&] { return last() == "Find Window..."; }, [&] { Press(Control(dialog, INTO)); });
    Say("  >>>>: the last entry of the menu is \"%s\"", last().c_str());
    TakePicture("12-menu");
    CloseBy(dialog, IDOK);
    SeeStored("OK keeps the menu", "quorl_menu", "54|55|74|77|49|-1|56|57|-1|59|52");
}

void NameTheView() {
    constexpr int NAME = 1025;
    SeeKeys("Ctrl+Alt+Q", {VK_CONTROL, VK_MENU, 'Q'}, SCREEN_W, 0);
    const HWND dialog = OpenByRow(49, "Name Region");
    Until([&] { return ControlText(dialog, NAME) == "Notes"; },
          [&] { TypeOver(Control(dialog, NAME), "Notes"); });
    Say("  the name is typed: %s", ControlText(dialog, NAME).c_str());
    Insist(ControlText(dialog, NAME) == "Notes", "the name");
    TakePicture("13-name-region");
    CloseBy(dialog, IDOK);
    SeeStored("OK makes a region of the view", "num_regions", "4");
    GoHome();
    SeeKeys("Ctrl+Alt+Shift+3 jumps to Notes", {VK_CONTROL, VK_MENU, VK_SHIFT, '3'}, SCREEN_W, 0);
    GoHome();
}

// Opens a list and chooses from it once Quorl has looked at the desktop and moves the dialog with the view,
// as it does each window. One that it did not know when the view left would be carried off when the view
// comes back.
void Find(int row, const char* title, const char* picture, const std::string& text) {
    constexpr DWORD LONGEST_LOOK = 2000; // ms
    constexpr int LIST = 1041;
    const HWND dialog = OpenByRow(row, title);
    Sleep(LONGEST_LOOK);
    std::string all;
    for (const std::string& each : ListTexts(Control(dialog, LIST)))
        all += (all.empty() ? "" : ", ") + each;
    Say("  it lists %s", all.c_str());
    TakePicture(picture);
    PressRow(Control(dialog, LIST), text);
}

void LeaveFind(const char* title) {
    GoHome();
    CloseBy(WaitForBox(title), IDOK);
}

void FindAWindow() {
    const Exhibit& mines = Exhibits[WINEMINE];
    Find(52, "Find Windows...", "14-find-window", TextOf(mines.window));
    SeeView("winemine is chosen and comes to the middle", (mines.home.left + mines.home.right - SCREEN_W) / 2,
            (mines.home.top + mines.home.bottom - SCREEN_H) / 2);
    LeaveFind("Find Windows...");
}

void FindARegion() {
    Find(111, "Find Region...", "15-find-region", "mail");
    SeeView("mail is chosen", 2 * SCREEN_W, 0);
    LeaveFind("Find Region...");
}

void ResizeAWindow() {
    constexpr int APPLY = 2, HEIGHT = 1000, WIDTH = 1001, LIST = 1041, OK = 1044;
    Exhibit& notepad = Exhibits[NOTEPAD];
    Place& home = notepad.home;
    const HWND dialog = OpenByRow(53, "Resize Windows...");
    home = {home.left, home.top, home.left + 420, home.top + 300};
    Until([&] { return PlaceOf(notepad.window) == home; },
          [&] {
              PressRow(Control(dialog, LIST), TextOf(notepad.window));
              TypeOver(Control(dialog, WIDTH), "420");
              TypeOver(Control(dialog, HEIGHT), "300");
              Press(Control(dialog, APPLY));
          });
    ShowPlace("Apply", "notepad", notepad.window);
    Insist(PlaceOf(notepad.window) == home, "420 x 300");
    TakePicture("16-resize");
    CloseBy(dialog, OK);
}

void SeeThrough() {
    constexpr int SLIDER = 1079;
    const HWND dialog = OpenByRow(116, "Toolwin Transparency...");
    const auto alpha = [] {
        BYTE value = 0;
        return GetLayeredWindowAttributes(QuorlWindow(), nullptr, &value, nullptr) ? value : -1;
    };
    Until([&] { return alpha() < 200; }, [&] { Press(Control(dialog, SLIDER)); });
    Say("  a click into the slider: the map's opacity is %d of 255", alpha());
    Insist(alpha() >= 10 && alpha() < 200, "a map that one can see through");
    TakePicture("17-transparency");
    PressKeys({VK_END});
    CloseBy(dialog, IDOK);
    SeeStored("the End key and OK make it solid again", "alpha", "255");
}

void Read(int row, const char* title, int control, const char* says, const char* wanted,
          const char* picture) {
    const HWND dialog = OpenByRow(row, title);
    const std::string text = ControlText(dialog, control);
    Say("  %s: %s", says, text.substr(0, text.find_first_of("\r\n")).c_str());
    Insist(text.find(wanted) != std::string::npos, wanted);
    TakePicture(picture);
    CloseBy(dialog, IDOK);
}

void ReadHelp() {
    constexpr int HELP_TEXT = 1068, PROGRAM = 1072;
    Read(56, "Quorl Help", HELP_TEXT, "Help says", "index.html", "18-help");
    Read(57, "About...", PROGRAM, "About says", "Quorl ", "19-about");
}

} // namespace

const std::vector<Chapter> DialogChapters = {
    {"Options: the size of the desktop",                 SetOptions   },
    {"Actions: a key of one's own",                      BindAKey     },
    {"Customize Menu: one entry more",                   ComposeMenu  },
    {"Name Region: the view gets a name",                NameTheView  },
    {"Find Window: the view comes to it",                FindAWindow  },
    {"Find Region: the view goes there",                 FindARegion  },
    {"Resize Windows: a size in numbers",                ResizeAWindow},
    {"Transparency: the map lets through what is below", SeeThrough   },
    {"Help and About",                                   ReadHelp     },
};
