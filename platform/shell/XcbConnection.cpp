// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/XcbConnection.h"

namespace shell {

xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

const xcb_screen_t* screenOf(xcb_connection_t* connection, int number) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    if (!setup)
        return nullptr;
    auto screens = xcb_setup_roots_iterator(setup);
    for (; screens.rem > 0 && number > 0; --number)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data : nullptr;
}

std::vector<std::uint32_t> propertyValues(xcb_connection_t* connection, xcb_window_t window,
                                          xcb_atom_t property, xcb_atom_t type, std::uint32_t most) {
    if (property == XCB_ATOM_NONE)
        return {};
    const auto cookie = xcb_get_property(connection, 0, window, property, type, 0, most);
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->type != type || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    const auto bytes = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    return {values, values + bytes / sizeof *values};
}

} // namespace shell
