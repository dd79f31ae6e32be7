"""A user who chooses files, folders and preferences in the dialogs for that."""

from desktop import has
from gi.repository import Atspi


def path_form(path):
    return "Linux" + str(path).replace("/", ":") + (":" if path.is_dir() else "")


def press_beside(program, name):
    """Presses the select button in the row of a field; the field."""
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


def set_preferences(program, volume, button="Ok", check=False):
    """Sets the slider and, if so wanted, the check box of the preferences."""
    program.keys("ctrl+comma")
    program.front = "Préférences"
    slider, window = program.find("slider", "Effets sonores :"), program.window()
    Atspi.Value.set_current_value(slider, volume)
    program.wait_for("the volume", lambda: Atspi.Value.get_current_value(slider) == volume)
    if check:
        program.act(program.find("check box"))
        program.wait_for("the check", lambda: has(program.find("check box"), "checked"))
    program.press(button)
    program.wait_until_gone(window)
    program.front = "Tarnivel"
