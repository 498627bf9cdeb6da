# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A session that programs join which are started from then on; its manager speaks the X protocol for that."""
import os
import signal

from .processes import DesktopError, wait_until
from .question_process import QuestionProcess


class Session:
    """One program is expected to join. `end` it before the desktop ends."""

    def __init__(self, desktop):
        self._manager = QuestionProcess('session_manager.py', desktop.env, desktop.folder, desktop.folder / 'logs')
        desktop.env['SESSION_MANAGER'] = self._manager.ask('address')

    def end(self):
        self._manager.end()

    def crash(self):
        os.kill(self._manager.pid, signal.SIGKILL)

    def member(self):
        """What is known of the program: properties, saved, closed …; waits for it to join."""
        def joined():
            members = self._manager.ask('clients')
            return members if members and members[0]['saved'] else None
        members = wait_until(joined, 'the program to join the session', 30)
        if len(members) != 1:
            raise DesktopError(f'{len(members)} programs have joined instead of one')
        return members[0]

    def save(self, shutdown):
        """Asks the program to save, and waits for its word that it has."""
        before = len(self.member()['saved'])
        self._manager.ask('save', shutdown=shutdown)
        wait_until(lambda: len(self.member()['saved']) > before, 'the program to have saved')
        return self.member()['saved'][-1]

    def goes_on(self):
        """After a save that was not for a shutdown."""
        self._manager.ask('end_save')

    def cancel(self):
        """After a save for a shutdown that does not take place."""
        self._manager.ask('cancel')

    def die(self):
        self._manager.ask('die')
