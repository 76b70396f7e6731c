#!/usr/bin/env python3
"""Breaks src/ in one place at a time and reports the breaks that the native tests do not detect.

    tests/tools/mutate.py [COUNT] [SEED]     COUNT breaks (60), spread over the files; a SEED repeats a choice

Works on a copy of the tree in build/mutate/. A break that does not compile, or that EQUIVALENT names, is replaced by
another one. The last line is a summary. The exit code is 1 if fewer than 85 in 100 are detected.
"""
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
COPY = ROOT / "build/mutate/tree"
BUILD = COPY / "build/native"
SLOW = "*WhicheverCallFails:*EachFailingPlatformCall:FuzzInputs.*"  # they run last
TIMEOUT = 120  # seconds; a break can make a loop endless

# Excludes calls of functions to which the order of their first two arguments means nothing.
ORDERED = "".join(rf"(?<!{name}\()" for name in ("min", "max", "Scale", "IsSameRect", "HasBoth", "Fit"))

# pattern, replacement
BREAKS = (
    (r"(?<![\w.])\d+(?![\w.])", lambda found: "0" if found[0] == "1" else str(int(found[0]) + 1)),
    (r" < (?!<)", lambda _: " <= "),
    (r" > ", lambda _: " >= "),
    (r" <= ", lambda _: " < "),
    (r" >= ", lambda _: " > "),
    (r" == ", lambda _: " != "),
    (r" != ", lambda _: " == "),
    (r" && ", lambda _: " || "),
    (r" \|\| ", lambda _: " && "),
    (r" \+ ", lambda _: " - "),
    (r" - ", lambda _: " + "),
    (r"(?<=if \()!", lambda _: ""),
    # A call or an assignment as a statement of its own, not a declaration.
    (r"(?<=[;{}\n)]\n)( +)(?!return\b|else\b)[\w.\[\]>-]+(\([^;{}]*\)| [-+|&*]?= [^;{}]*);$", lambda found: f"{found[1]};"),
    # Two simple arguments of a call.
    (ORDERED + r"(?<=\w\()(\w[\w.]*), (\w[\w.]*)(?=[,)])", lambda found: f"{found[2]}, {found[1]}"),
    (r"(?<=, )(\w[\w.]*), (\w[\w.]*)(?=\))", lambda found: f"{found[2]}, {found[1]}"),
)

# functions, line and replacement (a pattern), why no test can notice such a break
EQUIVALENT = (
    ("FoldOnCrash", "", "a crash needs Windows"),
    ("OnMapLeftPress OnMapRightPress OnMapMiddlePress OnToolwinMouseMove OnTrayMessage SpinnerWndProc OnHotkey OnPaint OnDisplayMessage OnQuitMessage OnSessionEnd OnColorsChanged OnSettingChange OnSizeLimits OnMouseMove OnTray TipWndProc", r"return .*-> \d+$",
     "Windows ignores what these messages return"),
    ("SelectedData AddListRow AddTitleRow ApplySlider InsertTabs FillKeyCombo FillMenuListBox FillActionListBox ShowKey IsAlive", r"(LB_GETCURSEL|LB_GETITEMDATA|LB_ADDSTRING|LB_RESETCONTENT|TBM_GETPOS|TCM_DELETEALLITEMS|CB_INSERTSTRING|CB_SETCURSEL|WM_NULL).*-> 1",
     "the message does not use this argument"),
    ("BindKey", r"^static_cast<WPARAM>.*-> 1", "CB_GETITEMDATA does not use this argument"),
    ("OnCreateMessage", r"return 0", "every result but -1 lets the window be created"),
    ("StartUp", r"pSetLayeredWindowAttributes", "without LWA_COLORKEY the colour is not used"),
    ("FillActionTable", r"NUM_ACTIONS\]", "the closing row has no binding and is offered nowhere"),
    ("AddAvailableActions", r"-> <=$", "the closing row is offered nowhere"),
    ("MatchMouseAction", r"id < NUM_ACTIONS", "the closing row has no binding"),
    ("IsLockedWindow LockWindow UnlockWindow", r"slot < UsedSlots", "a slot that was never used contains no window"),
    ("WindowAtDesktopPoint CycleView", r"i < num_windows", "the row behind the last one contains no window"),
    ("WholeLetters", r"length < end", "no letter fits at the end"),
    ("InsertColumns", r"LVCFMT_LEFT", "it is 0, which the field is already"),
    ("FillMenuListBox FillActionListBox FillKeyCombo", r"WM_SETREDRAW", "it only prevents flicker"),
    ("FillMenuListBox", r"InvalidateRect", "the in-memory desktop does not paint lists"),
    ("FillActionList", r"LVM_SETITEMCOUNT", "only some systems need it, to update the scroll bar"),
    ("FieldLength", r"length < end", "the terminator counts as one letter, which is cut off again"),
    ("MakeStorable", r"letter < ' '", "a space becomes a space"),
    ("FlashTimer", r"GetVisibleRect", "the in-memory desktop always paints the whole window"),
    ("ReadSettings", r"ResetRegions", "only a repaint while the settings are read shows it"),
    ("ShiftedCorner", r"d[xy], window", "the two are only added"),
    ("OnSpinnerCaptureLost", r"state->flags", "the check only saves a repaint"),
    ("FindBesideProgram", r"length >= MAX_PATH", "the next check refuses such a path, too"),
    ("FindBesideProgram", r"wcslen.*-> [-0]$", "a later check refuses such a path; only a sanitizer reports the write"),
    ("IsNameless", r"int numbers.*-> 0$", "only a sanitizer reports the write behind it"),
    ("WriteMenu", r"length < MENU_WRITE_SIZE.*-> <=$", "only a list of exactly this length differs"),
    ("FoldCoordinate", r"folded < 0", "0 becomes the screen's size, which folds to 0 again"),
    ("ClampAxis ClampCoordinate ShiftedCoordinate", r" [<>]=? ", "at the edge both branches agree"),
    ("ShapesOfSpinner DrawSpinnerArrows", "", "only a person can judge the look"),
    ("PaintSpinner", r"^DrawEdge|^SpinnerShapes", "only a person can judge the look"),
    ("RegisterRegionKeys", r"MessageBeep", "only a person can judge the sound"),
    ("AppendFlags", r"sizeof text", "the buffer is never full"),
    ("DescribePoint AddWindowToList OnInit FocusNeighbour", r"(char|WCHAR) \w+\[", "the buffer is never full"),
    ("ShowCount", "", "the next text replaces this one in the same call"),
    ("(none)", r"NO_NAME", "the closing row is recognized by its key"),
    ("(none)", r"NO_CALLER", "the next text replaces this one in the same call"),
    ("(none)", r"TITLE_LIMIT", "the buffer is never full"),
    ("OnColorsChanged", r"GetSysColorBrush", "Windows changes its own brush; there is no other one"),
    ("RunMessageLoop", r"got < 0", "GetMessage returns -1 or more, and 0 has ended the loop"),
    ("Register HotkeyText", r"vk >= 0.*-> (>|1)$", "no key has the number 0"),
    ("IsShellWindow", r"127.*-> 128$", "the buffer is never full"),
    ("VirtualKey", r"key > 256.*-> 257$", "257 and 1 are the same letter"),
    ("RemoveMenuEntry InsertEntries", r"entry (<|>=) 0.*-> ([<>]=?|1)$", "action 0 is not offered"),
    ("ChangedSize", r"screens > 0.*-> >=$", "the size has been limited before"),
    ("FindRequest", r"index - 1.*-> \+$", "where the search starts changes only how long it takes"),
    ("OnSelectWindow", r"data && .*-> \|\|$", "GoToWindow refuses what is no window"),
    ("CloseDialog", r"EndDialog.*-> 1", "nobody reads the result of a dialog"),
    ("FocusOtherWindow", r"^SetFocus", "Windows sets the focus to the foreground window by itself, but for frozen programs"),
    ("EndSession", r"^GatherWindows", "Quit gathers too, after its box; only Windows may end the process before"),
    ("ToggleActiveTopmost", r"^ReturnForeground", "in the in-memory desktop, showing the window again activates it"),
    ("AddTrayIcon", r"NumRetries.*-> 1$", "one try fewer of many"),
    ("ChangeBorder", r"argument > 0", "the argument is 1 or -1"),
    ("CreateRegistered", r"procedure, 0\);", "no dialog reads its parameter"),
    ("FindWindowDlgProc FindRegionDlgProc ResizeWindowsDlgProc", r"WM_INITDIALOG.*return 1", "it says who sets the focus"),
    ("MakeStorable", r"letter >= 0", "the name ends at 0"),
    ("EndSession", r"PostQuitMessage", "nobody reads the exit code of a process that ends with the session"),
    ("ActionDefs", r"\d, (Toggle|Save|Load|Unmark|Lock|Start|Display|Quit|Center|Flash|GoToPoint|GoToRegion|nullptr).*-> 1",
     "these handlers do not use the argument"),
    ("ApplySlider", r"MainWnd, 0, .*-> 1$", "without a flag for it, the colour is not used"),
    ("UpdateScale", r"CreateFontA.*-> 1$", "only a person can judge the look"),
    ("ReadPositions", r"i < num_windows.*-> <=$", "the row behind the last one is read, but not used"),
    ("ChangeSelectedAction", r"row < 0.*-> <=$", "action 0 is not offered"),
    ("ChangedSize", r"screens < 0.*-> 1$", "no desktop is smaller than the screen"),
    ("ToAnsiPath", r"-> WC_NO_BEST_FIT_CHARS, CP_ACP$", "the in-memory desktop has one code page at a time"),
    ("AwaitRefresh", r"WM_NULL.*-> 1$", "the message has no parameters"),
    ("ReportRefusal", r"sizeof text", "the buffer is never full"),
    ("ResetRegions SetMenuCount ClampSize", r"-> 0, (count|shown)$", "both take the larger of the two"),
    ("(none)", r"WCHAR text\[TEXT_LIMIT.*-> 5$", "one character more changes nothing"),
    ("TipPaint", r"SetBkMode", "only a person can judge the look"),
    ("OnMapMiddleRelease", r"return 0.*-> 1$", "nobody reads the result of the message"),
    ("ReadActions NumListItems", r"< NUM_ACTIONS.*-> <=$", "only a sanitizer reports the access behind the table"),
    ("AddTrayIcon", r"PlaceIcon.*-> $", "the timer ends at its first tick"),
    ("HasSpinnerClass", r"!= 0.*-> 1$", "without its class the window is not created either"),
    ("(none)", r"SPINNER_INTERVAL = 250.*-> 251$", "nobody notices a millisecond"),
    ("LoadTrayImage", r"SM_CYSMICON|IMAGE_ICON", "only a real desktop shows it"),
    ("IsCloaked IsScaledByWindows CopyRights AwaitRefresh", r" = 0;", "written by the call before it is read"),
    ("OnSpinnerDestroy", r"GWLP_USERDATA", "the window receives nothing afterwards"),
)


def code_of(text):
    """The text with comments, strings and directives replaced by spaces."""
    blank = lambda found: re.sub(r"[^\n]", " ", found[0])
    return re.sub(r'//[^\n]*|"(?:\\.|[^"\\\n])*"|^#[^\n]*|^.*(?:return;|break;).*$', blank, text, flags=re.M)


def sites():
    """(file, from, to, replacement) of every break."""
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        if "hook" in file.relative_to(ROOT / "src").parts[:1]:
            continue  # it is tested on Windows
        code = code_of(file.read_text())
        for pattern, change in BREAKS:
            for found in re.finditer(pattern, code, re.M):
                if change(found) != found[0]:
                    yield file.relative_to(ROOT), found.start(), found.end(), change(found)


def spread(chance):
    """All sites in random order, one of each file before a second one of any."""
    by_file = {}
    for site in sites():
        by_file.setdefault(site[0], []).append(site)
    for of_file in by_file.values():
        chance.shuffle(of_file)
    while by_file:
        files = list(by_file)
        chance.shuffle(files)
        for file in files:
            yield by_file[file].pop()
            if not by_file[file]:
                del by_file[file]


def run(*command, seconds=None):
    try:
        return subprocess.run(command, cwd=COPY, capture_output=True, timeout=seconds).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def is_detected():
    """None if the break does not compile."""
    if not run("cmake", "--build", BUILD, "--target", "quorl_tests", "print_tables"):
        return None
    tests = (BUILD / "tests/quorl_tests", "--gtest_fail_fast")
    return not (
        run(*tests, f"--gtest_filter=-{SLOW}", seconds=TIMEOUT)
        and run("docs/make_help.py", BUILD / "docs/print_tables", "--check")
        and run(*tests, f"--gtest_filter={SLOW}", seconds=TIMEOUT)
    )


def place(site):
    """Number, function or table ("(none)" above the first one), and text of the line."""
    file, start, end, _ = site
    text = (ROOT / file).read_text()
    functions = re.findall(r"^\w[^;{}]*?(\w+)(?:\([^;{}]*\)|\[\w+\] =) \{$", text[:start], re.M)  # or tables
    line = text[text.rfind("\n", 0, start) + 1 : text.find("\n", end)].strip()
    return text.count("\n", 0, start) + 1, functions[-1] if functions else "(none)", line


def describe(site):
    number, function, line = place(site)
    return f"{site[0]}:{number}: {function}: {line}  ->  {site[3].strip() or 'nothing'}"


def is_equivalent(site):
    _, function, line = place(site)
    change = f"{line} -> {site[3].strip()}"
    return any(function in functions.split() and re.search(look, change) for functions, look, _ in EQUIVALENT)


def try_break(site):
    file, start, end, replacement = site
    text = (ROOT / file).read_text()
    (COPY / file).write_text(text[:start] + replacement + text[end:])
    detected = is_detected()
    (COPY / file).write_text(text)
    return detected


def main():
    count, seed = (int(word) for word in (sys.argv[1:] + ["60", "1"][len(sys.argv) - 1 :]))
    for folder in ("bench", "platform", "src", "tests"):
        shutil.rmtree(COPY / folder, ignore_errors=True)  # files that are gone from the tree
    # The copies are newer than everything that an earlier run built from a broken file.
    ignored = shutil.ignore_patterns("build", ".git")
    shutil.copytree(ROOT, COPY, ignore=ignored, copy_function=shutil.copy, dirs_exist_ok=True)
    if not run("cmake", "--preset", "native") or is_detected() is not False:
        sys.exit("the tests do not pass on the unchanged tree")
    tried, detected = 0, 0
    for site in spread(random.Random(seed)):
        if tried == count:
            break
        if is_equivalent(site) or (result := try_break(site)) is None:
            continue
        tried += 1
        detected += result
        if not result:
            print("SURVIVED", describe(site), flush=True)
    print(f"{tried} breaks, {detected} detected, {tried - detected} survived")
    return detected < 0.85 * tried


sys.exit(main())
