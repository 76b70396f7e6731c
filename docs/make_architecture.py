#!/usr/bin/env python3
"""Draws architecture.svg: the calls that a hotkey, a mouse move and a refresh tick lead to. Every step is looked up
in the source, so a call that no longer exists is an error. --check only compares the picture."""
import html
import pathlib
import re
import sys

DOCS = pathlib.Path(__file__).resolve().parent
SOURCE = DOCS.parent / "src"
PICTURE = DOCS / "architecture.svg"

CALL, TABLE = "", "through a table"  # how a step is reached; any other text is the message that Windows delivers

# A path is a title and its steps: (depth, file, function, what it does, how it is reached). The caller of a step is
# the nearest step above it that is one less deep.
PATHS = (
    ("Ctrl+Alt+Right", (
        (0, "app/main.cpp", "RunMessageLoop", "gets the message", CALL),
        (1, "app/main_window.cpp", "OnHotkey", "passes on the action's number", "WM_HOTKEY"),
        (2, "actions/dispatch.cpp", "DoAction", "looks up the handler", CALL),
        (3, "commands/view_commands.cpp", "GoToScreen", "computes the target", TABLE),
        (4, "scroll/scroll_view.cpp", "ScrollView", "clamps the view to the desktop", CALL),
        (5, "scroll/shift.cpp", "ShiftWindows", "loops over the window table", CALL),
        (6, "scroll/shift.cpp", "ScrollRow", "scrolls list views", TABLE),
        (7, "scroll/shift.cpp", "MoveRow", "computes the new position", CALL),
        (8, "windows/other_window.cpp", "PingMoveAndShow", "pings the window, then moves it", CALL),
        (5, "core/state.cpp", "Repaint", "repaints the map at once", CALL),
    )),
    ("The mouse moves", (
        (0, "hook/quorl_hook.cpp", "OnMouse", "queues the event to its thread", CALL),
        (1, "hook/quorl_hook.cpp", "ForwardAll", "reads the queued events", "HOOK_EVENT"),
        (2, "hook/quorl_hook.cpp", "Forward", "drops wheel events", CALL),
        (3, "hook/quorl_hook.cpp", "ForwardMove", "keeps at most one move queued", CALL),
        (4, "app/main_window.cpp", "OnHookMessage", "runs on the main thread", "HOOK_MOUSE_MESSAGE"),
        (5, "mouse/hook_mouse.cpp", "OnHookMouse", "reads the cursor position", CALL),
        (6, "mouse/hook_mouse.cpp", "OnMove", "checks the settings", TABLE),
        (7, "mouse/edge_scroll.cpp", "EdgeScroll", "checks for an edge", CALL),
        (8, "mouse/edge_scroll.cpp", "ScrollAtEdge", "scrolls at once or starts a timer", CALL),
        (9, "mouse/edge_scroll.cpp", "ScrollTo", "calls ScrollView, as on the left", CALL),
    )),
    ("A tick of the refresh timer", (
        (0, "app/create.cpp", "OnCreate", "starts the timer", CALL),
        (1, "scroll/refresh.cpp", "RefreshTimer", "decides whether to refresh", "REFRESH_TIMER"),
        (2, "scroll/follow.cpp", "FollowActiveWindow", "may scroll to the active window", CALL),
        (2, "windows/window_table.cpp", "HasAnyWindowMoved", "compares all window rectangles", CALL),
        (2, "windows/window_table.cpp", "RebuildWindowTable", "lists all windows again", CALL),
        (2, "core/state.cpp", "Repaint", "repaints the map at once", CALL),
        (3, "app/main_window.cpp", "OnPaint", "paints on request of Windows", "UpdateWindow"),
        (4, "toolwin/map.cpp", "PaintMap", "copies a bitmap to the screen", CALL),
        (5, "toolwin/map.cpp", "DrawMap", "loops over the window table", CALL),
        (6, "toolwin/map.cpp", "DrawWindow", "draws one box", CALL),
    )),
)

WIDTH, HEIGHT, GAP, STEP, LANE, MARGIN, HEAD = 250, 44, 20, 9, 345, 16, 34  # pixels
LOOKS = {
    "title": 'font-size="17" font-weight="bold"',
    "function": 'font-size="13" font-weight="bold"',
    "file": 'font-size="10" fill="#567" text-anchor="end"',
    "purpose": 'font-size="12"',
    "how": 'font-size="10" fill="#a40"',
    "box": 'rx="4" fill="#fff" stroke="#456"',
    "call": 'fill="none" stroke="#456"',
    "delivered": 'fill="none" stroke="#456" stroke-dasharray="4 3"',
}


def body(file, function):
    """The text of a function's definition."""
    text = (SOURCE / file).read_text()
    found = re.search(rf"^[\w][^;\n]*\b{function}\([^;{{]*\{{.*?^\}}", text, re.M | re.S)
    if not found:
        sys.exit(f"{file} has no function {function}")
    return found[0]


def mentions(text, word):
    return re.search(rf"\b{word}\b", text) is not None


def check(caller, step):
    _, file, function, _, how = step
    body(file, function)
    here = (SOURCE / caller[1]).read_text()
    if how == CALL:
        found = mentions(body(caller[1], caller[2]), function)
    elif how == TABLE:
        found = mentions(here, function) or mentions((SOURCE / "app/action_defs.cpp").read_text(), function)
    else:
        found = mentions(here, how) or mentions((SOURCE / file).read_text(), how)
    if not found:
        sys.exit(f"{caller[2]} in {caller[1]} no longer leads to {function} in {file}")


def callers(steps):
    """For each step, the index of its caller; None for the first."""
    open_calls = []
    for index, step in enumerate(steps):
        yield open_calls[step[0] - 1] if step[0] else None
        open_calls[step[0]:] = [index]


def text(x, y, content, kind):
    return f'<text x="{x}" y="{y}" {LOOKS[kind]}>{html.escape(content)}</text>'


def draw_step(x, y, step):
    _, file, function, purpose, _ = step
    yield f'<rect x="{x}" y="{y}" width="{WIDTH}" height="{HEIGHT}" {LOOKS["box"]}/>'
    yield text(x + 8, y + 18, function, "function")
    yield text(x + WIDTH - 8, y + 18, file.removesuffix(".cpp"), "file")
    yield text(x + 8, y + 35, purpose, "purpose")


def draw_path(left, title, steps):
    yield text(left, MARGIN + 14, title, "title")
    corner = [(left + step[0] * STEP, MARGIN + HEAD + index * (HEIGHT + GAP)) for index, step in enumerate(steps)]
    for index, caller in enumerate(callers(steps)):
        x, y = corner[index]
        if caller is not None:
            check(steps[caller], steps[index])
            how = steps[index][4]
            line = corner[caller][0] + STEP // 2
            look = LOOKS["call" if how == CALL else "delivered"]
            yield f'<path {look} d="M{line} {corner[caller][1] + HEIGHT} V{y + HEIGHT // 2} H{x}"/>'
            yield text(x + 8, y - 6, how, "how")
        yield from draw_step(x, y, steps[index])


def picture():
    rows = max(len(steps) for _, steps in PATHS)
    width = 2 * MARGIN + LANE * len(PATHS)
    height = 2 * MARGIN + HEAD + rows * (HEIGHT + GAP)
    yield f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="sans-serif">'
    yield f'<rect width="{width}" height="{height}" fill="#f4f6f8"/>'
    for lane, (title, steps) in enumerate(PATHS):
        yield from draw_path(MARGIN + lane * LANE, title, steps)
    yield "</svg>"


def main():
    drawn = "\n".join(picture()) + "\n"
    if "--check" not in sys.argv[1:]:
        PICTURE.write_text(drawn)
    elif not PICTURE.exists() or PICTURE.read_text() != drawn:
        sys.exit("docs/architecture.svg is out of date: run docs/make_architecture.py")


main()
