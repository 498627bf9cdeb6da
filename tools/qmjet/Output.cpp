// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmjet/Output.h"

#include "platform/basic/RuntimeError.h"

#include <unistd.h>

#include <cerrno>

namespace qmjet {
namespace {

constexpr std::size_t kPieceSize = 65'536;

} // namespace

void Output::write(std::string_view text) {
    m_pending.append(text);
    if (m_pending.size() >= kPieceSize)
        flush();
}

void Output::flush() {
    std::string_view rest = m_pending;
    while (!rest.empty()) {
        const ssize_t written = ::write(m_descriptor, rest.data(), rest.size());
        if (written >= 0)
            rest.remove_prefix(static_cast<std::size_t>(written));
        else if (errno == EPIPE)
            throw OutputClosed();
        else if (errno != EINTR)
            throw basic::errorFromErrno(errno, "write", "standard output");
    }
    m_pending.clear();
}

} // namespace qmjet
