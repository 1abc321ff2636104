#!/usr/bin/python3
"""Opens every window and dialog of PROGRAM with a project of SAMPLES and tells what a screen reader could not say.

Usage: on_a_screen.sh dbus-run-session dbus-run-session -- screen_reader.py PROGRAM SAMPLES
Status 77 where there is no accessibility bus.
"""
import os
import subprocess
import sys
import time

PATIENCE = 20  # seconds

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("skipped: the accessibility bus cannot be spoken to from here")
    sys.exit(77)


def wait(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = condition()
            if found:
                return found
        except GLib.Error:
            pass  # it vanished while we looked
        time.sleep(0.1)
    sys.exit("waited in vain for " + what)


def children(node):
    node.clear_cache()  # not every change is told
    return [child for child in map(node.get_child_at_index, range(node.get_child_count())) if child is not None]


def has(node, state):
    return node.get_state_set().contains(state)


def walk(node):
    """The nodes that show, but of tables, which are asked for their cells."""
    yield node
    if "Table" not in node.get_interfaces():
        for child in children(node):
            if has(child, Atspi.StateType.SHOWING) or node.get_role() in MENUS:
                yield from walk(child)


def text(node):
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node)) if "Text" in node.get_interfaces() else ""


R = Atspi.Role
MENUS = (R.MENU_BAR, R.MENU_ITEM, R.POPUP_MENU)
NAMED = (R.MENU_ITEM, R.TEXT, R.PUSH_BUTTON, R.RADIO_BUTTON, R.CHECK_BOX, R.COMBO_BOX, R.LIST,
         R.LIST_ITEM, R.TABLE, R.TREE, R.TREE_TABLE, R.CHART, R.GROUPING, R.PAGE_TAB, R.SPIN_BUTTON, R.DOCUMENT_FRAME,
         R.IMAGE, R.TOOL_BAR)


def faults_of_table(table):
    rows, columns = Atspi.Table.get_n_rows(table), Atspi.Table.get_n_columns(table)
    if rows < 2 or columns < 2:
        yield "has no cells"
    for column in range(columns):
        if not Atspi.Table.get_column_description(table, column):
            yield "has a column without a title"
    for row in (0, 1):
        first = Atspi.Table.get_accessible_at(table, row, 0)
        if not (first.get_name() or text(first)):
            yield "has no text in the first cell of row %d" % row


class Reader:
    def __init__(self, program, project):
        Atspi.set_timeout(5000, 5000)
        self.faults = 0
        self.process = subprocess.Popen([program, project])
        self.root = wait("the program", self.application)

    def application(self):
        if self.process.poll() is not None:
            sys.exit("the program ended")
        return next((each for each in children(Atspi.get_desktop(0)) if each.get_process_id() == self.process.pid), None)

    def window(self, title):
        """The window whose title begins so, when it is the one with the keyboard."""
        return wait("the window " + title, lambda: next(
            (each for each in children(self.root) if each.get_name().startswith(title) and
             has(each, Atspi.StateType.ACTIVE)), None))

    def fault(self, place, node, what):
        print("%s: %s %r %s" % (place, node.get_role_name(), node.get_name(), what))
        self.faults += 1

    def check(self, title, *tables):
        window = self.window(title)
        nodes = list(walk(window))
        for node in nodes:
            focusable = has(node, Atspi.StateType.FOCUSABLE) and node.get_role() not in (R.MENU_BAR, R.FRAME)
            if (node.get_role() in NAMED or focusable) and not node.get_name().strip():
                self.fault(title, node, "has no name")
        found = [node for node in nodes if node.get_role() in (R.CHART, R.TABLE)]
        for table in found:
            for what in faults_of_table(table):
                self.fault(title, table, what)
        if sorted(node.get_role_name() for node in found) != sorted(tables):
            self.fault(title, window, "has the tables %r" % [node.get_role_name() for node in found])
        return nodes

    def press(self, *keys):
        subprocess.run(["xdotool", "key", "--delay", "40", *keys], check=True)


MAIN = "Flumewise - lined-canal"
# from the main window, in turn: the keys that open a window, its title, its charts and tables
WINDOWS = (
    (("alt+o", "d"), "Digits"),
    (("F7",), "Find Input"),
    (("alt+t",), "Manning"),
    (("alt+s", "c"), "Flumewise - T", "chart"),
    (("alt+s", "g"), "Rating Graph"),
    (("alt+s", "t"), "Rating Table"),
    (("alt+s", "g", "Return"), "Flumewise - T", "chart"),
    (("alt+s", "t", "Return"), "Flumewise - T", "table"),
    (("alt+h", "a"), "About"),
    (("ctrl+o",), "File Open"),
    (("ctrl+p",), "Print"),
    (("alt+f", "v"), "Print Preview"),
)


def trapezoid(reader):
    boxes = [node for node in reader.check(MAIN) if node.get_role() == R.TEXT]
    for box in boxes:
        if not text(box):
            reader.fault("main window", box, "tells no text")
    if len({box.get_name() for box in boxes}) != 17:
        reader.fault("main window", reader.root, "has the boxes %r" % [box.get_name() for box in boxes])
    for keys, *window in WINDOWS:
        reader.press(*keys)
        reader.check(*window)
        reader.press("Escape")
        reader.window(MAIN)
    reader.press("F1")
    for key in ("alt+c", "alt+i", "alt+s", "ctrl+f"):
        reader.window("Flumewise Help")
        reader.press(key)
        reader.check("Flumewise Help")


def stream(reader):
    reader.check("Flumewise")
    reader.press("alt+i")
    reader.check("Irregular", "chart", "table")


def main():
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    program, samples = sys.argv[1:]
    faults = 0
    for project, visit in (("lined-canal.fwd", trapezoid), ("stream-overbanks.fwd", stream)):
        reader = Reader(program, os.path.join(samples, project))
        try:
            visit(reader)
        finally:
            reader.process.terminate()
            reader.process.wait(PATIENCE)
        faults += reader.faults
    sys.exit(faults > 0)


main()
