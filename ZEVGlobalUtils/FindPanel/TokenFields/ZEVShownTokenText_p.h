// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QString>

class OEXTokenTextStorage;

/// The text of a token field as people read it, every token as its title, and where each place of it lies in
/// the storage, where a token is one character. A token without a title stands as an empty text.
class ZEVShownTokenText {
public:
    explicit ZEVShownTokenText(const OEXTokenTextStorage &storage);

    const QString &string() const { return m_string; }

    /// A place inside a title is the token's own when it begins a stretch, and the place behind the token
    /// when it ends one.
    qsizetype storageIndex(qsizetype shownIndex, bool isEnd = false) const;
    ZEVRange storageRange(qsizetype shownStart, qsizetype shownEnd) const;
    qsizetype shownIndex(qsizetype storageIndex) const;

private:
    struct Token {
        qsizetype storageIndex;
        ZEVRange shown;
    };

    QString m_string;
    QList<Token> m_tokens;
};
