# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A line between a client and an SMB server of this machine: it counts, and is as bad as a test wants it to be."""
import contextlib
import socket
import struct
import threading

from desktop import wait_until

# Commands, as [MS-SMB2] numbers them.
NEGOTIATE, SESSION_SETUP, TREE_CONNECT, CREATE, CLOSE, READ, WRITE = 0, 1, 3, 5, 6, 8, 9
QUERY_DIRECTORY, QUERY_INFO = 14, 16
ANY = None
NAMES = {ANY: 'of any kind', NEGOTIATE: 'NEGOTIATE', SESSION_SETUP: 'SESSION_SETUP', TREE_CONNECT: 'TREE_CONNECT',
         CREATE: 'CREATE', CLOSE: 'CLOSE', READ: 'READ', WRITE: 'WRITE', QUERY_DIRECTORY: 'QUERY_DIRECTORY',
         QUERY_INFO: 'QUERY_INFO'}

_NOTHING, _REQUEST, _ANSWER = range(3)  # what is lost
_FRAME = 4  # bytes before each message: 0, then its length in three bytes
_COMMAND, _NEXT = 12, 20  # offsets in a message's header: its command, and that of the next one in the packet
_SMB2 = b'\xfeSMB'
_PIECE = 2048


class Relay:
    """Takes connections at `address` and hands everything on. Knows the requests of what is not encrypted."""

    def __init__(self, server_port):
        self._server_port = server_port
        self._lock = threading.Lock()
        self._fast = threading.Event()
        self._fast.set()
        self._bytes_per_second = None  # nothing at all
        self._ends = set()  # sockets of living connections
        self._forgotten = set()  # those of connections that nothing comes through any more
        self._unanswered = set()  # the servers' sockets whose next answer is lost
        self._trap = None  # command, which of those to come, what happens then, what is lost
        self._sprung = threading.Event()
        self._requests = self._bytes = 0
        self.passed = 0  # bytes from the server to the client since slow()
        self._door = socket.create_server(('127.0.0.1', 0))
        self.port = self._door.getsockname()[1]
        self._thread = threading.Thread(target=self._take_connections, daemon=True)
        self._thread.start()

    @property
    def address(self):
        """What the administrator writes in the place of a folder."""
        return f'smb://127.0.0.1:{self.port}'

    def close(self):
        self.fast()
        self._door.shutdown(socket.SHUT_RDWR)  # wakes the thread that accepts
        self._thread.join()
        self._door.close()

    def counts(self):
        """Requests, and bytes both ways."""
        with self._lock:
            return self._requests, self._bytes

    # What can be wrong with a line

    def slow(self, bytes_per_second):
        """The server's answers come so slowly from now on; None: not at all."""
        self.passed, self._bytes_per_second = 0, bytes_per_second
        self._fast.clear()

    def fast(self):
        self._fast.set()

    def cut(self):
        """Ends all connections; new ones are taken."""
        with self._lock:
            ends = list(self._ends)
        for end in ends:
            _shut(end)

    def forget(self):
        """Nothing comes through the connections of now any more, and nobody is told; new ones are taken."""
        with self._lock:
            self._forgotten |= self._ends

    def cut_at(self, command, number, first=lambda: None):
        """Ends the connection on which the client sends the request of this kind that will be the `number`th.

        The server does not get it; what is to happen first happens before the client notices anything.
        """
        self._set_trap(command, number, first, _REQUEST)

    def cut_answer_at(self, command, number):
        """As cut_at(), but the server gets the request; its answer is what does not arrive."""
        self._set_trap(command, number, lambda: None, _ANSWER)

    def do_at(self, command, number, happens):
        """As cut_at(), but the request goes its way afterwards."""
        self._set_trap(command, number, happens, _NOTHING)

    def _set_trap(self, *trap):
        with self._lock:
            self._sprung.clear()
            self._trap = list(trap)

    def wait_for_it(self, seconds=30):
        """Until that request came, and what was to happen has happened."""
        wait_until(self._sprung.is_set, f'the request {self._trap and NAMES[self._trap[0]]}', seconds)

    # Handing on

    def _take_connections(self):
        with contextlib.suppress(OSError):
            while True:
                client = self._door.accept()[0]
                try:
                    server = socket.create_connection(('127.0.0.1', self._server_port))
                except OSError:
                    client.close()
                    continue
                for end in (client, server):
                    end.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                with self._lock:
                    self._ends |= {client, server}
                for hand_on, source, target in ((self._hand_on_requests, client, server),
                                                (self._hand_on_answers, server, client)):
                    threading.Thread(target=self._run, args=(hand_on, source, target), daemon=True).start()

    def _run(self, hand_on, source, target):
        with contextlib.suppress(OSError):
            hand_on(source, target)
        for end in (source, target):
            _shut(end)
        with self._lock:
            self._ends.discard(source)
            self._forgotten.discard(source)
            self._unanswered.discard(source)
        source.close()

    def _hand_on_requests(self, client, server):
        with client.makefile('rb') as stream:
            while len(frame := stream.read(_FRAME)) == _FRAME:
                message = stream.read(struct.unpack('>I', frame)[0] & 0xffffff)
                lost = self._lost_with(message)
                if lost == _REQUEST:
                    return
                if lost == _ANSWER:
                    self._unanswered.add(server)
                if client not in self._forgotten:
                    server.sendall(frame + message)

    def _hand_on_answers(self, server, client):
        while piece := server.recv(_PIECE if not self._fast.is_set() else 16 * _PIECE):
            if not self._fast.is_set():
                self._fast.wait(len(piece) / self._bytes_per_second if self._bytes_per_second else None)
                self.passed += len(piece)
            with self._lock:
                self._bytes += len(piece)
            if server in self._unanswered:
                return
            if server not in self._forgotten:
                client.sendall(piece)

    def _lost_with(self, message):
        commands = _commands(message)
        sprung = None
        with self._lock:
            self._requests += max(len(commands), 1)
            self._bytes += _FRAME + len(message)
            if self._trap:
                wanted = self._trap[0]
                self._trap[1] -= max(len(commands), 1) if wanted == ANY else commands.count(wanted)
                if self._trap[1] <= 0:
                    sprung, self._trap = self._trap, None
        if sprung is None:
            return _NOTHING
        _, _, happens, lost = sprung
        happens()
        self._sprung.set()
        return lost


def _commands(message):
    """Requests may be chained in one packet."""
    found, at = [], 0
    while message[at:at + 4] == _SMB2:
        found.append(struct.unpack_from('<H', message, at + _COMMAND)[0])
        following = struct.unpack_from('<I', message, at + _NEXT)[0]
        if following == 0:
            break
        at += following
    return found


def _shut(end):
    with contextlib.suppress(OSError):
        end.shutdown(socket.SHUT_RDWR)
