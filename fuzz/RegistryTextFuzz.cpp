// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file's reader over any bytes: it answers a tree or a StoreError, and whatever tree it answers
// must come back the same from what the writer makes of it.

#include "platform/registry/RegistryTextReader.h"
#include "platform/registry/RegistryTextWriter.h"
#include "platform/registry/StoreError.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

namespace {

std::optional<registry::Key> parsed(std::string_view bytes) {
    try {
        return registry::readRegistryText(bytes, "input");
    } catch (const registry::StoreError&) {
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto tree = parsed({reinterpret_cast<const char*>(data), size});
    if (!tree)
        return 0;
    const auto again = parsed(registry::RegistryTextWriter().write(*tree));
    if (!again || !(*again == *tree))
        std::abort();
    return 0;
}
