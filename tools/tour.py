"""Leads through all windows and the dialogs of a run, a save and a treatment, in any language and appearance.

    make_sample(folder, "760,500")
    with Program([command], environment(folder, "de", "dark")) as program:
        for name in tour(program, texts("de")):
            shoot(f"{name}.png")
"""

import pathlib
import re
import shutil
import subprocess
import sys
import time
from xml.etree import ElementTree

from desktop import has, private_environment, xdotool

TOOLS = pathlib.Path(__file__).parent
TRANSLATIONS = TOOLS.parent / "resources" / "translations"
LANGUAGES = ("fr", *sorted(file.stem.split("_")[1] for file in TRANSLATIONS.glob("*.ts")))
# Colours of a dark desktop, in the file in which one of them keeps them.
DARK = {"Window": "35,35,40", "View": "27,27,30", "Button": "50,50,56", "Selection": "60,110,180"}


def texts(language):
    """All texts of a language by their keys."""
    messages = ElementTree.parse(TRANSLATIONS / f"tarnivel_{'en' if language == 'fr' else language}.ts").iter("message")
    shown = "source" if language == "fr" else "translation"
    return {message.get("id").split(".")[1]: message.findtext(shown) for message in messages}


def make_sample(folder, size):
    """A new sample of files, with a main window of that size."""
    shutil.rmtree(folder, ignore_errors=True)
    subprocess.run([sys.executable, TOOLS / "make_sample.py", folder], check=True)
    settings = next(pathlib.Path(folder).rglob("Tarnivel Prefs.txt"))
    settings.write_text(re.sub("(Fenetre WinMain :@: ).*", rf"\g<1>60,60,{size}", settings.read_text("utf-8")), "utf-8")


def environment(sample, language, appearance="light"):
    home = pathlib.Path(sample, "home")
    colors = home / ".config" / "kdeglobals"
    colors.parent.mkdir(exist_ok=True)
    lines = "[Colors:{0}]\nBackgroundNormal={1}\nBackgroundAlternate={1}\nForegroundNormal=240,240,240\n"
    colors.write_text("".join(lines.format(*group) for group in DARK.items()))
    desktop = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"} if appearance == "dark" else {}
    return private_environment(home, LANG="C.UTF-8", LANGUAGE=language, LC_ALL="", **desktop)


def shoot(path, front=True):
    """A picture of the window in front, with its frame, or of the whole screen, once it stands still."""
    before = now = None
    while not now or now != before:
        time.sleep(0.1)
        asked = subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True)
        window = asked.stdout.strip() if front else "root"
        command = ["import", "-window", window, "-frame" if front else "-trim", "+repage", "+dither"]
        before, now = now, subprocess.check_output([*command, "rgb:-"]) if window else None
    subprocess.run([*command, "-colors", "128", f"PNG8:{path}"], check=True)


def _dialogs(program, text, name, *answers):
    """The dialogs that come up one after the other, each answered by the button of a key."""
    for number, answer in enumerate(answers, 1):
        program.wait_for("an active dialog", lambda: has(program.dialog(), "active"))
        yield name if len(answers) == 1 else f"{name}{number}"
        program.answer(text[answer])


def _saves(program, text):
    folder, target = (program.find("text", text[key]) for key in ("ChBoxArchive", "StTextScenPack"))
    archives, file = program.text(folder), program.text(target)
    for name, archive, saved, *answers in (
        ("save", archives, file, "Btn_Annuler"),
        ("no-archives", "", file, "Btn_Annuler"),
        ("no-old-file", archives, "Linux:proc:new.ini", "Btn_Annuler"),
        ("no-target", archives, "", "Btn_Ok"),
        ("failed-save", "Linux:proc:", "Linux:proc:version", "Btn_SauvFichier", "Btn_Cont", "Btn_Ok"),
    ):
        program.set_text(folder, archive)
        program.set_text(target, saved)
        program.press(text["Btn_SauvFichier"])
        yield from _dialogs(program, text, name, *answers)
    program.set_text(folder, archives)
    program.set_text(target, file)


def _window(program, title, close):
    """A window that has just been asked for; it is shown, and then closed by `close`."""
    program.front = title
    window = program.window()
    program.wait_for("an active window", lambda: has(window, "active"))
    yield
    close()
    program.wait_until_gone(window)
    program.front = "Tarnivel"


def tour(program, text):
    """Yields the name of each window and dialog when it is in front."""
    program.front = "Tarnivel"
    program.press(text["Btn_Generer"])
    yield from _dialogs(program, text, "report", "Btn_Ok")
    program.find("push button", text["Btn_Generer"])
    program.wait_for("an active window", lambda: has(program.window(), "active"))
    yield "main"
    for menu in ("Menu_Fichier", "Menu_Edit"):
        program.act(program.find("menu item", text[menu]))
        program.find("popup menu")
        yield menu
        program.keys("Escape", "Escape")
    yield from _saves(program, text)

    special = program.find("check box", text["WinSpecA_Title"])
    program.act(special)
    for _ in _window(program, text["WinSpecA_Title"], lambda: program.act(special)):
        yield "special"
        original = program.text(program.find("text", text["LabOrg"]))
        program.set_text(program.find("text", text["LabDest1"]), original)
        program.press(text["Btn_Trait"])
        yield from _dialogs(program, text, "treat", "Btn_Cont", "Btn_NePasRempl")
    program.keys("ctrl+comma")
    for _ in _window(program, text["WinPref_Title"], lambda: program.press(text["Btn_Annuler"])):
        yield "preferences"
    program.press(text["WinAide_Title"])
    for _ in _window(program, text["WinAide_Title"], lambda: program.press(text["Btn_Fermer"])):
        yield "help"

    area = program.find("text", text["PopupAff"].split("\n")[2])
    program.set_text(area, "")
    program.press(text["Btn_SauvFichier"])
    yield from _dialogs(program, text, "no-packs", "Btn_Annuler")
    program.focus(area)
    program.keys("ctrl+z")
    program.keys("ctrl+o")
    program.wait_for("an active chooser", lambda: has(program.dialog(), "active"))
    yield "chooser"
    program.keys("Escape")

    program.act(program.find("menu item", text["Menu_Texte"]))
    left, top, _, _ = program.extents(program.find("menu item", text["Menu_TexteProposer"]))
    yield "Menu_Texte"
    xdotool("mousemove", left + 5, top + 5, "click", 1)
    program.wait_for("an active chooser", lambda: has(program.dialog(), "active"))
    yield "propose-as"
    program.keys("Return")
    yield from _dialogs(program, text, "propose", "Btn_Ok")
    program.keys("ctrl+z")
