#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs the program qmjet on files that are no databases, on damaged ones, and with wrong arguments."""

import os
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

QMJET = sys.argv.pop(1)
COMMANDS = (["tables"], ["columns", "CallLog"], ["count", "CallLog"], ["rows", "CallLog"],
            ["sql", "SELECT * FROM CallLog"], ["check"])
PAGE = 4096


def run(*arguments, **more):
    return subprocess.run([QMJET, *arguments], capture_output=True, timeout=60, check=False, **more)


class CommandLine(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.scratch.name)
        done = run("create-demo", str(cls.folder / "share"))
        assert done.returncode == 0, done.stderr
        cls.database = str(cls.folder / "share" / "MBX" / "12" / "qmLog.mdb")

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def file(self, content):
        path = self.folder / "file.mdb"
        path.write_bytes(content)
        return str(path)

    def require_one_error_line(self, path, commands=COMMANDS):
        for command, *rest in commands:
            done = run(command, path, *rest)
            self.assertEqual(done.returncode, 1, (command, path, done.stdout))
            self.assertEqual(done.stderr.count(b"\n"), 1, (command, done.stderr))
            self.assertTrue(done.stderr.startswith(b"qmjet: "), done.stderr)
            self.assertEqual(done.stdout, b"", command)

    def test_counts_and_lists_the_demo_calls(self):
        self.assertEqual(run("count", self.database, "CallLog").stdout, b"12\n")
        self.assertIn(b"CallLog\n", run("tables", self.database).stdout)
        rows = run("rows", self.database, "CallLog").stdout
        self.assertTrue(rows.startswith(b"ID,CallID,"), rows)
        self.assertTrue(rows.endswith(b"\r\n"))
        done = run("sql", self.database, "SELECT COUNT(*) AS n FROM MailboxInfo WHERE ID=1")
        self.assertEqual(done.stdout, b"n\r\n1\r\n")
        self.assertEqual(run("check", self.database).returncode, 0)

    def test_demo_is_not_made_twice(self):
        self.require_one_error_line(str(self.folder / "share"), [["create-demo"]])

    def test_random_bytes_are_no_database(self):
        for seed in range(4):
            self.require_one_error_line(self.file(random.Random(seed).randbytes(3 * PAGE)))

    def test_empty_file_is_no_database(self):
        self.require_one_error_line(self.file(b""))

    def test_truncated_database_is_an_error_and_not_fewer_rows(self):
        whole = pathlib.Path(self.database).read_bytes()
        for size in (1, 20, PAGE - 1, PAGE, PAGE + 1, 2 * PAGE, 3 * PAGE + 7, 6 * PAGE):
            self.require_one_error_line(self.file(whole[:size]))
        for size in (len(whole) - PAGE, len(whole) - 1):
            self.require_one_error_line(self.file(whole[:size]), [["check"]])

    def test_missing_file_is_an_error(self):
        self.require_one_error_line(str(self.folder / "none.mdb"))

    def test_folder_is_an_error(self):
        self.require_one_error_line(str(self.folder))

    def test_pipe_is_an_error_and_not_waited_for(self):
        pipe = str(self.folder / "pipe")
        os.mkfifo(pipe)
        self.require_one_error_line(pipe)

    def test_device_is_an_error(self):
        self.require_one_error_line("/dev/zero")

    def test_unknown_table_and_broken_statement_are_errors(self):
        self.require_one_error_line(self.database, [["rows", "None"], ["count", "a]b"], ["columns", "None"],
                                                    ["sql", "SELECT"], ["sql", "SELECT a\nb FROM CallLog"]])

    def test_wrong_usage_is_told_on_standard_error(self):
        for arguments in ([], ["none"], ["rows"], ["rows", self.database], ["tables"], ["count", "a", "b", "c"],
                          ["--version"], ["--help", "x"]):
            done = run(*arguments)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertTrue(done.stderr.startswith(b"usage: "), arguments)
            self.assertEqual(done.stdout, b"")

    def test_help_goes_to_standard_output(self):
        done = run("--help")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertTrue(done.stdout.startswith(b"usage: "))

    def test_reader_that_goes_away_is_no_error(self):
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as closed:
            done = subprocess.run([QMJET, "rows", self.database, "CallLog"], stdout=closed, check=False,
                                  stderr=subprocess.PIPE, timeout=60)
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_full_disk_is_an_error(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([QMJET, "tables", self.database], stdout=full, check=False,
                                  stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr.count(b"\n"), 1)


if __name__ == "__main__":
    unittest.main()
