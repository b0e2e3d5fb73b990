// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDragRequest_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVX11_p.h>

#include <QDeadlineTimer>
#include <QSocketNotifier>

#include <poll.h>

using namespace ZEVX11;

namespace {

/// The windowing system's own connection gives its answers to Qt, which waits for them in the drop.
using Server = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

bool isKnown(xcb_connection_t *server, xcb_window_t window)
{
    const auto reply = owned(xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
    return reply != nullptr;
}

/// Windows bear the mark of the program that made them.
bool isOwnWindow(xcb_window_t window)
{
    const xcb_setup_t *const setup = xcb_get_setup(connection());
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

/// ICCCM 2.0, sections 2.4 and 2.7.2: the data comes in a property of a window of ours, or in pieces, one after
/// the other.
class X11Request : public ZEVDragRequest {
public:
    X11Request(Server server, qint64 mostBytes)
        : m_server(std::move(server))
        , m_mostBytes(mostBytes)
        , m_window(xcb_generate_id(m_server.get()))
        , m_property(atom(m_server.get(), "ZEV_DRAG_DATA"))
        , m_notifier(xcb_get_file_descriptor(m_server.get()), QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, &X11Request::readEvents);
    }

    /// Below the window that the drop is for, since some sources tell their drops apart by that.
    void send(xcb_window_t target, xcb_window_t source, const QByteArray &type)
    {
        constexpr quint32 changes = XCB_EVENT_MASK_PROPERTY_CHANGE, end = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_connection_t *const server = m_server.get();
        xcb_create_window(server, 0, m_window, target, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &changes);
        xcb_change_window_attributes(server, source, XCB_CW_EVENT_MASK, &end);
        xcb_convert_selection(server, m_window, atom(server, "XdndSelection"), atom(server, type), m_property,
                              XCB_CURRENT_TIME);
        isKnown(server, m_window); // the request has been handled when this has been answered
        QMetaObject::invokeMethod(this, &X11Request::readEvents, Qt::QueuedConnection);
    }

    void waitForAnswer(int milliseconds) override
    {
        const QDeadlineTimer deadline(milliseconds);
        pollfd events{xcb_get_file_descriptor(m_server.get()), POLLIN, 0};
        do
            readEvents();
        while (!m_isAnswered && poll(&events, 1, int(deadline.remainingTime())) > 0);
    }

private:
    void readEvents()
    {
        while (!m_isAnswered) {
            const auto event = owned(xcb_poll_for_event(m_server.get()));
            if (event)
                heed(*event);
            else if (xcb_connection_has_error(m_server.get()) != 0)
                finish({});
            else
                return;
        }
    }

    /// An error says that one of the windows has gone.
    void heed(const xcb_generic_event_t &event)
    {
        switch (event.response_type & 0x7F) {
        case 0:
        case XCB_DESTROY_NOTIFY:
            return finish({});
        case XCB_SELECTION_NOTIFY:
            return reinterpret_cast<const xcb_selection_notify_event_t &>(event).property == XCB_ATOM_NONE
                ? finish({})
                : readProperty();
        case XCB_PROPERTY_NOTIFY:
            if (m_comesInPieces
                && reinterpret_cast<const xcb_property_notify_event_t &>(event).state
                    == XCB_PROPERTY_NEW_VALUE)
                readProperty();
            return;
        default:
            return;
        }
    }

    /// Deleting the property asks for the next piece.
    void readProperty()
    {
        const auto cookie = xcb_get_property(m_server.get(), true, m_window, m_property,
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, quint32(m_mostBytes / 4) + 1);
        const auto reply = owned(xcb_get_property_reply(m_server.get(), cookie, nullptr));
        if (!reply || reply->bytes_after > 0)
            return finish({});
        if (reply->type == atom(m_server.get(), "INCR")) {
            m_comesInPieces = true;
            return;
        }
        const int length = xcb_get_property_value_length(reply.get());
        m_data.append(static_cast<const char *>(xcb_get_property_value(reply.get())), length);
        if (m_data.size() > m_mostBytes)
            finish({});
        else if (!m_comesInPieces || length == 0)
            finish(m_data);
    }

    void finish(const QByteArray &data)
    {
        m_isAnswered = true;
        m_notifier.setEnabled(false);
        Q_EMIT answered(data);
    }

    Server m_server;
    qint64 m_mostBytes;
    xcb_window_t m_window;
    xcb_atom_t m_property;
    QSocketNotifier m_notifier;
    QByteArray m_data;
    bool m_comesInPieces = false;
    bool m_isAnswered = false;
};

} // namespace

/// A program that was told its display otherwise than by the environment asks in the drop, as Qt does.
std::unique_ptr<ZEVDragRequest> ZEVDragRequest::ask(WId window, QStringView mimeType, qint64 mostBytes)
{
    const xcb_window_t source =
        connection() && window != 0 ? dragOwner(connection()) : xcb_window_t(XCB_WINDOW_NONE);
    if (source == XCB_WINDOW_NONE || isOwnWindow(source))
        return nullptr;
    Server server(xcb_connect(nullptr, nullptr), xcb_disconnect);
    if (xcb_connection_has_error(server.get()) != 0 || !isKnown(server.get(), xcb_window_t(window)))
        return nullptr;
    auto request = std::make_unique<X11Request>(std::move(server), mostBytes);
    request->send(xcb_window_t(window), source, mimeType.toLatin1());
    return request;
}
