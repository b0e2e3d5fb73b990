// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>

#include <QString>

#include <algorithm>

namespace {

constexpr qsizetype LongestName = 255; ///< bytes, as in limits.h

bool isExtension(const QByteArray &bytes)
{
    return !bytes.isEmpty() && std::ranges::none_of(QString::fromUtf8(bytes), [](QChar character) {
        return character.isSpace();
    });
}

bool continuesCharacter(char byte) { return (byte & 0xC0) == 0x80; }

} // namespace

ZEVFileName::ZEVFileName(const QByteArray &name)
    : base(name)
{
    const qsizetype dot = name.lastIndexOf('.');
    if (dot <= 0 || !isExtension(name.sliced(dot + 1)))
        return;
    base = name.first(dot);
    extension = name.sliced(dot + 1);
}

QByteArray ZEVFileName::fitting() const
{
    const QByteArray end = extension.isEmpty() ? QByteArray() : '.' + extension;
    return shortened(base, LongestName - end.size()) + end;
}

/// Not in the middle of a character of UTF-8; of bytes that are none, wherever it falls.
QByteArray ZEVFileName::shortened(const QByteArray &bytes, qsizetype size)
{
    if (bytes.size() <= size)
        return bytes;
    qsizetype end = std::max<qsizetype>(size, 0);
    for (int back = 0; back < 3 && end > 0 && continuesCharacter(bytes.at(end)); ++back)
        --end;
    return bytes.first(end);
}

QByteArray ZEVFileName::numbered(int number, Dot dot) const
{
    QByteArray end = ' ' + QByteArray::number(number);
    if (dot == Dot::BeforeAnyExtension || !extension.isEmpty())
        end += '.' + extension;
    return shortened(base, LongestName - end.size()) + end;
}
