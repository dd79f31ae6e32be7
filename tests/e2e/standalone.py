"""The archive's programs in a system that has no library of theirs: they start in the language of the desktop, fetch an
encrypted model, play a sound and look into a packed tile. Run as root by tools/package_test.sh.

Usage: standalone.py FOLDER_OF_THE_SYSTEM FOLDER_OF_THE_ARCHIVE_IN_IT PICTURE
"""

import pathlib
import subprocess
import sys

from desktop import Program, private_environment
from sample import sample
from server import OK, Server
from volume import Recorder, sound_server

# What lies in /tmp, the screen's bus and the sound server among it, has the same path in there.
ENTER = 'mount --bind /tmp "$0/tmp" && mount -t proc proc "$0/proc" && exec chroot "$0" "$@"'
PACKED_TILE = pathlib.Path(__file__).parent.parent / "data/packs/overlay.7z"


def command(root, archive, name):
    return ["unshare", "--mount", "sh", "-c", ENTER, root, f"{archive}/bin/{name}"]


def propose(order, files):
    folder = files.source_file.parent / "Côte d'Émeraude"
    tile = folder / "Earth nav data/+40-010/+48-002.dsf"
    tile.parent.mkdir(parents=True)
    tile.write_bytes(PACKED_TILE.read_bytes())
    run = subprocess.run([*order, "--propose", files.source_file], env=private_environment(), capture_output=True, text=True)
    overlays = run.stderr.partition("Surcouches")[2].partition("\n \n")[0]
    assert folder.name in overlays, run.stderr


def run(program, server, files, sound):
    server.serve(OK + "\r\n", [files.model_file.read_bytes()])
    program.press("Erzeugen")
    program.answer_until("Erzeugen")
    program.choose("Packs Modell")
    assert program.text(program.find("text", "Packs Modell")) == files.model_file.read_text("utf-8")
    recorder = Recorder(sound)
    assert recorder.record(lambda: program.press("Suchen")) > 1, "no sound"  # the beep of a search for nothing
    recorder.close()


def main(root, archive, picture):
    server = Server()
    server.encrypt()
    with sample() as files, sound_server(files.home) as sound:
        propose(command(root, archive, "tarnivel-order"), files)
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write(f"Source Model :@: 1\nSourceUrl :@: {server.url(scheme='https')}\n")
        environment = private_environment(files.home, LC_ALL="de_DE.UTF-8", **sound)
        with Program(command(root, archive, "tarnivel"), environment) as program:
            run(program, server, files, sound)
            program.screenshot(picture)
            assert program.close() == 0
    server.shutdown()


if __name__ == "__main__":
    main(*sys.argv[1:])
