"""What a user of the program does and sees, by way of the accessibility bus and X11's keys and pointer. Tests import all
of it."""
import contextlib
import subprocess
import time

import gi
from dbus.mainloop.glib import DBusGMainLoop

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
from gi.repository.Atspi import Role, StateType

MAIN, HELP, SHORTCUTS = "Ardeo IP Config", "Ardeo IP Config Help", "Keyboard Shortcuts"
DBusGMainLoop(set_as_default=True)


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True).stdout.strip()


def eventually(condition):
    """Returns when the condition, a function, holds; until then the stand-ins for the desktop answer."""
    deadline = time.monotonic() + 40
    while not condition():
        assert time.monotonic() < deadline, "waited in vain"
        let_others_work()


def let_others_work():
    GLib.timeout_add(50, lambda: False)
    GLib.MainContext.default().iteration(True)


def insist(action, condition):
    """Acts, again after two seconds, until the condition holds: what is done before the other side is ready is lost."""
    def works():
        action()
        patience = time.monotonic() + 2
        while not (holds := condition()) and time.monotonic() < patience:
            let_others_work()
        return holds
    eventually(works)


def find(role, name, hidden_too=False, below=None):
    """The widget of that role and name, by default only one that is showing; none when there is none."""
    below = below or Atspi.get_desktop(0)
    with contextlib.suppress(GLib.Error):  # it vanishes while it is asked
        for child in filter(None, map(below.get_child_at_index, range(below.get_child_count()))):
            is_it = child.get_role() == role and child.get_name() == name
            if is_it and (hidden_too or has(child, StateType.SHOWING)):
                return child
            if found := find(role, name, hidden_too, child):
                return found
    return None


def has(node, state):
    return node is not None and node.get_state_set().contains(state)


def shows(label):
    return find(Role.LABEL, label) is not None


def is_shown(window):
    return find(Role.FRAME, window) is not None


def has_the_keys(window):
    return has(find(Role.FRAME, window), StateType.ACTIVE)


def is_enabled(role, name):
    return has(find(role, name, role == Role.MENU_ITEM), StateType.ENABLED)


def activate(role, name):
    eventually(lambda: is_enabled(role, name))
    assert find(role, name, role == Role.MENU_ITEM).do_action(0)


def press(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def click(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)
