# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The answering end of question_process.py: runs a GLib main loop and calls the method that a question names."""
import json
import sys

from gi.repository import GLib


def run(target):
    """Until stdin ends. A method `do_<question>` returns what is printed as the answer."""
    loop = GLib.MainLoop()

    def on_line(channel, _condition):
        line = channel.readline()
        if not line:
            loop.quit()
            return False
        question = json.loads(line)
        try:
            answer = {'value': getattr(target, 'do_' + question.pop('ask'))(**question)}
        except (GLib.Error, LookupError) as error:
            answer = {'error': str(error)}
        print(json.dumps(answer), flush=True)
        return True

    # Unbuffered, so that a line is never read ahead of the main loop's look at the pipe.
    stdin = open(sys.stdin.fileno(), 'rb', buffering=0, closefd=False)
    GLib.io_add_watch(stdin.fileno(), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      lambda _fd, condition: on_line(stdin, condition))
    loop.run()
