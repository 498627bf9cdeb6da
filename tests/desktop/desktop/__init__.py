# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Private desktops for tests and for the demonstration."""
from .desktop import Desktop
from .processes import DesktopError, Program, die_with_parent, temporary_folder, wait_resting, wait_until
from .windows import Window

__all__ = ['Desktop', 'DesktopError', 'Program', 'Window', 'die_with_parent', 'temporary_folder',
           'wait_resting', 'wait_until']
