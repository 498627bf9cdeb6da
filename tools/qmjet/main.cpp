// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Looks into Jet 4 database files from the command line: exit code 0, 1 with one line on the standard error
// output for a failure, 2 for wrong usage.

#include "platform/basic/RuntimeError.h"
#include "platform/basic/SystemClock.h"
#include "tools/demo/DemoShare.h"
#include "tools/qmjet/Commands.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kUsage = R"(usage: qmjet COMMAND ...
  tables [--all] FILE      names of the tables, with --all those of the system too
  columns FILE TABLE       columns of a table as CSV
  count FILE TABLE         number of rows
  rows FILE TABLE          all rows as CSV
  sql FILE "STATEMENT"     execute a statement, rows as CSV
  check FILE               read everything, name the first inconsistency
  create-demo FOLDER       make a share with two mailboxes to try things on
  --help                   this text
)";

struct Command {
    std::string_view name;
    std::size_t arguments;
    void (*run)(const Arguments&, qmjet::Output&);
};

constexpr std::array kCommands{
    Command{"tables", 1, [](const Arguments& a, qmjet::Output& out) { qmjet::listTables(a[0], false, out); }},
    Command{"columns", 2,
            [](const Arguments& a, qmjet::Output& out) { qmjet::listColumns(a[0], a[1], out); }},
    Command{"count", 2, [](const Arguments& a, qmjet::Output& out) { qmjet::countRows(a[0], a[1], out); }},
    Command{"rows", 2, [](const Arguments& a, qmjet::Output& out) { qmjet::printRows(a[0], a[1], out); }},
    Command{"sql", 2, [](const Arguments& a, qmjet::Output& out) { qmjet::execute(a[0], a[1], out); }},
    Command{"check", 1, [](const Arguments& a, qmjet::Output& out) { qmjet::check(a[0], out); }},
    Command{"create-demo", 1,
            [](const Arguments& a, qmjet::Output&) {
                demo::createDemoShare(a[0], basic::SystemClock().nowAsDate());
            }},
    Command{"tables --all", 1,
            [](const Arguments& a, qmjet::Output& out) { qmjet::listTables(a[0], true, out); }},
};

int wrongUsage() {
    std::fputs(kUsage.data(), stderr);
    return kWrongUsage;
}

int fail(std::string text) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            c = ' '; // names out of a file must not make two lines of one
    std::fprintf(stderr, "qmjet: %s\n", text.c_str());
    return kFailure;
}

int run(const Command& command, const Arguments& arguments) {
    qmjet::Output output(STDOUT_FILENO);
    try {
        command.run(arguments, output);
        output.flush();
        return 0;
    } catch (const qmjet::OutputClosed&) {
        return 0;
    } catch (const basic::RuntimeError& error) {
        return fail(error.description());
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}

} // namespace

int main(int argc, char* argv[]) {
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes away is met at the next write instead
    Arguments arguments(argv + std::min(argc, 1), argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::fputs(kUsage.data(), stdout);
        return 0;
    }
    if (arguments.empty())
        return wrongUsage();
    std::string name = arguments[0];
    arguments.erase(arguments.begin());
    if (name == "tables" && !arguments.empty() && arguments[0] == "--all") {
        name = "tables --all";
        arguments.erase(arguments.begin());
    }
    const auto* command = std::find_if(kCommands.begin(), kCommands.end(), [&](const Command& c) {
        return c.name == name && c.arguments == arguments.size();
    });
    return command == kCommands.end() ? wrongUsage() : run(*command, arguments);
}
