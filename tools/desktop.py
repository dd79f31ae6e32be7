"""Starts a desktop program and drives it through the accessibility bus, as a screen reader does.

    with Program([path], private_environment(home)) as program:
        program.press("Save")
        print(program.answer("Ok"))

Needs a screen with a window manager and a session bus, such as tools/screen.sh gives. No step sleeps for a guess: each
waits until what it needs is there, at most DEADLINE seconds, and then fails with a picture of what was there instead.
"""

import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

DEADLINE = 60  # seconds: a sanitized program on a busy machine is slow to start
UP, DOWN, RETURN = 0xFF52, 0xFF54, 0xFF0D  # X key symbols
SESSION = ("PATH", "DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")
SANITIZERS = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")


def private_environment(home=None, **more):
    """An environment that holds nothing of the user's; without `home` there is no home folder. Texts are French."""
    environment = {name: os.environ[name] for name in SESSION + SANITIZERS if name in os.environ}
    environment["LC_ALL"] = "C.UTF-8"
    if home is not None:
        environment |= {"HOME": str(home), "XDG_DATA_HOME": f"{home}/.local/share"}
    return environment | more


def has(node, *states):
    present = node.get_state_set()
    return all(present.contains(getattr(Atspi.StateType, state.upper())) for state in states)


def nodes(root):
    """The node and all nodes below it. The tree lives: a node that goes away meanwhile is left out."""
    yield root
    for index in range(root.get_child_count()):
        child = root.get_child_at_index(index)
        if child is not None:
            yield from nodes(child)


def xdotool(*words):
    return subprocess.check_output(["xdotool", *map(str, words)], text=True)


def pixel(x, y):
    """The colour at a point of the screen, as "srgb(red,green,blue)"."""
    crop = ["import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-format", "%[pixel:p{0,0}]", "info:"]
    return subprocess.check_output(crop, text=True)


def needs(*files):
    """Ends the test as one that was skipped (see tests/e2e/CMakeLists.txt) if a command or a file is missing."""
    for file in files:
        if shutil.which(file, os.F_OK) is None:
            print(f"skipped: there is no {file}")
            sys.exit(77)


def drag(start, end):
    """Presses the button of the mouse and moves, without letting go: a drag takes its steps from movements that are apart."""
    xdotool("mousemove", *start, "mousedown", 1)
    for step in range(1, 11):
        xdotool("mousemove", *(a + (b - a) * step // 10 for a, b in zip(start, end, strict=True)), "sleep", 0.05)


def wait_for(what, condition, ended=lambda: None):
    """The first true result of `condition`, which is asked again and again until `ended` has an exit code."""
    end = time.monotonic() + DEADLINE
    while time.monotonic() < end:
        try:
            result = condition()
        except GLib.Error:  # a node went away while it was looked at
            result = None
        if result:
            return result
        if ended() is not None:
            raise AssertionError(f"the program ended with {ended()} before there was {what}")
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1) if "Text" in node.get_interfaces() else node.get_name()


class Program:
    def __init__(self, command, environment):
        self.errors = tempfile.TemporaryFile()
        self.process = subprocess.Popen(
            command, env=dict(environment) | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}, stderr=self.errors
        )
        self.desktop = Atspi.get_desktop(0)
        self.desktop.set_cache_mask(Atspi.Cache.NONE)  # the cache is kept up by a main loop, and here is none
        self.application = None
        self.front = None  # the title of the window that is looked at; None for the first

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        if kind is not None:
            print(f"{self.tree()}\nstderr:\n{self.stderr()}", file=sys.stderr)
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def wait_for(self, what, condition):
        return wait_for(what, condition, self.process.poll)

    def _application(self):
        if self.application is None:
            for index in range(self.desktop.get_child_count()):
                child = self.desktop.get_child_at_index(index)
                if child is not None and child.get_process_id() == self.process.pid:
                    self.application = child
        return self.application

    def windows(self, dialogs):
        """The dialogs, or the windows that are none, that are on the screen."""
        application = self._application()
        children = (application.get_child_at_index(i) for i in range(application.get_child_count())) if application else ()
        shown = [child for child in children if child and has(child, "showing")]
        return [child for child in shown if self._is_dialog(child) == dialogs]

    def _is_dialog(self, node):
        """The modal window that is looked at counts as a window."""
        return node.get_role_name() in ("alert", "dialog") and node.get_name() != self.front

    def window(self):
        """The window that is looked at, once it is on the screen."""

        def found():
            shown = self.windows(dialogs=False)
            return next((window for window in shown if self.front in (None, window.get_name().rstrip("*"))), None)

        return self.wait_for(f"a window {self.front or ''}", found)

    def dialog(self):
        return self.wait_for("a dialog", lambda: next(iter(self.windows(dialogs=True)), None))

    def all(self, role=None, name=None):
        """What is to be seen in that window, by role and by name (or one of several names)."""
        names = {name} if isinstance(name, str) else name
        return [
            node
            for node in nodes(self.window())
            if has(node, "showing") and role in (None, node.get_role_name()) and (names is None or node.get_name() in names)
        ]

    def find(self, role=None, name=None):
        return self.wait_for(f"a {role} {name!r}", lambda: next(iter(self.all(role, name)), None))

    def press(self, name, role="push button"):
        enabled = lambda: next((node for node in self.all(role, name) if has(node, "enabled")), None)  # noqa: E731
        node = self.wait_for(f"an enabled {role} {name!r}", enabled)
        Atspi.Action.do_action(node, 0)

    def answer(self, button=None):
        """Presses a button (by default the first) of the dialog that is up or comes up; the texts it showed."""
        dialog = self.dialog()
        seen = list(nodes(dialog))
        texts = [text_of(node) for node in seen if node.get_role_name() in ("label", "text") and text_of(node)]
        presses = [n for n in seen if n.get_role_name() == "push button" and button in (None, n.get_name())]
        assert presses, f"no button {button!r} in the dialog {texts}"
        Atspi.Action.do_action(presses[0], 0)
        if self.process.poll() is None:
            self.wait_until_gone(dialog)
        return texts

    def run(self):
        """The texts of each dialog of a run."""
        self.press("Générer")
        return self.answer_until("Générer")

    def answer_until(self, caption):
        """Answers one dialog, and all that follow until the run button has its caption back; the texts of each."""
        answers = [self.answer()]

        def next_dialog_or_end():
            return self.windows(dialogs=True) or self.all("push button", caption)

        while self.wait_for("the end of the run", next_dialog_or_end)[0].get_role_name() != "push button":
            answers.append(self.answer())
        return answers

    def wait_until_gone(self, node):
        def gone():
            try:
                return self.process.poll() is not None or has(node, "defunct") or not has(node, "showing")
            except GLib.Error:
                return True

        self.wait_for("the end of a dialog", gone)

    def choose(self, row):
        """Selects a row of the one popup by the keyboard."""
        popup = self.find("combo box")
        rows = [n for n in nodes(popup) if n.get_role_name() == "list item"]
        Atspi.Action.do_action(popup, 0)
        selected = self.wait_for(
            "an open popup", lambda: next((n for n in nodes(popup) if has(n, "selected", "focused")), None)
        )
        names = [node.get_name() for node in rows]
        steps = names.index(row) - names.index(selected.get_name())
        for key in [DOWN if steps > 0 else UP] * abs(steps) + [RETURN]:
            Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)
        self.wait_for(f"the row {row!r}", lambda: popup.get_name() == row)

    def text(self, node):
        return text_of(node)

    def set_text(self, node, text):
        assert Atspi.EditableText.set_text_contents(node, text)

    def act(self, node):
        Atspi.Action.do_action(node, 0)

    def click(self, node, *button):
        """The mouse in the middle of a node; behind the options of xdotool the button, by default the first."""
        left, top, width, height = self.extents(node)
        xdotool("mousemove", left + width // 2, top + height // 2, "click", *(button or [1]))

    def pick(self, *items):
        """A menu and what is in it, by the mouse."""
        for item in items:
            self.click(self.find("menu item", item))

    def focus(self, node):
        Atspi.Component.grab_focus(node)
        self.wait_for("the focus", lambda: has(node, "focused"))

    def select(self, node, start, end):
        """Selects from an offset to another, or puts the caret where both are the same."""
        Atspi.Text.set_caret_offset(node, start)
        if start != end:
            Atspi.Text.set_selection(node, 0, start, end)
        self.wait_for("a selection", lambda: self.selection(node) == (start, end))

    def selection(self, node):
        """The offsets at which the selection starts and ends, both of the caret without one."""
        if Atspi.Text.get_n_selections(node) == 0:
            return (Atspi.Text.get_caret_offset(node),) * 2
        found = Atspi.Text.get_selection(node, 0)
        return found.start_offset, found.end_offset

    def extents(self, node):
        """Left, top, width and height on the screen."""
        box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    def keys(self, *names):
        """Presses keys on the active window, such as "ctrl+s"."""
        self.wait_for("an active window", lambda: any(has(w, "active") for d in (True, False) for w in self.windows(d)))
        xdotool("key", *names)

    def type(self, text):
        xdotool("type", text)

    @contextlib.contextmanager
    def held(self, *names):
        """Holds keys down."""
        for name in names:
            xdotool("keydown", name)
        try:
            yield
        finally:
            for name in names:
                xdotool("keyup", name)

    def move(self, left, top, width, height):
        """Moves and resizes the main window by way of the window manager."""
        number = xdotool("search", "--onlyvisible", "--pid", self.process.pid, "--name", ".").split()[0]
        xdotool("windowsize", number, width, height)
        xdotool("windowmove", number, left, top)
        self.wait_for("the place", lambda: self.extents(self.window()) == (left, top, width, height))

    def color_at(self, node, offset):
        """The text colour at an offset, as "red,green,blue"; black where the text has no colour of its own."""
        return Atspi.Text.get_attribute_run(node, offset, False)[0].get("fg-color", "0,0,0")

    def lines(self, node):
        """Each line of a text, and the colours of its first and its last character."""
        offset, found = 0, []
        for line in self.text(node).split("\n"):
            end = offset + max(len(line) - 1, 0)
            found.append((line, self.color_at(node, offset), self.color_at(node, end)))
            offset += len(line) + 1
        return found

    def screenshot(self, path):
        """The screen without its empty border."""
        subprocess.run(["import", "-window", "root", "-trim", "+repage", str(path)], check=True)

    def close(self):
        """Closes the main window by the window manager's key for it; the program's exit code."""
        self.wait_for("an active main window", lambda: has(self.window(), "active"))
        xdotool("key", "alt+F4")
        return self.wait_for_end()

    def wait_for_end(self):
        return self.process.wait(DEADLINE)

    def stderr(self):
        self.errors.seek(0)
        return self.errors.read().decode(errors="replace")

    def tree(self):
        def lines(node, depth):
            try:
                states = " ".join(state.value_nick for state in node.get_state_set().get_states())
                yield f"{'  ' * depth}{node.get_role_name()} {node.get_name()!r} ({states})"
                for index in range(node.get_child_count()):
                    yield from lines(node.get_child_at_index(index), depth + 1)
            except (GLib.Error, AttributeError) as gone:
                yield f"{'  ' * depth}gone: {gone}"

        return "\n".join(lines(self.application, 0)) if self.application else "not on the bus"
