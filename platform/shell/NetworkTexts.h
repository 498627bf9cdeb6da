// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the network browser says, in the user's language. Plain text.

#include <QString>

namespace shell {

struct NetworkTexts {
    QString caption;
    QString ok;
    QString cancel;
    QString network;       // what the items are
    QString searching;     // while computers are looked for
    QString found;         // %1 is their number
    QString nothingFound;  // there are none
    QString loadingShares; // in the place of a computer's shares
    QString noShares;
    QString sharesFailed;
};

} // namespace shell
