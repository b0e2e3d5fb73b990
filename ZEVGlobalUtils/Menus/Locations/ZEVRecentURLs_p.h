// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QUrl>
#include <QVariant>

#include <optional>

/// Locations that were used, the most recent first, as references to their items, with the bookmarks from
/// which they are found again.
class ZEVRecentURLs {
public:
    const QList<QUrl> &urls() const { return m_urls; }
    const QHash<QUrl, QByteArray> &bookmarks() const { return m_bookmarks; }

    /// Damaged and foreign values, and bookmarks of items that are not found, are left out.
    void load(const QVariant &stored, bool keepsUnmounted);
    QVariantList stored() const;

    /// Puts \a reference first, as one entry with what stands for the same item already.
    void add(const QUrl &reference, int maximum);
    void clear() { m_urls.clear(); }

    void removeMissing(bool keepsUnmounted);

    /// The name and the icon of what lies on a drive that is not mounted.
    struct Unmounted {
        QString name;
        QString iconName;
    };
    std::optional<Unmounted> unmounted(const QUrl &reference) const;
    /// The one of ours that is the same item as \a reference, if it is on such a drive; invalid otherwise.
    QUrl unmountedLike(const QUrl &reference) const;

    static bool isThere(const QUrl &reference);
    static bool isSameItem(const QUrl &one, const QUrl &other);

private:
    qsizetype indexOf(const QUrl &reference) const;
    void makeBookmark(const QUrl &reference);
    void forgetUnusedBookmarks();

    QList<QUrl> m_urls;
    QHash<QUrl, QByteArray> m_bookmarks;
};
