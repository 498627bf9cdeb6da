// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexKey.h"

#include "platform/basic/RuntimeError.h"

#include <array>
#include <bit>

namespace jet {
namespace {

constexpr std::uint8_t kGroupFollows = 9;
constexpr std::size_t kGroupSize = 8;
constexpr std::size_t kMaxTextLength = 255;
constexpr std::uint8_t kEndOfWeights = 0x01;
constexpr std::uint8_t kEndOfText = 0x00;

constexpr std::array<std::uint8_t, 10> kDigitWeights{0x36, 0x38, 0x3A, 0x3C, 0x3E,
                                                     0x40, 0x42, 0x44, 0x46, 0x48};
constexpr std::array<std::uint8_t, 26> kLetterWeights{0x4A, 0x4C, 0x4D, 0x4F, 0x51, 0x53, 0x55, 0x57, 0x59,
                                                      0x5B, 0x5C, 0x5E, 0x60, 0x62, 0x64, 0x66, 0x68, 0x69,
                                                      0x6B, 0x6D, 0x6F, 0x71, 0x73, 0x75, 0x76, 0x78};

void add(KeyBytes& key, std::uint8_t byte) {
    key.push_back(static_cast<char>(byte));
}

template <typename Unsigned>
void addBigEndian(KeyBytes& key, Unsigned value) {
    for (std::size_t shift = 8 * sizeof(Unsigned); shift > 0; shift -= 8)
        add(key, static_cast<std::uint8_t>(value >> (shift - 8)));
}

template <typename Unsigned>
constexpr Unsigned signBit() {
    return static_cast<Unsigned>(Unsigned{1} << (8 * sizeof(Unsigned) - 1));
}

template <typename Unsigned>
void addSigned(KeyBytes& key, Unsigned bits) {
    addBigEndian(key, static_cast<Unsigned>(bits ^ signBit<Unsigned>()));
}

template <typename Unsigned>
void addFloating(KeyBytes& key, Unsigned bits) {
    const bool isNegative = (bits & signBit<Unsigned>()) != 0;
    addBigEndian(key, isNegative ? static_cast<Unsigned>(~bits)
                                 : static_cast<Unsigned>(bits ^ signBit<Unsigned>()));
}

void addBinary(KeyBytes& key, const basic::Binary& value) {
    for (std::size_t at = 0; at < value.size(); at += kGroupSize) {
        const std::size_t left = value.size() - at;
        for (std::size_t i = 0; i < kGroupSize; ++i)
            add(key, i < left ? value[at + i] : std::uint8_t{0});
        add(key, left > kGroupSize ? kGroupFollows : static_cast<std::uint8_t>(left));
    }
}

[[noreturn]] void failUnknown(const Column& column, std::string_view why) {
    throw basic::RuntimeError(basic::kProviderFailure, "The index over column " + column.name +
                                                           " cannot be kept: " + std::string(why));
}

class ValuePart {
public:
    ValuePart(KeyBytes& key, const Column& column) : m_key(key), m_column(column) {}

    void operator()(basic::Null) {}
    void operator()(bool value) { add(m_key, value ? 0x00 : 0xFF); }
    void operator()(std::uint8_t value) { add(m_key, value); }
    void operator()(std::int16_t value) { addSigned(m_key, static_cast<std::uint16_t>(value)); }
    void operator()(std::int32_t value) { addSigned(m_key, static_cast<std::uint32_t>(value)); }
    void operator()(basic::Currency value) {
        addSigned(m_key, static_cast<std::uint64_t>(value.tenThousandths));
    }
    void operator()(float value) { addFloating(m_key, std::bit_cast<std::uint32_t>(value)); }
    void operator()(double value) { addFloating(m_key, std::bit_cast<std::uint64_t>(value)); }
    void operator()(basic::Date value) { (*this)(value.days); }
    void operator()(const basic::Guid&) { failUnknown(m_column, "keys of GUIDs are not supported"); }
    void operator()(const basic::Decimal&) { failUnknown(m_column, "keys of decimals are not supported"); }
    void operator()(const basic::Binary& value) {
        if (value.empty())
            failUnknown(m_column, "keys of empty binary values are not supported");
        addBinary(m_key, value);
    }
    void operator()(const std::string& value) {
        if (m_column.sortOrder != format::header::kGeneralSortOrder || m_column.sortVersion != 0)
            failUnknown(m_column, "its sort order is not supported");
        m_key += textWeights(value);
        add(m_key, kEndOfWeights);
        add(m_key, kEndOfText);
    }

private:
    KeyBytes& m_key;
    const Column& m_column;
};

void addWeight(KeyBytes& weights, char character) {
    if (character >= '0' && character <= '9')
        add(weights, kDigitWeights[static_cast<std::size_t>(character - '0')]);
    else if (character >= 'A' && character <= 'Z')
        add(weights, kLetterWeights[static_cast<std::size_t>(character - 'A')]);
    else if (character >= 'a' && character <= 'z')
        add(weights, kLetterWeights[static_cast<std::size_t>(character - 'a')]);
    else if (character == ' ')
        add(weights, 0x07);
    else if (character == '.')
        add(weights, 0x1C);
    else if (character == '_')
        weights += "\x2B\x03";
    else
        throw basic::RuntimeError(
            basic::kProviderFailure,
            "Only ASCII letters, digits, blanks, points and underscores can be indexed");
}

} // namespace

KeyBytes textWeights(std::string_view text) {
    KeyBytes weights;
    const std::size_t end = text.find_last_not_of(' ') + 1; // trailing blanks do not count
    for (const char character : text.substr(0, std::min(end, kMaxTextLength)))
        addWeight(weights, character);
    return weights;
}

void appendKeyPart(KeyBytes& key, const basic::Variant& value, const Column& column, bool ascending) {
    const std::size_t start = key.size();
    if (basic::isNull(value)) {
        add(key, format::indexKey::kNull);
    } else {
        add(key, format::indexKey::kValue);
        std::visit(ValuePart(key, column), value);
    }
    if (!ascending)
        for (std::size_t i = start; i < key.size(); ++i)
            key[i] = static_cast<char>(~key[i]);
}

} // namespace jet
