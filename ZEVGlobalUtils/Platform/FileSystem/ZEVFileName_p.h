// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// A file's name in two halves. An extension is not empty and holds no white space: "Vol. 2" has none, nor
/// have "Name." and ".hidden".
struct ZEVFileName {
    enum class Dot {
        BeforeAnyExtension, ///< kept: also before an empty one, so that "Name" becomes "Name 2."
        BeforeExtensionOnly,
    };

    explicit ZEVFileName(const QByteArray &name);

    /// "Song 2.mp3". The base is shortened, between two characters, where the name would have more than the
    /// 255 bytes that a file system takes.
    QByteArray numbered(int number, Dot dot) const;

    /// The name itself, shortened in the same way.
    QByteArray fitting() const;

    /// At most so many bytes, and no part of a character of UTF-8.
    static QByteArray shortened(const QByteArray &bytes, qsizetype size);

    QByteArray base;
    QByteArray extension; ///< without its dot
};
