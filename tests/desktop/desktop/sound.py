# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A private sound server with one silent device, whose sound is recorded."""
import array
import os

from .hearing import RATE, heard
from .processes import DesktopError, wait_until

_SCRIPT = '''load-module module-null-sink sink_name=desk norewinds=1 rate=48000 channels=2 \
sink_properties=device.description=Desk
set-default-sink desk
load-module module-native-protocol-unix auth-anonymous=1 socket={socket}
'''


class SoundServer:
    """Of one desktop: programs that are started on it later find it, whether it runs or not."""

    def __init__(self, desktop):
        self._desktop, self._program = desktop, None
        self._socket = desktop.folder / 'run' / 'pulse.socket'
        desktop.env |= {'PULSE_SERVER': f'unix:{self._socket}',
                        'PULSE_RUNTIME_PATH': str(desktop.folder / 'run')}

    def start(self):
        script = self._desktop.folder / 'sound.pa'
        script.write_text(_SCRIPT.format(socket=self._socket), encoding='ascii')
        self._program = self._desktop.start(
            ['pulseaudio', '-n', '--daemonize=no', '--system=false', '--exit-idle-time=-1', '--realtime=no',
             '--high-priority=no', '--use-pid-file=no', '--disallow-exit', '-F', script])
        wait_until(self._answers, 'the sound server to answer', 20)

    def kill(self):
        self._program.popen.kill()
        self._program.wait(5)
        self._socket.unlink(missing_ok=True)

    def streams(self):
        """How many programs play at the moment."""
        return len(self._desktop.run(['pactl', 'list', 'short', 'sink-inputs']).splitlines())

    def record(self):
        return Recording(self._desktop)

    def _answers(self):
        try:
            return self._desktop.run(['pactl', 'info'])
        except DesktopError:
            return None


class Recording:
    """What the device plays from now on, one channel."""

    def __init__(self, desktop):
        self._file = desktop.folder / 'heard.raw'
        self._file.unlink(missing_ok=True)
        self._program = desktop.start(['parec', '--raw', '-d', 'desk.monitor', '--format=s16le',
                                       f'--rate={RATE}', '--channels=1', '--latency-msec=20', self._file])
        wait_until(self._size, 'the recording to begin', 20)

    def _size(self):
        return self._file.exists() and os.path.getsize(self._file)

    def finish(self):
        """The samples from the first to the last that can be heard."""
        after = self._size() + RATE  # half a second, so that nothing is missing
        wait_until(lambda: self._size() >= after, 'the recording to go on')
        self._program.end()
        samples = array.array('h', self._file.read_bytes()[:self._size() // 2 * 2])
        return heard(samples)
