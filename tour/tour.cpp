// The tour: what Quorl does, shown on a virtual screen among real programs that are used by real keys. Prints
// each step in one line, with numbers read back from the windows, and ends with exit code 1 if something is
// missing.
//   tour              runs to its end
//   tour --pictures   prints a line "picture NAME" where the caller may take a picture of the screen, and
//   continues
//                     when it reads a line
#include "tour.h"

#include <cstdarg>

DemoProgram Programs[NUM_PROGRAMS] = {
    {"notepad", "notepad", "Notepad", {60, 250, 560, 640}, nullptr},
    {"winemine", "winemine", "WineMine", {640, 330, 640, 330}, nullptr},
    {"clock", "clock", "CLClass", {700, 80, 920, 300}, nullptr},
    {"regedit", "regedit", "RegEdit_RegEdit", {1330, 320, 1930, 670}, nullptr},
};
static bool TakesPictures;

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
    if (!TakesPictures)
        return;
    Sleep(500); // until the programs have painted
    Say("picture %s", name);
    Require(fgets(line, sizeof line, stdin) != nullptr, "an answer from the one who takes the pictures");
}

bool ViewIsAt(LONG x, LONG y) {
    return std::all_of(std::begin(Programs), std::end(Programs), [&](const DemoProgram& program) {
        return WindowRect(program.window) == Moved(program.home, -x, -y);
    });
}

void SeeView(const char* step, LONG x, LONG y) {
    std::string report;
    for (const DemoProgram& program : Programs) {
        const RECT now = Eventually([&] { return WindowRect(program.window); }, Moved(program.home, -x, -y));
        report += std::string(report.empty() ? "" : "; ") + program.name + " at " + std::to_string(now.left) +
                  ", " + std::to_string(now.top);
    }
    Say("  %s: %s", step, report.c_str());
    Require(ViewIsAt(x, y), "the view at " + std::to_string(x) + ", " + std::to_string(y));
}

void SeeKeys(const char* step, std::initializer_list<WORD> keys, LONG x, LONG y) {
    const HWND notepad = Programs[NOTEPAD].window;
    const RECT before = WindowRect(notepad);
    const auto hasMoved = [&] { return WindowRect(notepad) != before; };
    Retry(hasMoved, [&] {
        Require(PressKeys(keys), step);
        Eventually(hasMoved, true); // pressed twice, the view would go twice as far
    });
    SeeView(step, x, y);
}

void SayRect(const char* step, const char* name, HWND window) {
    const RECT now = WindowRect(window);
    Say("  %s: %s is at %ld, %ld and %ld x %ld in size", step, name, now.left, now.top, now.right - now.left,
        now.bottom - now.top);
}

int main(int count, char** arguments) {
    TakesPictures = count == 2 && std::string(arguments[1]) == "--pictures";
    CleanDesktop();
    for (const auto* const chapters : {&DesktopChapters, &DialogChapters})
        for (const Chapter& chapter : *chapters) {
            Say("%s", chapter.title);
            chapter.run();
        }
    QuitAtTheEnd();
    CleanDesktop();
    return testing::UnitTest::GetInstance()->Failed();
}
