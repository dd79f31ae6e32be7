"""The sample sceneries in a temporary folder, and what a run of them must show, worked out here from the files."""

import contextlib
import pathlib
import subprocess
import sys
import tempfile

TOOLS = pathlib.Path(__file__).parent.parent.parent / "tools"
ENABLED, DISABLED = "SCENERY_PACK ", "SCENERY_PACK_DISABLED "


class Sample:
    def __init__(self, folder):
        subprocess.run([sys.executable, TOOLS / "make_sample.py", folder], check=True, stdout=subprocess.DEVNULL)
        self.home = folder / "home"
        self.preferences = next(self.home.rglob("Tarnivel Prefs.txt"))
        self.source_file = next(folder.rglob("scenery_packs.ini"))
        self.archives = folder / "Archives"
        self.model_file = folder / self._preference("SourceFile_Path").split(f"{folder.name}:")[1].replace(":", "/")
        self.source = self.source_file.read_text("utf-8").rstrip("\n").split("\n")
        self.model = self.model_file.read_text("utf-8").rstrip("\n").split("\n")

    def _preference(self, key):
        lines = (line.split(" :@: ", 1) for line in self.preferences.read_text("utf-8").splitlines())
        return next(value for name, value in lines if name == key)

    def unknown_to_model(self):
        return packs(self.source) - packs(self.model)

    def unknown_to_source(self):
        return packs(self.model) - packs(self.source)

    def is_in_model_order(self, text):
        """Whether the packs that the model knows have its order and their state of before."""
        state = {pack(line): line for line in self.source if pack(line)}
        known = [line for line in text.split("\n") if pack(line) and pack(line) not in self.unknown_to_model()]
        return known == [state[pack(line)] for line in self.model if pack(line) in state]

    def folders_not_listed(self):
        return self._folders() - self._listed()

    def listed_without_folder(self):
        return self._listed() - self._folders()

    def _folders(self):
        return {entry.name for entry in self.source_file.parent.iterdir() if entry.is_dir()}

    def _listed(self):
        prefix = "Custom Scenery/"
        return {name[len(prefix) :].split("/")[0] for name in packs(self.source) if name.startswith(prefix)}


def pack(line):
    """What a line names, whatever its state; "" for a line of another kind."""
    return next((line[len(prefix) :] for prefix in (ENABLED, DISABLED) if line.startswith(prefix)), "")


def packs(lines):
    return {pack(line) for line in lines} - {""}


@contextlib.contextmanager
def sample():
    with tempfile.TemporaryDirectory() as folder:
        yield Sample(pathlib.Path(folder))
