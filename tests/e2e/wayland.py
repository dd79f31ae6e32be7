"""On Wayland, where no window knows its place: a run, a save, Spécial A and preferences, over the bus."""

import re
import subprocess
import sys

from desktop import Program, needs, private_environment
from sample import sample


def parents(told):
    """The titles of the windows that the others were put on, from what Wayland's library tells of its calls."""
    titles, found = {}, []
    for window, what, value in re.findall(r'(xdg_toplevel@\d+)\.set_(title|parent)\("?(.*?)\*?"?\)\n', told):
        if what == "title":
            titles[window] = value
        else:
            found.append(titles.get(value))
    return found


def use(program, files):
    assert len(program.run()) == 1
    result = program.text(program.find("text", "Spack Après"))
    assert files.is_in_model_order(result), result
    program.press("Sauv fichier")
    program.answer("Sauv fichier")
    program.wait_for("the saved text", lambda: files.source_file.read_text("utf-8") == result)
    program.press("Spécial A", "check box")
    program.front = "Spécial A"
    program.press("Traiter")
    program.answer("Continuer")
    program.wait_for("the new file", (files.home.parent / "Journées hiver.txt").exists)
    program.front = "Tarnivel"
    program.press("Spécial A", "check box")
    program.press("Édition", "menu item")
    program.press("Préférences…", "menu item")
    program.front = "Préférences"
    program.press("Annuler")
    program.front = "Tarnivel"


def main(command):
    plugins = subprocess.check_output(["qtpaths6", "--query", "QT_INSTALL_PLUGINS"], text=True).strip()
    needs(f"{plugins}/platforms/libqwayland-generic.so")
    with sample() as files, Program([command], private_environment(files.home, WAYLAND_DEBUG="1")) as program:
        program.front = "Tarnivel"
        use(program, files)
        program.press("Url modèle", "radio button")
        program.press("Fichier", "menu item")
        program.press("Quitter", "menu item")
        assert program.wait_for_end() == 0
        # A menu that nobody clicked is put on its window like a dialog.
        found = parents(program.stderr())
        assert found == ["Tarnivel", "Tarnivel", "Spécial A", "Tarnivel", "Tarnivel", "Tarnivel"], found
        kept = files.preferences.read_text("utf-8")
        assert "Source Model :@: 1\n" in kept and "Fenetre WinMain :@: 60,60,900,700\n" in kept, kept


main(*sys.argv[1:])
