// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/StoreError.h"

#include "platform/registry/ResultCodes.h"

#include <cerrno>

namespace registry {

StoreError::StoreError(std::int32_t code, const std::string& context)
    : RuntimeError(basic::kPathFileAccess,
                   std::string(basic::errorText(basic::kPathFileAccess)) + ": " + context),
      m_code(code) {}

StoreError StoreError::afterSystemCall(int errnoValue, std::string_view what, std::string_view path) {
    const bool isFull = errnoValue == ENOSPC || errnoValue == EDQUOT;
    return {isFull ? kDiskFull : kIoFailed, basic::errorFromErrno(errnoValue, what, path).description()};
}

} // namespace registry
