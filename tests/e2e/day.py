"""A user's day: first start, choosing, a model from the web, a save, Spécial A, preferences, help, and the next start."""

import sys

from choosing import choose, open_chooser, set_preferences
from desktop import Program, has, private_environment, xdotool
from gi.repository import Atspi
from sample import pack, sample
from server import Server


def use_special(program, files):
    program.keys("ctrl+shift+a")
    program.front = "Spécial A"
    program.press("Choisir fichier…")
    dialog = open_chooser(program)
    program.type(str(files.model_file))
    program.keys("Return")
    program.wait_until_gone(dialog)
    name = files.model_file.name
    program.wait_for(name, lambda: program.text(program.find("text", "Original :")) == name)
    program.press("+")
    table = program.find("table", "Spécial A")
    program.wait_for("the row", lambda: Atspi.Table.get_n_rows(table) == 1)
    left, top, _, _ = program.extents(table)
    xdotool("mousemove", left + 20, top + 10, "click", "--repeat", 2, 1)
    for word in ("scenery_pack ", "un"):
        program.type(word)
        program.keys("Tab")
    for field, name in (("Dest 1 :", "un.txt"), ("Dest 2 :", "deux.txt")):
        program.set_text(program.find("text", field), name)
    program.press("Traiter")
    program.answer("Continuer")
    model = files.model_file.read_text("utf-8")
    for name, pack in (("un.txt", "un"), ("deux.txt", "")):
        file, expected = files.model_file.with_name(name), model.replace("SCENERY_PACK ", pack)
        program.wait_for(name, lambda file=file, expected=expected: file.exists() and file.read_text("utf-8") == expected)
    program.front = "Tarnivel"


def read_help(program):
    program.press("Aide")
    program.front = "Aide"
    assert not has(program.find("text", "Aide"), "editable") and program.find(name="https://tarnivel.example")
    program.keys("Escape")
    program.keys("alt+F4")
    assert program.find("push button", "Fermer"), "only its button closes the help"
    window = program.window()
    program.press("Fermer")
    program.wait_until_gone(window)
    program.front = "Tarnivel"


def main(command):
    with sample() as files:
        files.preferences.unlink()
        server = Server(files.model_file.read_bytes())
        with Program([command], private_environment(files.home)) as program:
            program.front = "Tarnivel"
            choose(program, "Sauv anc Spack", files.archives)
            choose(program, "scenery_packs.ini", files.source_file)
            program.act(program.find("check box", "Sauv anc Spack"))
            program.act(program.find("radio button", "Url modèle"))
            program.set_text(program.find("text", "Url modèle"), server.url("/model.ini"))
            program.press("Générer")
            assert len(program.answer_until("Générer")) == 1
            area = program.find("text", "Spack Après")
            made = program.text(area)
            first = made.index(next(line for line in made.split("\n") if pack(line)))
            program.select(area, first, first)
            program.press("Activer / Désactiver")
            program.wait_for("the toggled line", lambda: program.text(area) != made)
            old, text = files.source_file.read_bytes(), program.text(area)
            program.press("Sauv fichier")
            program.answer("Sauv fichier")
            program.wait_for("the saved text", lambda: files.source_file.read_bytes() == text.encode())
            assert next(files.archives.iterdir()).read_bytes() == old

            set_preferences(program, 35, "Annuler", check=True)
            assert not program.all("check box", "Spécial A")
            set_preferences(program, 35, check=True)
            use_special(program, files)
            read_help(program)
            program.keys("ctrl+q")
            assert (program.wait_for_end(), program.stderr()) == (0, "")
        server.shutdown()

        kept = files.preferences.read_text("utf-8")
        assert "Volume Sonore :@: 35\n" in kept and f"TabSpecAorg :@: {files.model_file.name}\tscenery_pack \n" in kept, kept
        with Program([command], private_environment(files.home)) as program:
            assert has(program.find("radio button", "Url modèle"), "checked")
            assert program.all("check box", "Spécial A")
            assert program.close() == 0
        assert files.preferences.read_text("utf-8") == kept


main(*sys.argv[1:])
