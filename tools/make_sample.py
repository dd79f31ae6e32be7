#!/usr/bin/env python3
"""Makes a small world to try the program in: make_sample.py FOLDER.

FOLDER gets a "Custom Scenery" with its scenery_packs.ini, a model, a folder for archives, a text for "Spécial A", and
a "home" whose preferences point to them. Made anew at each call; other files of FOLDER are left alone.

A run shows one orange line in the result (a pack that the model doesn't know), one in the model (a pack that isn't
installed), keeps one pack disabled, and reports one folder that isn't listed and one listed pack without a folder.

The packs hold what tells their kind: airports, tiles (of one pack packed, as X-Plane's own are), libraries, a plugin; one
holds nothing. One is a link to a folder outside, and one lies outside and is listed by its path.
"""
import lzma
import os
import struct
import sys
import unicodedata
import zlib
from pathlib import Path

HEADER = "I\n1000 version\nSCENERY\n\n"
GLOBAL_AIRPORTS = "*GLOBAL_AIRPORTS*"

# In the order of the model: what stands higher hides what stands lower.
WANTED = [
    "LFMN_Nice_Cote_d_Azur", "LFLL_Aéroport Saint-Exupéry", "LFML_Marseille_Provence", "LFKJ_Ajaccio_Bonaparte",
    "LFRB_Brest_Bretagne", "LSGG_Genève_Cointrin", "EBLG_Liège", GLOBAL_AIRPORTS, "Monuments de Paris",
    "Châteaux de la Loire", "Phares de Bretagne", "Refuges des Pyrénées", "Forêts des Vosges", "Vignobles d'Alsace",
    "Côte d'Émeraude", "Météo_Temps_Réel", "Lib_Arbres_Feuillus", "Lib_Hangars_Bois", "Lib_Panneaux_Routiers", "Lib_Véhicules",
    "yy_Overlay_Alpes", "yy_Overlay_Bretagne", "yy_Overlay_Corse", "zz_Ortho_Annecy", "zz_Ortho_Bonifacio",
    "zzz_Mesh_Alpes", "zzz_Mesh_Bretagne", "zzz_Mesh_Corse", "zzz_Mesh_Jura",
]  # fmt: skip
NOT_INSTALLED = "EBLG_Liège"
WITHOUT_FOLDER = "Vignobles d'Alsace"
NOT_IN_MODEL = "LFRK_Caen_Carpiquet"
NOT_LISTED = "LFBO_Toulouse_Blagnac"
DISABLED = "zzz_Mesh_Bretagne"
OUTSIDE, LINKED, LISTED_BY_PATH = "Autre disque", "zz_Ortho_Annecy", "zzz_Mesh_Jura"
UNKNOWN, PLUGIN, PACKED = "Côte d'Émeraude", "Météo_Temps_Réel", "yy_Overlay_Corse"

SPECIAL_TEXT = "Une belle journée de PRINTEMPS au bord de la mer.\nAu printemps, la mer est calme.\n"
SPECIAL_ROWS = [
    ("Journées.txt", "Journées été.txt", "Journées hiver.txt"),  # the names of the files
    ("printemps", "été", "hiver"),
    ("calme", "chaude", "agitée"),
]


def line(folder, pack, prefix="SCENERY_PACK "):
    places = {GLOBAL_AIRPORTS: GLOBAL_AIRPORTS, LISTED_BY_PATH: f"{folder.resolve()}/{OUTSIDE}/{pack}/"}
    return prefix + places.get(pack, f"Custom Scenery/{pack}/") + "\n"


def model(folder):
    return HEADER + "".join(line(folder, pack) for pack in WANTED)


def source(folder):
    """The installed packs in disorder, one of them disabled."""
    installed = [pack for pack in WANTED if pack != NOT_INSTALLED] + [NOT_IN_MODEL]
    step = 11  # has no divisor in common with the number of packs, so that each is met once
    shuffled = [installed[(4 + step * i) % len(installed)] for i in range(len(installed))]
    assert set(shuffled) == set(installed)
    lines = [line(folder, pack, "SCENERY_PACK_DISABLED " if pack == DISABLED else "SCENERY_PACK ") for pack in shuffled]
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
    path.write_bytes(text if isinstance(text, bytes) else text.encode())


def atom(name, content):
    return name[::-1].encode() + struct.pack("<I", len(content) + 8) + content


def tile(overlay):
    """A DSF file with the head of an overlay or of a base mesh, and nothing behind it but zeros."""
    properties = {"sim/planet": "earth", "sim/west": "8", **({"sim/overlay": "1"} if overlay else {})}
    texts = b"".join(text.encode() + b"\0" for pair in properties.items() for text in pair)
    return b"XPLNEDSF" + struct.pack("<I", 1) + atom("HEAD", atom("PROP", texts)) + atom("GEOD", bytes(100_000))


def seven_zip(name, data):
    """An archive with one file, in the plainest form that the format allows."""
    coder = {"id": lzma.FILTER_LZMA1, "dict_size": 1 << 20}
    packed = lzma.compress(data, lzma.FORMAT_RAW, filters=[coder])

    def number(value):
        return b"\xff" + struct.pack("<Q", value)

    streams = b"\x06\0\x01\x09" + number(len(packed)) + b"\0"
    folder = b"\x01\x23\x03\x01\x01\x05\x5d" + struct.pack("<I", coder["dict_size"])
    crc = b"\x0a\x01" + struct.pack("<I", zlib.crc32(data))
    folders = b"\x07\x0b\x01\0" + folder + b"\x0c" + number(len(data)) + crc + b"\0"
    names = b"\0" + name.encode("utf-16le") + b"\0\0"
    files = b"\x05\x01\x11" + number(len(names)) + names + b"\0"
    header = b"\x01\x04" + streams + folders + b"\x08\0\0" + files + b"\0"
    start = struct.pack("<QQI", len(packed), len(header), zlib.crc32(header))
    return b"7z\xbc\xaf\x27\x1c\0\x04" + struct.pack("<I", zlib.crc32(start)) + start + packed + header


def fill(folder, pack):
    """Puts into the pack's folder what tells its kind."""
    data = tile(overlay=not pack.startswith("zz"))
    if pack == PLUGIN:
        write(folder / "plugins/64/lin.xpl", "")
    elif pack.startswith("Lib_"):
        write(folder / "library.txt", "A\n800\nLIBRARY\n")
    elif pack[:4].isupper():
        write(folder / "Earth nav data/apt.dat", "I\n1100 Version\n\n99\n")
    elif pack != UNKNOWN:
        write(folder / "Earth nav data/+40+000/+42+008.dsf", seven_zip("tile", data) if pack == PACKED else data)


def main():
    if len(sys.argv) != 2:
        sys.exit("make_sample.py FOLDER")
    folder = Path(sys.argv[1])
    packs = [pack for pack in WANTED if pack not in (GLOBAL_AIRPORTS, NOT_INSTALLED, WITHOUT_FOLDER)]
    for pack in [*packs, NOT_IN_MODEL, NOT_LISTED]:
        place = folder / (OUTSIDE if pack in (LINKED, LISTED_BY_PATH) else "Custom Scenery") / pack
        place.mkdir(parents=True, exist_ok=True)
        fill(place, pack)
    link = folder / "Custom Scenery" / LINKED
    link.unlink(missing_ok=True)
    link.symlink_to(os.path.join("..", OUTSIDE, LINKED))
    (folder / "Archives").mkdir(exist_ok=True)
    write(folder / "Custom Scenery/scenery_packs.ini", source(folder))
    write(folder / "scenery_packs_modele.ini", model(folder))
    write(folder / SPECIAL_ROWS[0][0], SPECIAL_TEXT)
    settings = preferences(folder)
    write(
        folder / "home/.local/share/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt",
        "".join(f"{key} :@: {value}\n" for key, value in settings.items()),
    )


if __name__ == "__main__":
    main()
