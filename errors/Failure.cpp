// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/Failure.h"

#include "platform/basic/RuntimeError.h"

#include <new>

namespace errors {

Failure describe(const std::exception_ptr& thrown) {
    try {
        std::rethrow_exception(thrown);
    } catch (const basic::RuntimeError& error) {
        return {error.number(), error.description()};
    } catch (const std::bad_alloc&) {
        return {basic::kOutOfMemory, std::string(basic::errorText(basic::kOutOfMemory))};
    } catch (const std::exception& error) {
        return {basic::kInternalError,
                std::string(basic::errorText(basic::kInternalError)) + ": " + error.what()};
    } catch (...) {
        return {basic::kInternalError, std::string(basic::errorText(basic::kInternalError))};
    }
}

} // namespace errors
