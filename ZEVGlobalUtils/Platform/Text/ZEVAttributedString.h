// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QString>
#include <QTextLayout>

/// A text with character formats over stretches of it, in the order in which they were appended.
/// What has no format takes the one of the place where the text is drawn.
class ZEV_EXPORT ZEVAttributedString {
public:
    ZEVAttributedString() = default;
    explicit ZEVAttributedString(const QString &string)
        : m_string(string)
    {
    }

    const QString &string() const { return m_string; }
    const QList<QTextLayout::FormatRange> &formats() const { return m_formats; }
    qsizetype length() const { return m_string.size(); }

    void append(const QString &string, const QTextCharFormat &format = {});
    void append(const ZEVAttributedString &other);
    void setFormat(ZEVRange range, const QTextCharFormat &format);

    friend bool operator==(const ZEVAttributedString &, const ZEVAttributedString &) = default;

private:
    QString m_string;
    QList<QTextLayout::FormatRange> m_formats;
};

Q_DECLARE_METATYPE(ZEVAttributedString)
