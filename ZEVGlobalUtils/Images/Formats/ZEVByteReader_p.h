// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QtEndian>

/// Reads numbers out of foreign bytes. What lies past their end reads as 0 and is remembered, so that a
/// header is read first and judged once.
class ZEVByteReader {
public:
    enum Order { BigEndian, LittleEndian };

    ZEVByteReader(QByteArrayView bytes, Order order)
        : m_bytes(bytes)
        , m_order(order)
    {
    }

    quint8 byte(quint64 at) { return number<quint8>(at); }
    quint16 word(quint64 at) { return number<quint16>(at); }
    quint32 longWord(quint64 at) { return number<quint32>(at); }

    bool isTag(quint64 at, const char (&tag)[5])
    {
        return covers(at, 4) && m_bytes.sliced(qsizetype(at), 4) == QByteArrayView(tag, 4);
    }

    quint64 size() const { return quint64(m_bytes.size()); }
    bool hasReadPastEnd() const { return m_hasReadPastEnd; }

private:
    bool covers(quint64 at, quint64 count)
    {
        const bool inside = at <= size() && size() - at >= count;
        m_hasReadPastEnd = m_hasReadPastEnd || !inside;
        return inside;
    }

    template <typename Number>
    Number number(quint64 at)
    {
        if (!covers(at, sizeof(Number)))
            return 0;
        const char *const from = m_bytes.data() + at;
        return m_order == BigEndian ? qFromBigEndian<Number>(from) : qFromLittleEndian<Number>(from);
    }

    QByteArrayView m_bytes;
    Order m_order;
    bool m_hasReadPastEnd = false;
};
