// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <csignal>
#include <memory>
#include <sys/prctl.h>
#include <vector>

/// An X server with a window manager and a message bus, for programs that are driven from outside: by what
/// XTEST sends, as if there was a mouse and a keyboard.
class Desktop {
public:
    static bool isPossible() { return !QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty(); }

    Desktop()
    {
        QProcess *const server =
            start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("1600x1000x24"), QStringLiteral("-nolisten"),
                   QStringLiteral("tcp")});
        server->waitForReadyRead(10000);
        const QString display = u':' + QString::fromLatin1(server->readLine()).trimmed();
        m_environment.insert(QStringLiteral("DISPLAY"), display);
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        for (const char *name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            m_environment.insert(QLatin1StringView(name), m_home.path());
        m_environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1"));
        m_environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        m_server.reset(xcb_connect(display.toLatin1().constData(), nullptr));
        startBus();
        start(QStringLiteral("openbox"), {});
    }

    ~Desktop()
    {
        m_server.reset();
        while (!m_processes.empty()) { // the server is the last to go
            m_processes.back()->kill();
            m_processes.back()->waitForFinished();
            m_processes.pop_back();
        }
    }
    Q_DISABLE_COPY_MOVE(Desktop)

    QString home() const { return m_home.path(); }

    QProcess *start(const QString &program, const QStringList &arguments)
    {
        m_processes.push_back(std::make_unique<QProcess>());
        QProcess *const process = m_processes.back().get();
        process->setProcessEnvironment(m_environment);
        process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); }); // however the test ends
        process->setStandardErrorFile(QProcess::nullDevice());
        process->start(program, arguments);
        process->waitForStarted();
        return process;
    }

    /// What xdotool says.
    QString tool(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished();
        return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    }

    /// Asks until it is so, for so long that even a slow machine gets there.
    static bool waitFor(const std::function<bool()> &condition, int milliseconds = 20000)
    {
        QElapsedTimer timer;
        for (timer.start(); !timer.hasExpired(milliseconds); QTest::qWait(20)) {
            if (condition())
                return true;
        }
        return condition();
    }

    /// The visible window whose title matches, when it has come where it is wanted; empty if it never does.
    QString placedWindow(const QString &title, const QRect &place) const
    {
        QString window;
        const auto isPlaced = [&] {
            window = tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                           QStringLiteral("--name"), title})
                         .section(u'\n', 0, 0);
            if (window.isEmpty())
                return false;
            tool({QStringLiteral("windowsize"), window, QString::number(place.width()),
                  QString::number(place.height()), QStringLiteral("windowmove"), window,
                  QString::number(place.x()), QString::number(place.y())});
            const QString now =
                tool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window});
            return now.contains(
                QStringLiteral("WIDTH=%1\nHEIGHT=%2\n").arg(place.width()).arg(place.height()));
        };
        return waitFor(isPlaced) ? window : QString();
    }

    void moveTo(QPoint point) const
    {
        tool({QStringLiteral("mousemove"), QStringLiteral("--sync"), QString::number(point.x()),
              QString::number(point.y())});
    }
    void click(QPoint point) const
    {
        moveTo(point);
        tool({QStringLiteral("click"), QStringLiteral("1")});
    }
    void key(const QString &keys) const { tool({QStringLiteral("key"), keys}); }

    /// Whether a drag from there begins; it goes on until drop().
    bool beginDrag(QPoint from) const
    {
        moveTo(from);
        tool({QStringLiteral("mousedown"), QStringLiteral("1")});
        for (int step = 1; step <= 4; ++step)
            moveTo(from + QPoint(8, 8) * step);
        const bool isDragging = waitFor([this] { return isDragged(); }, 1500);
        if (!isDragging)
            tool({QStringLiteral("mouseup"), QStringLiteral("1")});
        return isDragging;
    }

    void drop(QPoint at) const
    {
        moveTo(at - QPoint(20, 20));
        for (int step = 9; step >= 0; --step)
            moveTo(at - QPoint(2, 2) * step);
        tool({QStringLiteral("mouseup"), QStringLiteral("1")});
    }

    /// A receiver that was not ready lets the drop fall, so it is tried again.
    bool drag(QPoint from, QPoint to, const std::function<bool()> &hasArrived) const
    {
        for (int attempt = 0; attempt < 6; ++attempt) {
            if (!beginDrag(from))
                continue;
            drop(to);
            if (waitFor(hasArrived, 3000))
                return true;
        }
        return false;
    }

private:
    /// A bus that starts no services: they would outlive the test.
    void startBus()
    {
        QFile configuration(m_home.filePath(QStringLiteral("bus.conf")));
        if (configuration.open(QFile::WriteOnly))
            configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=" + m_home.path().toUtf8()
                                + "</listen><policy context='default'>"
                                  "<allow send_destination='*' eavesdrop='true'/>"
                                  "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
        configuration.close();
        QProcess *const bus = start(QStringLiteral("dbus-daemon"),
                                    {QStringLiteral("--config-file"), configuration.fileName(),
                                     QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        bus->waitForReadyRead(10000);
        m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                             QString::fromLatin1(bus->readLine()).trimmed());
    }

    bool isDragged() const
    {
        static const QByteArray name("XdndSelection");
        const auto atomCookie =
            xcb_intern_atom(m_server.get(), false, quint16(name.size()), name.constData());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
            xcb_intern_atom_reply(m_server.get(), atomCookie, nullptr), &std::free);
        if (!atom)
            return false;
        const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
            xcb_get_selection_owner_reply(m_server.get(), xcb_get_selection_owner(m_server.get(), atom->atom),
                                          nullptr),
            &std::free);
        return owner && owner->owner != XCB_WINDOW_NONE;
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::vector<std::unique_ptr<QProcess>> m_processes;
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_server{nullptr, &xcb_disconnect};
};
