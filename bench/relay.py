# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A relay before an SMB server that counts what goes through it: requests, and bytes both ways."""
import socket
import struct
import threading

_HEADER = 4  # before each message: 0, then its length in three bytes
_NEXT_COMMAND = 20  # offset in a message's header of the offset of the next one in the same packet
_SMB2 = b'\xfeSMB'


class Relay:
    """Takes connections at `port` of 127.0.0.1. Counts as [MS-SMB2] frames messages, without encryption."""

    def __init__(self, server_port):
        self._server_port = server_port
        self._lock = threading.Lock()
        self.requests = self.bytes = 0
        self._listener = socket.create_server(('127.0.0.1', 0))
        self.port = self._listener.getsockname()[1]
        threading.Thread(target=self._accept, daemon=True).start()

    def close(self):
        self._listener.shutdown(socket.SHUT_RDWR)
        self._listener.close()

    def counts(self):
        with self._lock:
            return self.requests, self.bytes

    def _accept(self):
        while True:
            try:
                client, _ = self._listener.accept()
            except OSError:
                return
            server = socket.create_connection(('127.0.0.1', self._server_port))
            for source, target, is_request in ((client, server, True), (server, client, False)):
                source.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                threading.Thread(target=self._pass_on, args=(source, target, is_request), daemon=True).start()

    def _pass_on(self, source, target, is_request):
        with source, target, source.makefile('rb') as stream:
            while len(header := stream.read(_HEADER)) == _HEADER:
                message = stream.read(struct.unpack('>I', header)[0] & 0xffffff)
                with self._lock:
                    self.bytes += len(header) + len(message)
                    self.requests += _requests(message) if is_request else 0
                try:
                    target.sendall(header + message)
                except OSError:
                    return
            for end in (source, target):
                try:
                    end.shutdown(socket.SHUT_RDWR)
                except OSError:
                    pass


def _requests(message):
    """Requests may be chained in one packet."""
    count, at = 0, 0
    while message[at:at + 4] == _SMB2:
        count += 1
        following = struct.unpack_from('<I', message, at + _NEXT_COMMAND)[0]
        if following == 0:
            break
        at += following
    return max(count, 1)
