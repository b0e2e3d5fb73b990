// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../Rows.h"

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>

#include <QMimeData>
#include <QStandardPaths>
#include <QThreadPool>

#include <sys/stat.h>
#include <unistd.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
{
    return {reply, &std::free};
}

xcb_atom_t atom(xcb_connection_t *server, QByteArrayView name)
{
    const auto cookie = xcb_intern_atom(server, false, quint16(name.size()), name.data());
    return owned(xcb_intern_atom_reply(server, cookie, nullptr))->atom;
}

/// A window that owns the selection and tells the file's name, as the source of a drag has one.
xcb_window_t dragSource(xcb_connection_t *server, const QByteArray &fileName)
{
    const xcb_window_t window = xcb_generate_id(server);
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(server, window, atom(server, "XdndSelection"), XCB_CURRENT_TIME);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, atom(server, "XdndDirectSave0"),
                        atom(server, "text/plain"), 8, quint32(fileName.size()), fileName.constData());
    return window;
}

/// Where the receiver wants the file.
QString wantedPath(xcb_connection_t *server, xcb_window_t source)
{
    const auto cookie = xcb_get_property(server, false, source, atom(server, "XdndDirectSave0"),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
    const auto reply = owned(xcb_get_property_reply(server, cookie, nullptr));
    const QByteArray value(static_cast<const char *>(xcb_get_property_value(reply.get())),
                           xcb_get_property_value_length(reply.get()));
    return QUrl::fromEncoded(value).toLocalFile();
}

/// A source of drags in this program. When asked, it writes what it likes where it was told to, and answers what
/// it likes.
class PromisingData : public QMimeData {
public:
    using Writer = std::function<void(const QString &path)>;

    PromisingData(const QByteArray &fileName, Writer writer, QByteArray answer)
        : m_server(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection())
        , m_window(dragSource(m_server, fileName))
        , m_writer(std::move(writer))
        , m_answer(std::move(answer))
    {
        setData(u"application/octet-stream"_s, "bytes");
    }
    ~PromisingData() override { xcb_destroy_window(m_server, m_window); }
    QStringList formats() const override { return {u"XdndDirectSave0"_s, u"application/octet-stream"_s}; }
    bool hasFormat(const QString &type) const override { return formats().contains(type); }

    mutable QString path; ///< where the receiver wanted the file

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override
    {
        if (mimeType != u"XdndDirectSave0")
            return QMimeData::retrieveData(mimeType, type);
        path = wantedPath(m_server, m_window);
        m_writer(path);
        return m_answer;
    }

private:
    xcb_connection_t *m_server;
    xcb_window_t m_window;
    Writer m_writer;
    QByteArray m_answer;
};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QFile::WriteOnly))
        file.write(bytes);
}

QByteArray picture() { return EncodedImages::encoded(40, 30, "PNG"); }

/// The source of a drag in a program of its own, as far as the protocol goes (X Drag-and-Drop, version 5).
class ForeignSource {
public:
    enum Manner {
        Saves,
        SavesWhenTold,
        GivesBytes,
        GivesBytesWhenTold,
        Refuses,
        SaysNonsense,
        Dies,
        Never,
        HasAFile
    };

    ForeignSource(Manner manner, QString file)
        : m_server(xcb_connect(nullptr, nullptr))
        , m_manner(manner)
        , m_file(std::move(file))
        , m_window(dragSource(m_server, "Cover.png"))
    {
    }

    void dropOn(xcb_window_t well, int x, int y)
    {
        const QByteArray other = m_manner == HasAFile ? "text/uri-list" : "application/octet-stream";
        const quint32 position = quint32(x) << 16 | quint32(y);
        tell(well, "XdndEnter", {m_window, 5U << 24, named("XdndDirectSave0"), named(other)});
        tell(well, "XdndPosition", {m_window, 0, position, 0, named("XdndActionCopy")});
        for (;;) {
            const auto event = owned(xcb_wait_for_event(m_server));
            const auto *const message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
            if (!event)
                return;
            if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE)
                heed(*event);
            else if (message->type == named("XdndStatus"))
                tell(well, "XdndDrop", {m_window});
            else if (message->type == named("XdndFinished"))
                m_isOver = true;
        }
    }

private:
    xcb_atom_t named(QByteArrayView name) const { return atom(m_server, name); }

    void tell(xcb_window_t well, const char *type, std::initializer_list<quint32> values)
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = well;
        message.type = named(type);
        std::ranges::copy(values, message.data.data32);
        xcb_send_event(m_server, false, well, 0, reinterpret_cast<const char *>(&message));
        xcb_flush(m_server);
    }

    void heed(const xcb_generic_event_t &event)
    {
        const quint8 type = event.response_type & 0x7F;
        if (type == XCB_SELECTION_REQUEST)
            answer(reinterpret_cast<const xcb_selection_request_event_t &>(event));
        else if (type == XCB_PROPERTY_NOTIFY)
            sendPiece(reinterpret_cast<const xcb_property_notify_event_t &>(event));
    }

    /// Most sources forget what they had when the drop is over.
    void answer(const xcb_selection_request_event_t &request)
    {
        if (request.target == named("text/uri-list"))
            return reply(request, QUrl::fromLocalFile(m_file).toEncoded() + "\r\n");
        if (m_isOver && m_manner != GivesBytesWhenTold)
            return reply(request, {});
        if (request.target == named("XdndDirectSave0"))
            return answerToPromise(request);
        constexpr quint32 changes = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_server, request.requestor, XCB_CW_EVENT_MASK, &changes);
        m_rest = picture();
        reply(request, QByteArray(4, '\0'), "INCR");
    }

    void answerToPromise(const xcb_selection_request_event_t &request)
    {
        if (m_manner == Never)
            return;
        if (m_manner == Dies)
            _exit(0);
        if (m_manner == SavesWhenTold || m_manner == GivesBytesWhenTold)
            std::getchar();
        if (m_manner == Saves || m_manner == SavesWhenTold)
            write(wantedPath(m_server, m_window), picture());
        const QMap<Manner, QByteArray> others{{Refuses, {}},
                                              {GivesBytes, "F"},
                                              {GivesBytesWhenTold, "F"},
                                              {SaysNonsense, "file:///etc/passwd"}};
        reply(request, others.value(m_manner, "S"));
    }

    void reply(const xcb_selection_request_event_t &request, const QByteArray &data,
               const char *type = nullptr)
    {
        xcb_selection_notify_event_t notify{};
        notify.response_type = XCB_SELECTION_NOTIFY;
        notify.requestor = request.requestor;
        notify.selection = request.selection;
        notify.target = request.target;
        notify.property = data.isEmpty() ? xcb_atom_t(XCB_ATOM_NONE) : request.property;
        setProperty(request.requestor, request.property, type ? named(type) : request.target, data);
        xcb_send_event(m_server, false, request.requestor, 0, reinterpret_cast<const char *>(&notify));
        xcb_flush(m_server);
    }

    void sendPiece(const xcb_property_notify_event_t &event)
    {
        if (event.state != XCB_PROPERTY_DELETE)
            return;
        const QByteArray piece = m_rest.first(std::min<qsizetype>(m_rest.size(), 50));
        m_rest.remove(0, piece.size());
        setProperty(event.window, event.atom, XCB_ATOM_STRING, piece);
        xcb_flush(m_server);
    }

    void setProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const QByteArray &data)
    {
        const bool isNumber = type == named("INCR");
        xcb_change_property(m_server, XCB_PROP_MODE_REPLACE, window, property, type, isNumber ? 32 : 8,
                            quint32(isNumber ? data.size() / 4 : data.size()), data.constData());
    }

    xcb_connection_t *m_server;
    Manner m_manner;
    QString m_file;
    xcb_window_t m_window;
    QByteArray m_rest;
    bool m_isOver = false;
};

struct Well : ZEVDragImageView {
    bool hasBeenDroppedOn = false;

protected:
    void dropEvent(QDropEvent *event) override
    {
        ZEVDragImageView::dropEvent(event);
        hasBeenDroppedOn = true;
    }
};

QStringList privateFolders()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    return folder.entryList({u"promised-*"_s}, QDir::AllEntries);
}

} // namespace

class tst_FilePromises : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != u"xcb")
            QSKIP("The protocol is one of X11.");
    }

    void whatASourceMayDo()
    {
        QTemporaryDir elsewhere;
        write(elsewhere.filePath(u"secret"_s), "secret");
        const auto file = [](const QString &path) { write(path, "file"); };
        const auto nothing = [](const QString &) {};
        const auto link = [&](const QString &path) { QFile::link(elsewhere.filePath(u"secret"_s), path); };
        const auto pipe = [](const QString &path) { mkfifo(QFile::encodeName(path), 0600); };
        const auto folder = [&](const QString &path) {
            QDir().mkpath(path + u"/sub"_s);
            QFile::link(elsewhere.path(), path + u"/sub/link"_s);
        };
        const auto huge = [&](const QString &path) {
            file(path);
            truncate(QFile::encodeName(path), ZEVFilePromiseReceiver::LargestFile + 1);
        };
        const std::tuple<const char *, PromisingData::Writer, QByteArray, QByteArray> rows[] = {
            {"a file", file, "S", "file"}, {"a short-spoken one", file, "S\n", "file"},
            {"a link", link, "S", {}},     {"a pipe", pipe, "S", {}},
            {"a folder", folder, "S", {}}, {"too much", huge, "S", {}},
            {"nothing", nothing, "S", {}}, {"bytes instead", nothing, "F", "bytes"},
            {"a failure", file, "E", {}},  {"no answer", file, {}, {}},
        };
        for (const auto &[name, writer, answer, expected] : rows) {
            PromisingData data("Cover.jpg", writer, answer);
            QThreadPool queue;
            const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(ZEVPasteboard(&data));
            COMPARE_ROW(name, promises.size(), 1);
            QByteArray contents;
            bool hasFailed = false;
            const auto receipt = promises.first().receivePromisedFiles(
                &queue, 0, [&](const QByteArray &bytes, const ZEVError *error) {
                    contents = bytes;
                    hasFailed = error;
                });
            queue.waitForDone();
            COMPARE_ROW(name, contents, expected);
            COMPARE_ROW(name, hasFailed, expected.isNull());
            COMPARE_ROW(name, privateFolders(), QStringList());
        }
        QCOMPARE(QDir(elsewhere.path()).entryList(QDir::Files), QStringList(u"secret"_s));
    }

    void whereTheFileGoes()
    {
        const std::pair<QByteArray, QString> rows[] = {
            {"../../.bashrc", u".bashrc"_s}, {"/etc/ä#% ?", u"ä#% ?"_s}, {"..", {}}, {"a/", {}}, {"", {}}};
        for (const auto &[offered, name] : rows) {
            PromisingData data(
                offered, [](const QString &) {}, "E");
            const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(ZEVPasteboard(&data));
            COMPARE_ROW(name, promises.isEmpty(), name.isEmpty());
            if (name.isEmpty())
                continue;
            QThreadPool queue;
            const auto receipt =
                promises.first().receivePromisedFiles(&queue, 0, [](const QByteArray &, const ZEVError *) {});
            const QFileInfo file(data.path);
            COMPARE_ROW(name, file.fileName(), name);
            COMPARE_ROW(name, QFileInfo(file.path()).path(),
                        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
        }
    }

    void aWellTakesPromisedPictures()
    {
        for (const QByteArray name : {"Cover.png", "Cover.txt"}) {
            ZEVDragImageView well;
            PromisingData data(
                name, [&](const QString &path) { write(path, picture()); }, "S");
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&well, &enter);
            COMPARE_ROW(name.constData(), enter.isAccepted(), name.endsWith("png"));
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&well, &drop);
            QTRY_VERIFY(!well.isImporting());
            COMPARE_ROW(name.constData(), well.bitmapData(), name.endsWith("png") ? picture() : QByteArray());
        }
    }

    /// The window lives on while the source takes its time.
    void aSourceInAnotherProgram()
    {
        using Manner = ForeignSource::Manner;
        const auto nothing = [](std::unique_ptr<Well> &) {};
        const auto cancel = [](auto &well) { QTest::keyClick(well.get(), Qt::Key_Escape); };
        const auto closeWell = [](auto &well) { well.reset(); };
        const auto setOther = [](auto &well) { well->setBitmapData(EncodedImages::encoded(5, 5, "PNG")); };
        const QByteArray none, file = EncodedImages::encoded(7, 7, "PNG"),
                               other = EncodedImages::encoded(5, 5, "PNG");
        const std::tuple<const char *, Manner, std::function<void(std::unique_ptr<Well> &)>, QByteArray>
            rows[] = {
                {"a file", Manner::Saves, {}, picture()},
                {"a slow one", Manner::SavesWhenTold, nothing, picture()},
                {"bytes", Manner::GivesBytes, {}, picture()},
                {"bytes at last", Manner::GivesBytesWhenTold, nothing, picture()},
                {"no answer", Manner::Never, cancel, none},
                {"a slow one, cancelled", Manner::SavesWhenTold, cancel, none},
                {"a slow one, without the well", Manner::SavesWhenTold, closeWell, none},
                {"a slow one, for a well with other artwork", Manner::SavesWhenTold, setOther, other},
                {"a refusal", Manner::Refuses, {}, none},
                {"another answer", Manner::SaysNonsense, {}, none},
                {"an end", Manner::Dies, {}, none},
                {"a file that is there", Manner::HasAFile, {}, file},
            };
        QTemporaryDir folder;
        write(folder.filePath(u"there.png"_s), file);
        for (const auto &[name, manner, meanwhile, expected] : rows) {
            auto well = std::make_unique<Well>();
            well->show();
            QVERIFY(QTest::qWaitForWindowExposed(well.get()));
            const QPoint middle = well->mapToGlobal(well->rect().center());
            QProcess source;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"ZEV_DRAG"_s,
                               QStringList{QString::number(well->winId()), QString::number(middle.x()),
                                           QString::number(middle.y()), QString::number(int(manner)),
                                           folder.filePath(u"there.png"_s)}
                                   .join(u' '));
            source.setProcessEnvironment(environment);
            source.start(QCoreApplication::applicationFilePath(), {u"beTheSource"_s});
            QTRY_VERIFY2(well->hasBeenDroppedOn, name);
            if (meanwhile) {
                auto *const bar = well->findChild<QProgressBar *>();
                QTRY_VERIFY2(bar->isVisible(), name);
                meanwhile(well);
                source.write("\n");
            }
            if (well) {
                QTRY_VERIFY2(!well->isImporting(), name);
                COMPARE_ROW(name, well->bitmapData(), expected);
            }
            COMPARE_ROW(name, privateFolders(), QStringList());
            source.kill();
            source.waitForFinished();
        }
    }

    void beTheSource()
    {
        const QStringList given = qEnvironmentVariable("ZEV_DRAG").split(u' ');
        if (given.size() == 5)
            ForeignSource(ForeignSource::Manner(given[3].toInt()), given[4])
                .dropOn(given[0].toUInt(), given[1].toInt(), given[2].toInt());
    }
};

QTEST_MAIN(tst_FilePromises)
#include "tst_FilePromises.moc"
