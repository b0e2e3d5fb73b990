// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <optional>

class QMimeData;
class ZEVPasteboardWriting;

/// The clipboard or the data of a drag, read by uniform type identifiers. Main thread only.
class ZEV_EXPORT ZEVPasteboard {
public:
    static constexpr QStringView GeneralName = u"general";
    static constexpr QStringView DragName = u"drag";

    static ZEVPasteboard generalPasteboard();

    /// The data of a drag, as its events bring it. Once that is gone, the pasteboard is empty.
    explicit ZEVPasteboard(const QMimeData *draggedData);

    const QString &name() const { return m_name; }

    /// What is there, in the order in which it is offered; names without an identifier as they are.
    QStringList types() const;

    /// Null when there is none. A picture without encoded bytes, as Qt programs offer it, is found as a PNG.
    /// ZEVUniformType::Image finds what is offered under that very name and otherwise a picture of a type
    /// that ZEVUniformType has no identifier for (WebP, AVIF), but only when it is all there is.
    QByteArray dataForType(QStringView type) const;

    /// Local or remote, as they are offered; nothing is ever fetched.
    QList<QUrl> URLs() const;
    /// The first of them, invalid when there is none.
    QUrl URL() const;

    void clearContents();
    /// Puts \a object in the place of all that is there. Only the general pasteboard can be written to: false
    /// for others.
    bool writeObject(const std::shared_ptr<ZEVPasteboardWriting> &object);

    /// Where the receiver wants a promised file. It may have its own mind about the name.
    struct PasteLocation {
        QUrl folder;
        QString fileName;
    };
    /// Nil while nobody waits for a file on the pasteboard of that name.
    static std::optional<PasteLocation> pasteLocation(const QString &pasteboardName);
    static void setPasteLocation(const QString &pasteboardName, const std::optional<PasteLocation> &location);

private:
    explicit ZEVPasteboard(QStringView name);
    const QMimeData *mimeData() const;

    QString m_name;
    QPointer<const QMimeData> m_draggedData;
};
