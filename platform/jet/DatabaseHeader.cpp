// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DatabaseHeader.h"

#include "platform/jet/ByteView.h"
#include "platform/jet/Rc4.h"

#include <algorithm>
#include <string>

namespace jet {
namespace {

namespace header = format::header;

std::string_view signatureOf(std::span<const std::byte> bytes) {
    const auto* text = reinterpret_cast<const char*>(bytes.data());
    return std::string_view(text, bytes.size()).substr(header::kSignature, header::kSignatureSize - 1);
}

// `bytes` is as much of page 0 as the file holds.
void checkKind(std::span<const std::byte> bytes, const Place& place) {
    if (bytes.size() <= header::kVersion)
        place.fail(bytes.empty() ? "the file is empty" : "this is not a database");
    const ByteView view(bytes, place);
    const std::string_view signature = signatureOf(bytes);
    const std::uint8_t version = view.u8(header::kVersion);
    if (signature == header::kAceSignature)
        place.fail("databases of Access 2007 and later (ACE) are not supported");
    if (signature == header::kMoneySignature)
        place.fail("databases of Money (MSISAM) are not supported");
    if (signature != header::kJetSignature || view.u32(header::kMagic) != header::kMagicValue)
        place.fail("this is not a database");
    if (version == header::kVersionJet3)
        place.fail("databases of Access 97 (Jet 3) are not supported");
    if (version != header::kVersionJet4)
        place.fail("databases of version " + std::to_string(version) + " are not supported");
}

} // namespace

DatabaseHeader DatabaseHeader::read(share::File& file) {
    const Place place{file.name()};
    PageBuffer buffer;
    const std::size_t got = file.read(0, buffer);
    checkKind(std::span(buffer).first(std::min(got, buffer.size())), place);
    if (got < buffer.size())
        place.fail("the header page is cut short: " + std::to_string(buffer.size()) + " bytes expected, " +
                   std::to_string(got) + " there");
    return parse(buffer, file.name());
}

DatabaseHeader DatabaseHeader::parse(PageBytes page, std::string_view file) {
    const Place place{file};
    checkKind(page, place);
    PageBuffer plain;
    std::ranges::copy(page, plain.begin());
    applyRc4(header::kMaskKey, std::span(plain).subspan(header::kMasked, header::kMaskedSize));
    const ByteView view(plain, place);
    DatabaseHeader result;
    result.databaseKey = view.u32(header::kDatabaseKey);
    result.codePage = view.u16(header::kCodePage);
    result.sortOrder = view.u16(header::kSortOrder);
    result.sortVersion = view.u8(header::kSortVersion);
    result.creationStamp = view.u64(header::kCreated);
    result.created = std::bit_cast<double>(result.creationStamp);
    const std::span words = view.slice(format::commitWords::kOffset, format::commitWords::kSize);
    std::ranges::copy(words, std::as_writable_bytes(std::span(result.commitWords.words)).begin());
    return result;
}

} // namespace jet
