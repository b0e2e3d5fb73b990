// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVByteReader_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageHeaders_p.h>

#include <optional>

namespace {

/// The content of a box, as positions in the file.
struct Span {
    quint64 begin;
    quint64 end;
};

/// The boxes of an image file (ISO/IEC 14496-12 and 23008-12), as far as they lead to the size of the
/// picture.
class Boxes {
public:
    explicit Boxes(QByteArrayView bytes)
        : m_reader(bytes, ZEVByteReader::BigEndian)
    {
    }

    QSize primarySize();

private:
    /// The box that begins at \a at and does not reach past \a end.
    std::optional<Span> box(quint64 at, quint64 end);
    std::optional<Span> child(Span parent, const char (&tag)[5]);
    std::optional<Span> childAtIndex(Span parent, quint32 index);
    std::optional<quint32> primaryItem(Span meta);
    QSize sizeProperty(Span properties, Span associations, quint32 item);
    QSize firstSize(Span properties, quint64 at, int count, int indexSize);
    QSize sizeOfProperty(Span properties, quint32 index);

    ZEVByteReader m_reader;
};

std::optional<Span> Boxes::box(quint64 at, quint64 end)
{
    if (end < 8 || at > end - 8)
        return std::nullopt;
    quint64 size = m_reader.longWord(at), header = 8;
    if (size == 1) { // a size of 64 bits follows the tag
        size = quint64(m_reader.longWord(at + 8)) << 32 | m_reader.longWord(at + 12);
        header = 16;
    } else if (size == 0) { // up to the end
        size = end - at;
    }
    if (size < header || size > end - at)
        return std::nullopt;
    return Span{at + header, at + size};
}

std::optional<Span> Boxes::child(Span parent, const char (&tag)[5])
{
    for (quint64 at = parent.begin;;) {
        const auto found = box(at, parent.end);
        if (!found || m_reader.isTag(at + 4, tag))
            return found;
        at = found->end;
    }
}

/// Properties are counted from 1. What is found is given with its tag, which stands in the four bytes before
/// it.
std::optional<Span> Boxes::childAtIndex(Span parent, quint32 index)
{
    quint64 at = parent.begin;
    auto found = box(at, parent.end);
    for (quint32 count = 1; found && count < index; ++count)
        found = box(at = found->end, parent.end);
    return found && index > 0 ? std::optional(Span{at, found->end}) : std::nullopt;
}

std::optional<quint32> Boxes::primaryItem(Span meta)
{
    const auto primary = child(meta, "pitm");
    if (!primary)
        return std::nullopt;
    return m_reader.byte(primary->begin) == 0 ? m_reader.word(primary->begin + 4)
                                              : m_reader.longWord(primary->begin + 4);
}

QSize Boxes::sizeOfProperty(Span properties, quint32 index)
{
    const auto property = childAtIndex(properties, index);
    if (!property || !m_reader.isTag(property->begin + 4, "ispe"))
        return {};
    return ZEVImageHeaders::checkedSize(m_reader.longWord(property->begin + 12),
                                        m_reader.longWord(property->begin + 16));
}

/// The first of the item's properties ("ipma") that is a size. An item has one entry; looking at a second one
/// would let a hostile file make us walk for hours.
QSize Boxes::sizeProperty(Span properties, Span associations, quint32 item)
{
    const bool longItems = m_reader.byte(associations.begin) > 0;
    const int indexSize = (m_reader.byte(associations.begin + 3) & 1) != 0 ? 2 : 1;
    const quint32 entries = m_reader.longWord(associations.begin + 4);
    quint64 at = associations.begin + 8;
    for (quint32 entry = 0; entry < entries && at < associations.end; ++entry) {
        const quint32 owner = longItems ? m_reader.longWord(at) : m_reader.word(at);
        at += longItems ? 4 : 2;
        const int count = m_reader.byte(at++);
        if (owner == item)
            return firstSize(properties, at, count, indexSize);
        at += quint64(count) * indexSize;
    }
    return {};
}

/// The top bit of an index says that the property is essential.
QSize Boxes::firstSize(Span properties, quint64 at, int count, int indexSize)
{
    for (int index = 0; index < count; ++index, at += indexSize) {
        const quint32 property = indexSize == 2 ? m_reader.word(at) & 0x7FFF : m_reader.byte(at) & 0x7F;
        if (const QSize size = sizeOfProperty(properties, property); size.isValid())
            return size;
    }
    return {};
}

QSize Boxes::primarySize()
{
    const auto meta = child({0, m_reader.size()}, "meta");
    if (!meta || meta->end - meta->begin < 4)
        return {};
    const Span content{meta->begin + 4, meta->end}; // behind version and flags
    const auto item = primaryItem(content);
    const auto itemProperties = child(content, "iprp");
    if (!item || !itemProperties)
        return {};
    const auto properties = child(*itemProperties, "ipco");
    const auto associations = child(*itemProperties, "ipma");
    return properties && associations ? sizeProperty(*properties, *associations, *item) : QSize();
}

} // namespace

QSize ZEVImageHeaders::avifSize(QByteArrayView bytes) { return Boxes(bytes).primarySize(); }
