// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Ownership of what the X library hands out: connections, replies and events. Atoms by name, and properties
// whose type, format and length were checked before anybody sees the values. Nothing here throws: a window
// may be gone at any moment, and what cannot be read counts as absent.

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace shell {

struct XcbFree {
    void operator()(void* memory) const noexcept { std::free(memory); }
};
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, XcbFree>;

struct XcbDisconnect {
    void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
};
using XcbConnectionPointer = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

// Atom 0 when the server does not know the name.
xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name);
// The screen with that number; null when there is no such.
const xcb_screen_t* screenOf(xcb_connection_t* connection, int number);
// The values of a 32-bit property of that type, at most `most` of them; empty when it is absent, of another
// type or format, or the window is gone.
std::vector<std::uint32_t> propertyValues(xcb_connection_t* connection, xcb_window_t window,
                                          xcb_atom_t property, xcb_atom_t type, std::uint32_t most);

} // namespace shell
