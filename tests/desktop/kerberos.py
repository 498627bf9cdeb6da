# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A Kerberos realm of its own on this machine: the key server, a ticket for the user, a key for the SMB server.

Tickets are for names, never for addresses: the server is reached by this machine's own name.
"""
import os
import socket
import subprocess

from desktop import DesktopError, wait_until
from samba import PASSWORD, USER

REALM, WORKGROUP = 'QMTEST.EXAMPLE', 'QMTEST'
_CLIENT = """[libdefaults]
 default_realm = {realm}
 dns_lookup_kdc = false
 dns_lookup_realm = false
 rdns = false
 dns_canonicalize_hostname = false
[realms]
 {realm} = {{
  kdc = 127.0.0.1:{port}
 }}
[domain_realm]
 {host} = {realm}
"""
# A server that stands alone refuses tickets that tell what only a domain could know.
_SERVER = """[kdcdefaults]
 kdc_listen = 127.0.0.1:{port}
 kdc_tcp_listen = 127.0.0.1:{port}
[realms]
 {realm} = {{
  database_name = {own}/principal
  key_stash_file = {own}/stash
  disable_pac = true
 }}
"""


def is_host_name_on_loopback():
    """The library takes no ticket for an address or for localhost, and tests talk to this machine alone."""
    try:
        return socket.gethostbyname(socket.gethostname()).startswith('127.')
    except OSError:
        return False


class Realm:
    """For machines whose name is on loopback."""

    def __init__(self, desktop):
        self.host = socket.gethostname()
        self.own = desktop.folder / 'kerberos'
        self.own.mkdir()
        with socket.socket() as probe:
            probe.bind(('127.0.0.1', 0))
            self.port = probe.getsockname()[1]
        self._write('krb5.conf', _CLIENT)
        self._write('kdc.conf', _SERVER)
        # For the SMB server as well as for the user.
        desktop.env |= {'KRB5_CONFIG': str(self.own / 'krb5.conf'), 'KRB5CCNAME': f'FILE:{self.own}/ticket'}
        self._env = {**desktop.env, 'KRB5_KDC_PROFILE': str(self.own / 'kdc.conf'),
                     'PATH': os.environ['PATH'] + ':/usr/sbin:/sbin'}
        self._run('kdb5_util', 'create', '-r', REALM, '-s', '-P', 'master')
        self._run('kadmin.local', '-q', f'addprinc -pw {PASSWORD} {USER}')
        self._run('kadmin.local', '-q', f'addprinc -randkey cifs/{self.host}')
        self._run('kadmin.local', '-q', f'ktadd -k {self.own}/keytab cifs/{self.host}')
        self.program = desktop.start(['krb5kdc', '-n'], env=self._env)
        wait_until(self._gives_a_ticket, 'a ticket', 30)

    def _write(self, name, text):
        (self.own / name).write_text(text.format(realm=REALM, port=self.port, host=self.host, own=self.own))

    def _run(self, *words, told=''):
        done = subprocess.run(words, env=self._env, input=told, text=True, capture_output=True, check=False)
        if done.returncode:
            raise DesktopError(f'{words}: {done.stderr[-300:]}')

    def _gives_a_ticket(self):
        try:
            self._run('kinit', USER, told=f'{PASSWORD}\n')
        except DesktopError:
            return False
        return True

    @property
    def samba_settings(self):
        return {'realm': REALM, 'workgroup': WORKGROUP, 'kerberos method': 'dedicated keytab',
                'dedicated keytab file': f'FILE:{self.own}/keytab',
                'interfaces': f'127.0.0.1 {socket.gethostbyname(self.host)}'}
