"""What is heard, recorded from a sound device that plays nothing: sounds and a refusal's beep are as loud as the slider of
the preferences says, and a sound that plays goes on when it plays again. A sound server that accepts and doesn't answer
holds up nothing."""

import array
import contextlib
import math
import os
import socket
import subprocess
import sys
import tempfile
import time

from desktop import Program, needs, private_environment, wait_for
from gi.repository import Atspi
from sample import sample

SECONDS, RATE = 1.5, 44100  # of a recording; samples a second


@contextlib.contextmanager
def sound_server(home):
    """A server with that device alone; the environment variable by which programs find it."""
    path = f"{os.environ['XDG_RUNTIME_DIR']}/sound-server"
    modules = ("module-null-sink sink_name=silent", f"module-native-protocol-unix auth-anonymous=1 socket={path}")
    command = ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-level=error"]
    server = subprocess.Popen([*command, *(f"--load={module}" for module in modules)], env=private_environment(home))
    try:
        wait_for("a sound server", lambda: os.path.exists(path), server.poll)
        yield {"PULSE_SERVER": f"unix:{path}"}
    finally:
        server.terminate()
        server.wait()


class Recorder:
    def __init__(self, server):
        self.file = tempfile.NamedTemporaryFile()
        # With a longer latency the recording misses as much of the start of a sound.
        form = ["--raw", "--latency-msec=4", f"--rate={RATE}", "--channels=1", "--format=s16le"]
        command = ["parec", "--device=silent.monitor", *form]
        self.process = subprocess.Popen(command, env=os.environ | server, stdout=self.file)
        wait_for("a recording", self.size, self.process.poll)

    def size(self):
        return os.stat(self.file.name).st_size // 2 * 2

    def record(self, play):
        """What is heard of a sound. On a busy machine the sound server loses a short one at times; it is then played once more."""
        return next((heard for heard in (self.listen(play) for _ in range(2)) if heard), 0)

    def listen(self, play):
        """The root of the sum of the squares of what is heard from `play` on."""
        start = self.size()
        play()
        end = self.size() + int(SECONDS * RATE) * 2
        wait_for("the end of the recording", lambda: self.size() >= end, self.process.poll)
        heard = os.pread(self.file.fileno(), end - start, start)  # to seek would move where the recorder writes
        return math.sqrt(sum(sample * sample for sample in array.array("h", heard)))

    def close(self):
        self.process.kill()
        self.process.wait()
        self.file.close()


def set_volume(program, percent):
    program.keys("ctrl+comma")
    program.front = "Préférences"
    slider, window = program.find("slider", "Effets sonores :"), program.window()
    Atspi.Value.set_current_value(slider, percent)
    program.wait_for("the volume", lambda: Atspi.Value.get_current_value(slider) == percent)
    program.press("Ok")
    program.wait_until_gone(window)
    program.front = "Tarnivel"


def copy(program):
    program.press("Copier la liste dans le presse-papiers")


def search(program, times):
    """For the only match, whose sound is faint at both its ends: cut off by its second start, it would be one sound."""
    program.set_text(program.find("text", "Chercher"), "1000 version")
    program.keys("ctrl+f", *["Return"] * times)


def loudness(program, recorder, percent):
    """Of a beep, and of a sound."""
    recorder.listen(lambda: set_volume(program, percent))  # until what that plays has ended
    hear = recorder.record if percent else recorder.listen
    beep = hear(lambda: program.press("Chercher"))  # for nothing
    program.press("Spécial A", "check box")
    program.front = "Spécial A"
    sound, window = hear(lambda: copy(program)), program.window()
    program.front = "Tarnivel"
    program.press("Spécial A", "check box")
    program.wait_until_gone(window)
    return beep, sound


def silent_server(command, files):
    path = f"{os.environ['XDG_RUNTIME_DIR']}/silent"
    with socket.socket(socket.AF_UNIX) as server:
        server.bind(path)
        server.listen()
        with Program([command], private_environment(files.home, PULSE_SERVER=f"unix:{path}")) as program:
            program.press("Spécial A", "check box")
            program.front = "Spécial A"
            start = time.monotonic()
            copy(program)
            with server.accept()[0]:
                copy(program)
                program.keys("ctrl+q")
                assert program.wait_for_end() == 0
                assert time.monotonic() - start < 10, "the program waited for the sound server"


def main(command):
    needs("pulseaudio", "parec")
    with sample() as files, sound_server(files.home) as server:
        with Program([command], private_environment(files.home, **server)) as program:
            program.front = "Tarnivel"
            program.run()
            recorder = Recorder(server)
            search(program, 1)
            area = program.find("text", "Spack Après")
            program.wait_for("the match", lambda: len(set(program.selection(area))) == 2)
            program.set_text(program.find("text", "Chercher"), "")
            none, faint, loud = (loudness(program, recorder, percent) for percent in (0, 20, 100))
            assert none == (0, 0) and all(1 < a < b for a, b in zip(faint, loud, strict=True)), (none, faint, loud)
            voices = lambda number: recorder.record(lambda: search(program, number))  # noqa: E731
            assert any(voices(2) > 1.25 * voices(1) for _ in range(5)), "no second voice"
            recorder.close()
            assert program.close() == 0
        silent_server(command, files)


if __name__ == "__main__":
    main(*sys.argv[1:])
