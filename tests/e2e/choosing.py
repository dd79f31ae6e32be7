"""A user who chooses files and folders in the dialogs for that, or drops them."""

import contextlib
import pathlib
import subprocess

from desktop import drag, has, pixel, xdotool


def path_form(path):
    return "Linux" + str(path).replace("/", ":") + (":" if path.is_dir() else "")


def press_beside(program, name):
    """Presses the select button in the row of a field; the field."""
    program.wait_for("an active window", lambda: has(program.window(), "active"))
    buttons = program.all("push button")
    program.act(next(button for button in buttons if button.get_name().endswith(f", {name}")))
    return program.find("text", name)


def open_chooser(program):
    dialog = program.dialog()
    program.wait_for("an active chooser", lambda: has(dialog, "active"))
    return dialog


def choose(program, name, path):
    """Types a path into the chooser of a field."""
    field = press_beside(program, name)
    dialog = open_chooser(program)
    program.type(str(path))
    program.keys("Return")
    program.wait_until_gone(dialog)
    program.wait_for(f"{path_form(path)}", lambda: program.text(field) == path_form(path))


@contextlib.contextmanager
def dropped(program, command, node, *items, over=lambda: None):
    """Drags items from another window onto a node, calls `over`, and drops them; what that brings is waited for."""
    with subprocess.Popen([pathlib.Path(command).parent / "drag_source", *items]) as source:
        try:
            number = xdotool("search", "--sync", "--onlyvisible", "--name", "Drag source").split()[0]
            xdotool("windowmove", "--sync", number, 1000, 600)
            program.wait_for("the other window", lambda: pixel(1150, 750) != pixel(1270, 890))
            left, top, _, height = program.extents(node)
            drag((1100, 700), (left + 50, top + height // 2))
            over()
            xdotool("mousemove_relative", 1, 1, "sleep", 0.3, "mouseup", 1)  # once the last place is answered for
            yield
        finally:
            source.kill()
