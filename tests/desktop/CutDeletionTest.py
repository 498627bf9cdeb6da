# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Deletes a call log on a real smbd; the line is cut at every single request."""
import sys
import unittest

sys.dont_write_bytecode = True
from deletion_scene import CALLS, DEVICE_ERROR, NO_PATH, DeletionScene  # noqa: E402
from relay import ANY, Relay  # noqa: E402


class CutDeletionTest(DeletionScene):
    def setUp(self):
        super().setUp()
        self.line = Relay(self.samba.port)
        self.addCleanup(self.line.close)

    def count_requests(self):
        self.assertEqual(self.delete(self.line.port), (0, ''))
        self.fill()
        return self.line.counts()[0]

    def cut_everywhere(self, cut):
        requests, outcomes, left = self.count_requests(), {}, {0: 0, CALLS: 0}
        for number in range(1, requests + 1):
            with self.subTest(request=number):
                self.fill()
                cut(ANY, number)
                error, description = self.delete(self.line.port)
                self.line.wait_for_it()
                outcomes[error] = outcomes.get(error, 0) + 1
                self.assertIn(error, (0, DEVICE_ERROR, NO_PATH), description)
                left[self.expect_whole()] += 1
                self.expect_deleted_by('again')
        print(f'{requests} requests, each one cut off: errors {outcomes}, calls left {left}')
        self.assertGreater(requests, 30)
        self.assertTrue(left[0] and left[CALLS], left)
        self.assertGreater(outcomes.get(DEVICE_ERROR, 0), 5)

    def test_a_request_that_does_not_arrive(self):
        self.cut_everywhere(self.line.cut_at)

    def test_an_answer_that_does_not_arrive(self):
        self.cut_everywhere(self.line.cut_answer_at)


if __name__ == '__main__':
    unittest.main(verbosity=2)
