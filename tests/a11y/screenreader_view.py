#!/usr/bin/python3
"""Reads the running Quovara window the way a screen reader does, through AT-SPI, prints the
tree of roles and names, and checks that the commands a user needs are there with their
captions. Exit status 0 when everything expected was found."""
import sys
import time

import pyatspi

EXPECTED = [
    ("push button", "Back"), ("push button", "Add"), ("push button", "Extract"),
    ("push button", "SFX"), ("push button", "Verify"), ("push button", "View"),
    ("push button", "Update"), ("push button", "About"),
    ("push button", "Details"), ("push button", "File and Folder Operations"),
    ("push button", "State"),
    ("push button", "Extract selected item"), ("push button", "Run selected file"),
    ("push button", "Search"), ("text", "Search file in archive"), ("text", "Folder"),
    ("label", "Quovara is ready"), ("label", "Select an action"),
]


def find_app(timeout):
    end = time.time() + timeout
    while time.time() < end:
        desktop = pyatspi.Registry.getDesktop(0)
        for app in desktop:
            if app is not None and app.name and "quovara" in app.name.lower():
                return app
        time.sleep(0.5)
    return None


def walk(node, depth, seen, out):
    try:
        role = node.getRoleName()
        name = node.name or ""
        states = node.getState()
    except Exception:
        return
    flags = []
    if states.contains(pyatspi.STATE_FOCUSABLE):
        flags.append("focusable")
    if not states.contains(pyatspi.STATE_ENABLED):
        flags.append("disabled")
    if states.contains(pyatspi.STATE_SHOWING):
        flags.append("showing")
    out.append("  " * depth + f"{role}: {name!r}" + (f" [{', '.join(flags)}]" if flags else ""))
    seen.append((role, name, states.contains(pyatspi.STATE_SHOWING)))
    if depth > 25:
        return
    for i in range(node.childCount):
        try:
            child = node.getChildAtIndex(i)
        except Exception:
            continue
        if child is not None:
            walk(child, depth + 1, seen, out)


def main():
    app = find_app(30)
    if app is None:
        print("Quovara did not appear on the accessibility bus")
        return 1
    # Give the window time to fill in (the archive is listed at start).
    time.sleep(2)
    seen, out = [], []
    walk(app, 0, seen, out)
    print("\n".join(out))
    missing = [e for e in EXPECTED if not any(r == e[0] and n == e[1] for r, n, _ in seen)]
    for role, name in missing:
        print(f"MISSING: {role} {name!r}")
    # The file list inside the archive: one item per entry, named by its name (the archive
    # holds the folder "docs" alone at its top).
    items = list_items(app)
    if items != ["docs"]:
        print(f"WRONG: the file list reads {items!r}, not ['docs']")
        return 1
    return 1 if missing else 0


def list_items(node, depth=0):
    """The names of the items of the shown list named "Files", or None."""
    try:
        if node.getRoleName() == "list" and node.name == "Files" and \
                node.getState().contains(pyatspi.STATE_SHOWING):
            return [node.getChildAtIndex(i).name for i in range(node.childCount)]
        if depth > 25:
            return None
        for i in range(node.childCount):
            child = node.getChildAtIndex(i)
            found = list_items(child, depth + 1) if child is not None else None
            if found is not None:
                return found
    except Exception:
        return None
    return None


if __name__ == "__main__":
    sys.exit(main())
