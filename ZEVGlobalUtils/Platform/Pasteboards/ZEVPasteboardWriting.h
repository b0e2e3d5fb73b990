// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>

#include <QStringList>

#include <optional>

/// What can be put on a pasteboard or dragged. Types are uniform type identifiers.
class ZEV_EXPORT ZEVPasteboardWriting {
public:
    /// The type of a promised file's address and that of what the file will hold.
    static constexpr QStringView PromisedFileURLType = u"com.apple.pasteboard.promised-file-url";
    static constexpr QStringView PromisedFileContentType = u"com.apple.pasteboard.promised-file-content-type";

    virtual ~ZEVPasteboardWriting();

    /// The types on offer, in the order in which they are written.
    virtual QStringList writableTypesForPasteboard() const = 0;

    /// The bytes of \a type, made when somebody asks for them; a string as UTF-8. Asked for a
    /// PromisedFileURLType, it writes the file to the paste location of its pasteboard. Null is none.
    virtual QByteArray pasteboardPropertyListForType(QStringView type) const = 0;

    /// The names under which the bytes of \a type are offered to other programs.
    virtual QStringList mimeTypesForType(QStringView type) const;

    /// The name that the promised file would like to have; empty without a promise.
    virtual QString promisedFileName() const { return {}; }

    /// Writes the promised file where the receiver wants it, and answers its address; null for none.
    virtual QByteArray writePromisedFile(const ZEVPasteboard::PasteLocation &) const { return {}; }

    /// Under which name the paste location will be found. Those who promise no file need not know.
    virtual void setPasteboardName(const QString &) { }
};
