# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Sounds, of one channel and 16 bits, and how much alike they are."""
import array
import math
import wave

from .processes import DesktopError

RATE = 8000  # of recordings; what telephony messages have
_LOUD = 400
_STRETCH = RATE // 10


def heard(samples):
    loud = [i for i, value in enumerate(samples) if abs(value) > _LOUD]
    return samples[loud[0]:loud[-1] + 1] if loud else samples[:0]


def message(path):
    """The samples of a message of 8 or 16 bits at the recordings' rate, from the first one heard to the last."""
    with wave.open(str(path)) as file:
        if file.getframerate() != RATE or file.getnchannels() != 1:
            raise DesktopError(f'{path}: not at {RATE} Hz')
        data = file.readframes(file.getnframes())
        if file.getsampwidth() == 1:
            return heard(array.array('h', ((value - 128) * 256 for value in data)))
        return heard(array.array('h', data))


def likeness(one, other, slack=80):
    """The correlation of two sounds, 1 for equal ones, where they fit best within `slack` samples."""
    return max(_correlation(one[max(shift, 0):], other[max(-shift, 0):], 1)
               for shift in _best_shifts(one, other, slack))


def _best_shifts(one, other, slack):
    """The places that fit best by every seventh sample, and their neighbours."""
    rough = max(range(-slack, slack + 1),
                key=lambda shift: _correlation(one[max(shift, 0):], other[max(-shift, 0):], 7))
    return range(rough - 1, rough + 2)


def _correlation(one, other, step):
    pairs = list(zip(one[::step], other[::step]))
    product = sum(a * b for a, b in pairs)
    power = sum(a * a for a, _ in pairs) * sum(b * b for _, b in pairs)
    return product / math.sqrt(power) if power else 0


def unlike(one, other):
    """Tells where two sounds differ most, for those who wonder why."""
    found = []
    for begin in range(0, min(len(one), len(other)) - _STRETCH + 1, _STRETCH):
        stretches = [sound[begin:begin + _STRETCH] for sound in (one, other)]
        if max(map(max, stretches)) > _LOUD:
            found.append((likeness(*stretches), begin / RATE))
    worst = ', '.join(f'{value:.3f} at {begin:.1f} s' for value, begin in sorted(found)[:8])
    return f'{len(one)} samples beside {len(other)}, least alike {worst}'


def save(samples, path):
    with wave.open(str(path), 'wb') as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())
