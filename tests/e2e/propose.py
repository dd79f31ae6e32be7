"""A first start without any model: a proposal from the menu, its save, a run with it, and the saved order."""

import sys

from choosing import choose, open_chooser
from desktop import Program, has, private_environment, xdotool
from sample import packs, sample


def propose(program, answer):
    """Picks the item by the mouse and names the new file; None is a change of mind."""
    for name in ("Texte", "Proposer un modèle…"):
        left, top, width, height = program.extents(program.find("menu item", name))
        xdotool("mousemove", left + width // 2, top + height // 2, "click", 1)
    dialog = open_chooser(program)
    if answer:
        program.type(str(answer))
    program.keys("Return" if answer else "Escape")
    program.wait_until_gone(dialog)


def main(command):
    with sample() as files:
        files.preferences.unlink()
        model = files.archives / "nouveau.ini"
        with Program([command], private_environment(files.home)) as program:
            program.front = "Tarnivel"
            choose(program, "scenery_packs.ini", files.source_file)
            propose(program, None)
            assert program.text(program.find("text", "Fichier modèle")) == "", "nothing chosen"

            propose(program, model)
            program.dialog()
            program.screenshot("propose.png")
            report = "\n".join(program.answer("Ok"))
            assert "Surcouches (overlays) : 8" in report and "Côte d'Émeraude (rien n'y dit ce que c'est)" in report, report
            assert program.text(program.find("text", "Fichier modèle")) == "Linux" + str(model).replace("/", ":")
            area = program.find("text", "Spack Modèle")
            proposed = program.text(area)
            assert packs(proposed.split("\n")) == packs(files.source) | {
                f"Custom Scenery/{name}/" for name in files.folders_not_listed()
            }
            assert not model.exists(), "nothing is written before one saves"
            assert has(program.find("radio button", "Fichier modèle"), "checked")
            program.keys("ctrl+z")
            program.wait_for("the empty view", lambda: program.text(area) == "")
            program.keys("ctrl+shift+z")
            program.wait_for("the proposal again", lambda: program.text(area) == proposed)

            program.keys("ctrl+s")
            program.answer("Sauv fichier")
            program.wait_for("the model", lambda: model.exists() and model.read_text("utf-8") == proposed)
            program.press("Générer")
            assert len(program.answer_until("Générer")) == 1
            program.choose("Spack Après")
            result = program.text(program.find("text", "Spack Après"))
            order = [line for line in proposed.split("\n") if line in result.split("\n")]
            assert result.split("\n") == order, result
            program.keys("ctrl+s")
            program.answer("Sauv fichier")
            program.wait_for("the saved order", lambda: files.source_file.read_text("utf-8") == result)
            assert program.close() == 0


main(*sys.argv[1:])
