#!/usr/bin/env python3
"""Proves that the manual holds together: its links lead somewhere, its lists are whole, and it names no colours.

Usage: check_manual.py FOLDER   prints one line for each fault; status 1 when there is any
"""
import re
import sys
from pathlib import Path

FOLDER = Path(sys.argv[1])


def read(suffix):
    return {file.name: file.read_text("utf-8") for file in sorted(FOLDER.glob("*" + suffix))}


def groups(pattern, text):
    return re.findall(pattern, text, re.IGNORECASE)


PAGES = read(".html")
PLACES = {name: set(groups(r'\s(?:id|name)="([^"]*)"', text)) for name, text in PAGES.items()}
LOCAL = r'<param\s+name="Local"\s+value="([^"]*)"'


def dead(source, links):
    for link in links:
        page, _, place = link.partition("#")
        page = page or source
        if not link.startswith(("http://", "https://")) and (
                page not in PAGES or ("#" in link and place not in PLACES[page])):
            yield f"{source}: {link} leads nowhere"


def faults():
    for name, text in PAGES.items():
        links = groups(r'<a\s[^>]*href="([^"]*)"', text)
        yield from dead(name, links)
        for picture in groups(r'(?:src|<link[^>]*href)="([^"]*)"', text):
            if not (FOLDER / picture).is_file():
                yield f"{name}: {picture} is missing"
    for name, text in {**PAGES, **read(".css")}.items():
        for colour in groups(r"[^-\w]((?:bg)?color|background(?:-color)?)\s*[:=]", text):
            yield f"{name}: {colour} is the desktop's own, light or dark"

    (contents,) = read(".hhc").items()
    (index,) = read(".hhk").items()
    (project,) = read(".hhp").values()
    for name, text in (contents, index):
        yield from dead(name, groups(LOCAL, text))
    listed = {link.partition("#")[0] for link in groups(LOCAL, contents[1])}
    yield from (f"{name} is not in the contents" for name in PAGES.keys() - listed)
    keywords = [word.lower() for word in groups(r'<param\s+name="Name"\s+value="([^"]*)"', index[1])]
    yield from (f"{b} stands behind {a} in the index" for a, b in zip(keywords, keywords[1:]) if a > b)
    if len(keywords) < 100:
        yield "the index is short"
    files = {str(file.relative_to(FOLDER)) for file in FOLDER.rglob("*") if file.suffix in (".html", ".css", ".png")}
    spelled = set(groups(r"(\S+\.(?:html|css|png))\b", project.partition("[FILES]")[2]))
    yield from (f"{name} is a file or in the project, not both" for name in files ^ spelled)


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
