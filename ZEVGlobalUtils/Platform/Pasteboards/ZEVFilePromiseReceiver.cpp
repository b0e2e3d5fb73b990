// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVRegularFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDirectSave_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDragRequest_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThreadPool>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// What the source says is its wish, and may lead anywhere or be longer than a file system takes.
QString lastComponent(const QString &name)
{
    const QString last = name.section(u'/', -1).remove(QChar::Null);
    return last == u"." || last == u".." ? QString()
                                         : QString::fromUtf8(ZEVFileName(last.toUtf8()).fitting());
}

/// The user's alone (0700), and gone with everything in it whatever happens.
std::shared_ptr<QTemporaryDir> newPrivateFolder()
{
    return std::make_shared<QTemporaryDir>(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
                                           + u"/promised-XXXXXX"_s);
}

void report(const QString &path, int problem, const QByteArray &contents,
            const ZEVFilePromiseReceiver::Reader &reader)
{
    if (problem == 0)
        return reader(contents, nullptr);
    const ZEVError error =
        ZEVFileErrors::error(problem, ZEVFileErrors::Operation::Copy, QUrl::fromLocalFile(path));
    reader({}, &error);
}

/// A file on its way from the source of a drag. It is given up with the object.
class PromisedFile : public QObject {
public:
    PromisedFile(const ZEVPasteboard &pasteboard, const QString &fileName, QThreadPool *queue,
                 const ZEVFilePromiseReceiver::Reader &reader)
        : m_pasteboard(pasteboard)
        , m_folder(newPrivateFolder())
        , m_path(m_folder->filePath(fileName))
        , m_queue(queue)
        , m_reader(reader)
    {
    }

    /// A source that gives bytes in place of the file knows that at once, and some have forgotten them after the
    /// drop: so long the drop waits.
    void request(WId window)
    {
        constexpr int Patience = 100; // milliseconds
        m_window = window;
        ZEVDirectSave::setAddress(QUrl::fromLocalFile(m_path).toEncoded());
        ask(ZEVDirectSave::MimeType, &PromisedFile::heed);
        if (m_request)
            m_request->waitForAnswer(Patience);
    }

private:
    /// A request may be answered, and followed by the next one, while it is waited for.
    using Request = std::unique_ptr<ZEVDragRequest, QScopedPointerDeleteLater>;

    void ask(QStringView type, void (PromisedFile::*then)(const QByteArray &))
    {
        m_request =
            Request(ZEVDragRequest::ask(m_window, type, ZEVFilePromiseReceiver::LargestFile).release());
        if (!m_request)
            return (this->*then)(m_pasteboard.dataForType(type)); // the source is in this program
        connect(m_request.get(), &ZEVDragRequest::answered, this, then);
    }

    /// "S" saved; "F" the source cannot write there and gives the bytes instead; all else failed.
    void heed(const QByteArray &answer)
    {
        if (answer.startsWith('F'))
            return ask(u"application/octet-stream", &PromisedFile::handOn);
        if (!answer.startsWith('S'))
            return handOn({});
        m_queue->start([folder = std::move(m_folder), path = m_path, reader = m_reader]() mutable {
            QByteArray bytes;
            const int problem = ZEVRegularFile::read(path, ZEVFilePromiseReceiver::LargestFile, &bytes);
            folder.reset();
            report(path, problem, bytes, reader);
        });
    }

    void handOn(const QByteArray &bytes)
    {
        m_folder.reset();
        const bool isGood = !bytes.isEmpty() && bytes.size() <= ZEVFilePromiseReceiver::LargestFile;
        m_queue->start([path = m_path, bytes, isGood, reader = m_reader] {
            report(path, isGood ? 0 : ECANCELED, bytes, reader);
        });
    }

    ZEVPasteboard m_pasteboard;
    std::shared_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QThreadPool *m_queue;
    ZEVFilePromiseReceiver::Reader m_reader;
    WId m_window = 0;
    Request m_request;
};

} // namespace

ZEVFilePromiseReceiver::ZEVFilePromiseReceiver(const ZEVPasteboard &pasteboard, const QString &fileName)
    : m_pasteboard(pasteboard)
    , m_fileName(fileName)
{
}

QStringList ZEVFilePromiseReceiver::readableDraggedTypes() { return {ZEVDirectSave::MimeType.toString()}; }

QList<ZEVFilePromiseReceiver> ZEVFilePromiseReceiver::receiversFromPasteboard(const ZEVPasteboard &pasteboard)
{
    if (!pasteboard.types().contains(ZEVDirectSave::MimeType))
        return {};
    const QString name = lastComponent(ZEVDirectSave::offeredName());
    return name.isEmpty() ? QList<ZEVFilePromiseReceiver>() : QList{ZEVFilePromiseReceiver(pasteboard, name)};
}

std::unique_ptr<QObject> ZEVFilePromiseReceiver::receivePromisedFiles(QThreadPool *queue, WId window,
                                                                      const Reader &reader) const
{
    auto file = std::make_unique<PromisedFile>(m_pasteboard, m_fileName, queue, reader);
    file->request(window);
    return file;
}
