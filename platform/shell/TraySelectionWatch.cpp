// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/TraySelectionWatch.h"

#include <QGuiApplication>

#include <string>

namespace shell {
namespace {

// Atoms that need not be there yet: the tray may be the first to name them.
xcb_atom_t createdAtom(xcb_connection_t* connection, const std::string& name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void selectStructureEvents(xcb_connection_t* connection, xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &mask);
}

} // namespace

TraySelectionWatch::TraySelectionWatch() {
    if (QGuiApplication::platformName() != u"xcb" || !connectToServer())
        return;
    selectStructureEvents(m_connection.get(), m_screen->root);
    readOwner();
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &TraySelectionWatch::readEvents);
    readEvents();
}

TraySelectionWatch::~TraySelectionWatch() = default;

bool TraySelectionWatch::connectToServer() {
    int number = 0;
    m_connection.reset(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(m_connection.get()) != 0)
        return false;
    m_screen = screenOf(m_connection.get(), number);
    m_selection = createdAtom(m_connection.get(), "_NET_SYSTEM_TRAY_S" + std::to_string(number));
    m_manager = createdAtom(m_connection.get(), "MANAGER");
    return m_screen && m_selection != XCB_ATOM_NONE && m_manager != XCB_ATOM_NONE;
}

// The server is grabbed so that the owner cannot die between its name and our interest in its death.
void TraySelectionWatch::readOwner() {
    xcb_connection_t* connection = m_connection.get();
    xcb_grab_server(connection);
    const auto cookie = xcb_get_selection_owner(connection, m_selection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    const xcb_window_t owner = reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    if (owner != XCB_WINDOW_NONE)
        selectStructureEvents(connection, owner);
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    if (owner == m_owner)
        return;
    m_owner = owner;
    Q_EMIT changed();
}

// Answers whether an event tells of a new owner or of the end of the known one.
bool TraySelectionWatch::isOwnerOutdated() {
    bool isOutdated = false;
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const auto type = event->response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            isOutdated |= message->type == m_manager && message->data.data32[1] == m_selection;
        } else if (type == XCB_DESTROY_NOTIFY) {
            isOutdated |= reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window == m_owner;
        }
    }
    return isOutdated;
}

// Again after each look at the owner: events that came with its replies do not wake the notifier.
void TraySelectionWatch::readEvents() {
    while (isOwnerOutdated())
        readOwner();
    if (xcb_connection_has_error(m_connection.get()) != 0)
        m_notifier->setEnabled(false); // the X server is gone, and soon so is the program
}

} // namespace shell
