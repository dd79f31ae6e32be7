"""A first start without any model: a proposal from the menu, its save, a run with it, and the saved order."""

import shutil
import sys

from choosing import choose, open_chooser
from desktop import Program, has, nodes, private_environment, xdotool
from sample import packs, sample

UNSAVED = "Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord"
STOPPED = "Arrêté : aucun modèle n'a été proposé"


def propose(program, answer):
    """Picks the item by the mouse and names the new file; None is a change of mind."""
    program.pick("Texte", "Proposer un modèle…")
    dialog = open_chooser(program)
    assert dialog.get_name() == "Enregistrer le modèle proposé sous :"
    if answer:
        program.type(str(answer))
    program.keys("Return" if answer else "Escape")
    program.wait_until_gone(dialog)


def stop(program, files, model):
    """Presses the button by the mouse while much is still to be looked at."""
    before, slow = files.source_file.read_text("utf-8"), files.source_file.parent / "slow"
    for number in range(100):
        (slow / f"Earth nav data/{number}").mkdir(parents=True)
    files.source_file.write_text(before + "SCENERY_PACK Custom Scenery/slow/\n" * 50_000, "utf-8")
    # The busy program answers each question late.
    left, top, width, height = program.extents(program.find("push button", "Générer"))
    bar = next(node for node in nodes(program.window()) if node.get_role_name() == "progress bar")
    propose(program, model)
    program.wait_for("the progress", lambda: has(bar, "showing"))
    xdotool("mousemove", left + width // 2, top + height // 2, "click", 1)
    program.wait_for("the end", lambda: not has(bar, "showing"))
    assert program.find(name=STOPPED)
    files.source_file.write_text(before, "utf-8")
    shutil.rmtree(slow)


def main(command):
    with sample() as files:
        files.preferences.unlink()
        model = files.archives / "nouveau.ini"
        with Program([command], private_environment(files.home)) as program:
            program.front = "Tarnivel"
            choose(program, "scenery_packs.ini", files.source_file)
            propose(program, None)
            stop(program, files, model)
            assert program.text(program.find("text", "Fichier modèle")) == "", "nothing chosen"

            propose(program, model)
            program.dialog()
            report = "\n".join(program.answer("Ok"))
            assert "Surcouches (overlays) : 8" in report and "Côte d'Émeraude (rien n'y dit ce que c'est)" in report, report
            assert program.text(program.find("text", "Fichier modèle")) == "Linux" + str(model).replace("/", ":")
            area = program.find("text", "Spack Modèle")
            proposed = program.text(area)
            assert packs(proposed.split("\n")) == packs(files.source) | {
                f"Custom Scenery/{name}/" for name in files.folders_not_listed()
            }
            program.press("Générer")
            program.wait_for("the refusal", lambda: program.all(name=UNSAVED))
            assert not model.exists(), "nothing is written before one saves"
            assert not program.all(name=STOPPED)
            assert has(program.find("radio button", "Fichier modèle"), "checked")
            program.keys("ctrl+z")
            program.wait_for("the empty view", lambda: program.text(area) == "")
            program.keys("ctrl+shift+z")
            program.wait_for("the proposal again", lambda: program.text(area) == proposed)

            program.keys("ctrl+s")
            program.answer("Sauv fichier")
            program.wait_for("the model", lambda: model.exists() and model.read_text("utf-8") == proposed)
            assert len(program.run()) == 1
            program.choose("Spack Après")
            result = program.text(program.find("text", "Spack Après"))
            order = [line for line in proposed.split("\n") if line in result.split("\n")]
            assert result.split("\n") == order, result
            program.keys("ctrl+s")
            program.answer("Sauv fichier")
            program.wait_for("the saved order", lambda: files.source_file.read_text("utf-8") == result)
            assert program.close() == 0


main(*sys.argv[1:])
