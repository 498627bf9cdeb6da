// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A program of the workstation's that runs beside this one, in a session of its own: its standard input is
// the text it is given, what it prints goes nowhere, and it outlives this object and this program. Nothing
// waits for it; `ended` is raised from the event loop. User-interface thread.

#include <QObject>

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

class QSocketNotifier;

namespace shell {

// Where a program of that name is: in the folders of PATH, then in `furtherFolders`; empty when it is in
// none.
std::string findProgram(std::string_view name, const std::vector<std::string>& furtherFolders = {});

class ExternalProgram : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~ExternalProgram() override;

    // Once. Errors as the system has them, with the program's path.
    void start(const std::string& path, const std::vector<std::string>& arguments, std::string_view input);

Q_SIGNALS:
    // With its exit code, or -1 when a signal ended it.
    void ended(int exitCode);

private:
    void watch(pid_t process);
    void processEnded();

    int m_process = -1; // a descriptor that becomes readable when the process ends
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace shell
