// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

void ZEVAttributedString::append(const QString &string, const QTextCharFormat &format)
{
    const ZEVRange range{m_string.size(), string.size()};
    m_string += string;
    setFormat(range, format);
}

void ZEVAttributedString::append(const ZEVAttributedString &other)
{
    const qsizetype offset = m_string.size();
    const QList<QTextLayout::FormatRange> formats = other.m_formats;
    m_string += other.m_string;
    for (const QTextLayout::FormatRange &range : formats)
        setFormat({offset + range.start, range.length}, range.format);
}

void ZEVAttributedString::setFormat(ZEVRange range, const QTextCharFormat &format)
{
    if (range.length > 0 && !format.isEmpty())
        m_formats.append({static_cast<int>(range.location), static_cast<int>(range.length), format});
}
