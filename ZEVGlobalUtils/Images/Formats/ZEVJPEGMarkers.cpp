// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVJPEGMarkers_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>

namespace {

enum Marker : quint8 {
    None = 0,
    TEM = 0x01,
    DHT = 0xC4,
    JPG = 0xC8,
    DAC = 0xCC,
    RST0 = 0xD0,
    SOI = 0xD8,
    EOI = 0xD9,
    SOS = 0xDA,
    APP1 = 0xE1,
};

/// Stands on one marker after the other, skipping what lies between them.
class Markers {
public:
    explicit Markers(QByteArrayView bytes)
        : m_bytes(bytes)
        , m_reader(bytes, ZEVByteReader::BigEndian)
    {
    }

    /// The next marker, None at the end of the bytes.
    quint8 next()
    {
        if (isSegment())
            m_at += m_reader.word(m_at);
        while (toNextFill()) {
            const quint8 code = m_reader.byte(m_at++);
            // A stuffed zero and restart markers belong to the coded data.
            if (code != 0 && (code < RST0 || code >= SOI))
                return m_code = code;
        }
        return m_code = None;
    }

    /// Where the current segment has its length.
    quint64 segment() const { return m_at; }

    /// What stands in the segment behind its length; empty when the bytes end within it.
    QByteArrayView content()
    {
        const quint64 length = m_reader.word(m_at);
        const bool isWhole = length >= 2 && m_at + length <= m_reader.size();
        return isWhole ? m_bytes.sliced(qsizetype(m_at) + 2, qsizetype(length) - 2) : QByteArrayView();
    }

private:
    bool isSegment() const { return m_code != None && m_code != TEM && m_code != SOI && m_code != EOI; }

    /// Behind the 0xFF bytes that come before a code.
    bool toNextFill()
    {
        const qsizetype fill = m_at < m_reader.size() ? m_bytes.indexOf('\xFF', qsizetype(m_at)) : -1;
        if (fill < 0)
            return false;
        m_at = quint64(fill);
        while (m_reader.byte(m_at) == 0xFF)
            ++m_at;
        return !m_reader.hasReadPastEnd();
    }

    QByteArrayView m_bytes;
    ZEVByteReader m_reader;
    quint64 m_at = 0;
    quint8 m_code = None;
};

bool isFrame(quint8 code) { return (code & 0xF0) == 0xC0 && code != DHT && code != JPG && code != DAC; }

} // namespace

std::optional<quint64> ZEVJPEGMarkers::frameHeader(QByteArrayView bytes)
{
    Markers markers(bytes);
    for (quint8 code = markers.next(); code != None && code != SOS && code != EOI; code = markers.next()) {
        if (isFrame(code))
            return markers.segment();
    }
    return std::nullopt;
}

std::optional<ZEVJPEGMarkers::Frame> ZEVJPEGMarkers::frame(QByteArrayView bytes)
{
    const auto header = frameHeader(bytes);
    if (!header)
        return std::nullopt;
    ZEVByteReader reader(bytes, ZEVByteReader::BigEndian);
    constexpr quint8 Baseline = 0xC0, Extended = 0xC1;
    const quint8 code = reader.byte(*header - 1);
    return Frame{code == Baseline || code == Extended, reader.byte(*header + 7)};
}

QByteArrayView ZEVJPEGMarkers::applicationData(QByteArrayView bytes, QByteArrayView prefix)
{
    Markers markers(bytes);
    for (quint8 code = markers.next(); code != None && code != SOS && code != EOI; code = markers.next()) {
        if (code == APP1 && markers.content().startsWith(prefix))
            return markers.content();
    }
    return {};
}

ZEVJPEGMarkers::Scans ZEVJPEGMarkers::scans(QByteArrayView bytes, int most)
{
    Markers markers(bytes);
    Scans scans;
    for (quint8 code = markers.next(); code != None && scans.count <= most; code = markers.next()) {
        if (code == EOI) {
            scans.areEnded = true;
            break;
        }
        scans.count += code == SOS ? 1 : 0;
    }
    return scans;
}
