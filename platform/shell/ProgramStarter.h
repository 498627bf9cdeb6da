// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Programs of the workstation that this one starts for the user and forgets. User-interface thread.

#include <QObject>

#include <string>

namespace shell {

class ProgramStarter : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // The file with that absolute path, without a shell or a search path between. Error 53 when it is no file
    // of this system, and the system's error when it cannot be run.
    void start(const std::string& path);
};

} // namespace shell
