# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""summary.py PROGRAMS FOLDER: runs the benchmarks, writes FOLDER/summary.tsv; all figures are medians."""
import json
import os
import pathlib
import statistics
import subprocess
import sys
import time

import audio
import smb

FEW, MANY, CALLS = 10, 1_000_000, 100_000
ROUNDS = 5


def make_files(programs, folder):
    """Only those that are not there: a million rows take their time."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, rows, kind in ((f'short-{FEW}', FEW, '--short'), (f'short-{MANY}', MANY, '--short'),
                             (f'calls-{CALLS}', CALLS, '--calls')):
        path = folder / f'{name}.mdb'
        if not path.exists():
            # An interrupted run must not leave half a file under the final name.
            unfinished = path.with_suffix('.making')
            unfinished.unlink(missing_ok=True)
            subprocess.run([programs / 'qmbenchdb', unfinished, str(rows), kind], check=True)
            unfinished.rename(path)


def run_functions(programs, folder):
    """{name: {real_time, bytes, calls}}: Google Benchmark's medians."""
    result = folder / 'functions.json'
    subprocess.run([programs / 'qmbench', f'--benchmark_out={result}', '--benchmark_out_format=json',
                    '--benchmark_repetitions=5', '--benchmark_report_aggregates_only=true', folder],
                   check=True, stdout=subprocess.DEVNULL)
    found = json.loads(result.read_text())['benchmarks']
    return {b['run_name']: b for b in found if b['aggregate_name'] == 'median'}


def time_commands(commands):
    """Median seconds of each command, run by turns so that both meet the same machine."""
    seconds = [[] for _ in commands]
    for _ in range(ROUNDS):
        for command, found in zip(commands, seconds):
            started = time.perf_counter()
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
            found.append(time.perf_counter() - started)
    return [statistics.median(found) for found in seconds]


class Summary:
    def __init__(self):
        self.lines = [['measure', 'ours', 'peer', 'ratio', 'goal']]

    def add(self, measure, ours, peer, goal, form='{:.1f}'):
        self.lines.append([measure, form.format(ours), form.format(peer), f'{ours / peer:.3f}', goal])

    def add_alone(self, measure, ours, goal, form='{:.0f}'):
        """Nobody else does the same thing to measure beside."""
        self.lines.append([measure, form.format(ours), '-', '-', goal])

    def write(self, path):
        path.write_text(''.join('\t'.join(line) + '\n' for line in self.lines))

    def show(self):
        widths = [max(map(len, column)) for column in zip(*self.lines)]
        for first, *rest in self.lines:
            cells = [text.rjust(width) for text, width in zip(rest, widths[1:])]
            print(first.ljust(widths[0]), *cells, sep='  ')


def add_counts(summary, found):
    for rows in (FEW, MANY):
        ours, peer = found[f'countOurs/{rows}'], found[f'countLibmdb/{rows}']
        first = found[f'countFirstOurs/{rows}']
        summary.add(f'poll, {rows} rows: time in us', ours['real_time'], peer['real_time'], 'ratio <= 1')
        summary.add(f'poll, {rows} rows: bytes read', ours['bytes'], peer['bytes'],
                    'ours <= 4 pages = 16384', '{:.0f}')
        summary.add(f'poll, {rows} rows: read calls', ours['calls'], peer['calls'], 'ratio <= 1', '{:.0f}')
        summary.add(f'first poll, {rows} rows: time in us', first['real_time'], peer['real_time'],
                    'ratio <= 1')
        summary.add(f'first poll, {rows} rows: bytes read', first['bytes'], peer['bytes'], '-', '{:.0f}')
    summary.add(f'poll, {MANY} rows beside {FEW} rows (ours both): time in us',
                found[f'countOurs/{MANY}']['real_time'], found[f'countOurs/{FEW}']['real_time'], 'the same')


def add_emptying(summary, ours, peer):
    """The peer marks each row; a real deletion row by row would write the indexes as well."""
    name = f'emptying {CALLS} calls, beside marking row by row'
    # The map of free pages is written twice: without the new pages, and with those of the rows.
    summary.add(f'{name}: bytes written', ours['bytes'], peer['bytes'], 'ours <= 65536 + the map', '{:.0f}')
    summary.add(f'{name}: write calls', ours['calls'], peer['calls'], '-', '{:.0f}')
    summary.add(f'{name}: time in ms', ours['real_time'], peer['real_time'], '-')


def main():
    programs, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    make_files(programs, folder)
    found = run_functions(programs, folder)
    calls = folder / f'calls-{CALLS}.mdb'
    ours, peer = time_commands([[programs / 'qmjet', 'rows', calls, 'CallLog'],
                                ['mdb-export', calls, 'CallLog']])
    summary = Summary()
    add_counts(summary, found)
    summary.add(f'all rows and columns, {CALLS} calls (functions): time in ms',
                found['readOurs']['real_time'], found['readLibmdb']['real_time'], '-')
    summary.add(f'all rows and columns, {CALLS} calls (programs): time in ms', ours * 1000, peer * 1000, '-')
    summary.add(f'{CALLS} calls as the list reads them, beside mdb-export: time in ms',
                found['listOurs']['real_time'], peer * 1000, 'ratio <= 0.2')
    add_emptying(summary, found['emptyOurs'], found['emptyRowByRow'])
    for row in audio.measure(programs, folder):
        summary.add(*row)
    for measure, ours, peer, goal in smb.measure(programs, dict(os.environ)):
        if peer is None:
            summary.add_alone(measure, ours, goal, '{:.1f}')
        else:
            summary.add(measure, ours, peer, goal)
    summary.write(folder / 'summary.tsv')
    summary.show()


main()
