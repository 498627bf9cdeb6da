# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The question of "delete all entries", for scenes with a client."""
from client import TITLE


class DeleteQuestion:
    menu = ('alt+e', 'd')
    question = 'Are you sure you want to delete all of your messages?'

    def ask(self):
        """Chooses the command and waits for its question."""
        self.desktop.wait_active(TITLE)
        self.desktop.key(*self.menu)
        self.desktop.wait_for(self.is_asked, 'the question', 20)

    def is_asked(self):
        return self.desktop.objects(self.client.process, 'label', f'^{self.question[:-1]}.$')

    def answer_ok(self):
        button = self.desktop.objects(self.client.process, 'push button', '^OK$')[0]
        box = next(w for w in self.desktop.windows.all()
                   if w.pid == self.client.process.pid and 'MODAL' in w.states)
        self.desktop.click_object(button, box)
