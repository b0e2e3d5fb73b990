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

/// A source of drags as far as the protocol goes: a window owns the selection and has the file's name in a
/// property. When asked, it writes what it likes where it was told to, and answers what it likes.
class PromisingData : public QMimeData {
public:
    using Writer = std::function<void(const QString &path)>;

    PromisingData(const QByteArray &fileName, Writer writer, QByteArray answer)
        : m_server(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection())
        , m_window(xcb_generate_id(m_server))
        , m_writer(std::move(writer))
        , m_answer(std::move(answer))
    {
        const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data;
        xcb_create_window(m_server, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_server, m_window, atom("XdndSelection"), XCB_CURRENT_TIME);
        xcb_change_property(m_server, XCB_PROP_MODE_REPLACE, m_window, atom("XdndDirectSave0"),
                            atom("text/plain"), 8, quint32(fileName.size()), fileName.constData());
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
        const auto cookie = xcb_get_property(m_server, false, m_window, atom("XdndDirectSave0"),
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
        const auto reply = owned(xcb_get_property_reply(m_server, cookie, nullptr));
        const QByteArray value(static_cast<const char *>(xcb_get_property_value(reply.get())),
                               xcb_get_property_value_length(reply.get()));
        path = QUrl::fromEncoded(value).toLocalFile();
        m_writer(path);
        return m_answer;
    }

private:
    xcb_atom_t atom(QByteArrayView name) const
    {
        const auto cookie = xcb_intern_atom(m_server, false, quint16(name.size()), name.data());
        return owned(xcb_intern_atom_reply(m_server, cookie, nullptr))->atom;
    }

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
            promises.first().receivePromisedFiles(&queue,
                                                  [&](const QByteArray &bytes, const ZEVError *error) {
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
            promises.first().receivePromisedFiles(&queue, [](const QByteArray &, const ZEVError *) {});
            const QFileInfo file(data.path);
            COMPARE_ROW(name, file.fileName(), name);
            COMPARE_ROW(name, QFileInfo(file.path()).path(),
                        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
        }
    }

    void aWellTakesPromisedPictures()
    {
        const QByteArray picture = EncodedImages::encoded(5, 5, "PNG");
        for (const QByteArray name : {"Cover.png", "Cover.txt"}) {
            ZEVDragImageView well;
            PromisingData data(
                name, [&](const QString &path) { write(path, picture); }, "S");
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&well, &enter);
            COMPARE_ROW(name.constData(), enter.isAccepted(), name.endsWith("png"));
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&well, &drop);
            QTRY_VERIFY(!well.isImporting());
            COMPARE_ROW(name.constData(), well.bitmapData(), name.endsWith("png") ? picture : QByteArray());
        }
    }
};

QTEST_MAIN(tst_FilePromises)
#include "tst_FilePromises.moc"
