// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text on its way to standard output, in large pieces. A reader that goes away in the middle is no failure:
// the exception for it ends the program quietly. Every other failure to write is a RuntimeError.

#include <string>
#include <string_view>

namespace qmjet {

// Nobody reads the output any more.
class OutputClosed {};

class Output {
public:
    explicit Output(int descriptor) : m_descriptor(descriptor) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(std::string_view text);
    void flush();

private:
    int m_descriptor;
    std::string m_pending;
};

} // namespace qmjet
