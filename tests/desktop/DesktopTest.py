# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The private desktop itself: it must end what it started, and see what is there."""
import contextlib
import pathlib
import signal
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from desktop import Desktop, DesktopError, wait_until  # noqa: E402

RUNNER = pathlib.Path(__file__).with_name('with_desktop.py')


def marked(folder):
    """Pids of all processes whose environment names the desktop in `folder`."""
    found = []
    for entry in pathlib.Path('/proc').glob('[0-9]*/environ'):
        try:
            if f'QM_DESKTOP={folder}\0'.encode() in entry.read_bytes():
                found.append(int(entry.parent.name))
        except OSError:
            continue
    return found


class RunnerTest(unittest.TestCase):
    def test_gives_the_exit_code_of_its_command(self):
        self.assertEqual(subprocess.run([RUNNER, '--', 'sh', '-c', 'exit 7'], check=False).returncode, 7)

    def test_runs_the_command_in_a_home_of_its_own_that_is_gone_afterwards(self):
        done = subprocess.run([RUNNER, '--', 'sh', '-c', 'echo "$HOME"'], check=True, capture_output=True,
                              text=True)
        home = pathlib.Path(done.stdout.strip())
        self.assertEqual(home.name, 'home')
        self.assertFalse(home.parent.exists())

    def test_leaves_nothing_behind_when_it_is_killed(self):
        command = ['sh', '-c', 'echo "$QM_DESKTOP"; exec sleep 600']
        with subprocess.Popen([RUNNER, '--tray', 'trayer', '--', *command],
                              stdout=subprocess.PIPE, text=True) as runner:
            folder = pathlib.Path(runner.stdout.readline().strip())
            mine = set(marked(folder))
            self.assertGreaterEqual(len(mine), 5)
            runner.send_signal(signal.SIGKILL)
            wait_until(lambda: not marked(folder) and not folder.exists(), 'the desktop to end')

    def test_ends_its_desktop_when_it_is_asked_to_end(self):
        with subprocess.Popen([RUNNER, '--', 'sh', '-c', 'echo "$QM_DESKTOP"; exec sleep 600'],
                              stdout=subprocess.PIPE, text=True) as runner:
            folder = pathlib.Path(runner.stdout.readline().strip())
            runner.send_signal(signal.SIGTERM)
            self.assertEqual(runner.wait(15), 128 + signal.SIGTERM)
            self.assertEqual(marked(folder), [])
            self.assertFalse(folder.exists())


class DesktopTest(unittest.TestCase):
    def test_ends_programs_that_went_into_the_background(self):
        with Desktop() as desktop:
            before = set(marked(desktop.folder))
            desktop.start(['sh', '-c', '(setsid sleep 600 &) ; exit 0']).wait(5)
            self.assertEqual(len(set(marked(desktop.folder)) - before), 1)
        self.assertEqual(marked(desktop.folder), [])

    def test_complains_of_a_program_that_was_to_end_well_and_did_not(self):
        for code, complaint in ((0, None), (3, 'sh ended with 3: so it is')):
            with self.subTest(code=code):
                desktop = Desktop().__enter__()
                program = desktop.start(['sh', '-c', f'trap "echo so it is >&2; exit {code}" TERM; echo set; '
                                                     'sleep 600 & wait'])
                program.ends_well = True
                wait_until(program.output, 'the shell to be ready')
                with self.assertRaisesRegex(DesktopError, complaint) if complaint else contextlib.nullcontext():
                    desktop.__exit__()

    def test_finds_windows_by_title_and_process(self):
        with Desktop() as desktop:
            program = desktop.start(['xev', '-geometry', '200x100+300+200'])
            window = desktop.wait_window('Event Tester')
            self.assertEqual((window.width, window.height), (200, 100))
            self.assertEqual(desktop.wait_active('Event Tester').id, window.id)
            program.end()
            desktop.wait_no_window('Event Tester')

    def test_counts_who_takes_the_focus(self):
        with Desktop() as desktop:
            desktop.start(['xev', '-name', 'first'])
            desktop.wait_active('first')
            before = desktop.windows.activations()
            self.assertEqual(desktop.windows.activations(), before)
            desktop.start(['xev', '-name', 'second'])
            desktop.wait_active('second')
            self.assertGreater(desktop.windows.activations(), before)

    def test_a_condition_that_does_not_come_true_is_an_error_with_its_name(self):
        with self.assertRaisesRegex(DesktopError, 'the moon: not within 0.1 s'):
            Desktop.wait_for(lambda: False, 'the moon', 0.1)

    def test_trays_reserve_their_strip_and_free_it(self):
        for kind in ('trayer', 'tint2'):
            with self.subTest(kind), Desktop() as desktop:
                desktop.tray.start(kind)
                self.assertGreater(desktop.windows.strut(desktop.tray.panel())[3], 20)
                desktop.tray.stop()
                self.assertEqual(desktop.windows.selection_owner('_NET_SYSTEM_TRAY_S0'), 0)

    def test_a_notifier_panel_says_when_its_host_comes(self):
        with Desktop() as desktop:
            desktop.tray.start('sni', host=False)
            question = ['gdbus', 'call', '--session', '-d', 'org.kde.StatusNotifierWatcher',
                        '-o', '/StatusNotifierWatcher', '-m', 'org.freedesktop.DBus.Properties.Get',
                        'org.kde.StatusNotifierWatcher', 'IsStatusNotifierHostRegistered']
            self.assertIn('false', desktop.run(question))
            desktop.tray.notifier.ask('set_host', there=True)
            self.assertIn('true', desktop.run(question))


if __name__ == '__main__':
    unittest.main(verbosity=2)
