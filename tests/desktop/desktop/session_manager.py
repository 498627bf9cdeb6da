# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A minimal session manager of the X session management protocol over libSM. A process of its own.

Programs that are started with its address in SESSION_MANAGER join the session. What they did is noted as it
comes; a question never waits for them.
"""
import ctypes
from ctypes import POINTER, CFUNCTYPE, byref, c_char_p, c_int, c_ulong, c_void_p, cast

from gi.repository import GLib

from answering import run

SAVE_GLOBAL, SAVE_BOTH = 0, 2
_LOCAL, _PENDING, _ACCEPTED, _SUCCESS = 1, 0, 1, 0

_ice, _sm, _libc = (ctypes.CDLL(name) for name in ('libICE.so.6', 'libSM.so.6', None))
for function, result, *arguments in (
        (_ice._IceTransNoListen, c_int, c_char_p),
        (_ice.IceListenForConnections, c_int, POINTER(c_int), POINTER(POINTER(c_void_p)), c_int, c_char_p),
        (_ice.IceComposeNetworkIdList, c_void_p, c_int, POINTER(c_void_p)),
        (_ice.IceFreeListenObjs, None, c_int, POINTER(c_void_p)),
        (_ice.IceSetHostBasedAuthProc, None, c_void_p, c_void_p),
        (_ice.IceGetListenConnectionNumber, c_int, c_void_p),
        (_ice.IceAcceptConnection, c_void_p, c_void_p, POINTER(c_int)),
        (_ice.IceConnectionStatus, c_int, c_void_p),
        (_ice.IceConnectionNumber, c_int, c_void_p),
        (_ice.IceProcessMessages, c_int, c_void_p, c_void_p, c_void_p),
        (_ice.IceCloseConnection, c_int, c_void_p),
        (_ice.IceSetShutdownNegotiation, None, c_void_p, c_int),
        (_ice.IceSetIOErrorHandler, c_void_p, c_void_p),
        (_sm.SmsInitialize, c_int, c_char_p, c_char_p, c_void_p, c_void_p, c_void_p, c_int, c_char_p),
        (_sm.SmsGenerateClientID, c_void_p, c_void_p),
        (_sm.SmsGetIceConnection, c_void_p, c_void_p),
        (_sm.SmsRegisterClientReply, c_int, c_void_p, c_void_p),
        (_sm.SmsSaveYourself, None, c_void_p, c_int, c_int, c_int, c_int),
        (_sm.SmsSaveYourselfPhase2, None, c_void_p),
        (_sm.SmsInteract, None, c_void_p),
        (_sm.SmsDie, None, c_void_p),
        (_sm.SmsShutdownCancelled, None, c_void_p),
        (_sm.SmsSaveComplete, None, c_void_p),
        (_sm.SmsCleanUp, None, c_void_p),
        (_sm.SmFreeProperty, None, c_void_p),
        (_libc.free, None, c_void_p)):
    function.restype, function.argtypes = result, arguments


class _Value(ctypes.Structure):
    _fields_ = [('length', c_int), ('value', c_void_p)]


class _Property(ctypes.Structure):
    _fields_ = [('name', c_char_p), ('type', c_char_p), ('count', c_int), ('values', POINTER(_Value))]


class _Callback(ctypes.Structure):
    _fields_ = [('function', c_void_p), ('data', c_void_p)]


# In the protocol library's order, which is that of the bits that tell it which are there.
_CALLBACKS = {
    'register': CFUNCTYPE(c_int, c_void_p, c_void_p, c_void_p),
    'interact': CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    'interact_done': CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    'save_request': CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int),
    'phase2': CFUNCTYPE(None, c_void_p, c_void_p),
    'save_done': CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    'close': CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p),
    'set_properties': CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(POINTER(_Property))),
    'delete_properties': CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p),
    'get_properties': CFUNCTYPE(None, c_void_p, c_void_p),
}
_NEW_CLIENT = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(_Callback), c_void_p)
_IO_ERROR = CFUNCTYPE(None, c_void_p)
_HOST_ALLOWED = CFUNCTYPE(c_int, c_void_p)


class SessionManager:
    def __init__(self):
        self._clients = {}  # connection: what is known of the program
        self._kept = [kind(getattr(self, '_' + name)) for name, kind in _CALLBACKS.items()]
        # Only programs that have the address know where to find it, as with the X server of a test.
        self._allowed = _HOST_ALLOWED(lambda _host: 1)
        self._new, self._io_error = _NEW_CLIENT(self._new_client), _IO_ERROR(lambda _connection: None)
        _ice.IceSetIOErrorHandler(self._io_error)
        if not _sm.SmsInitialize(b'qmClient tests', b'1', self._new, None, self._allowed, 0, None):
            raise OSError('libSM does not start')
        self._listen()

    def _listen(self):
        for network in (b'tcp', b'inet', b'inet6'):
            _ice._IceTransNoListen(network)
        self._count, self._listening = c_int(), POINTER(c_void_p)()
        error = ctypes.create_string_buffer(256)
        if not _ice.IceListenForConnections(byref(self._count), byref(self._listening), len(error), error):
            raise OSError(error.value.decode())
        for i in range(self._count.value):
            _ice.IceSetHostBasedAuthProc(self._listening[i], self._allowed)
            GLib.io_add_watch(_ice.IceGetListenConnectionNumber(self._listening[i]), GLib.PRIORITY_DEFAULT,
                              GLib.IOCondition.IN, self._accept, self._listening[i])

    def stop(self):
        """Takes the socket's file away."""
        _ice.IceFreeListenObjs(self._count, self._listening)

    def _accept(self, _fd, _condition, listening):
        status = c_int()
        ice = _ice.IceAcceptConnection(listening, byref(status))
        if ice:
            while _ice.IceConnectionStatus(ice) == _PENDING:
                _ice.IceProcessMessages(ice, None, None)
            if _ice.IceConnectionStatus(ice) == _ACCEPTED:
                GLib.io_add_watch(_ice.IceConnectionNumber(ice), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN,
                                  self._process, ice)
        return True

    def _process(self, _fd, _condition, ice):
        if _ice.IceProcessMessages(ice, None, None) == _SUCCESS:
            return True
        for connection, client in self._clients.items():
            if client['ice'] == ice and client['connected']:
                client['connected'] = False
                _sm.SmsCleanUp(connection)
                _ice.IceSetShutdownNegotiation(ice, 0)
                _ice.IceCloseConnection(ice)
        return False

    # What programs ask and tell

    def _new_client(self, connection, _data, mask, callbacks, _reason):
        self._clients[connection] = {'ice': _sm.SmsGetIceConnection(connection), 'connected': True,
                                     'registered': False, 'properties': {}, 'saved': [], 'closed': False,
                                     'interactions': 0}
        mask[0] = (1 << len(self._kept)) - 1
        for i, function in enumerate(self._kept):
            callbacks[i] = _Callback(cast(function, c_void_p), None)
        return 1

    def _register(self, connection, _data, previous):
        name = previous or _sm.SmsGenerateClientID(connection)
        _sm.SmsRegisterClientReply(connection, name)
        _libc.free(name)
        self._clients[connection]['registered'] = True
        if not previous:
            _sm.SmsSaveYourself(connection, _LOCAL, 0, 0, 0)
        return 1

    def _interact(self, connection, _data, _kind):
        self._clients[connection]['interactions'] += 1
        _sm.SmsInteract(connection)

    def _interact_done(self, connection, _data, _cancels):
        pass

    def _save_request(self, connection, *_how):
        pass

    def _phase2(self, connection, _data):
        _sm.SmsSaveYourselfPhase2(connection)

    def _save_done(self, connection, _data, success):
        self._clients[connection]['saved'].append(bool(success))

    def _close(self, connection, _data, _count, _reasons):
        self._clients[connection]['closed'] = True

    def _set_properties(self, connection, _data, count, properties):
        for i in range(count):
            given = properties[i].contents
            words = [ctypes.string_at(v.value, v.length) for v in given.values[:given.count]]
            self._clients[connection]['properties'][given.name.decode()] = [w.decode('latin-1') for w in words]
            _sm.SmFreeProperty(properties[i])
        _libc.free(cast(properties, c_void_p))

    def _delete_properties(self, connection, *_names):
        pass

    def _get_properties(self, connection, _data):
        pass

    # Questions

    def _all(self, tell, *how):
        connected = [connection for connection, client in self._clients.items() if client['connected']]
        for connection in connected:
            tell(connection, *how)
        return len(connected)

    def do_address(self):
        return ctypes.string_at(_ice.IceComposeNetworkIdList(self._count, self._listening)).decode()

    def do_clients(self):
        return [{name: value for name, value in client.items() if name != 'ice'}
                for client in self._clients.values()]

    def do_save(self, kind=SAVE_BOTH, shutdown=False, interact=2):
        """Asks everybody to save, as for a shutdown or a checkpoint."""
        return self._all(_sm.SmsSaveYourself, kind, int(shutdown), interact, 0)

    def do_end_save(self):
        return self._all(_sm.SmsSaveComplete)

    def do_cancel(self):
        """The shutdown does not take place after all."""
        return self._all(_sm.SmsShutdownCancelled)

    def do_die(self):
        return self._all(_sm.SmsDie)


manager = SessionManager()
run(manager)
manager.stop()
