# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What playing a message costs, beside gst-play-1.0 on the same file and the same sink of a private server."""
import array
import contextlib
import math
import os
import pathlib
import resource
import statistics
import subprocess
import tempfile
import threading
import time
import wave

ROUNDS = 5
PLAYS = 200
SECONDS = 2.0
PIECE = 96  # bytes: 1 ms of the recording
PAUSE = 3 * PIECE
SCRIPT = '''load-module module-null-sink sink_name=bench norewinds=1 rate=48000
load-module module-native-protocol-unix auth-anonymous=1 socket={socket}
'''


def make_message(path, seconds):
    """A loud tone from the first sample on, 8 kHz mono."""
    samples = array.array('h', (int(16000 * math.cos(i * 2 * math.pi * 440 / 8000))
                                for i in range(int(seconds * 8000))))
    with wave.open(str(path), 'wb') as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(8000)
        file.writeframes(samples.tobytes())


@contextlib.contextmanager
def sound_server():
    """A PulseAudio of our own with one null sink; answers the environment that leads to it."""
    with tempfile.TemporaryDirectory() as folder:
        socket = pathlib.Path(folder, 'native')
        script = pathlib.Path(folder, 'default.pa')
        script.write_text(SCRIPT.format(socket=socket))
        environment = {name: value for name, value in os.environ.items()
                       if name not in ('DISPLAY', 'DBUS_SESSION_BUS_ADDRESS')}
        environment.update(HOME=folder, XDG_RUNTIME_DIR=folder, XDG_CONFIG_HOME=folder, XDG_CACHE_HOME=folder,
                           PULSE_RUNTIME_PATH=folder, PULSE_SERVER=f'unix:{socket}')
        server = subprocess.Popen(['pulseaudio', '-n', '--daemonize=no', '--system=false', '--exit-idle-time=-1',
                                   '--use-pid-file=no', '-F', script], env=environment,
                                  stderr=subprocess.DEVNULL)
        try:
            while subprocess.run(['pactl', 'info'], env=environment, capture_output=True,
                                 check=False).returncode != 0:
                time.sleep(0.02)
            yield environment
        finally:
            server.terminate()
            server.wait()


class Ear:
    """Listens to the sink; onsets tells when sound began after a pause."""

    def __init__(self, environment):
        self.onsets = []
        self._runs = threading.Event()
        self._parec = subprocess.Popen(['parec', '--raw', '-d', 'bench.monitor', '--format=s16le', '--rate=48000',
                                        '--channels=1', '--latency-msec=5'], env=environment,
                                       stdout=subprocess.PIPE)
        self._thread = threading.Thread(target=self._listen)
        self._thread.start()
        self._runs.wait()

    def _listen(self):
        silent = PAUSE
        while piece := self._parec.stdout.read(PIECE):
            self._runs.set()
            if len(piece) < PIECE or max(map(abs, memoryview(piece).cast('h'))) < 1000:
                silent += PIECE
            else:
                if silent >= PAUSE:
                    self.onsets.append(time.monotonic())
                silent = 0

    def close(self):
        self._parec.terminate()
        self._parec.wait()
        self._thread.join()


def play_once(command, environment):
    """(seconds to the first sample, processor seconds)"""
    ear = Ear(environment)
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    started = time.monotonic()
    subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    ear.close()
    spent = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
    return ear.onsets[0] - started, spent


def second_start(command, environment):
    """Seconds from the wish to play to the first sample in a program that has played before."""
    ear = Ear(environment)
    output = subprocess.run(command, env=environment, check=True, capture_output=True, text=True).stdout
    ear.close()
    return ear.onsets[1] - float(output.split()[2])


def measure(programs, folder):
    """[(measure, ours, peer, goal)]"""
    message, click = folder / 'message.wav', folder / 'click.wav'
    make_message(message, SECONDS)
    make_message(click, 0.05)
    ours = [programs / 'qmbenchplay', message, '1']
    peer = ['gst-play-1.0', '--no-interactive', '--audiosink=pulsesink', message]
    with sound_server() as environment:
        play_once(ours, environment)  # GStreamer looks through its plug-ins once
        play_once(peer, environment)
        ours_rounds, peer_rounds = [], []
        for _ in range(ROUNDS):
            ours_rounds.append(play_once(ours, environment))
            peer_rounds.append(play_once(peer, environment))
        many = subprocess.run([programs / 'qmbenchplay', click, str(PLAYS)], env=environment, check=True,
                              capture_output=True, text=True).stdout.split()
        again = statistics.median(second_start([*ours[:2], '2'], environment) for _ in range(ROUNDS))
    (start, spent), (peer_start, peer_spent) = (
        [statistics.median(found) for found in zip(*rounds)] for rounds in (ours_rounds, peer_rounds))
    memory = [int(text) for text in many[1::2]]
    return [
        ('play: program start to first sample, beside gst-play-1.0: time in ms',
         start * 1000, peer_start * 1000, 'ratio <= 1'),
        ('play: press of Play to first sample, beside gst-play-1.0: time in ms',
         again * 1000, peer_start * 1000, 'ratio <= 1'),
        (f'play: processor time for {SECONDS:.0f} s of sound, beside gst-play-1.0: time in ms',
         spent * 1000, peer_spent * 1000, 'ratio <= 1'),
        (f'play: resident memory after {PLAYS} plays beside after 10 (ours both): KiB',
         memory[-1], memory[9], 'the same'),
    ]
