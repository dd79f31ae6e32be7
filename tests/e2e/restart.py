"""What moves and grows with the window, and all that is set there again after a quit and a kill."""

import collections
import pathlib
import sys
import tempfile

from choosing import path_form
from desktop import Program, has, private_environment, xdotool
from sample import sample

MODEL, URL, ARCHIVE, SPACK, SEARCH = "Fichier modèle", "Url modèle", "Sauv anc Spack", "scenery_packs.ini", "Chercher"
BESIDE = (f"Sélect fichier, {MODEL}", "Ouvrir Url", f"Sélect dossier, {ARCHIVE}", f"Sélect fichier, {SPACK}", "Sauv fichier",
          "Activer / Désactiver", "Affich Dossier")  # fmt: skip
LOCKS = {  # points to the right and down, and wider and higher, in a window that is 60 by 40 larger
    (0, 0, 60, 40): ["text Spack Après"],
    (0, 0, 60, 0): [f"text {name}" for name in (MODEL, URL, ARCHIVE, SPACK)],
    (60, 0, 0, 0): [f"push button {name}" for name in BESIDE],
    (60, 40, 0, 0): ["link Historique v.1.1.3"],
    (0, 40, 0, 0): ["push button Aide", f"text {SEARCH}", f"push button {SEARCH}", "push button Effacer"],
}


def state(program):
    """All that a restart brings back."""
    fields = {name: program.text(program.find("text", name)) for name in (MODEL, URL, ARCHIVE, SPACK)}
    buttons = {
        name: has(program.find(role, name), "checked")
        for role, name in (("radio button", MODEL), ("radio button", URL), ("check box", ARCHIVE))
    }
    return fields, buttons, program.extents(program.window())


def check_locks(program):
    """What moves and what grows with the window, which ends at that place and size."""
    program.move(140, 90, 752, 493)
    nodes = {f"{n.get_role_name()} {n.get_name()}": n for n in program.all() if has(n, "focusable") or n.get_name() == SPACK}
    assert all(node.get_name() for node in nodes.values()), nodes.keys()
    before, after = {name: program.extents(node) for name, node in nodes.items()}, collections.defaultdict(set)
    program.move(140, 90, 812, 533)
    for name, node in nodes.items():
        after[tuple(now - was for was, now in zip(before[name], program.extents(node), strict=True))].add(name)
    for change, names in LOCKS.items():
        assert after[change] == set(names), (change, after[change])


def main(command):
    with sample() as files, tempfile.TemporaryDirectory() as home:
        preferences = lambda: next(pathlib.Path(home).rglob("Tarnivel Prefs.txt")).read_bytes()  # noqa: E731
        with Program([command], private_environment(home)) as program:
            program.front = "Tarnivel"
            for name, item in ((MODEL, files.model_file), (SPACK, files.source_file), (ARCHIVE, files.archives)):
                program.set_text(program.find("text", name), path_form(item))
            program.press(URL, "radio button")
            program.press(ARCHIVE, "check box")
            program.set_text(program.find("text", URL), "http://127.0.0.1:9/a :@: b")
            check_locks(program)
            kept = state(program)
            bar, status = (program.extents(program.find(f"{name} bar"))[3] for name in ("menu", "status"))
            xdotool("mousemove", 300, 80, "click", "--repeat", 2, "--delay", 50, 1)
            program.wait_for("a maximised window", lambda: program.extents(program.window())[2] > 1200)
            program.press("Fichier", "menu item")
            program.press("Quitter", "menu item")
            assert (program.wait_for_end(), program.stderr()) == (0, "")
        # Counted is what stands between menu bar and status bar.
        saved = preferences()
        assert f"Fenetre WinMain :@: 140,{90 + bar},812,{533 - bar - status}\n".encode() in saved, saved
        with Program([command], private_environment(home)) as program:
            program.wait_for(f"{kept}", lambda: state(program) == kept)
            program.press(MODEL, "radio button")
            program.process.kill()
            program.wait_for_end()
        assert preferences() == saved


main(*sys.argv[1:])
