# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""demo [--headless] [--smb] [--lang LOCALE] [--every SECONDS]

Shows the client with a server of its own that logs a new call every few seconds. With a display the client is
there to be used, until it is closed from its tray icon or Ctrl+C is pressed. Without one, or with --headless,
it is shown on a private desktop for about half a minute; pictures are left in build/demo/. Nothing is left
anywhere else.

With --smb the client reaches the mailboxes through a private Samba server on this machine, at a free port.
"""
import argparse
import os
import pathlib
import signal
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from demo_tour import Tour  # noqa: E402
from desktop import Desktop, DesktopError, Program, die_with_parent, temporary_folder  # noqa: E402
from samba import Samba  # noqa: E402
from site_folder import ROOT, count_calls, database, program, write_settings  # noqa: E402

POLL_SECONDS = 5
_FOLDERS = ('XDG_CONFIG_HOME', 'XDG_DATA_HOME', 'XDG_STATE_HOME', 'XDG_CACHE_HOME')


def arguments():
    parser = argparse.ArgumentParser(prog='scripts/demo', description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--headless', action='store_true',
                        help='on a private desktop even where there is a display')
    parser.add_argument('--smb', action='store_true',
                        help='reach the mailboxes through a private Samba server; as root')
    parser.add_argument('--lang', help='language of the client, such as de_DE.UTF-8')
    parser.add_argument('--every', type=int, default=4, help='seconds between two calls')
    return parser.parse_args()


def make_share(folder):
    """A share with the demo's mailboxes; answers their numbers and names."""
    share = folder / 'share'
    subprocess.run([program('qmdemo'), share, '--once'], check=True, stdout=subprocess.DEVNULL)
    numbers = sorted(int(entry.name) for entry in (share / 'MBX').iterdir())
    return share, {number: name for number, name in zip(numbers, ('Reception', 'Service', 'Night'))}


def headless(chosen):
    lang = chosen.lang or 'C.UTF-8'
    pictures = ROOT / 'build' / 'demo' / ('' if lang.startswith('C') else lang.partition('_')[0])
    with Desktop('1024x640', lang=lang, tray='trayer', accessibility=True) as desktop:
        share, mailboxes = make_share(desktop.folder)
        reached = Samba(desktop, share).address if chosen.smb else share
        write_settings(desktop.env['XDG_CONFIG_HOME'], reached, mailboxes, POLL_SECONDS)
        desktop.start([program('qmdemo'), share, '--every', chosen.every])
        complete = Tour(desktop, pictures, list(mailboxes), lambda n: count_calls(database(share, n))).run()
    print(f'pictures in {pictures.relative_to(ROOT)}/: docked-icon.png, list.png, popup.png')
    return 0 if complete else 1


class Backstage:
    """Where a server's program and files are kept when there is no desktop of the demo's own."""

    def __init__(self, folder):
        self.folder, self._programs = folder, []
        (folder / 'logs').mkdir()

    def start(self, argv):
        self._programs.append(Program(argv, os.environ, self.folder, self.folder / 'logs'))
        return self._programs[-1]

    def end(self):
        for program in self._programs:
            if program.alive:
                os.killpg(program.pid, signal.SIGKILL)  # a server is more than one process
                program.wait(10)


def client_is_running():
    """On the user's bus: a second one would only bring that one to the front and end."""
    asked = subprocess.run(['gdbus', 'call', '--session', '--dest', 'org.freedesktop.DBus', '--object-path',
                            '/org/freedesktop/DBus', '--method', 'org.freedesktop.DBus.NameHasOwner',
                            'example.corvantis.qmClient'], capture_output=True, text=True, check=False)
    return 'true' in asked.stdout


def with_display(chosen):
    """On the user's own screen: only the settings and the share are the demo's."""
    if client_is_running():
        raise DesktopError('a client is running on this desktop; end it, or try --headless')
    with temporary_folder('qm-demo-') as folder:
        share, mailboxes = make_share(folder)
        env = os.environ | {name: str(folder / name.lower()) for name in _FOLDERS}
        if chosen.lang:
            env |= {'LANG': chosen.lang, 'LC_ALL': chosen.lang, 'LANGUAGE': ''}
        programs, backstage = [], Backstage(folder)
        try:
            reached = Samba(backstage, share).address if chosen.smb else share
            write_settings(env['XDG_CONFIG_HOME'], reached, mailboxes, POLL_SECONDS)
            for argv in ([program('qmdemo'), share, '--every', str(chosen.every)], [program('qmClient')]):
                programs.append(subprocess.Popen(argv, env=env, cwd=folder, preexec_fn=die_with_parent))
            print(f'The client is running; its icon is in the notification area. '
                  f'A call comes every {chosen.every} s.\n'
                  'End it with the last entry of the icon\'s menu, or with Ctrl+C here.', flush=True)
            return programs[-1].wait()
        finally:
            for started in programs:
                started.terminate()
                started.wait()
            backstage.end()


def main():
    chosen = arguments()
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        signal.signal(number, lambda caught, _: sys.exit(128 + caught))
    try:
        if chosen.smb and os.geteuid():
            raise DesktopError('only root can start a Samba server that logs users on')
        if chosen.headless or not (os.environ.get('DISPLAY') or os.environ.get('WAYLAND_DISPLAY')):
            return headless(chosen)
        return with_display(chosen)
    except (DesktopError, OSError, subprocess.CalledProcessError) as error:
        print(f'demo: {error}', file=sys.stderr)
        return 1


sys.exit(main())
