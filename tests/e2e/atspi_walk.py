#!/usr/bin/python3
"""Walks the app's accessible objects over AT-SPI, as a screen reader sees them, and drives it as
a person would, by keyboard and pointer.

Usage: atspi_walk.py PID STEP...   where each STEP is one of
  show            print every window's tree; a control without a name is a fault
  press NAME      click the control named NAME where it is on screen
  key TITLE KEY   give the window titled TITLE the keyboard focus and press KEY (xdotool's name)
  expect TEXT     wait until some object's name contains TEXT
Exits 1 with the faults found."""
import subprocess
import sys
import time

import pyatspi

# What a screen reader lets the user act on, or reads as a value: each needs a name.
CONTROLS = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TOGGLE_BUTTON,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_LINK, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_MENU_ITEM,
    pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SLIDER, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_IMAGE, pyatspi.ROLE_LABEL,
    pyatspi.ROLE_STATIC, pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_TEXT,
}
DEADLINE = 15


def app_of(pid):
    end = time.time() + DEADLINE
    while time.time() < end:
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            try:
                if app is not None and app.get_process_id() == pid and app.childCount > 0:
                    return app
            except Exception:  # an application leaving the bus meanwhile
                pass
        time.sleep(0.1)
    return None


def showing(node):
    try:
        return node.getState().contains(pyatspi.STATE_SHOWING)
    except Exception:
        return False


def walk(node, depth=0, out=None):
    out = [] if out is None else out
    out.append((depth, node))
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None and showing(child):
            walk(child, depth + 1, out)
    return out


def windows(app):
    return [w for w in (app.getChildAtIndex(i) for i in range(app.childCount))
            if w is not None and showing(w)]


def nodes_of(app):
    return [node for window in windows(app) for _, node in walk(window)]


def wait_for(app, found):
    """The first node `found` accepts, looked for again until the deadline: the views answer on
    their next frames, and AT-SPI has no event that says a change is complete."""
    end = time.time() + DEADLINE
    while time.time() < end:
        for node in nodes_of(app):
            if found(node):
                return node
        time.sleep(0.1)
    return None


def show(app, faults):
    """Retried while objects vanish under the walk: a screen sliding out goes away meanwhile."""
    end = time.time() + DEADLINE
    while True:
        printed, found = [], []
        try:
            tree(app, printed, found)
        except Exception as error:  # an object gone between listing and reading it
            if time.time() > end:
                faults.append(f"the tree never held still: {error}")
                return
            time.sleep(0.1)
            continue
        print("\n".join(printed))
        faults.extend(found)
        return


def tree(app, print_line, faults):
    def print(line):
        print_line.append(line)
    for window in windows(app):
        named = controls = 0
        for depth, node in walk(window):
            role, name = node.getRoleName(), (node.name or "").strip()
            print("  " * depth + f"[{role}] {name!r}")
            named += bool(name)
            if node.getRole() in CONTROLS:
                controls += 1
                if not name:
                    faults.append(f"{window.name!r}: unnamed {role} in "
                                  f"{node.parent.getRoleName()} {(node.parent.name or '')!r}")
        print(f"== {window.name!r}: {controls} controls, {named} named objects")


def main():
    pid = int(sys.argv[1])
    steps = sys.argv[2:]
    app = app_of(pid)
    if app is None:
        print("FAIL: the app never appeared on the accessibility bus")
        return 1
    faults = []
    while steps and not faults:
        step = steps.pop(0)
        if step == "show":
            show(app, faults)
        elif step == "press":
            name = steps.pop(0)
            node = wait_for(app, lambda n: n.name == name and n.getRole() in CONTROLS)
            if node is None:
                faults.append(f"no control named {name!r}")
                continue
            box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            subprocess.run(["xdotool", "mousemove", str(box.x + box.width // 2),
                            str(box.y + box.height // 2), "click", "1"], check=True)
        elif step == "key":
            title, key = steps.pop(0), steps.pop(0)
            subprocess.run(["xdotool", "search", "--sync", "--name", f"^{title}$", "windowfocus",
                            "--sync", "key", key], check=True)
        elif step == "expect":
            text = steps.pop(0)
            if wait_for(app, lambda n: text in (n.name or "")) is None:
                faults.append(f"nothing reads {text!r}")
    for fault in faults:
        print("FAIL: " + fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
