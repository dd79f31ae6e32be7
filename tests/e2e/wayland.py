"""On Wayland, where no window knows its place: a run, a save, Spécial A, preferences and a restart, over the bus."""

import re
import sys

from desktop import Program, private_environment
from sample import sample

PLACE = "Fenetre WinMain :@: 60,60,900,700\n"


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
    program.press("Générer")
    assert len(program.answer_until("Générer")) == 1
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
    with sample() as files:
        # A menu that nobody clicked is put on its window like a dialog.
        for source, on in (
            ("Url modèle", ["Tarnivel", "Tarnivel", "Spécial A", "Tarnivel", "Tarnivel", "Tarnivel"]),
            ("Fichier modèle", ["Tarnivel"]),
        ):
            with Program([command], private_environment(files.home, WAYLAND_DEBUG="1")) as program:
                program.front = "Tarnivel"
                if source == "Url modèle":
                    use(program, files)
                program.press(source, "radio button")
                program.press("Fichier", "menu item")
                program.press("Quitter", "menu item")
                assert program.wait_for_end() == 0
                assert parents(program.stderr()) == on, parents(program.stderr())
            kept = files.preferences.read_text("utf-8")
            assert f"Source Model :@: {source[0] == 'U':d}\n" in kept and PLACE in kept, kept


main(*sys.argv[1:])
