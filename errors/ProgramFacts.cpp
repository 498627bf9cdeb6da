// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ProgramFacts.h"

#include "errors/ErrorLog.h"
#include "errors/SystemVersion.h"
#include "resources/ProductData.h"

namespace errors {

ProgramFacts programFacts(std::string_view executable) {
    ProgramFacts facts;
    facts.component = std::string(resources::kProductTitle) + " (" + baseNameOf(executable) + ")";
    facts.version = std::to_string(resources::kVersionMajor) + "." +
                    std::to_string(resources::kVersionMinor) + "." +
                    std::to_string(resources::kVersionRevision);
    facts.getVersionEx = systemVersion;
    return facts;
}

} // namespace errors
