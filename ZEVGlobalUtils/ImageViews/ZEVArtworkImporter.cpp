// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
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
    Q_EMIT workEnded();
}

void ZEVArtworkImporter::decode(quint64 import, const QByteArray &bytes, const Apply &then)
{
    beginWork();
    m_queue.start([=, this] {
        const auto description = std::make_shared<ZEVImageDescription>(bytes);
        QMetaObject::invokeMethod(this, [=, this] {
            endWork();
            if (import < m_settled)
                return;
            if (description->image().isNull())
                Q_EMIT refused(description->remark());
            else
                then(description);
        });
    });
}

void ZEVArtworkImporter::vet(quint64 import, const QByteArray &bytes, const Apply &apply)
{
    if (!bytes.isEmpty() && import > m_settled)
        decode(import, bytes, [=, this](const Description &offered) { ask(import, offered, apply); });
}

void ZEVArtworkImporter::take(quint64 import, const QByteArray &bytes, const Apply &apply)
{
    decode(import, bytes,
           [=, this](const Description &offered) { answer(import, offered, offered->bitmapData(), apply); });
}

/// The answer may come from any thread and at any time, and the well may have gone.
void ZEVArtworkImporter::ask(quint64 import, const Description &offered, const Apply &apply)
{
    const auto reply = [importer = QPointer(this), import, offered, apply](const QByteArray &accepted) {
        QMetaObject::invokeMethod(qApp, [=] {
            if (importer)
                importer->answer(import, offered, accepted, apply);
        });
    };
    const ZEVWeakRef<ZEVDragImageViewDelegate> delegate = m_well->delegate();
    if (!delegate || !delegate->acceptImageDescription(m_well, offered, reply))
        reply(offered->bitmapData());
}

/// There is no second answer.
void ZEVArtworkImporter::answer(quint64 import, const Description &offered, const QByteArray &accepted,
                                const Apply &apply)
{
    if (accepted.isEmpty() || import <= m_settled)
        return;
    m_settled = import;
    if (accepted == offered->bitmapData())
        apply(offered);
    else
        decode(import, accepted, apply);
}

/// The disk may be slow, or far away.
bool ZEVArtworkImporter::readFile(quint64 import, const QUrl &file, const Apply &apply)
{
    const auto path = ZEVLocalFile::path(file);
    if (!path || !QFileInfo(*path).isFile())
        return false;
    beginWork();
    m_queue.start([=, this] {
        const QByteArray bytes = ZEVImageFile::read(*path);
        QMetaObject::invokeMethod(this, [=, this] {
            endWork();
            vet(import, bytes, apply);
        });
    });
    return true;
}

bool ZEVArtworkImporter::receivePromisedFile(quint64 import, const ZEVPasteboard &pasteboard,
                                             const Apply &apply)
{
    const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(pasteboard);
    if (promises.isEmpty())
        return false;
    beginWork();
    promises.first().receivePromisedFiles(
        &m_queue, [=, this](const QByteArray &bytes, const ZEVError *error) {
            if (error)
                qCWarning(zevLog).noquote() << "File promise error:" << error->localizedDescription();
            QMetaObject::invokeMethod(this, [=, this] {
                endWork();
                vet(import, bytes, apply);
            });
        });
    return true;
}

void ZEVArtworkImporter::beginWork()
{
    ++m_works;
    Q_EMIT workBegan();
}

void ZEVArtworkImporter::endWork()
{
    if (--m_works == 0)
        Q_EMIT workEnded();
}
