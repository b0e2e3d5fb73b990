// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>

class QUrl;
class ZEVDragImageView;
class ZEVPasteboard;

/// Brings artwork into a well: waits for files, asks the well's delegate, and drops what comes too late.
/// Imports are numbered as the user began them; one is too late when a newer one is shown already.
class ZEVArtworkImporter : public QObject {
    Q_OBJECT

public:
    using Apply = std::function<void(const QByteArray &accepted)>;

    explicit ZEVArtworkImporter(ZEVDragImageView *well);
    /// Waits for the file that is being read.
    ~ZEVArtworkImporter() override;

    QThreadPool *queue() { return &m_queue; }

    quint64 begin() { return ++m_last; }

    /// Gives up all that has been begun.
    void cancel();

    /// Asks the delegate, and calls \a apply with what it accepts unless that comes too late.
    void vet(quint64 import, const QByteArray &bytes, const Apply &apply);

    /// Reads in the queue, then vets. False for what is no local file.
    bool readFile(quint64 import, const QUrl &file, const Apply &apply);

    /// The same with a promised file; only while the drop is being handled. False without a promise.
    bool receivePromisedFile(quint64 import, const ZEVPasteboard &pasteboard, const Apply &apply);

    bool isReading() const { return m_filesBeingRead > 0; }

Q_SIGNALS:
    void readingBegan();
    void readingEnded();

private:
    void beginReading();
    void endReading(quint64 import, const QByteArray &bytes, const Apply &apply);
    bool settle(quint64 import);

    ZEVDragImageView *m_well;
    quint64 m_last = 0;
    quint64 m_settled = 0;
    int m_filesBeingRead = 0;
    QThreadPool m_queue;
};
