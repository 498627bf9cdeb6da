# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A connection to an X server that speaks the few requests a desktop test needs (X11 protocol, version 11.0).

Questions about windows that are gone answer None. Events of the root window queue up and are handed out by
events(); nothing is lost between two calls.
"""
import select
import socket
import struct

EVENT_MAP, EVENT_UNMAP, EVENT_PROPERTY = 19, 18, 28
PROPERTY_CHANGES, SUBSTRUCTURE_CHANGES, SUBSTRUCTURE_REDIRECT = 1 << 22, 1 << 19, 1 << 20
_EVENT_MASK_ATTRIBUTE = 1 << 11
_VIEWABLE = 2


class XConnection:
    def __init__(self, display):
        number = int(display.partition(':')[2].partition('.')[0])
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(10)
        try:
            self._socket.connect(f'\0/tmp/.X11-unix/X{number}')
        except ConnectionRefusedError:
            self._socket.connect(f'/tmp/.X11-unix/X{number}')
        self._sequence, self._events, self._atoms, self._names = 0, [], {}, {}
        self._socket.sendall(struct.pack('<BxHHHHxx', ord('l'), 11, 0, 0, 0))
        accepted, _, _, length = struct.unpack('<BxHHH', self._read(8))
        setup = self._read(length * 4)
        if accepted != 1:
            raise OSError(f'X server {display} refuses: {setup[:200]!r}')
        vendor, formats = struct.unpack_from('<H', setup, 16)[0], setup[21]
        self.root = struct.unpack_from('<I', setup, 32 + (vendor + 3) // 4 * 4 + 8 * formats)[0]

    def close(self):
        self._socket.close()

    # The wire

    def _read(self, size):
        data = b''
        while len(data) < size:
            more = self._socket.recv(size - len(data))
            if not more:
                raise OSError('the X server has gone')
            data += more
        return data

    def _send(self, opcode, data, body):
        body += b'\0' * (-len(body) % 4)
        self._sequence = (self._sequence + 1) & 0xFFFF
        self._socket.sendall(struct.pack('<BBH', opcode, data, 1 + len(body) // 4) + body)

    def _packet(self):
        """One event, or (False, ...) an error, or (True, ...) a reply, with its sequence number."""
        head = self._read(32)
        sequence = struct.unpack_from('<H', head, 2)[0]
        if head[0] == 1:
            return True, sequence, head + self._read(struct.unpack_from('<I', head, 4)[0] * 4)
        if head[0] == 0:
            return False, sequence, head
        self._events.append(head)
        return None, sequence, head

    def _ask(self, opcode, data=0, body=b''):
        self._send(opcode, data, body)
        while True:
            kind, sequence, packet = self._packet()
            if kind is not None and sequence == self._sequence:
                return packet if kind else None

    # Atoms and properties

    def atom(self, name):
        if name not in self._atoms:
            text = name.encode()
            answer = self._ask(16, 0, struct.pack('<Hxx', len(text)) + text)
            self._atoms[name] = struct.unpack_from('<I', answer, 8)[0]
        return self._atoms[name]

    def atom_name(self, atom):
        if atom not in self._names:
            answer = self._ask(17, 0, struct.pack('<I', atom))
            length = struct.unpack_from('<H', answer, 8)[0] if answer else 0
            self._names[atom] = answer[32:32 + length].decode() if answer else ''
        return self._names[atom]

    def property(self, window, name):
        """The raw bytes of a property, b'' when it is not there, None when the window is not."""
        answer = self._ask(20, 0, struct.pack('<IIIII', window, self.atom(name), 0, 0, 1 << 16))
        if answer is None:
            return None
        count = struct.unpack_from('<I', answer, 16)[0] * answer[1] // 8
        return answer[32:32 + count]

    def numbers(self, window, name):
        """A property of 32-bit numbers (windows, atoms, cardinals); empty when there is none."""
        data = self.property(window, name) or b''
        return list(struct.unpack(f'<{len(data) // 4}I', data[:len(data) // 4 * 4]))

    def text(self, window, *names):
        """The first of several text properties that is not empty."""
        for name in names:
            data = self.property(window, name)
            if data:
                return data.decode(errors='replace')
        return ''

    def selection_owner(self, name):
        return struct.unpack_from('<I', self._ask(23, 0, struct.pack('<I', self.atom(name))), 8)[0]

    # Windows

    def children(self, window):
        """Lowest first, as they are stacked."""
        answer = self._ask(15, 0, struct.pack('<I', window))
        count = struct.unpack_from('<H', answer, 16)[0] if answer else 0
        return list(struct.unpack_from(f'<{count}I', answer, 32)) if count else []

    def attributes(self, window):
        """(viewable, override_redirect) or None."""
        answer = self._ask(3, 0, struct.pack('<I', window))
        return answer and (answer[26] == _VIEWABLE, bool(answer[27]))

    def geometry(self, window):
        """(x, y, width, height) in pixels of the root window, without frame, or None."""
        size = self._ask(14, 0, struct.pack('<I', window))
        place = size and self._ask(40, 0, struct.pack('<IIhh', window, self.root, 0, 0))
        return place and struct.unpack_from('<hh', place, 12) + struct.unpack_from('<HH', size, 16)

    # Events

    def watch_root(self):
        """Property changes of the root window and what happens to its children arrive from now on."""
        wanted = PROPERTY_CHANGES | SUBSTRUCTURE_CHANGES
        self._send(2, 0, struct.pack('<III', self.root, _EVENT_MASK_ATTRIBUTE, wanted))

    def events(self):
        """What has arrived since the last call: (code, window or name of the changed property)."""
        while select.select([self._socket], [], [], 0)[0]:
            self._packet()
        raw, self._events = self._events, []
        found = []
        for event in raw:
            code = event[0] & 0x7F
            value = struct.unpack_from('<I', event, 8)[0]
            found.append((code, self.atom_name(value) if code == EVENT_PROPERTY else value))
        return found

    def tell_window_manager(self, window, message, *numbers):
        """A client message about a window, as panels and pagers send it."""
        data = (list(numbers) + [0] * 5)[:5]
        event = struct.pack('<BBHIIIIIII', 33, 32, 0, window, self.atom(message), *data)
        self._send(25, 0, struct.pack('<II', self.root, SUBSTRUCTURE_CHANGES | SUBSTRUCTURE_REDIRECT) + event)
