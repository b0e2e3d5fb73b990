// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDirectSave_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVX11_p.h>

using namespace ZEVX11;

namespace {

/// Other connections of ours to the server see it when this has returned.
void setProperty(const QByteArray &value)
{
    xcb_connection_t *const server = connection();
    const xcb_window_t owner = server ? dragOwner(server) : xcb_window_t(XCB_WINDOW_NONE);
    if (owner == XCB_WINDOW_NONE)
        return;
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, owner, atom(server, "XdndDirectSave0"),
                        atom(server, "text/plain"), 8, quint32(value.size()), value.constData());
    owned(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr)).reset();
}

enum class Then { Keep, Delete };

QByteArray property(Then then)
{
    xcb_connection_t *const server = connection();
    const xcb_window_t owner = server ? dragOwner(server) : xcb_window_t(XCB_WINDOW_NONE);
    if (owner == XCB_WINDOW_NONE)
        return {};
    constexpr quint32 Longest = 4096; // in units of four bytes: a path of PATH_MAX, every byte of it escaped
    const auto cookie = xcb_get_property(server, then == Then::Delete, owner, atom(server, "XdndDirectSave0"),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, Longest);
    const auto reply = owned(xcb_get_property_reply(server, cookie, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

} // namespace

bool ZEVDirectSave::isAvailable() { return connection() != nullptr; }

void ZEVDirectSave::offer(const QString &fileName) { setProperty(fileName.toUtf8()); }
QString ZEVDirectSave::offeredName() { return QString::fromUtf8(property(Then::Keep)); }
void ZEVDirectSave::setAddress(const QByteArray &address) { setProperty(address); }
QByteArray ZEVDirectSave::takeAddress() { return property(Then::Delete); }
