"""Prints what Orca, a screen reader, says from the start through a run, a search, a save and "Special A", key by key.

Usage: tools/screen.sh /usr/bin/python3 tools/hear.py PROGRAM [DOCUMENT]
Fails if the text behind MARK in the document, up to its fence, is another. Orca's echo of the keys is off.
"""

import difflib
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import threading

from desktop import Program, needs, private_environment, text_of, wait_for
from tour import environment, make_sample

MARK = "<!-- tools/hear.py -->\n```\n"
# Not the command "orca", which refuses to run beside another one. Behind more than 50 events it drops some: a loaded
# machine would be heard.
ORCA = """
import logging, signal, sys
from gi.repository import GLib
from orca import event_manager, orca, settings
settings.enableKeyEcho = False
event_manager.EventManager._inFlood = lambda self: False
said = logging.StreamHandler(sys.stdout)
said.setFormatter(logging.Formatter("%(message)r"))
logging.getLogger("speech").addHandler(said)
GLib.unix_signal_add(GLib.PRIORITY_LOW, signal.SIGUSR1, lambda: print("idle", flush=True) or True)
orca.getSettingsManager().activate(None, {})
orca.main()
"""
STEPS = (  # the keys, or behind ":" what is typed, and the end of the last sentence that follows
    ("F5", "OK push button."),
    ("Return", "1 report (Model file)"),
    ("F8", "LFRK_Caen_Carpiquet/"),
    ("Down", "Lib_Véhicules/"),
    ("Up", "unmatched."),
    ("ctrl+f", "Search text."),
    ("shift+Tab", "manager."),
    ("shift+Tab", "to disable."),
    ("space", "1 line changed."),
    ("ctrl+f", "Search text."),
    (":vosges", ""),
    ("Return", "top of the text."),
    ("ctrl+f", ""),
    (":xyz", ""),
    ("Return", "not found."),
    ("ctrl+s", "Save file push button."),
    ("Return", "10'51'07.ini."),
    ("ctrl+shift+a", "Choose file… push button."),
    ("Tab", "Journées.txt."),
    *[("Tab", " selected.")] * 3,
    ("Tab", "3 columns."),
    ("Down", "hiver."),
    ("Right", "été."),
    *[("Tab", "push button.")] * 4,
    ("space", "Continue push button."),
    ("Return", "in /tmp/folder."),
)


class Orca:
    """Its sentences as they come, without what changes from run to run."""

    def __init__(self, home, folder):
        self.sentences = []
        self.changing = ((re.escape(folder), "folder"), (r"\d{4}-\d\d-\d\d_[\d']{8}", "2024-02-25_10'51'07"))
        environs = private_environment(home, LANG="en_GB.UTF-8", LC_ALL="", SPEECHD_CMD="none")
        pipes = {"stdout": subprocess.PIPE, "stderr": subprocess.DEVNULL}
        self.process = subprocess.Popen([sys.executable, "-c", ORCA], env=environs, text=True, **pipes)
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        for line in self.process.stdout:
            sentence = re.sub(".*SPEECH OUTPUT: '(.*)'.*\n", r"\1", line).replace("\\n", "\n      ")
            for pattern, text in self.changing:
                sentence = re.sub(pattern, text, sentence)
            self.sentences.append(sentence)

    def heard(self, end):
        """What was said since the last call, once one sentence ends like that and Orca has nothing left to do."""
        wait_for(f"“{end}”", lambda: any(said.endswith(end) for said in ["", *self.sentences]))
        self.process.send_signal(signal.SIGUSR1)
        wait_for("silence", lambda: "idle\n" in self.sentences)
        said, self.sentences = self.sentences[:-1], []
        # What has the focus when a dialog has ended it tells at one time, and not at another.
        return [said[0], said[-1]] if said and said[0].endswith(" frame.") else said


def listen(command):
    """The lines of the transcript: a key, and below it what is said."""
    with tempfile.TemporaryDirectory() as home, tempfile.TemporaryDirectory(dir="/tmp") as sample:
        make_sample(sample, "760,500")
        orca = Orca(home, pathlib.Path(sample).name)
        try:
            yield from orca.heard("Screen reader on.")
            with Program([command], environment(sample, "en")) as program:
                for keys, end in (("start", "Packs after text."), *STEPS):
                    if keys[0] == ":":
                        program.type(keys[1:])
                        shown = lambda text=keys[1:]: text in map(text_of, program.all("text"))  # noqa: E731
                        program.wait_for(keys, shown)
                    elif keys != "start":
                        program.keys(keys)
                    yield keys
                    yield from (f"    {sentence}" for sentence in orca.heard(end))
                program.process.terminate()
        finally:
            orca.process.kill()
            orca.process.wait()


def main(command, document=None):
    needs("orca")
    lines = []
    for line in listen(command):
        print(line, flush=True)
        lines.append(line)
    if document:
        text = pathlib.Path(document).read_text("utf-8")
        wanted = text.split(MARK)[1].split("\n```")[0].split("\n")
        heard = "\n".join(lines).split("\n")
        sys.exit("\n".join(difflib.unified_diff(wanted, heard, "wanted", "heard", lineterm="")) or 0)


main(*sys.argv[1:])
