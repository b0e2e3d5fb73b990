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

using namespace Qt::StringLiterals;

/// An X server with a window manager and a message bus, for programs that are driven from outside: by what
/// XTEST sends, as if there was a mouse and a keyboard.
class Desktop {
public:
    static bool isPossible() { return !QStandardPaths::findExecutable(u"Xvfb"_s).isEmpty(); }

    Desktop()
    {
        QProcess *const server =
            start(u"Xvfb"_s, u"-displayfd 1 -screen 0 1600x1000x24 -nolisten tcp"_s.split(u' '));
        server->waitForReadyRead(10000);
        const QString display = u':' + QString::fromLatin1(server->readLine()).trimmed();
        m_environment.insert(u"DISPLAY"_s, display);
        m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        for (const char *name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            m_environment.insert(QLatin1StringView(name), m_home.path());
        m_environment.insert(u"NO_AT_BRIDGE"_s, u"1"_s);
        m_environment.remove(u"WAYLAND_DISPLAY"_s);
        m_server.reset(xcb_connect(display.toLatin1().constData(), nullptr));
        startBus();
        start(u"openbox"_s, {});
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
    QString tool(const QString &command) const { return tool(command.split(u' ')); }
    QString tool(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(u"xdotool"_s, arguments);
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
        const QString size = u"%1 %2"_s.arg(place.width()).arg(place.height());
        QString window;
        const auto isPlaced = [&] {
            window = tool(u"search --onlyvisible --name "_s + title).section(u'\n', 0, 0);
            if (window.isEmpty())
                return false;
            tool(u"windowsize %1 %2 windowmove %1 %3 %4"_s.arg(window, size).arg(place.x()).arg(place.y()));
            return tool(u"getwindowgeometry "_s + window).endsWith(QString(size).replace(u' ', u'x'));
        };
        return waitFor(isPlaced) ? window : QString();
    }

    /// The window of \a process that has the keyboard, when it has; empty if it never does.
    QString activeWindow(const QProcess &process) const
    {
        QString window;
        const auto isActive = [&] {
            window = tool(u"getactivewindow"_s);
            return !window.isEmpty() && tool(u"getwindowfocus"_s) == window
                && tool(u"getwindowpid "_s + window) == QString::number(process.processId());
        };
        return waitFor(isActive) ? window : QString();
    }

    /// Of which one with a quotation mark is a text.
    void press(const QStringList &keys) const
    {
        for (const QString &pressed : keys) {
            pressed.startsWith(u'\'') ? type(pressed.mid(1)) : key(pressed);
            if (pressed.startsWith(u"alt+"))
                QTest::qWait(400); // a button that is pressed by its letter clicks a tenth of a second later
        }
    }

    void activate(const QString &window) const { tool(u"windowactivate --sync "_s + window); }
    void moveTo(QPoint point) const { tool(u"mousemove %1 %2"_s.arg(point.x()).arg(point.y())); }
    void click(QPoint point) const { tool(u"mousemove %1 %2 click 1"_s.arg(point.x()).arg(point.y())); }
    void key(const QString &keys) const { tool(u"key "_s + keys); }
    void type(const QString &text) const { tool({u"type"_s, u"--delay"_s, u"20"_s, text}); }

    /// Whether a drag from there begins; it goes on until drop().
    bool beginDrag(QPoint from) const
    {
        moveTo(from);
        tool(u"mousedown 1"_s);
        for (int step = 1; step <= 4; ++step)
            moveTo(from + QPoint(8, 8) * step);
        const bool isDragging = waitFor([this] { return isDragged(); }, 1500);
        if (!isDragging)
            tool(u"mouseup 1"_s);
        return isDragging;
    }

    void drop(QPoint at) const
    {
        moveTo(at - QPoint(20, 20));
        for (int step = 9; step >= 0; --step)
            moveTo(at - QPoint(2, 2) * step);
        tool(u"mouseup 1"_s);
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
        QFile configuration(m_home.filePath(u"bus.conf"_s));
        if (configuration.open(QFile::WriteOnly))
            configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=" + m_home.path().toUtf8()
                                + "</listen><policy context='default'>"
                                  "<allow send_destination='*' eavesdrop='true'/>"
                                  "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
        configuration.close();
        QProcess *const bus =
            start(u"dbus-daemon"_s,
                  {u"--config-file"_s, configuration.fileName(), u"--nofork"_s, u"--print-address"_s});
        bus->waitForReadyRead(10000);
        m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromLatin1(bus->readLine()).trimmed());
    }

    template <typename Reply>
    static std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
    {
        return {reply, &std::free};
    }

    bool isDragged() const
    {
        static const QByteArray name("XdndSelection");
        xcb_connection_t *const server = m_server.get();
        const auto atom = owned(xcb_intern_atom_reply(
            server, xcb_intern_atom(server, false, quint16(name.size()), name.constData()), nullptr));
        const auto owner = owned(xcb_get_selection_owner_reply(
            server, xcb_get_selection_owner(server, atom ? atom->atom : 0), nullptr));
        return owner && owner->owner != XCB_WINDOW_NONE;
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::vector<std::unique_ptr<QProcess>> m_processes;
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_server{nullptr, &xcb_disconnect};
};
