#!/usr/bin/env python3
"""Makes a small world to try the program in: make_sample.py FOLDER.

FOLDER gets a "Custom Scenery" with its scenery_packs.ini, a model, a folder for archives, a text for "Spécial A", and
a "home" whose preferences point to them. Made anew at each call; other files of FOLDER are left alone.

A run shows one orange line in the result (a pack that the model doesn't know), one in the model (a pack that isn't
installed), keeps one pack disabled, and reports one folder that isn't listed and one listed pack without a folder.
"""
import sys
import unicodedata
from pathlib import Path

HEADER = "I\n1000 version\nSCENERY\n\n"
GLOBAL_AIRPORTS = "*GLOBAL_AIRPORTS*"

# In the order of the model: what stands higher hides what stands lower.
WANTED = [
    "LFMN_Nice_Cote_d_Azur", "LFLL_Aéroport Saint-Exupéry", "LFML_Marseille_Provence", "LFKJ_Ajaccio_Bonaparte",
    "LFRB_Brest_Bretagne", "LSGG_Genève_Cointrin", "EBLG_Liège", GLOBAL_AIRPORTS, "Monuments de Paris",
    "Châteaux de la Loire", "Phares de Bretagne", "Refuges des Pyrénées", "Forêts des Vosges", "Vignobles d'Alsace",
    "Côte d'Émeraude", "Lib_Arbres_Feuillus", "Lib_Hangars_Bois", "Lib_Panneaux_Routiers", "Lib_Véhicules",
    "yy_Overlay_Alpes", "yy_Overlay_Bretagne", "yy_Overlay_Corse", "zz_Ortho_Annecy", "zz_Ortho_Bonifacio",
    "zzz_Mesh_Alpes", "zzz_Mesh_Bretagne", "zzz_Mesh_Corse",
]  # fmt: skip
NOT_INSTALLED = "EBLG_Liège"
WITHOUT_FOLDER = "Vignobles d'Alsace"
NOT_IN_MODEL = "LFRK_Caen_Carpiquet"
NOT_LISTED = "LFBO_Toulouse_Blagnac"
DISABLED = "zzz_Mesh_Bretagne"

SPECIAL_TEXT = "Une belle journée de PRINTEMPS au bord de la mer.\nAu printemps, la mer est calme.\n"
SPECIAL_ROWS = [
    ("Journées.txt", "Journées été.txt", "Journées hiver.txt"),  # the names of the files
    ("printemps", "été", "hiver"),
    ("calme", "chaude", "agitée"),
]


def line(pack, prefix="SCENERY_PACK "):
    return prefix + (pack if pack == GLOBAL_AIRPORTS else f"Custom Scenery/{pack}/") + "\n"


def model():
    return HEADER + "".join(map(line, WANTED))


def source():
    """The installed packs in disorder, one of them disabled."""
    installed = [pack for pack in WANTED if pack != NOT_INSTALLED] + [NOT_IN_MODEL]
    step = 11  # has no divisor in common with the number of packs, so that each is met once
    shuffled = [installed[(4 + step * i) % len(installed)] for i in range(len(installed))]
    assert set(shuffled) == set(installed)
    lines = [line(pack, "SCENERY_PACK_DISABLED " if pack == DISABLED else "SCENERY_PACK ") for pack in shuffled]
    return HEADER + "".join(lines)


def path_form(path):
    """"/home/me/a:b" as the program writes it: "Linux:home:me:a/b", with ":" behind a folder."""
    names = [name.replace(":", "/") for name in path.resolve().parts[1:]]
    return unicodedata.normalize("NFC", ":".join(["Linux", *names])) + (":" if path.is_dir() else "")


def preferences(folder):
    original, first, second = ("\t".join(column) for column in zip(*SPECIAL_ROWS))
    return {
        "Afficher Bouton Special A": "True",
        "Volume Sonore": "80",
        "Fenetre WinMain": "60,60,900,700",
        "Source Model": "0",
        "SourceFile_Path": path_form(folder / "scenery_packs_modele.ini"),
        "Archiv Old File": "True",
        "ArchivFolder_Path": path_form(folder / "Archives"),
        "SceneryPack_Path": path_form(folder / "Custom Scenery/scenery_packs.ini"),
        "WspecAheight": "400",
        "PathSpecA": path_form(folder / SPECIAL_ROWS[0][0]),
        "TabSpecAorg": original,
        "TabSpecAdest1": first,
        "TabSpecAdest2": second,
    }


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text.encode())


def main():
    if len(sys.argv) != 2:
        sys.exit("make_sample.py FOLDER")
    folder = Path(sys.argv[1])
    packs = [pack for pack in WANTED if pack not in (GLOBAL_AIRPORTS, NOT_INSTALLED, WITHOUT_FOLDER)]
    for pack in [*packs, NOT_IN_MODEL, NOT_LISTED]:
        (folder / "Custom Scenery" / pack).mkdir(parents=True, exist_ok=True)
    (folder / "Archives").mkdir(exist_ok=True)
    write(folder / "Custom Scenery/scenery_packs.ini", source())
    write(folder / "scenery_packs_modele.ini", model())
    write(folder / SPECIAL_ROWS[0][0], SPECIAL_TEXT)
    settings = preferences(folder)
    write(
        folder / "home/.local/share/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt",
        "".join(f"{key} :@: {value}\n" for key, value in settings.items()),
    )


if __name__ == "__main__":
    main()
