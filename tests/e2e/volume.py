"""What is heard, recorded from a sound device that plays nothing: the slider of the preferences sets its loudness."""

import array
import contextlib
import math
import os
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


def main(command):
    with sample() as files, sound_server(files.home) as server:
        with Program([command], private_environment(files.home, **server)) as program:
            program.front = "Tarnivel"
            heard = {}
            for percent in (100, 20, 0):
                set_preferences(program, percent)
                time.sleep(SECONDS)  # until the sound of the slider has ended
                program.press("Spécial A", "check box")
                program.front = "Spécial A"
                copy = lambda: program.press("Copier la liste dans le presse-papiers")  # noqa: E731
                heard[percent] = loudness(server, copy)
                window = program.window()
                program.front = "Tarnivel"
                program.press("Spécial A", "check box")
                program.wait_until_gone(window)
            print(heard)
            assert heard[0] == 0 and 1 < heard[20] < heard[100] / 2, heard
            assert program.close() == 0


main(*sys.argv[1:])
