// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>

#include <QWindow>

#include <functional>
#include <memory>

class QThreadPool;
class ZEVError;

/// A file that the source of a drag will write once it is told where: the receiving side of the X Direct Save
/// protocol (freedesktop.org, XDS version 0).
class ZEVFilePromiseReceiver {
public:
    /// In bytes; what is larger is an error.
    static constexpr qint64 LargestFile = 256LL * 1024 * 1024;

    /// The names under which promises are offered.
    static QStringList readableDraggedTypes();

    /// The promises of \a pasteboard, which are one at most.
    static QList<ZEVFilePromiseReceiver> receiversFromPasteboard(const ZEVPasteboard &pasteboard);

    /// The name that the source would give the file, without any folder.
    const QString &fileName() const { return m_fileName; }

    /// The contents of the file, or why there are none (then they are null).
    using Reader = std::function<void(const QByteArray &contents, const ZEVError *error)>;

    /// Has the source write its file into a private folder. That can only be asked for while the drop is being handled,
    /// in \a window; the source may take its time, or never answer. \a reader is called in \a queue when the file has
    /// been read and is gone again. Deleting what is returned before that gives the file up: a reader that has not
    /// been queued is not called then.
    std::unique_ptr<QObject> receivePromisedFiles(QThreadPool *queue, WId window, const Reader &reader) const;

private:
    ZEVFilePromiseReceiver(const ZEVPasteboard &pasteboard, const QString &fileName);

    ZEVPasteboard m_pasteboard;
    QString m_fileName;
};
