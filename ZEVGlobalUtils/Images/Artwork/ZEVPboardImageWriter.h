// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardWriting.h>

/// Offers artwork on a pasteboard or in a drag: as its bytes, and as a file that is written where the
/// receiver wants it. A ZEVPasteboardItem brings it to other programs.
class ZEV_EXPORT ZEVPboardImageWriter : public ZEVPasteboardWriting {
public:
    /// The pasteboard whose paste location a promised file goes to; without one, no file is written.
    const QString &pasteboardName() const { return m_pasteboardName; }
    void setPasteboardName(const QString &name) override { m_pasteboardName = name; }

    const QByteArray &bitmapData() const { return m_bitmapData; }
    void setBitmapData(const QByteArray &data) { m_bitmapData = data; }

    /// The file's name; every "/" of it becomes a ":".
    const QString &fileName() const { return m_fileName; }
    void setFileName(const QString &name);

    QStringList writableTypesForPasteboard() const override;

    /// The address of a promised file is that of the file which this call has written to the paste location of the
    /// pasteboard.
    QByteArray pasteboardPropertyListForType(QStringView type) const override;

    /// Among them the artwork's own MIME type.
    QStringList mimeTypesForType(QStringView type) const override;

    /// With the extension that the artwork calls for, unless the name has one: by its first byte or, where that says
    /// nothing ("webp", "avif"), by all of its header.
    QString promisedFileName() const override;

    /// Next to a file of the same name under a numbered one. A failure is presented to the user afterwards, since a
    /// drag may be waiting. Nothing is written without artwork.
    QByteArray writePromisedFile(const ZEVPasteboard::PasteLocation &location) const override;

private:
    QString withExtension(const QString &name) const;

    QString m_pasteboardName;
    QByteArray m_bitmapData;
    QString m_fileName;
};
