# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A line between a client and a server of this machine that is as slow as the test wants it to be."""
import contextlib
import socket
import threading


class SlowLine:
    """Takes connections at `address` and hands everything on, at full speed until slow() is called."""

    def __init__(self, port):
        self._server = port
        self._fast = threading.Event()
        self._fast.set()
        self._bytes_per_second = 0
        self.passed = 0  # bytes from the server to the client since slow()
        self._door = socket.create_server(('127.0.0.1', 0))
        self._thread = threading.Thread(target=self._take_connections, daemon=True)
        self._thread.start()

    @property
    def address(self):
        """What the administrator writes in the place of a folder."""
        return f'smb://127.0.0.1:{self._door.getsockname()[1]}'

    def slow(self, bytes_per_second):
        self.passed, self._bytes_per_second = 0, bytes_per_second
        self._fast.clear()

    def fast(self):
        self._fast.set()

    def close(self):
        self.fast()
        self._door.shutdown(socket.SHUT_RDWR)  # wakes the thread that accepts
        self._thread.join()
        self._door.close()

    def _take_connections(self):
        with contextlib.suppress(OSError):
            while True:
                client = self._door.accept()[0]
                try:
                    server = socket.create_connection(('127.0.0.1', self._server))
                except OSError:
                    client.close()
                    continue
                for ends in ((client, server, False), (server, client, True)):
                    threading.Thread(target=self._hand_on, args=ends, daemon=True).start()

    def _hand_on(self, source, target, is_answer):
        with contextlib.suppress(OSError):
            while piece := source.recv(2048):
                if is_answer and not self._fast.is_set():
                    self._fast.wait(len(piece) / self._bytes_per_second)
                    self.passed += len(piece)
                target.sendall(piece)
        for end in (source, target):
            with contextlib.suppress(OSError):
                end.shutdown(socket.SHUT_RDWR)
        source.close()
