// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

#include <QHash>

/// What was copied of an item and all in it, by the names from it on: how a source is known again before it
/// is removed.
class ZEVCopiedItems {
public:
    /// Of the item as it was before a byte of it was read.
    void add(const QByteArray &name, const struct stat &status);

    enum class Compare {
        Everything,
        NotTimeOfChange, ///< of the item itself, which every renaming sets
    };
    /// EBUSY where \a entry or an item in it is not as it was copied, which \a changed then names; another
    /// errno where that cannot be seen. What has gone meanwhile does not count.
    int compare(const ZEVEntry &entry, Compare compare, QByteArray &changed) const;

    /// Whether the item has the bytes that were copied, whatever else of it has changed; always for folders.
    bool hasBytesOf(const QByteArray &name, const struct stat &status) const;

private:
    struct Stamp {
        quint64 device = 0;
        quint64 inode = 0;
        mode_t kind = 0;
        qint64 size = 0;
        qint64 modified = 0;
        qint64 changed = 0;
        friend bool operator==(const Stamp &, const Stamp &) = default;
    };
    static Stamp stampOf(const struct stat &status);
    int compareWithin(const ZEVEntry &folder, QByteArray &name) const;

    QHash<QByteArray, Stamp> m_stamps;
};
