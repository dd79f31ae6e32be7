"""What is heard, recorded from a sound device that plays nothing: sounds and a refusal's beep are as loud as the
slider of the preferences says. A sound server that accepts and doesn't answer holds up nothing."""

import array
import contextlib
import math
import os
import socket
import subprocess
import sys
import time

from choosing import set_preferences
from desktop import Program, private_environment, wait_for
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


def loudness(server, play):
    """The root mean square of what is heard after `play`, in steps of a sample."""
    command = ["parec", "--device=silent.monitor", "--raw", "--latency-msec=50", f"--rate={RATE}", "--channels=1", "--format=s16le"]
    recorder = subprocess.Popen(command, env=os.environ | server, stdout=subprocess.PIPE)
    try:
        recorder.stdout.read(RATE // 5)  # it records
        play()
        samples = array.array("h", recorder.stdout.read(int(SECONDS * RATE) * 2))
    finally:
        recorder.kill()
        recorder.wait()
    return math.sqrt(sum(sample * sample for sample in samples) / len(samples))


def played(server, percent, play):
    """What is heard of it. On a busy machine the sound server misses a short sound at times: then it is played again."""
    found = (loudness(server, play) for _ in range(5 if percent else 1))
    return next((sound for sound in found if sound > 1), 0)


def open_special(program):
    program.front = "Tarnivel"
    program.press("Spécial A", "check box")
    program.front = "Spécial A"


def copy(program):
    program.press("Copier la liste dans le presse-papiers")


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
    with sample() as files, sound_server(files.home) as server:
        with Program([command], private_environment(files.home, **server)) as program:
            program.front = "Tarnivel"
            heard, beeps = {}, {}
            for percent in (100, 20, 0):
                set_preferences(program, percent)
                time.sleep(SECONDS)  # until the sound of the slider has ended
                beeps[percent] = played(server, percent, lambda: program.press("Chercher"))  # for nothing
                open_special(program)
                heard[percent] = played(server, percent, lambda: copy(program))
                window = program.window()
                program.front = "Tarnivel"
                program.press("Spécial A", "check box")
                program.wait_until_gone(window)
            for loud in (heard, beeps):
                assert loud[0] == 0 and 1 < loud[20] < loud[100], (heard, beeps)
            assert program.close() == 0
        silent_server(command, files)


main(*sys.argv[1:])
