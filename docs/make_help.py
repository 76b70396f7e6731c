#!/usr/bin/env python3
"""Writes the tables of the help: make_help.py PRINT_TABLES, the program that prints them from the source.

    docs/make_help.py build/native/docs/print_tables            updates help/actions.html and help/settings.html
    docs/make_help.py build/native/docs/print_tables --check    compares them, and checks all pages: closed tags, links,
                                                                pictures, and an explanation for each action
"""
import html
import html.parser
import pathlib
import re
import subprocess
import sys

DOCS = pathlib.Path(__file__).resolve().parent
HELP = DOCS / "help"
START, END = "<!-- generated -->\n", "<!-- end -->\n"


def tables(program):
    """{kind: rows} with the columns of each row."""
    rows = {}
    for line in subprocess.run([program], check=True, capture_output=True, text=True).stdout.splitlines():
        kind, *columns = line.split("\t")
        rows.setdefault(kind, []).append(columns)
    return rows


def explanations():
    lines = (DOCS / "actions.txt").read_text().splitlines()
    return dict(line.split(": ", 1) for line in lines)


def actions_page(rows):
    """actions.html with the rows between the two marks."""
    explained, body = explanations(), ""
    for number, name, key, mouse, offered in rows:
        cells = [name, explained.get(number, ""), key, mouse, offered]
        body += f'<tr id="a{number}"><td>{number}</td>'
        body += "".join(f"<td>{html.escape(cell, quote=False)}</td>" for cell in cells) + "</tr>\n"
    before, rest = (HELP / "actions.html").read_text().split(START)
    return before + START + body + END + rest.split(END)[1]


def settings_page(rows):
    """settings.html with range and default of each option, the last two cells of its row."""
    page = (HELP / "settings.html").read_text()
    for key, limits, default in rows:
        row = rf"(<tr><td><code>{key}</code></td><td>(?:(?!</td>).)*</td>)<td>[^<]*</td><td>[^<]*</td></tr>"
        page, count = re.subn(row, rf"\1<td>{limits}</td><td>{default}</td></tr>", page, flags=re.S)
        if count != 1:
            sys.exit(f"settings.html has {count} rows for {key}")
    return page


def pages(program):
    """{file: what it must contain}"""
    rows = tables(program)
    numbers = [row[0] for row in rows["action"]]
    if list(explanations()) != numbers:
        sys.exit("actions.txt must have one line for each action, in order")
    return {"actions.html": actions_page(rows["action"]), "settings.html": settings_page(rows["option"])}


class Page(html.parser.HTMLParser):
    """The links and anchors of a page, and its faults."""

    VOID = {"meta", "link", "img", "br"}

    def __init__(self, path):
        super().__init__()
        self.faults, self.links, self.anchors, self.open = [], [], set(), []
        self.feed(path.read_text())
        self.faults += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if tag not in self.VOID:
            self.open.append(tag)
        if tag == "img" and not attrs.get("alt"):
            self.faults.append(f"{attrs.get('src')} has no alternative text")
        self.links += [attrs[name] for name in ("href", "src") if name in attrs]
        if "id" in attrs:
            self.anchors.add(attrs["id"])

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> closes nothing")


def is_valid(read, name, link):
    file, _, anchor = link.partition("#")
    target = file or name
    return (HELP / target).is_file() and (not anchor or anchor in read[target].anchors)


def faults(program):
    for name, text in pages(program).items():
        if (HELP / name).read_text() != text:
            yield f"{name} is out of date: run docs/make_help.py"
    read = {path.name: Page(path) for path in sorted(HELP.glob("*.html"))}
    for name, page in read.items():
        yield from (f"{name}: {fault}" for fault in page.faults)
        yield from (f"{name}: {link} leads nowhere" for link in page.links if not is_valid(read, name, link))


def main():
    if sys.argv[2:] == ["--check"]:
        return "\n".join(faults(sys.argv[1])) or 0
    for name, text in pages(sys.argv[1]).items():
        (HELP / name).write_text(text)
    return 0


sys.exit(main())
