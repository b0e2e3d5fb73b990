// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// What the files that speak to the X server have in common; only Linux sources include it.
namespace ZEVX11 {

template <typename Reply>
using ReplyOf = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
ReplyOf<Reply> owned(Reply *reply)
{
    return {reply, &std::free};
}

/// Null where the program shows its windows by anything but X11.
inline xcb_connection_t *connection()
{
    const auto *const x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

inline xcb_atom_t atom(xcb_connection_t *server, QByteArrayView name)
{
    const auto cookie = xcb_intern_atom(server, false, quint16(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(server, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

/// The window that owns the drag in progress, where the source has its properties.
inline xcb_window_t dragOwner(xcb_connection_t *server)
{
    const auto cookie = xcb_get_selection_owner(server, atom(server, "XdndSelection"));
    const auto reply = owned(xcb_get_selection_owner_reply(server, cookie, nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

} // namespace ZEVX11
