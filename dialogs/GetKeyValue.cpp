// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/GetKeyValue.h"

#include "platform/basic/Utf8.h"

namespace dialogs {
namespace {

bool isText(std::uint32_t type) {
    return type == registry::kRegSz || type == registry::kRegExpandSz || type == registry::kRegMultiSz;
}

// The first characters of the value: those of a text are UTF-8, those of other data bytes.
std::string intoBuffer(const registry::QueriedValue& value) {
    std::string read(value.data.begin(), value.data.end());
    std::size_t end = 0;
    for (std::size_t count = 0; count < kValueBuffer && end < read.size(); ++count)
        end += isText(value.type) ? basic::utf8At(read, end).length : 1;
    read.resize(end);
    return read;
}

std::string hexadecimal(unsigned byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const std::string last(1, kDigits[byte % 16]);
    return byte < 16 ? last : kDigits[byte / 16] + last;
}

std::string hexadecimalFromTheLast(std::string_view bytes) {
    std::string text = "&h";
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        text += hexadecimal(static_cast<unsigned char>(*byte));
    return text;
}

} // namespace

// No trap (frmAbout, GetKeyValue): answers false.
bool GetKeyValue(registry::Registry& registry, registry::Root root, std::string_view keyName,
                 std::string_view valueName, std::string& value) {
    registry::OpenKey key;
    registry::QueriedValue queried;
    if (!registry.RegOpenKeyEx(root, keyName, kFullAccess, key) ||
        !registry.RegQueryValueEx(key, valueName, queried))
        return false;
    std::string read = intoBuffer(queried);
    if (read.ends_with('\0'))
        read.pop_back();
    value = queried.type == registry::kRegDword ? hexadecimalFromTheLast(read) : read;
    return true;
}

} // namespace dialogs
