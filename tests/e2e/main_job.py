"""The main job: model and file from the preferences, a run, its reports, the coloured text, an edit that stays."""

import sys

from desktop import Program, has, private_environment
from sample import DISABLED, ENABLED, pack, sample

BLACK, GREEN, RED, ORANGE = "0,0,0", "0,200,0", "255,0,0", "255,127,0"
FOLDERS = "Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :"
MODIFIED = "Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?"
SCENERIES = "Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :"
CONTROLS = {
    "frame": ["Tarnivel"],
    "push button": ["Générer", "Sélect fichier, Fichier modèle", "Ouvrir Url", "Sélect dossier, Sauv anc Spack",
                    "Sélect fichier, scenery_packs.ini", "Sauv fichier", "Activer / Désactiver", "Affich Dossier",
                    "Aide", "Chercher", "Effacer"],
    "text": ["Fichier modèle", "Url modèle", "Sauv anc Spack", "scenery_packs.ini", "Chercher", "Spack Après"],
    "radio button": ["Fichier modèle", "Url modèle"],
    "check box": ["Sauv anc Spack"],
    "label": ["scenery_packs.ini"],
    "link": ["Historique v.1.1.3"],
}  # fmt: skip


def check_names(program):
    program.find("push button", "Générer")
    shown = {(node.get_role_name(), node.get_name()): node for node in program.all()}
    missing = {(role, name) for role, names in CONTROLS.items() for name in names} - set(shown)
    assert not missing, missing
    nameless = [role for (role, name), node in shown.items() if not name and has(node, "focusable")]
    assert not nameless, nameless


def check_report(report, files):
    """The folders that the file does not list come first, then the sceneries that have no folder."""
    folders, sceneries = "\n".join(report).split(SCENERIES)
    assert folders.startswith(FOLDERS), report
    for part, expected in ((folders, files.folders_not_listed()), (sceneries, files.listed_without_folder())):
        assert {line[3:] for line in part.split("\n") if line.startswith(" - ")} == expected, (part, expected)


def check_colors(program, area, marked):
    """Keywords are green or red, the rest of a line is orange when its pack is one of the marked ones."""
    text, offset, seen = program.text(area), 0, set()
    for line in text.split("\n"):
        keyword, color = (DISABLED, RED) if line.startswith(DISABLED) else (ENABLED, GREEN)
        if pack(line):
            rest = ORANGE if pack(line) in marked else BLACK
            found = [program.color_at(area, offset), program.color_at(area, offset + len(keyword))]
            assert found == [color, rest], (line, found)
            seen |= {color, rest}
        elif line:
            assert program.color_at(area, offset) == BLACK, line
        offset += len(line) + 1
    return seen


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        check_names(program)
        program.press("Générer")
        reports = program.answer_until("Générer")
        assert len(reports) == 1, reports
        check_report(reports[0], files)
        program.screenshot("main_job.png")

        area = program.find("text", "Spack Après")
        result = program.text(area)
        assert sorted(result.split("\n")) == sorted([*files.source, ""]), result
        unknown = files.unknown_to_model()
        assert files.is_in_model_order(result), result
        assert check_colors(program, area, unknown) == {BLACK, GREEN, RED, ORANGE}

        added = ENABLED + "Custom Scenery/Ajout/"
        edited = result + added + "\n"
        program.focus(area)
        program.keys("ctrl+End")
        program.type(added)
        program.keys("Return")
        program.wait_for("the typed line", lambda: program.text(area) == edited)
        program.choose("Spack Modèle")
        model = program.find("text", "Spack Modèle")
        assert program.text(model).rstrip("\n").split("\n") == files.model
        assert ORANGE in check_colors(program, model, files.unknown_to_source())

        program.keys("ctrl+q")
        assert program.answer() == [MODIFIED]
        assert program.window().get_name() == "Tarnivel*", "the safe answer is the first"
        program.keys("ctrl+q")
        program.answer("Continuer")
        assert (program.wait_for_end(), program.stderr()) == (0, "")


main(*sys.argv[1:])
