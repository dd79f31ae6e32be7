"""What is heard, recorded from a sound device that plays nothing: sounds and a refusal's beep are as loud as the
slider of the preferences says, and a sound that plays goes on when it plays again. A sound server that accepts and doesn't answer holds up nothing."""

import array
import contextlib
import math
import os
import socket
import subprocess
import sys
import tempfile
import time

from choosing import set_preferences
from desktop import Program, needs, private_environment, wait_for
from sample import sample

SECONDS, RATE = 1.5, 44100  # of a recording; samples a second


@contextlib.contextmanager
def sound_server(home):
    """A sound server with that device alone; the environment variable by which programs find it."""
    socket = f"{os.environ['XDG_RUNTIME_DIR']}/sound-server"
    modules = ("module-null-sink sink_name=silent", f"module-native-protocol-unix auth-anonymous=1 socket={socket}")
    command = ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-level=error"]
    server = subprocess.Popen([*command, *(f"--load={module}" for module in modules)], env=private_environment(home))
    try:
        wait_for("a sound server", lambda: os.path.exists(socket), server.poll)
        yield {"PULSE_SERVER": f"unix:{socket}"}
    finally:
        server.terminate()
        server.wait()


class Recorder:
    def __init__(self, server):
        self.file = tempfile.NamedTemporaryFile()
        command = ["parec", "--device=silent.monitor", "--raw", "--latency-msec=50", f"--rate={RATE}", "--channels=1", "--format=s16le"]
        self.process = subprocess.Popen(command, env=os.environ | server, stdout=self.file)
        wait_for("a recording", self.size, self.process.poll)

    def size(self):
        return os.stat(self.file.name).st_size // 2 * 2

    def record(self, play):
        """The root of the sum of the squares of what is heard from `play` on, in steps of a sample.

        On a busy machine the sound server loses a short sound at times; it is then played again.
        """
        return next((heard for heard in (self._once(play) for _ in range(5)) if heard), 0)

    def _once(self, play):
        start = self.size()
        play()
        end = self.size() + int(SECONDS * RATE) * 2
        wait_for("the end of the recording", lambda: self.size() >= end, self.process.poll)
        self.file.seek(start)
        return math.sqrt(sum(sample * sample for sample in array.array("h", self.file.read(end - start))))

    def close(self):
        self.process.kill()
        self.process.wait()
        self.file.close()


def open_special(program):
    program.front = "Tarnivel"
    program.press("Spécial A", "check box")
    program.front = "Spécial A"


def copy(program):
    program.press("Copier la liste dans le presse-papiers")


def search(program, times):
    """For the only match, whose sound is faint at both its ends: cut off by its second start, it would be one sound."""
    program.set_text(program.find("text", "Chercher"), "1000 version")
    for _ in range(times):
        program.press("Chercher")
    program.set_text(program.find("text", "Chercher"), "")


def silent_server(command, files):
    path = f"{os.environ['XDG_RUNTIME_DIR']}/silent"
    with socket.socket(socket.AF_UNIX) as server:
        server.bind(path)
        server.listen()
        with Program([command], private_environment(files.home, PULSE_SERVER=f"unix:{path}")) as program:
            open_special(program)
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
            heard, beeps, recorder = {}, {}, Recorder(server)
            program.press("Générer")
            program.answer_until("Générer")
            search(program, 1)
            for percent in (100, 20, 0):
                set_preferences(program, percent)
                time.sleep(SECONDS)  # until the sound of the slider has ended
                beeps[percent] = recorder.record(lambda: program.press("Chercher"))  # for nothing
                voices = lambda number: recorder.record(lambda: search(program, number))  # noqa: E731
                assert percent == 0 or any(voices(2) > 1.25 * voices(1) for _ in range(5)), "no second voice"
                open_special(program)
                heard[percent] = recorder.record(lambda: copy(program))
                window = program.window()
                program.front = "Tarnivel"
                program.press("Spécial A", "check box")
                program.wait_until_gone(window)
            recorder.close()
            for loud in (heard, beeps):
                assert loud[0] == 0 and 1 < loud[20] < loud[100], (heard, beeps)
            assert program.close() == 0
        silent_server(command, files)


if __name__ == "__main__":
    main(*sys.argv[1:])
