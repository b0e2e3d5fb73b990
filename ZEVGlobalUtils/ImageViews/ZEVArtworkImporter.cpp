// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

ZEVArtworkImporter::ZEVArtworkImporter(ZEVDragImageView *well)
    : QObject(well)
    , m_well(well)
{
    m_queue.setMaxThreadCount(1); // files arrive in the order of their drops
    m_queue.setThreadPriority(QThread::HighPriority);
}

ZEVArtworkImporter::~ZEVArtworkImporter()
{
    m_queue.clear();
    m_queue.waitForDone();
}

void ZEVArtworkImporter::cancel()
{
    m_settled = begin();
    Q_EMIT readingEnded();
}

/// Whether what comes of it may be shown. There is no second answer.
bool ZEVArtworkImporter::settle(quint64 import)
{
    if (import <= m_settled)
        return false;
    m_settled = import;
    return true;
}

/// The answer may come from any thread and at any time, and the well may have gone.
void ZEVArtworkImporter::vet(quint64 import, const QByteArray &bytes, const Apply &apply)
{
    if (bytes.isEmpty() || import <= m_settled)
        return;
    const auto answer = [importer = QPointer(this), import, apply](const QByteArray &accepted) {
        QMetaObject::invokeMethod(qApp, [=] {
            if (importer && !accepted.isEmpty() && importer->settle(import))
                apply(accepted);
        });
    };
    const ZEVWeakRef<ZEVDragImageViewDelegate> delegate = m_well->delegate();
    if (!delegate || !delegate->acceptBitmapData(m_well, bytes, answer))
        answer(bytes);
}

/// The disk may be slow, or far away.
bool ZEVArtworkImporter::readFile(quint64 import, const QUrl &file, const Apply &apply)
{
    const auto path = ZEVLocalFile::path(file);
    if (!path || !QFileInfo(*path).isFile())
        return false;
    beginReading();
    m_queue.start([=, this] {
        const QByteArray bytes = ZEVImageFile::read(*path);
        QMetaObject::invokeMethod(this, [=, this] { endReading(import, bytes, apply); });
    });
    return true;
}

bool ZEVArtworkImporter::receivePromisedFile(quint64 import, const ZEVPasteboard &pasteboard,
                                             const Apply &apply)
{
    const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(pasteboard);
    if (promises.isEmpty())
        return false;
    beginReading();
    promises.first().receivePromisedFiles(
        &m_queue, [=, this](const QByteArray &bytes, const ZEVError *error) {
            if (error)
                qCWarning(zevLog).noquote() << "File promise error:" << error->localizedDescription();
            QMetaObject::invokeMethod(this, [=, this] { endReading(import, bytes, apply); });
        });
    return true;
}

void ZEVArtworkImporter::beginReading()
{
    ++m_filesBeingRead;
    Q_EMIT readingBegan();
}

void ZEVArtworkImporter::endReading(quint64 import, const QByteArray &bytes, const Apply &apply)
{
    if (--m_filesBeingRead == 0)
        Q_EMIT readingEnded();
    vet(import, bytes, apply);
}
