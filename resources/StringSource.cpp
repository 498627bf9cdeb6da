// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringSource.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/Utf8.h"

#include <charconv>

namespace resources {
namespace {

[[noreturn]] void refuse(std::size_t line, std::string_view why) {
    throw basic::RuntimeError(basic::kTypeMismatch,
                              "strings.tsv, line " + std::to_string(line) + ": " + std::string(why));
}

// One line, taken apart from left to right.
class LineReader {
public:
    LineReader(std::string_view text, std::size_t number) : m_text(text), m_number(number) {}

    SourceString read() {
        SourceString entry;
        entry.id = readId();
        entry.english = readText();
        entry.german = readText();
        entry.mark = readMark();
        return entry;
    }

private:
    std::int32_t readId() {
        std::int32_t id = 0;
        const auto [end, error] = std::from_chars(m_text.data(), m_text.data() + m_text.size(), id);
        if (error != std::errc() || id <= 0)
            refuse(m_number, "no number at its beginning");
        m_text.remove_prefix(static_cast<std::size_t>(end - m_text.data()));
        expect("\t");
        return id;
    }

    std::string readText() {
        expect("\"");
        std::string text;
        while (!m_text.empty() && m_text.front() != '"')
            text += readCharacter();
        expect("\"");
        expect("\t");
        if (text.empty())
            refuse(m_number, "an empty text");
        return text;
    }

    char readCharacter() {
        const char character = take();
        if (character == '\t')
            refuse(m_number, "a tab inside a text");
        if (character != '\\')
            return character;
        const char escaped = take();
        if (escaped == 'n')
            return '\n';
        if (escaped != '\\' && escaped != '"')
            refuse(m_number, "an unknown escape");
        return escaped;
    }

    Mark readMark() const {
        if (m_text == "fixed")
            return Mark::Fixed;
        if (m_text == "german")
            return Mark::German;
        if (m_text == "free")
            return Mark::Free;
        refuse(m_number, "an unknown mark");
    }

    char take() {
        if (m_text.empty())
            refuse(m_number, "it ends inside a text");
        const char character = m_text.front();
        m_text.remove_prefix(1);
        return character;
    }

    void expect(std::string_view wanted) {
        if (!m_text.starts_with(wanted))
            refuse(m_number, wanted == "\t" ? "a tab is missing" : "a double quote is missing");
        m_text.remove_prefix(wanted.size());
    }

    std::string_view m_text;
    std::size_t m_number;
};

} // namespace

std::vector<SourceString> parseStrings(std::string_view file) {
    std::vector<SourceString> entries;
    for (std::size_t number = 1; !file.empty(); ++number) {
        const std::string_view line = file.substr(0, file.find('\n'));
        file.remove_prefix(line.size() == file.size() ? line.size() : line.size() + 1);
        if (line.empty() || line.front() == '#')
            continue;
        if (!basic::isValidUtf8(line))
            refuse(number, "not UTF-8");
        entries.push_back(LineReader(line, number).read());
        if (entries.size() > 1 && entries.back().id <= entries[entries.size() - 2].id)
            refuse(number, "numbers must ascend");
    }
    return entries;
}

} // namespace resources
