// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringSource.h"

#include "platform/basic/RuntimeError.h"

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

// How many bytes follow the first byte of a character; -1 for a byte that begins none.
int followers(unsigned char first) {
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first < 0xE0)
        return 1;
    if (first >= 0xE0 && first < 0xF0)
        return 2;
    return first >= 0xF0 && first < 0xF5 ? 3 : -1;
}

// Catches a file saved in another encoding; overlong forms of three and four bytes are not looked for.
bool isUtf8(std::string_view text) {
    int expected = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const bool follows = (byte & 0xC0U) == 0x80U;
        if (follows != (expected > 0))
            return false;
        expected = follows ? expected - 1 : followers(byte);
        if (expected < 0)
            return false;
    }
    return expected == 0;
}

} // namespace

std::vector<SourceString> parseStrings(std::string_view file) {
    std::vector<SourceString> entries;
    for (std::size_t number = 1; !file.empty(); ++number) {
        const std::string_view line = file.substr(0, file.find('\n'));
        file.remove_prefix(line.size() == file.size() ? line.size() : line.size() + 1);
        if (line.empty() || line.front() == '#')
            continue;
        if (!isUtf8(line))
            refuse(number, "not UTF-8");
        entries.push_back(LineReader(line, number).read());
        if (entries.size() > 1 && entries.back().id <= entries[entries.size() - 2].id)
            refuse(number, "numbers must ascend");
    }
    return entries;
}

} // namespace resources
