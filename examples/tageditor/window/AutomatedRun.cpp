// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/AutomatedRun.h>

#include <tageditor/find/TrackFind.h>
#include <tageditor/window/MainWindow.h>

#include <QCoreApplication>
#include <QDir>
#include <QScreen>
#include <QTableView>
#include <QTimer>
#include <QWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A match is one line, whatever stands in it.
QString onOneLine(QString text)
{
    return text.replace(u'\\', u"\\\\"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\t', u"\\t"_s)
        .replace(u'\r', u"\\r"_s);
}

QString reportLine(const MainWindow &window, const TrackFind::Match &place)
{
    const Track &track = window.tracks().track(place.row);
    const QString file = QDir(window.folder()).relativeFilePath(displayedPath(track.path));
    const QString range = u"{%1, %2}"_s.arg(place.range.location).arg(place.range.length);
    const QString found = track.text(place.field).sliced(place.range.location, place.range.length);
    return QStringList{onOneLine(file), TrackTableModel::titleForField(place.field), range, onOneLine(found)}
               .join(u'\t')
        + u'\n';
}

} // namespace

AutomatedRun::AutomatedRun(MainWindow *window, const CommandLine &commandLine)
    : QObject(window)
    , m_window(window)
    , m_commandLine(commandLine)
{
    window->winId(); // from here on there is a window to watch
    window->windowHandle()->installEventFilter(this);
    connect(window, &MainWindow::folderRead, this, [this](const QString &failure) {
        if (std::exchange(m_isRead, true))
            return;
        m_hasFailed = !failure.isEmpty();
        performWhenReady();
    });
}

bool AutomatedRun::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose && m_window->windowHandle()->isExposed()) {
        m_window->windowHandle()->removeEventFilter(this);
        m_isExposed = true;
        performWhenReady();
    } else if (event->type() == QEvent::Paint && m_awaitsPainting) {
        watched->removeEventFilter(this);
        m_awaitsPainting = false;
        // What was painted reaches the screen when the event has returned.
        QMetaObject::invokeMethod(this, &AutomatedRun::perform, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

/// The rows and labels that came last are laid out when the event loop next comes round; only the painting
/// after that shows them.
void AutomatedRun::performWhenReady()
{
    if (!m_isRead || !m_isExposed)
        return;
    QTimer::singleShot(0, this, [this] {
        m_window->find().actor().searchIfChanged(); // at once, so that its matches are painted
        QTimer::singleShot(0, this, &AutomatedRun::awaitPainting); // and their count has room
    });
}

void AutomatedRun::awaitPainting()
{
    QWidget *viewport = m_window->table().viewport();
    viewport->installEventFilter(this);
    viewport->update();
    m_awaitsPainting = true;
}

void AutomatedRun::perform()
{
    if (m_commandLine.writesReport)
        std::fputs(report(*m_window).toUtf8().constData(), stdout);
    std::fflush(stdout);
    if (!m_commandLine.screenshotFile.isEmpty() && !saveScreenshot()) {
        std::fprintf(stderr, "%s\n", qPrintable(tr("The screenshot could not be saved.")));
        m_hasFailed = true;
    }
    if (m_commandLine.quits)
        QCoreApplication::exit(m_hasFailed ? 1 : 0);
}

QString AutomatedRun::report(MainWindow &window)
{
    const QList<TrackFind::Match> matches = window.find().matches();
    QString report;
    for (const TrackFind::Match &match : matches)
        report += reportLine(window, match);
    return report + tr("%n matches", nullptr, int(matches.size())) + u'\n';
}

/// The grab comes behind the painting in the order of the connection.
bool AutomatedRun::saveScreenshot()
{
    const QPixmap picture = m_window->screen()->grabWindow(m_window->winId());
    return !picture.isNull() && picture.save(m_commandLine.screenshotFile, "PNG");
}
