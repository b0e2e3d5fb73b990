// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>

#include <functional>

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

    /// Has the source write its file into a private folder. That is only possible while the drop is being
    /// handled, and takes as long as the source does, though never for ever. \a reader is called in \a queue
    /// afterwards, when the file is gone again.
    void receivePromisedFiles(QThreadPool *queue, const Reader &reader) const;

private:
    ZEVFilePromiseReceiver(const ZEVPasteboard &pasteboard, const QString &fileName);

    ZEVPasteboard m_pasteboard;
    QString m_fileName;
};
