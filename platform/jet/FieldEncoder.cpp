// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FieldEncoder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/TextEncoder.h"

#include <bit>

namespace jet {
namespace {

void checkLength(std::size_t length, std::size_t limit, const Column& column) {
    if (length > limit)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "The column " + column.name + " is too small for the value: " +
                                      std::to_string(length) + " of " + std::to_string(limit) + " bytes");
}

Bytes encodeFixedText(std::u16string units, const Column& column) {
    units.resize(column.length / sizeof(char16_t), u' ');
    return encodeUtf16(units);
}

class Encoder {
public:
    explicit Encoder(const Column& column) : m_column(column) {}

    Bytes take() { return m_builder.take(); }

    void operator()(basic::Null) {}
    void operator()(bool) {}
    void operator()(std::uint8_t value) { m_builder.add8(value); }
    void operator()(std::int16_t value) { m_builder.add16(static_cast<std::uint16_t>(value)); }
    void operator()(std::int32_t value) { m_builder.add32(static_cast<std::uint32_t>(value)); }
    void operator()(float value) { m_builder.add32(std::bit_cast<std::uint32_t>(value)); }
    void operator()(double value) { m_builder.add64(std::bit_cast<std::uint64_t>(value)); }
    void operator()(basic::Date value) { (*this)(value.days); }
    void operator()(basic::Currency value) {
        m_builder.add64(static_cast<std::uint64_t>(value.tenThousandths));
    }
    void operator()(const basic::Guid& value) { m_builder.addBytes(std::as_bytes(std::span(value.bytes))); }
    void operator()(const basic::Decimal& value) {
        m_builder.add8(value.negative ? format::numeric::kNegative : 0);
        for (const std::uint32_t word : value.magnitude)
            m_builder.add32(word);
    }
    void operator()(const basic::Binary& value) {
        if (!m_column.isLongValue())
            checkLength(value.size(), m_column.length, m_column);
        m_builder.addBytes(std::as_bytes(std::span(value)));
        if (m_column.isFixed())
            m_builder.addZeros(m_column.length - value.size());
    }
    void operator()(const std::string& value) {
        const std::u16string units = toStoredUnits(value);
        if (!m_column.isLongValue())
            checkLength(units.size() * sizeof(char16_t), m_column.length, m_column);
        const bool mayCompress = (m_column.extendedFlags & format::column::kCompressible) != 0;
        m_builder.addBytes(m_column.isFixed() ? encodeFixedText(units, m_column)
                                              : encodeText(units, mayCompress));
    }

private:
    const Column& m_column;
    ByteBuilder m_builder;
};

} // namespace

Bytes encodeField(const basic::Variant& value, const Column& column) {
    Encoder encoder(column);
    std::visit(encoder, value);
    return encoder.take();
}

} // namespace jet
