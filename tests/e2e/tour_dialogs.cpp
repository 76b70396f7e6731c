// The chapters of the tour that walk through the dialogs.
#include "dialogs.h"
#include "settings_file.h"
#include "tour_words.h"

namespace {

// Reads a line of the settings file after they were saved.
void SeeStored(const char* act, const char* key, const std::string& wanted) {
    DoRow(SAVE);
    const std::string value = Soon([key] { return Stored(key); }, wanted);
    Say("  %s: quorl.ini has %s=%s", act, key, value.c_str());
    Insist(value == wanted, wanted);
}

void GoHome() {
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '0'});
    SeeView("Ctrl+Alt+Shift+0 jumps home", 0, 0);
}

// Waits until Quorl has looked at the desktop and moves the dialog with the view, as it does each window. One
// that it did not know when the view left would be carried off when the view comes back.
HWND OpenAndBeKnown(int row, const char* title) {
    constexpr DWORD LONGEST_LOOK = 2000; // ms
    const HWND dialog = OpenByRow(row, title);
    Sleep(LONGEST_LOOK);
    return dialog;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
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
    const HWND options = OpenByRow(54, "Options...");
    const HWND dialog = OpenByButton(options, ACTIONS_BUTTON, "Actions...");
    CloseBy(options, IDOK);
    Until([] { return Stored("Action30") == "-1|-1|6|81|0"; },
          [dialog] {
              PressItem(Control(dialog, LIST), RIGHT_BY_SCREEN);
              ChooseLetter(Control(dialog, KEYS), 'Q');
              Press(Control(dialog, APPLY));
              DoRow(SAVE);
          });
    TakePicture("11-actions");
    CloseBy(dialog, IDOK);
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    SeeView("Apply: Ctrl+Alt+Q moves one desktop to the right", SCREEN_W, 0);
    GoHome();
}

void ComposeMenu() {
    constexpr int MENUS_BUTTON = 1064, INTO = 3, ACTION_LIST = 1062, MENU_LIST = 1061;
    const HWND options = OpenByRow(54, "Options...");
    const HWND dialog = OpenByButton(options, MENUS_BUTTON, "Customize Menu...");
    CloseBy(options, IDOK);
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
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    SeeView("Ctrl+Alt+Q", SCREEN_W, 0);
    const HWND dialog = OpenByRow(49, "Name Region");
    Until([&] { return ControlText(dialog, NAME) == "Notes"; },
          [&] { TypeOver(Control(dialog, NAME), "Notes"); });
    Say("  the name is typed: %s", ControlText(dialog, NAME).c_str());
    Insist(ControlText(dialog, NAME) == "Notes", "the name");
    TakePicture("13-name-region");
    CloseBy(dialog, IDOK);
    SeeStored("OK makes a region of the view", "num_regions", "4");
    GoHome();
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '3'});
    SeeView("Ctrl+Alt+Shift+3 jumps to Notes", SCREEN_W, 0);
    GoHome();
}

void FindAWindow() {
    constexpr int LIST = 1041;
    const Exhibit& mines = Exhibits[WINEMINE];
    const HWND dialog = OpenAndBeKnown(52, "Find Windows...");
    const HWND list = Control(dialog, LIST);
    Say("  it lists %s", Joined(ListTexts(list)).c_str());
    TakePicture("14-find-window");
    PressRow(list, TextOf(mines.window));
    const int left = (mines.home.left + mines.home.right - SCREEN_W) / 2;
    const int top = (mines.home.top + mines.home.bottom - SCREEN_H) / 2;
    SeeView("winemine is chosen and comes to the middle", left, top);
    GoHome();
    CloseBy(dialog, IDOK);
}

void FindARegion() {
    constexpr int LIST = 1041;
    const HWND dialog = OpenAndBeKnown(111, "Find Region...");
    const HWND list = Control(dialog, LIST);
    Say("  it lists %s", Joined(ListTexts(list)).c_str());
    TakePicture("15-find-region");
    PressRow(list, "mail");
    SeeView("mail is chosen", 2 * SCREEN_W, 0);
    GoHome();
    CloseBy(dialog, IDOK);
}

void ResizeAWindow() {
    constexpr int APPLY = 2, HEIGHT = 1000, WIDTH = 1001, LIST = 1041, OK = 1044;
    Exhibit& notepad = Exhibits[NOTEPAD];
    const HWND dialog = OpenByRow(53, "Resize Windows...");
    notepad.home.right = notepad.home.left + 420;
    notepad.home.bottom = notepad.home.top + 300;
    Until([&] { return PlaceOf(notepad.window) == notepad.home; },
          [&] {
              PressRow(Control(dialog, LIST), TextOf(notepad.window));
              TypeOver(Control(dialog, WIDTH), "420");
              TypeOver(Control(dialog, HEIGHT), "300");
              Press(Control(dialog, APPLY));
          });
    const Place now = PlaceOf(notepad.window);
    Say("  Apply: notepad is at %d, %d and %d x %d in size", now.left, now.top, now.right - now.left,
        now.bottom - now.top);
    Insist(now == notepad.home, "420 x 300");
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

void ReadHelp() {
    constexpr int HELP_TEXT = 1068, PROGRAM = 1072;
    const HWND help = OpenByRow(56, "Quorl Help");
    const std::string text = ControlText(help, HELP_TEXT);
    Say("  Help says: %s", text.substr(0, text.find('\r')).c_str());
    Insist(text.find("index.html") != std::string::npos, "where to find help");
    TakePicture("18-help");
    CloseBy(help, IDOK);
    const HWND about = OpenByRow(57, "About...");
    const std::string program = ControlText(about, PROGRAM);
    Say("  About says: %s", program.substr(0, program.find('\n')).c_str());
    Insist(program.starts_with("Quorl "), "the program's name");
    TakePicture("19-about");
    CloseBy(about, IDOK);
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
