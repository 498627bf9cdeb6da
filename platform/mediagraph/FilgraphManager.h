// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A filter graph with all its faces. Shared by reference: it stops playing, lets the device go and forgets
// its filters when the last reference goes, which never waits for the sound server. User-interface thread.

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/IMediaControl.h"
#include "platform/mediagraph/IMediaEvent.h"
#include "platform/mediagraph/IMediaPosition.h"

#include <memory>

namespace mediagraph {

class FilgraphManager : public IMediaControl, public IMediaPosition, public IMediaEvent {};

// Another face of the same object, as a share of it. Error 91 for none, 13 for an object without this face.
template <typename Wanted, typename Interface>
std::shared_ptr<Wanted> queryInterface(const std::shared_ptr<Interface>& object) {
    if (!object)
        throw basic::RuntimeError(basic::kObjectNotSet);
    auto found = std::dynamic_pointer_cast<Wanted>(object);
    if (!found)
        throw basic::RuntimeError(basic::kTypeMismatch);
    return found;
}

} // namespace mediagraph
