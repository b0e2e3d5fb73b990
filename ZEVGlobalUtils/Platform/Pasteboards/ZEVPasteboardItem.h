// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QMimeData>

#include <memory>

class QDrag;
class ZEVPasteboardWriting;

/// Offers an object to other programs: its bytes when they ask for them, and its promised file. In a drag on
/// X11 that is the X Direct Save protocol, in which the receiver names the file; everywhere else it is the
/// address of a file in a private folder, which is written when the address is first asked for and lasts
/// until the process ends.
class ZEV_EXPORT ZEVPasteboardItem : public QMimeData {
    Q_OBJECT

public:
    /// The item lives as long as Qt needs it, at times longer than the drag.
    ZEVPasteboardItem(std::shared_ptr<ZEVPasteboardWriting> object, const QString &pasteboardName);

    QStringList formats() const override;
    bool hasFormat(const QString &mimeType) const override;

    /// Runs \a drag, whose data the item is, as a copy.
    Qt::DropAction exec(QDrag *drag);

    /// Writes the promised file to the address that the receiver gave. The answer is the protocol's: "S" for
    /// saved, "F" for an address that only the receiver can reach (it then asks for the bytes), else "E".
    QByteArray answerToDirectSave(const QByteArray &address) const;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    bool usesDirectSave() const;
    QString promiseMimeType() const;
    QString typeForMimeType(const QString &mimeType) const;
    QByteArray fileInPrivateFolder() const;

    std::shared_ptr<ZEVPasteboardWriting> m_object;
    QString m_pasteboardName;
    mutable QByteArray m_privateFile;
    mutable bool m_mustSaveItself = false; ///< the receiver, by the answer that it was given
};
