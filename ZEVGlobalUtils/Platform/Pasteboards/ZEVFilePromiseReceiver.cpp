// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVRegularFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDirectSave_p.h>
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

/// The answers: "S" saved; "F" the source cannot write there and gives the bytes instead; all else failed.
void ZEVFilePromiseReceiver::receivePromisedFiles(QThreadPool *queue, const Reader &reader) const
{
    std::shared_ptr<QTemporaryDir> folder = newPrivateFolder();
    const QString path = folder->filePath(m_fileName);
    ZEVDirectSave::setAddress(QUrl::fromLocalFile(path).toEncoded());
    const QByteArray answer = m_pasteboard.dataForType(ZEVDirectSave::MimeType).left(1);
    QByteArray bytes;
    if (answer == "F")
        bytes = m_pasteboard.dataForType(u"application/octet-stream");
    queue->start([folder = std::move(folder), path, answer, bytes, reader]() mutable {
        const bool isBytes = !bytes.isEmpty() && bytes.size() <= LargestFile;
        int problem = isBytes ? 0 : ECANCELED;
        if (answer == "S")
            problem = ZEVRegularFile::read(path, LargestFile, &bytes);
        folder.reset();
        report(path, problem, bytes, reader);
    });
}
