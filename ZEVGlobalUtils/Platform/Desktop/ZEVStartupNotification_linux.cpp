// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVStartupNotification_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVX11_p.h>

#include <QSysInfo>
#include <QWindow>

#include <algorithm>
#include <cstring>
#include <unistd.h>

using namespace ZEVX11;

namespace {

constexpr qsizetype BytesInMessage = 20;

/// When the user did what the application is started for: a desktop does not let older windows come up.
quint32 lastUserTime(xcb_connection_t *server)
{
    const QWindow *window = QGuiApplication::focusWindow();
    if (!window)
        return 0;
    const auto cookie = xcb_get_property(server, false, xcb_window_t(window->winId()),
                                         atom(server, "_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 0, 1);
    const auto reply = owned(xcb_get_property_reply(server, cookie, nullptr));
    quint32 time = 0;
    if (reply && xcb_get_property_value_length(reply.get()) == sizeof time)
        std::memcpy(&time, xcb_get_property_value(reply.get()), sizeof time);
    return time;
}

QByteArray makeIdentifier(xcb_connection_t *server)
{
    static int count = 0;
    return "zevglobalutils-" + QByteArray::number(getpid()) + '-' + QSysInfo::machineHostName().toUtf8() + '-'
        + QByteArray::number(count++) + "_TIME" + QByteArray::number(lastUserTime(server));
}

QByteArray quoted(QByteArray value) { return '"' + value.replace('\\', "\\\\").replace('"', "\\\"") + '"'; }

/// In pieces of 20 bytes, with a zero after the last one.
void broadcast(xcb_connection_t *server, const QByteArray &message)
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    const xcb_window_t sender = xcb_generate_id(server);
    xcb_create_window(server, XCB_COPY_FROM_PARENT, sender, screen->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = sender;
    event.type = atom(server, "_NET_STARTUP_INFO_BEGIN");
    for (qsizetype i = 0; i <= message.size(); i += BytesInMessage) {
        std::memset(event.data.data8, 0, BytesInMessage);
        std::memcpy(event.data.data8, message.constData() + i,
                    std::size_t(std::min(BytesInMessage, message.size() - i)));
        xcb_send_event(server, false, screen->root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char *>(&event));
        event.type = atom(server, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(server, sender);
    xcb_flush(server);
}

} // namespace

QByteArray ZEVStartupNotification::begin(const QByteArray &name, const QByteArray &iconName,
                                         const QByteArray &program)
{
    xcb_connection_t *const server = connection();
    if (!server)
        return {};
    QByteArray identifier = makeIdentifier(server);
    broadcast(server,
              "new: ID=" + quoted(identifier) + " NAME=" + quoted(name) + " SCREEN=0 BIN=" + quoted(program)
                  + " ICON=" + quoted(iconName));
    return identifier;
}

void ZEVStartupNotification::cancel(const QByteArray &identifier)
{
    if (xcb_connection_t *const server = connection())
        broadcast(server, "remove: ID=" + quoted(identifier));
}
