// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/X11Panels.h"

#include "platform/shell/XcbConnection.h"

#include <algorithm>
#include <optional>
#include <span>

namespace shell {
namespace {

constexpr std::uint32_t kMostWindows = 4096;
constexpr std::uint32_t kMostTypes = 16;

struct PanelReader {
    explicit PanelReader(xcb_connection_t* x)
        : connection(x), windowType(atomNamed(x, "_NET_WM_WINDOW_TYPE")),
          dockType(atomNamed(x, "_NET_WM_WINDOW_TYPE_DOCK")),
          strutPartial(atomNamed(x, "_NET_WM_STRUT_PARTIAL")), strut(atomNamed(x, "_NET_WM_STRUT")) {}

    std::optional<Panel> read(xcb_window_t window, xcb_window_t root, int rootWidth) const;

    xcb_connection_t* connection;
    xcb_atom_t windowType;
    xcb_atom_t dockType;
    xcb_atom_t strutPartial;
    xcb_atom_t strut;
};

// A managed window lies inside its frame, so its place is asked for in the root window's terms.
std::optional<Rectangle> placeOf(xcb_connection_t* connection, xcb_window_t window, xcb_window_t root) {
    const auto sizeCookie = xcb_get_geometry(connection, window);
    const auto placeCookie = xcb_translate_coordinates(connection, window, root, 0, 0);
    const XcbReply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection, sizeCookie, nullptr));
    const XcbReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(connection, placeCookie, nullptr));
    if (!size || !place)
        return std::nullopt;
    return Rectangle{place->dst_x, place->dst_y, place->dst_x + size->width, place->dst_y + size->height};
}

bool isShown(xcb_connection_t* connection, xcb_window_t window) {
    const auto cookie = xcb_get_window_attributes(connection, window);
    const XcbReply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(connection, cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::optional<Panel> PanelReader::read(xcb_window_t window, xcb_window_t root, int rootWidth) const {
    const auto types = propertyValues(connection, window, windowType, XCB_ATOM_ATOM, kMostTypes);
    const auto partial = propertyValues(connection, window, strutPartial, XCB_ATOM_CARDINAL, 12);
    const auto plain = propertyValues(connection, window, strut, XCB_ATOM_CARDINAL, 4);
    Panel panel;
    panel.isDock =
        dockType != XCB_ATOM_NONE && std::find(types.begin(), types.end(), dockType) != types.end();
    panel.strut = bottomStrut(partial, plain, rootWidth);
    if (!panel.isDock && !panel.strut)
        return std::nullopt;
    const auto place = placeOf(connection, window, root);
    if (!place)
        return std::nullopt;
    panel.place = *place;
    panel.isShown = isShown(connection, window);
    return panel;
}

std::vector<xcb_window_t> topLevelWindows(xcb_connection_t* connection, xcb_window_t root) {
    std::vector<xcb_window_t> windows = propertyValues(
        connection, root, atomNamed(connection, "_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, kMostWindows);
    const auto cookie = xcb_query_tree(connection, root);
    if (const XcbReply<xcb_query_tree_reply_t> tree{xcb_query_tree_reply(connection, cookie, nullptr)}) {
        const std::span children(xcb_query_tree_children(tree.get()),
                                 static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
        windows.insert(windows.end(), children.begin(), children.end());
    }
    return windows;
}

} // namespace

X11Panels readX11Panels(xcb_connection_t* connection, xcb_window_t root) {
    const auto whole = placeOf(connection, root, root);
    if (!whole)
        return {};
    X11Panels found{whole->width(), whole->height(), {}};
    const PanelReader reader(connection);
    for (const xcb_window_t window : topLevelWindows(connection, root))
        if (const auto panel = reader.read(window, root, found.rootWidth))
            found.panels.push_back(*panel);
    return found;
}

} // namespace shell
