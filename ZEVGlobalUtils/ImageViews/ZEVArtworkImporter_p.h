// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <map>
#include <memory>

class QUrl;
class ZEVDragImageView;
class ZEVImageDescription;
class ZEVPasteboard;

/// Brings artwork into a well: waits for files, decodes, refuses what cannot be shown, asks the well's delegate, and
/// drops what comes too late. Imports are numbered as the user began them; one is too late when a newer one
/// has been accepted.
class ZEVArtworkImporter : public QObject {
    Q_OBJECT

public:
    using Description = std::shared_ptr<ZEVImageDescription>;
    /// Gets what is to be shown; never null.
    using Apply = std::function<void(const Description &accepted)>;

    explicit ZEVArtworkImporter(ZEVDragImageView *well);
    /// Waits for the file that is being read.
    ~ZEVArtworkImporter() override;

    QThreadPool *queue() { return &m_queue; }

    quint64 begin() { return ++m_last; }

    /// Gives up all that has been begun.
    void cancel();

    /// Decodes in the queue, asks the delegate, and calls \a apply with what it accepts.
    void vet(quint64 import, const QByteArray &bytes, const Apply &apply);

    /// The same without asking the delegate.
    void take(quint64 import, const QByteArray &bytes, const Apply &apply);

    /// Reads in the queue, then vets. False for what is no local file.
    bool readFile(quint64 import, const QUrl &file, const Apply &apply);

    /// The same with a promised file; only while the drop is being handled. False without a promise.
    bool receivePromisedFile(quint64 import, const ZEVPasteboard &pasteboard, const Apply &apply);

    /// Whether something is on its way that may still be shown.
    bool isWorking() const { return !m_works.isEmpty(); }

Q_SIGNALS:
    void workBegan();
    void workEnded();
    /// With the reason for the user.
    void refused(const QString &reason);

private:
    void beginWork(quint64 import);
    void endWork(quint64 import);
    void settle(quint64 import);
    void decode(quint64 import, const QByteArray &bytes, const Apply &then);
    void ask(quint64 import, const Description &offered, const Apply &apply);
    void answer(quint64 import, const Description &offered, const QByteArray &accepted, const Apply &apply);

    ZEVDragImageView *m_well;
    quint64 m_last = 0;
    quint64 m_settled = 0; ///< the newest one that was accepted or given up
    QList<quint64> m_works; ///< one for each piece of work that is waited for
    QThreadPool m_queue;
    std::map<quint64, std::unique_ptr<QObject>> m_promises; ///< of files that have not come yet
};
