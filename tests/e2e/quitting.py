"""What ends the program with the window "Spécial A" open: its close box, signals and the end of the log-in; and what doesn't
while a run or a dialog is under way."""

import re
import signal
import subprocess
import sys
import time

from desktop import Program, has, needs, private_environment, wait_for, xdotool
from sample import sample
from server import Server

VIEWS = ("Spack Modèle", "Spack Avant", "Spack Après")  # the rows of the closed popup


def window_named(name):
    return xdotool("search", "--sync", "--onlyvisible", "--name", name).split()[0]


def use_special(program, name):
    """Leaves something in the window that only the right quit hands to the preferences."""
    program.press("Spécial A", "check box")
    program.front = "Spécial A"
    program.wait_for("it in front", lambda: has(program.window(), "active"))
    program.set_text(program.find("text", "Dest 1 :"), name)
    program.front = "Tarnivel"


def run_from(program, address):
    program.act(program.find("radio button", "Url modèle"))
    program.set_text(program.find("text", "Url modèle"), address)
    program.press("Générer")


def check_busy(command, files):
    """Close box and keys leave a run, and then a dialog, as they are. A stopped run leaves nothing behind."""
    server = Server(files.model_file.read_bytes())
    with Program([command], private_environment(files.home)) as program:
        run_from(program, server.url("/hang"))
        program.wait_for("a hanging fetch", server.hanging.is_set)
        program.keys("alt+F4", "ctrl+q", "ctrl+s", "ctrl+o", "ctrl+shift+o", "ctrl+alt+o", "ctrl+comma")
        usable = [node.get_name() for node in program.all() if has(node, "focusable", "enabled")]
        assert [name for name in usable if name not in VIEWS] == ["Arrêter"], usable
        program.press("Arrêter")
        program.find("push button", "Générer")
        assert program.text(program.find("text", "Spack Après")) == ""
        run_from(program, server.url("/model.ini"))
        program.dialog()
        program.keys("ctrl+q")
        program.answer_until("Générer")
        assert files.is_in_model_order(program.text(program.find("text", "Spack Après")))
        use_special(program, "closed")
        xdotool("windowactivate", "--sync", window_named("^Tarnivel$"))
        assert (program.close(), program.stderr()) == (0, "")
    assert "TabSpecAdest1 :@: closed\t" in files.preferences.read_text("utf-8")
    server.ended.set()
    server.shutdown()


def fetch(program, server):
    run_from(program, server.url("/hang"))
    program.wait_for("a hanging fetch", server.hanging.is_set)


def report(program, server):
    run_from(program, server.url("/model.ini"))
    program.dialog()


def question(program, server):
    report(program, server)
    program.answer_until("Générer")
    program.press("Sauv fichier")
    program.dialog()


def chooser(program, _server):
    program.keys("ctrl+o")
    program.dialog()


def preferences(program, _server):
    program.keys("ctrl+comma")
    program.front = "Préférences"
    program.act(program.find("check box"))


def help_window(program, _server):
    program.press("Aide")
    program.wait_for("the help", lambda: window_named("^Aide$"))
    program.front = "Aide"
    assert not has(program.find("text", "Aide"), "editable")


def message(program, server):
    """The settings can't be written: what is told of it waits for an answer, and a second signal asks nothing anew."""
    files = server.files
    files.preferences.parent.rename(files.preferences.parent.with_name("away"))
    program.keys("ctrl+q")
    program.dialog()
    files.preferences.parent.with_name("away").rename(files.preferences.parent)


def treatment(program, _server):
    program.front = "Spécial A"
    button = program.find("push button", "Traiter")
    program.act(button)
    program.wait_for("a long treatment", lambda: button.get_name() == "Arrêter")


SIGNALS = (signal.SIGTERM, signal.SIGHUP, signal.SIGINT)


def check_signals(command, files):
    """A signal ends whatever is under way, as if cancelled, and the settings are kept."""
    before = files.source_file.read_bytes()
    files.archives.with_name("Journées.txt").write_text("printemps calme " * 2_000_000)
    rows = re.sub("(TabSpecA.*)", r"\1" + "\tété" * 100, files.preferences.read_text("utf-8"))
    files.preferences.write_text(rows, "utf-8")
    for number, make_busy in enumerate((fetch, report, question, chooser, preferences, help_window, treatment, message)):
        server = Server(files.model_file.read_bytes())
        server.files = files
        with Program([command], private_environment(files.home)) as program:
            use_special(program, f"busy{number}")
            program.wait_for("the main window in front", lambda: xdotool("windowactivate", window_named("^Tarnivel$")) == "")
            make_busy(program, server)
            start = time.monotonic()
            for _ in range(2):
                program.process.send_signal(SIGNALS[number % len(SIGNALS)])
            assert program.wait_for_end() == 0, make_busy
            seconds = time.monotonic() - start
            print(f"{make_busy.__name__}: {seconds:.2f} s")
            assert seconds < 10, "it is to be within a second; a busy machine needs more"
        kept = files.preferences.read_text("utf-8")
        assert (f"TabSpecAdest1 :@: busy{number}\t" in kept) == (make_busy != message), (make_busy, kept)
        assert "Afficher Bouton Special A :@: True" in kept, "the preferences were cancelled"
        assert files.source_file.read_bytes() == before and not [*files.archives.parent.glob("busy*")]
        server.ended.set()
        server.shutdown()


def ask_for_log_out():
    """Drags to the first item of a menu; too soon for the menu, it must be done anew. The window that then opens."""
    xdotool("mousemove", 1140, 370, "mousedown", 1)
    time.sleep(0.5)
    xdotool("mousemove_relative", 0, 30, "mouseup", 1)
    time.sleep(0.5)
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Shutdown$"], capture_output=True, text=True)
    return found.stdout.strip()


def check_log_out(command, files):
    """A real session manager ends the log-in, after the question about an edit."""
    needs("xsm")
    environment = private_environment(files.home, SM_SAVE_DIR=str(files.home))
    (files.home / ".xsmstartup").write_text(f"{command}\n")
    manager = subprocess.Popen(["xsm", "-session", "first"], env=environment, stderr=subprocess.DEVNULL)
    try:
        panel = window_named("xsm: Default")
        xdotool("windowactivate", "--sync", window_named("^Tarnivel$"), "type", "x")
        window_named("^Tarnivel[*]$")
        files.preferences.unlink()
        xdotool("windowmove", panel, 1000, 300, "windowactivate", "--sync", panel)
        dialog = wait_for("the question of the session manager", ask_for_log_out)
        xdotool("mousemove", "--window", dialog, 150, 18, "click", 1, "type", "any name")
        xdotool("mousemove", "--window", dialog, 50, 137, "click", 1)
        front = ["xdotool", "getactivewindow", "getwindowname"]
        wait_for("the question", lambda: subprocess.run(front, capture_output=True).stdout == b"Tarnivel\n")
        assert not files.preferences.exists()
        xdotool("key", "Tab", "Return")
        wait_for("the preferences", files.preferences.exists)
        manager.wait(60)
    finally:
        manager.kill()


def main(command):
    signal.signal(signal.SIGINT, signal.SIG_DFL)  # a shell's job in the background inherits it ignored
    with sample() as files:
        check_busy(command, files)
        check_signals(command, files)
        check_log_out(command, files)


main(*sys.argv[1:])
