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

void ZEVArtworkImporter::cancel() { settle(begin()); }

void ZEVArtworkImporter::decode(quint64 import, const QByteArray &bytes, const Apply &then)
{
    beginWork(import);
    m_queue.start([=, this, room = m_well->roomForImage()] {
        const auto description = std::make_shared<ZEVImageDescription>(bytes, room);
        QMetaObject::invokeMethod(this, [=, this] {
            endWork(import);
            if (import < m_settled)
                return;
            if (!description->isShown())
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
    settle(import);
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
    beginWork(import);
    m_queue.start([=, this] {
        const QByteArray bytes = ZEVImageFile::read(*path);
        QMetaObject::invokeMethod(this, [=, this] {
            vet(import, bytes, apply);
            endWork(import);
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
    beginWork(import);
    const WId window = m_well->window()->internalWinId();
    m_promises[import] = promises.first().receivePromisedFiles(
        &m_queue, window, [=, this](const QByteArray &bytes, const ZEVError *error) {
            if (error)
                qCWarning(zevLog).noquote() << "File promise error:" << error->localizedDescription();
            QMetaObject::invokeMethod(this, [=, this] {
                m_promises.erase(import);
                vet(import, bytes, apply);
                endWork(import);
            });
        });
    return true;
}

void ZEVArtworkImporter::beginWork(quint64 import)
{
    m_works.append(import);
    Q_EMIT workBegan();
}

void ZEVArtworkImporter::endWork(quint64 import)
{
    if (m_works.removeOne(import) && m_works.isEmpty())
        Q_EMIT workEnded();
}

/// Whatever comes of older imports is not waited for any more.
void ZEVArtworkImporter::settle(quint64 import)
{
    m_settled = import;
    m_promises.erase(m_promises.begin(), m_promises.lower_bound(import));
    if (m_works.removeIf([=](quint64 work) { return work < import; }) > 0 && m_works.isEmpty())
        Q_EMIT workEnded();
}
