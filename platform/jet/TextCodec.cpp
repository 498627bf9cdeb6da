// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TextCodec.h"

#include "platform/jet/Format.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace jet {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

// Takes UTF-16 units one by one and appends UTF-8; small writes are gathered before they reach the string.
class Utf8Sink {
public:
    explicit Utf8Sink(std::string& to) : m_to(to) {}
    Utf8Sink(const Utf8Sink&) = delete;
    Utf8Sink& operator=(const Utf8Sink&) = delete;
    ~Utf8Sink() = default;

    void unit(std::uint16_t unit) {
        if (m_high == 0 && unit < 0x80) {
            room();
            m_chunk[m_used++] = static_cast<char>(unit);
            return;
        }
        surrogateOrCharacter(unit);
    }

    void finish() {
        if (m_high != 0)
            character(kReplacement);
        m_high = 0;
        flush();
    }

private:
    void surrogateOrCharacter(std::uint16_t unit) {
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        const bool isLow = unit >= 0xDC00 && unit < 0xE000;
        if (m_high != 0 && isLow) {
            character(0x10000U + ((m_high - 0xD800U) << 10U) + (unit - 0xDC00U));
            m_high = 0;
            return;
        }
        if (m_high != 0)
            character(kReplacement);
        m_high = isHigh ? unit : std::uint16_t{0};
        if (!isHigh)
            character(isLow ? kReplacement : unit);
    }

    void character(std::uint32_t code) {
        room();
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0U | code >> 6U);
            put(0x80U | (code & 0x3FU));
        } else if (code < 0x10000) {
            put(0xE0U | code >> 12U);
            put(0x80U | (code >> 6U & 0x3FU));
            put(0x80U | (code & 0x3FU));
        } else {
            put(0xF0U | code >> 18U);
            put(0x80U | (code >> 12U & 0x3FU));
            put(0x80U | (code >> 6U & 0x3FU));
            put(0x80U | (code & 0x3FU));
        }
    }

    void put(std::uint32_t byte) { m_chunk[m_used++] = static_cast<char>(static_cast<unsigned char>(byte)); }
    void room() {
        if (m_used + 4 > m_chunk.size())
            flush();
    }
    void flush() {
        m_to.append(m_chunk.data(), m_used);
        m_used = 0;
    }

    std::string& m_to;
    std::array<char, 128> m_chunk;
    std::size_t m_used = 0;
    std::uint16_t m_high = 0; // a high surrogate that waits for its other half
};

std::uint8_t byteAt(std::span<const std::byte> bytes, std::size_t at) {
    return std::to_integer<std::uint8_t>(bytes[at]);
}

std::uint16_t unitAt(std::span<const std::byte> bytes, std::size_t at) {
    return static_cast<std::uint16_t>(byteAt(bytes, at) | byteAt(bytes, at + 1) << 8U);
}

// How many bytes from the start on are ASCII other than NUL, which stand for themselves in UTF-8.
std::size_t asciiLength(std::span<const std::byte> bytes) {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighs = 0x8080808080808080;
    std::size_t at = 0;
    for (; at + 8 <= bytes.size(); at += 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, bytes.data() + at, 8);
        // A set high bit, or a borrow from a zero byte, shows in the high bits.
        if (((eight | (eight - kOnes)) & kHighs) != 0)
            break;
    }
    while (at < bytes.size() && byteAt(bytes, at) - 1U < 0x7FU)
        ++at;
    return at;
}

void appendMixed(std::string& to, std::span<const std::byte> bytes) {
    Utf8Sink sink(to);
    bool isCompressed = true;
    for (std::size_t at = 0; at < bytes.size();) {
        if (byteAt(bytes, at) == 0) {
            isCompressed = !isCompressed;
            ++at;
        } else if (isCompressed) {
            sink.unit(byteAt(bytes, at));
            ++at;
        } else {
            if (at + 1 == bytes.size())
                break;
            sink.unit(unitAt(bytes, at));
            at += 2;
        }
    }
    sink.finish();
}

bool isMarked(std::span<const std::byte> stored) {
    return stored.size() >= 2 && byteAt(stored, 0) == format::text::kMarker0 &&
           byteAt(stored, 1) == format::text::kMarker1;
}

} // namespace

void appendText(std::string& to, std::span<const std::byte> stored) {
    if (!isMarked(stored)) {
        appendPlainText(to, stored);
        return;
    }
    const std::span<const std::byte> bytes = stored.subspan(2);
    const std::size_t ascii = asciiLength(bytes);
    to.append(reinterpret_cast<const char*>(bytes.data()), ascii);
    if (ascii < bytes.size())
        appendMixed(to, bytes.subspan(ascii));
}

void appendPlainText(std::string& to, std::span<const std::byte> stored) {
    Utf8Sink sink(to);
    for (std::size_t at = 0; at + 1 < stored.size(); at += 2)
        sink.unit(unitAt(stored, at));
    sink.finish();
}

std::string decodeText(std::span<const std::byte> stored) {
    std::string text;
    appendText(text, stored);
    return text;
}

std::string decodePlainText(std::span<const std::byte> stored) {
    std::string text;
    appendPlainText(text, stored);
    return text;
}

} // namespace jet
